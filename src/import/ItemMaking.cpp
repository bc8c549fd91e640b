// SPDX-License-Identifier: GPL-3.0-or-later
#include "ItemMaking.h"

#include "CameraText.h"
#include "DateDifferences.h"
#include "DaylightSavingChecks.h"
#include "ItemFilling.h"
#include "MovieFilling.h"
#include "SourceSlot.h"
#include "XmpFilling.h"
#include "ZoneLookup.h"

namespace chronomender {

namespace {

/// The date was written with its zone, so that no clock's zone has to be known for it.
bool hasZonedSource(const MySinglePic &pic) {
    if (const XmpStampType type = pic.sourceXmpDateType(); type != XmpStampType::Invalid)
        return type != XmpStampType::Local;
    const auto slot = decidingSlot(pic.spType);
    return slot && pic.zoneStamp(*slot) != nullptr;
}

/// A GPS time is UTC, except that XMP may have it in local time.
bool hasGpsInstant(const MySinglePic &pic) {
    if (!pic.location.spGpsUTCDate)
        return false;
    const XmpStamp *stamp = pic.singlePicAttributes.xmpDateInfos.xmpGpsDict();
    return !pic.location.isGpsXmp || stamp == nullptr || stamp->type != XmpStampType::Local;
}

/// A folder that says what its cameras' clocks meant has its stamps read so. Without that, stamps
/// that carry no zone and have no GPS time beside them are looked at for ambiguity alone; the
/// others tell their time in more than one way.
void settleZones(MySinglePic &pic, const FillContext &context) {
    if (context.folder.sourceTimeZones.folderDefault)
        updateAllDatesAfterUpdatingTimezone(pic, context.folder, context.zones,
                                            context.dateComparisonThresold);
    else if (!hasZonedSource(pic) && !hasGpsInstant(pic))
        checkImportDivergencyAndAmbiguityUsingZone(pic, context.zones.systemZone().rules);
    else
        validateDateDifferencesUsingTimeZone(pic, context.zones.systemZone().rules);
}

void takeCamera(MySinglePic &pic, const DatesData &dates) {
    pic.camera.make = cameraText(dates.make);
    pic.camera.model = cameraText(dates.model);
    pic.camera.pivMakeModel = completeMakerModelString(pic.camera.make, pic.camera.model);
}

void fillPhoto(MySinglePic &pic, FileRecord &record, const FillContext &context) {
    takeCamera(pic, record.dates);
    setImageAttributesFromTheDatesData(pic, std::move(record.dates), context.folder, context.zones,
                                       std::move(record.xmpDates));
    setImageAttributesFromFileAttributes(pic, record.attributes, context.dateComparisonThresold);
    if (!record.xmpLocation.isEmpty())
        addRelevantXmpInfos(pic, std::move(record.xmpLocation));
    if (pic.hasCorrectableDate())
        settleZones(pic, context);
}

/// Header times that exist and are empty can be filled by a save.
void markEmptyHeaderTimes(MySinglePic &pic) {
    pic.slots.exifDateTimeOriginalOLD = InfinitePast();
    if (pic.spType == SpTypeMovieEmptyFixedDate || !pic.slots.tiffDateTimeOLD)
        pic.slots.tiffDateTimeOLD = InfinitePast();
}

void fillMovie(MySinglePic &pic, FileRecord &record, const FillContext &context) {
    if (pic.hasCorrectableDate())
        setMovieAttributes(pic, std::move(record.movieHeader).value_or(MovieHeader()),
                           record.movieDetails, context.folder, context.zones);
    setImageAttributesFromFileAttributes(pic, record.attributes, context.dateComparisonThresold);
    if (isNullerFile(pic.spType))
        markEmptyHeaderTimes(pic);
    if (pic.hasCorrectableDate())
        validateMovieDatesOnImport(pic, context.folder, context.zones);
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
    if (pic.isMovie())
        fillMovie(pic, record, context);
    else
        fillPhoto(pic, record, context);
}

} // namespace chronomender
