// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateDifferences.h"

#include "DaylightSavingChecks.h"
#include "IsoStamp.h"
#include "ItemDates.h"
#include "SourceSlot.h"
#include "StampConversions.h"
#include "XmpStampConversions.h"
#include "ZoneLookup.h"

namespace chronomender {
namespace {

constexpr std::int64_t kUsualStep = 3600;
constexpr std::int64_t kGroupTolerance = 300;

/// A wall clock with the zone that stands beside it in the file.
struct ZonedStamp {
    CivilFields clock;
    std::int32_t secondsEastOfUtc = 0;
};

/// A movie's date that ends with the letter Z keeps UTC as its form and names no place's zone.
std::optional<ZonedStamp> zonedMetaDate(const MySinglePic &pic) {
    const auto &date = pic.singlePicAttributes.qtMetaDate;
    const auto stamp = date ? readIsoStamp(date->data) : std::nullopt;
    if (!stamp || !stamp->secondsEastOfUtc || stamp->form.zone == IsoZone::Letter)
        return std::nullopt;
    return ZonedStamp{stamp->fields, *stamp->secondsEastOfUtc};
}

/// The slot whose stamp decided about a photo's date.
std::optional<StampSlot> decidingPhotoSlot(const MySinglePic &pic) {
    return isInRange(pic.spType, SpTypeExifOriginal, SpTypeTiffYoungerThanFile)
               ? decidingSlot(pic.spType)
               : std::nullopt;
}

std::optional<ZonedStamp> zonedXmpStamp(const MySinglePic &pic) {
    if (pic.sourceXmpDateType() != XmpStampType::Zoned)
        return std::nullopt;
    const auto slot = decidingPhotoSlot(pic);
    const XmpStamp *stamp = slot ? pic.xmpStamp(*slot) : nullptr;
    const auto clock = wallClockOfXmpStamp(stamp);
    const auto seconds = secondsFromXmpStamp(stamp);
    return clock && seconds ? std::optional(ZonedStamp{*clock, *seconds}) : std::nullopt;
}

std::optional<ZonedStamp> zonedExifStamp(const MySinglePic &pic) {
    const auto slot = decidingPhotoSlot(pic);
    const LocatedBytes *offset = slot ? pic.zoneStamp(*slot) : nullptr;
    const LocatedBytes *stamp = offset && !pic.isSlotXmp(*slot) ? pic.stamp(*slot) : nullptr;
    if (!stamp)
        return std::nullopt;
    const auto zone = exifOffsetFromData(offset->data);
    const auto seconds = zone ? secondsFromExifOffset(*zone) : std::nullopt;
    const auto clock = civilFromExifData(stamp->data);
    return clock && seconds ? std::optional(ZonedStamp{*clock, *seconds}) : std::nullopt;
}

/// A photo's date is from EXIF or from XMP, never from both.
std::optional<ZonedStamp> zonedPhotoStamp(const MySinglePic &pic) {
    return pic.isDataSourceXmp() ? zonedXmpStamp(pic) : zonedExifStamp(pic);
}

/// An hour between the two zones means nothing where the stamp happens twice in the assumed zone,
/// and its own zone tells the earlier of the two, or where it does not exist there.
DstSpecialCase specialCaseOf(const ZonedStamp &stamp, Date own, Date assumed,
                             const absl::TimeZone &zone) {
    const CivilFields clock = civilFromInstant(assumed, zone);
    if (civilFromInstant(own, zone) == clock)
        return DstSpecialCase::SameClock;
    return clock == stamp.clock ? DstSpecialCase::None : DstSpecialCase::SkippedTime;
}

/// The one rule for all three kinds of stamps.
std::int64_t difference(const std::optional<ZonedStamp> &stamp, const absl::TimeZone &zone,
                        DstSpecialCase *specialCase = nullptr) {
    if (specialCase)
        *specialCase = DstSpecialCase::None;
    if (!stamp)
        return 0;
    const Date own = instantFromCivil(stamp->clock, absl::UTCTimeZone()) -
                     absl::Seconds(stamp->secondsEastOfUtc);
    const Date assumed = instantFromCivil(stamp->clock, zone);
    const std::int64_t seconds = absl::ToInt64Seconds(own - assumed);
    if (std::abs(seconds) != kUsualStep)
        return seconds;
    const DstSpecialCase found = specialCaseOf(*stamp, own, assumed, zone);
    if (specialCase)
        *specialCase = found;
    return found == DstSpecialCase::None ? seconds : 0;
}

void setBits(unsigned &bits, unsigned which, bool isSet) {
    bits = isSet ? bits | which : bits & ~which;
}

bool liesApart(Date a, Date b) {
    return !isMarker(a) && !isMarker(b) && absl::ToInt64Seconds(distance(a, b)) > kGroupTolerance;
}

void validateZoneInFile(MySinglePic &pic, const absl::TimeZone &zone) {
    setBits(pic.zones.majorDateDifferenceType, kZoneDisagrees,
            zoneDisagreement(pic, zone).has_value());
}

} // namespace

std::int64_t checkMDTADateWithTimeZone(const MySinglePic &pic, const absl::TimeZone &zone,
                                       DstSpecialCase *specialCase) {
    return difference(zonedMetaDate(pic), zone, specialCase);
}

std::int64_t checkEXOFTimeWithTimeZone(const MySinglePic &pic, const absl::TimeZone &zone,
                                       DstSpecialCase *specialCase) {
    return difference(zonedPhotoStamp(pic), zone, specialCase);
}

std::int64_t checkXmpTZTimeWithTimeZone(const MySinglePic &pic, const absl::TimeZone &zone,
                                        DstSpecialCase *specialCase) {
    return difference(zonedXmpStamp(pic), zone, specialCase);
}

std::optional<ZoneDisagreement> zoneDisagreement(const MySinglePic &pic,
                                                 const absl::TimeZone &zone) {
    const auto stamp = pic.isMovie() ? zonedMetaDate(pic) : zonedPhotoStamp(pic);
    const std::int64_t seconds = difference(stamp, zone);
    if (seconds == 0)
        return std::nullopt;
    return ZoneDisagreement{stamp->secondsEastOfUtc, seconds};
}

bool validateGroupDeviations(MySinglePic &pic) {
    const MySinglePicPtr &dependent = pic.group.bundleDependentImage;
    const bool isHarmonized = dependent && pic.isGroupHarmonized();
    const bool isApart =
        dependent && liesApart(pic.spDateTimeOriginal, dependent->spDateTimeOriginal);
    const bool isOneSideLocal =
        isApart && !isHarmonized && pic.isDataSourceLocal() != dependent->isDataSourceLocal();
    setBits(pic.zones.majorDateDifferenceType, kGroupDeviates, isApart || isHarmonized);
    setBits(pic.zones.majorDateDifferenceType, kOnlyOneSideIsLocal, isOneSideLocal);
    return isOneSideLocal;
}

bool validateDateDifferencesUsingTimeZone(MySinglePic &pic, const absl::TimeZone &zone) {
    const bool wasMajor = hasMajorDateDifference(pic);
    const bool wasMinor = pic.zones.hasMinorDateDifference;
    validateZoneInFile(pic, zone);
    validateGroupDeviations(pic);
    pic.zones.hasMinorDateDifference =
        differenceFromGPSDateToDate(pic, pic.spDateTimeOriginal) != 0 && pic.isDataSourceLocal();
    checkImportDivergencyAndAmbiguityUsingZone(pic, zone);
    return wasMajor != hasMajorDateDifference(pic) || wasMinor != pic.zones.hasMinorDateDifference;
}

bool validateDateDifferences(MySinglePic &pic, const MySingleFolder &folder, const Zones &zones) {
    return validateDateDifferencesUsingTimeZone(pic,
                                                sourceTimeZoneForPic(pic, folder, zones).rules);
}

void validateMovieDatesOnImport(MySinglePic &pic, const MySingleFolder &folder,
                                const Zones &zones) {
    const absl::TimeZone &zone = sourceTimeZoneForPic(pic, folder, zones).rules;
    validateZoneInFile(pic, zone);
    checkImportDivergencyAndAmbiguityUsingZone(pic, zone);
}

bool hasMajorDateDifference(const MySinglePic &pic) {
    return pic.zones.majorDateDifferenceType & (kZoneDisagrees | kOnlyOneSideIsLocal);
}

} // namespace chronomender
