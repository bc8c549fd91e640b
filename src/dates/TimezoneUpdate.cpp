// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneLookup.h"

#include "DaylightSavingChecks.h"
#include "ItemDates.h"
#include "StampConversions.h"

#include <utility>

namespace chronomender {
namespace {

/// What a change of zone can move before a person's eyes.
struct SeenDates {
    SpType type;
    Date mainDate;
    DateSlots slots;

    bool operator==(const SeenDates &) const = default;
};

SeenDates seenDates(const MySinglePic &pic) {
    return {pic.spType, pic.spDateTimeOriginal, pic.slots};
}

/// Types whose main date is the date of a stamp, and that stamp.
std::optional<StampSlot> sourceSlot(SpType type) {
    switch (type) {
    case SpTypeExifOriginal:
        return StampSlot::Original;
    case SpTypeExifDigitized:
        return StampSlot::Digitized;
    case SpTypeTiffDateTime:
        return StampSlot::Modification;
    default:
        return std::nullopt;
    }
}

void readSlotAgain(MySinglePic &pic, StampSlot slot, const absl::TimeZone &zone) {
    OptionalDate &oldDate = pic.slots.*description(slot).oldDate;
    const LocatedBytes *stamp = pic.stamp(slot);
    if (!stamp || !oldDate || *oldDate == InfinitePast())
        return;
    const LocatedBytes *zoneStamp = pic.zoneStamp(slot);
    const OptionalDate date =
        dateFromExifData(stamp->data, zoneStamp ? &zoneStamp->data : nullptr, zone);
    if (!isCleanDate(date))
        return;
    oldDate = date;
    if (sourceSlot(pic.spType) == slot)
        pic.spDateTimeOriginal = *date;
}

/// A modification stamp and the file date change places as the main date, depending on which is
/// the younger.
void exchangeRolesWithFileDate(MySinglePic &pic, int dateComparisonThresold) {
    const OptionalDate &stampDate = pic.slots.tiffDateTimeOLD;
    if (!isCleanDate(stampDate))
        return;
    const bool isYounger =
        isSourceMetaModAndYoungerThanFileCrea(pic, *stampDate, dateComparisonThresold);
    if (pic.spType == SpTypeTiffYoungerThanFile && !isYounger) {
        pic.spType = SpTypeTiffDateTime;
        pic.spDateTimeOriginal = *stampDate;
    } else if (pic.spType == SpTypeTiffDateTime && isYounger) {
        pic.spType = SpTypeTiffYoungerThanFile;
        pic.spDateTimeOriginal = *pic.slots.fileCreationDateOLD;
    }
}

/// An alternative reading chosen earlier stays only where the stamp still means two instants.
void keepAlternativeReading(MySinglePic &pic, const absl::TimeZone &zone) {
    const int chosen = std::exchange(pic.zones.usesAltTimeAtAmbiguityReason, 0);
    checkImportDivergencyAndAmbiguityUsingZone(pic, zone);
    pic.zones.usesAltTimeAtAmbiguityReason = chosen;
    if (chosen == 0 || !isDateSourceAmbiguousAtImport(pic))
        return;
    reapplyAmbiguityCorrection(pic);
    checkImportDivergencyAndAmbiguityUsingZone(pic, zone);
}

} // namespace

bool updateAllDatesAfterUpdatingTimezoneUsingTimeZone(MySinglePic &pic, const Zone &sourceZone,
                                                      const MySingleFolder &folder,
                                                      const Zones &zones,
                                                      int dateComparisonThresold) {
    const SeenDates before = seenDates(pic);
    if (isInRange(pic.spType, SpTypeExifOriginal, SpTypeTiffYoungerThanFile)) {
        for (StampSlot slot : stampSlots)
            readSlotAgain(pic, slot, sourceZone.rules);
        exchangeRolesWithFileDate(pic, dateComparisonThresold);
    }
    bool didDependentChange = false;
    if (const MySinglePicPtr &dependent = pic.group.bundleDependentImage)
        didDependentChange = updateAllDatesAfterUpdatingTimezoneUsingTimeZone(
            *dependent, sourceZone, folder, zones, dateComparisonThresold);
    if (pic.location.spGpsUTCDate)
        updateGpsDateWithCreationDate(pic, pic.spDateTimeOriginal);
    if (!pic.bundleMasterImage())
        validateTZCUnsavedForPic(pic, folder, zones);
    keepAlternativeReading(pic, sourceZone.rules);
    return didDependentChange || before != seenDates(pic);
}

bool updateAllDatesAfterUpdatingTimezone(MySinglePic &pic, const MySingleFolder &folder,
                                         const Zones &zones, int dateComparisonThresold) {
    return updateAllDatesAfterUpdatingTimezoneUsingTimeZone(
        pic, sourceTimeZoneForPic(pic, folder, zones), folder, zones, dateComparisonThresold);
}

} // namespace chronomender
