// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneLookup.h"

#include "DateDifferences.h"
#include "DaylightSavingChecks.h"
#include "ItemDates.h"
#include "MovieStampConversions.h"
#include "Parallel.h"
#include "SourceSlot.h"
#include "StampConversions.h"
#include "XmpStampConversions.h"

#include <algorithm>
#include <array>
#include <utility>

namespace chronomender {
namespace {

/// What a change of zone can move before a person's eyes; the file's own dates stay.
struct SeenDates {
    SpType type;
    Date mainDate;
    OptionalDate original, digitized, modification;

    bool operator==(const SeenDates &) const = default;
};

SeenDates seenDates(const MySinglePic &pic) {
    const DateSlots &slots = pic.slots;
    return {pic.spType, pic.spDateTimeOriginal, slots.exifDateTimeOriginalOLD,
            slots.exifDateTimeDigitizedOLD, slots.tiffDateTimeOLD};
}

/// A stamp and what it says in the present zone. The stamps of a photo are mostly equal, and an
/// equal one need not be read again.
struct StampRead {
    const LocatedBytes *stamp = nullptr;
    OptionalDate date;
};

/// What a slot's stamp says in this zone; none without one.
OptionalDate dateOfSlot(const MySinglePic &pic, StampSlot slot, const absl::TimeZone &zone,
                        StampRead &last) {
    const LocatedBytes *stamp = pic.stamp(slot);
    if (!stamp)
        return xmpDateFromStampInfos(pic.xmpStamp(slot), zone);
    if (const LocatedBytes *zoneStamp = pic.zoneStamp(slot))
        return dateFromExifData(stamp->data, &zoneStamp->data, zone);
    if (!last.stamp || last.stamp->data != stamp->data)
        last = {stamp, dateFromExifData(stamp->data, nullptr, zone)};
    return last.date;
}

/// Empty slots, and slots of tags to be added, stay as they are.
void readSlotsAgain(MySinglePic &pic, const absl::TimeZone &zone) {
    const auto source = sourceSlot(pic.spType);
    StampRead last;
    for (const StampSlot slot : stampSlots) {
        OptionalDate &oldDate = pic.slots.*description(slot).oldDate;
        if (!oldDate || *oldDate == InfinitePast())
            continue;
        const OptionalDate date = dateOfSlot(pic, slot, zone, last);
        if (!isCleanDate(date))
            continue;
        oldDate = date;
        if (source == slot)
            pic.spDateTimeOriginal = *date;
    }
}

/// Types that take their main date from a modification stamp, or from the file while that is the
/// younger.
struct ExchangedRoles {
    SpType ofStamp, ofFile;
};
constexpr std::array<ExchangedRoles, 2> kExchangedRoles{
    {{SpTypeTiffDateTime, SpTypeTiffYoungerThanFile},
     {SpTypeMovieMvhdModification, SpTypeMovieMvhdYoungerThanFile}}};

/// A modification stamp and the file date change places as the main date, depending on which is
/// the younger.
void exchangeRolesWithFileDate(MySinglePic &pic, int dateComparisonThresold) {
    const OptionalDate &stampDate = pic.slots.tiffDateTimeOLD;
    if (!isCleanDate(stampDate))
        return;
    const bool isYounger =
        isSourceMetaModAndYoungerThanFileCrea(pic, *stampDate, dateComparisonThresold);
    const auto *const roles = std::ranges::find_if(kExchangedRoles, [&](const auto &each) {
        return pic.spType == each.ofStamp || pic.spType == each.ofFile;
    });
    if (roles == kExchangedRoles.end())
        return;
    if (pic.spType == roles->ofFile && !isYounger) {
        pic.spType = roles->ofStamp;
        pic.spDateTimeOriginal = *stampDate;
    } else if (pic.spType == roles->ofStamp && isYounger) {
        pic.spType = roles->ofFile;
        pic.spDateTimeOriginal = *pic.slots.fileCreationDateOLD;
    }
}

void readRiffDateAgain(MySinglePic &pic, const absl::TimeZone &zone) {
    const auto &stamp = pic.singlePicAttributes.riffCreaDate;
    const OptionalDate date = stamp ? dateFromRIFFTimeStamp(stamp->data, zone) : std::nullopt;
    if (!date)
        return;
    pic.slots.exifDateTimeOriginalOLD = date;
    pic.spDateTimeOriginal = *date;
}

/// The header's times in the folder's present understanding of them.
void readHeaderTimesAgain(MySinglePic &pic, MvhdCorrection correction, const absl::TimeZone &zone) {
    const SinglePicAttributes &read = pic.singlePicAttributes;
    const auto dateOf = [&](const std::optional<LocatedBytes> &value) {
        return value ? finalDateFromMVHDData(value->data, correction, zone) : std::nullopt;
    };
    if (const OptionalDate date = dateOf(read.qtMvhdCreaDate)) {
        pic.slots.exifDateTimeOriginalOLD = date;
        pic.spDateTimeOriginal = *date;
    }
    if (const OptionalDate date = dateOf(read.qtMvhdModDate)) {
        pic.slots.tiffDateTimeOLD = date;
        if (pic.spType == SpTypeMovieMvhdModification)
            pic.spDateTimeOriginal = *date;
    }
}

/// What an item is read by again.
struct Reading {
    const Zone &sourceZone;
    ZoneSides sides;
    MvhdCorrection correction;
    const Zones &zones;
    int dateComparisonThresold;
};

void readStampsAgain(MySinglePic &pic, const Reading &reading) {
    const absl::TimeZone &zone = reading.sourceZone.rules;
    if (isInRange(pic.spType, SpTypeExifOriginal, SpTypeTiffYoungerThanFile)) {
        readSlotsAgain(pic, zone);
    } else if (pic.spType == SpTypeMovieRiff) {
        readRiffDateAgain(pic, zone);
    } else if (isInRange(pic.spType, SpTypeMovieMvhdCreation, SpTypeMovieMvhdYoungerThanFile)) {
        readHeaderTimesAgain(pic, reading.correction, zone);
    }
    if (isEligibleForYoungerThanFile(pic.spType))
        exchangeRolesWithFileDate(pic, reading.dateComparisonThresold);
}

/// An alternative reading chosen earlier stays only where the stamp still means two instants.
void keepAlternativeReading(MySinglePic &pic, const absl::TimeZone &zone) {
    const int chosen = std::exchange(pic.zones.usesAltTimeAtAmbiguityReason, 0);
    validateDateDifferencesUsingTimeZone(pic, zone);
    pic.zones.usesAltTimeAtAmbiguityReason = chosen;
    if (chosen == 0 || !isDateSourceAmbiguousAtImport(pic))
        return;
    reapplyAmbiguityCorrection(pic);
    validateDateDifferencesUsingTimeZone(pic, zone);
}

bool readAgain(MySinglePic &pic, const Reading &reading) {
    const SeenDates before = seenDates(pic);
    readStampsAgain(pic, reading);
    const MySinglePicPtr &dependent = pic.group.bundleDependentImage;
    const bool didDependentChange = dependent && readAgain(*dependent, reading);
    if (pic.location.spGpsUTCDate)
        updateGpsDateWithCreationDate(pic, pic.spDateTimeOriginal);
    if (!pic.bundleMasterImage())
        validateTZCUnsavedForPic(pic, reading.sides, reading.zones);
    keepAlternativeReading(pic, reading.sourceZone.rules);
    return didDependentChange || before != seenDates(pic);
}

MvhdCorrection correctionOf(const MySingleFolder &folder) {
    return MvhdCorrection{folder.isQuicktimeMVHDTimezoneCorrectionEnabled};
}

} // namespace

bool updateAllDatesAfterUpdatingTimezoneUsingTimeZone(MySinglePic &pic, const Zone &sourceZone,
                                                      const MySingleFolder &folder,
                                                      const Zones &zones,
                                                      int dateComparisonThresold) {
    return readAgain(pic,
                     {sourceZone, folder, correctionOf(folder), zones, dateComparisonThresold});
}

bool updateAllDatesAfterUpdatingTimezoneUsingZoneProvider(MySinglePic &pic,
                                                          const ZoneProvider &provider,
                                                          const MySingleFolder &folder,
                                                          const Zones &zones,
                                                          int dateComparisonThresold) {
    const ZoneSides sides(&provider, folder);
    return readAgain(pic, {sourceTimeZoneForPic(pic, sides, zones), sides, correctionOf(folder),
                           zones, dateComparisonThresold});
}

bool updateAllDatesAfterUpdatingTimezone(MySinglePic &pic, const MySingleFolder &folder,
                                         const Zones &zones, int dateComparisonThresold) {
    return updateAllDatesAfterUpdatingTimezoneUsingTimeZone(
        pic, sourceTimeZoneForPic(pic, folder, zones), folder, zones, dateComparisonThresold);
}

std::size_t updateAllDatesAfterUpdatingTimezone(const std::vector<MySinglePicPtr> &pics,
                                                const MySingleFolder &folder, const Zones &zones,
                                                int dateComparisonThresold) {
    std::vector<unsigned char> didChange(pics.size());
    parallelFor(pics.size(), [&](std::size_t i) {
        didChange[i] =
            updateAllDatesAfterUpdatingTimezone(*pics[i], folder, zones, dateComparisonThresold);
    });
    return static_cast<std::size_t>(std::ranges::count(didChange, true));
}

} // namespace chronomender
