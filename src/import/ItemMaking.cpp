// SPDX-License-Identifier: GPL-3.0-or-later
#include "ItemMaking.h"

#include "CameraText.h"
#include "DaylightSavingChecks.h"
#include "ItemFilling.h"
#include "ZoneLookup.h"

namespace chronomender {

namespace {

/// The slot that the main date was read from; none for types whose date is not a stamp of the file.
std::optional<StampSlot> sourceSlot(SpType type) {
    switch (type) {
    case SpTypeExifOriginal:
        return StampSlot::Original;
    case SpTypeExifDigitized:
        return StampSlot::Digitized;
    case SpTypeTiffDateTime:
    case SpTypeTiffYoungerThanFile:
        return StampSlot::Modification;
    default:
        return std::nullopt;
    }
}

bool hasZonedSource(const MySinglePic &pic) {
    const auto slot = sourceSlot(pic.spType);
    return slot && pic.zoneStamp(*slot) != nullptr;
}

/// A folder that says what its cameras' clocks meant has its stamps read so. Without that, stamps
/// that carry no zone and have no GPS time beside them are looked at for ambiguity.
void settleZones(MySinglePic &pic, const FillContext &context) {
    if (context.folder.sourceTimeZones.folderDefault)
        updateAllDatesAfterUpdatingTimezone(pic, context.folder, context.zones,
                                            context.dateComparisonThresold);
    else if (!hasZonedSource(pic) && !pic.location.spGpsUTCDate)
        checkImportDivergencyAndAmbiguityUsingZone(pic, context.zones.systemZone().rules);
}

void takeCamera(MySinglePic &pic, const DatesData &dates) {
    pic.camera.make = cameraText(dates.make);
    pic.camera.model = cameraText(dates.model);
    pic.camera.pivMakeModel = completeMakerModelString(pic.camera.make, pic.camera.model);
}

} // namespace

MySinglePicPtr makeItem(std::string name, const MySingleFolderPtr &folder, const FileRecord &record,
                        const DateDecision &decision) {
    MySinglePicPtr pic = MySinglePic::create(std::move(name), folder, decision.type, decision.date);
    pic->fileFormatType = record.format;
    pic->importState.isLeftAlone = decision.isLeftAlone;
    pic->importState.isPossibleBundlePic =
        record.format == FileFormatRaw || record.format == FileFormatQuickTime;
    return pic;
}

void fillItem(MySinglePic &pic, FileRecord record, const FillContext &context) {
    takeCamera(pic, record.dates);
    setImageAttributesFromTheDatesData(pic, std::move(record.dates), context.folder, context.zones);
    setImageAttributesFromFileAttributes(pic, record.attributes, context.dateComparisonThresold);
    if (pic.hasCorrectableDate())
        settleZones(pic, context);
}

} // namespace chronomender
