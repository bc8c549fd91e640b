// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaylightSavingChecks.h"

#include "ItemDates.h"
#include "MovieStampConversions.h"
#include "MovieStampSyntax.h"
#include "StampConversions.h"
#include "XmpStampConversions.h"
#include "ZoneLookup.h"

namespace chronomender {
namespace {

/// Clocks are set back by an hour nearly everywhere; overlaps of another length are not seen.
constexpr absl::Duration usualStep = absl::Hours(1);
/// How near to a change of the zone's offset a date must be to be worth a round trip.
constexpr absl::Duration dangerWindow = absl::Hours(2);
constexpr absl::Duration roundTripTolerance = absl::Seconds(10);

bool isPhotoWithStamps(SpType type) {
    return isInRange(type, SpTypeExifOriginal, SpTypeTiffYoungerThanFile);
}

/// Only a stamp without a zone of its own can be in danger.
bool isLocalStamp(const MySinglePic &pic, StampSlot slot) {
    if (const XmpStamp *fromXmp = pic.xmpStamp(slot))
        return fromXmp->type == XmpStampType::Local;
    return !pic.zoneStamp(slot);
}

/// A movie's date that stands in its file as a wall clock without a zone.
bool isLocalMovieDate(const MySinglePic &pic) {
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    return pic.spType == SpTypeMovieRiff ||
           (isInRange(pic.spType, SpTypeMovieMvhdCreation, SpTypeMovieEmptyFixedDate) && folder &&
            folder->isQuicktimeMVHDTimezoneCorrectionEnabled);
}

struct Verdict {
    bool isDivergent = false; ///< the date no longer turns back into the wall clock of the file
    bool isAmbiguous = false;
};

/// The bytes that a slot was read from; null without any.
const LocatedBytes *readBytes(const MySinglePic &pic, StampSlot slot) {
    const XmpStamp *fromXmp = pic.xmpStamp(slot);
    const LocatedBytes *stamp = pic.stamp(slot);
    return stamp || !fromXmp ? stamp : &fromXmp->value;
}

/// The wall clock that a movie's file tells for a slot.
std::optional<CivilFields> movieClock(const MySinglePic &pic, StampSlot slot) {
    const SinglePicAttributes &read = pic.singlePicAttributes;
    if (pic.spType == SpTypeMovieRiff)
        return read.riffCreaDate && slot == StampSlot::Original
                   ? civilFromRiffTimeStamp(read.riffCreaDate->data)
                   : std::nullopt;
    const auto &time = slot == StampSlot::Original ? read.qtMvhdCreaDate : read.qtMvhdModDate;
    const OptionalDate date = time ? dateFromMVHDData(time->data) : std::nullopt;
    return date ? std::optional(civilFromInstant(*date, absl::UTCTimeZone())) : std::nullopt;
}

/// Import looks at the item's stamps, which are wall clocks that a zone gives their meaning.
bool hasStampsToCheck(const MySinglePic &pic) {
    return isPhotoWithStamps(pic.spType) || (isLocalMovieDate(pic) && !isNullerFile(pic.spType));
}

/// The same verdict from what the file's wall clock can mean, which is found much faster than the
/// wall clocks of two dates; none unless the date is one of these meanings.
std::optional<Verdict> verdictForClock(const CivilFields &clock, Date date,
                                       const absl::TimeZone &zone) {
    using Info = absl::TimeZone::TimeInfo;
    const Info info = meaningsOfCivil(clock, zone);
    if (info.kind == Info::UNIQUE && date == info.pre)
        return Verdict{};
    if (info.kind == Info::REPEATED && (date == info.pre || date == info.post))
        return Verdict{false, date == info.post && info.post - info.pre == usualStep};
    return std::nullopt;
}

/// Whole seconds are compared as fields, which is the same as comparing the texts that they make,
/// and does not take a stamp written oddly ("2024: 6: 1") for another time.
Verdict verdictFor(const MySinglePic &pic, StampSlot slot, Date date, const absl::TimeZone &zone) {
    const auto told = wallClockInFile(pic, slot);
    const auto fromText = told ? verdictForClock(*told, date, zone) : std::nullopt;
    if (fromText)
        return *fromText;
    return {told && *told != civilFromInstant(date, zone), isAmbiguousLocalTime(date, zone)};
}

template<class Question>
bool isTrueOfBundle(const MySinglePic &pic, Question isTrue) {
    const MySinglePicPtr &dependent = pic.group.bundleDependentImage;
    return isTrue(pic) || (dependent && isTrue(*dependent));
}

StampSlot mainSlot(SpType type) {
    switch (type) {
    case SpTypeExifOriginal:
    case SpTypeEmptyOriginalFileDate:
    case SpTypeEmptyOriginalFixedDate:
        return StampSlot::Original;
    case SpTypeExifDigitized:
    case SpTypeEmptyDigitizedFileDate:
    case SpTypeEmptyDigitizedFixedDate:
        return StampSlot::Digitized;
    default:
        return StampSlot::Modification;
    }
}

StampSlot slotFor(ExportDate which, SpType type) {
    switch (which) {
    case ExportDate::Main:
        return mainSlot(type);
    case ExportDate::Original:
        return StampSlot::Original;
    case ExportDate::Digitized:
        return StampSlot::Digitized;
    case ExportDate::Modification:
        break;
    }
    return StampSlot::Modification;
}

/// What its file can hold of a movie's header time; other stamps hold all dates of these years.
bool canBeStored(const MySinglePic &pic, Date date, const absl::TimeZone &zone) {
    return !isQtMovie(pic.spType) || mvhdDataFromDate(date, MvhdCorrection::On, zone);
}

} // namespace

std::optional<StampSlot> firstDatedSlot(const MySinglePic &pic) {
    for (StampSlot slot : stampSlots)
        if (isCleanDate(pic.slots.*description(slot).oldDate))
            return slot;
    return std::nullopt;
}

std::optional<CivilFields> wallClockInFile(const MySinglePic &pic, StampSlot slot) {
    if (pic.isMovie())
        return movieClock(pic, slot);
    const LocatedBytes *stamp = pic.stamp(slot);
    return stamp ? civilFromExifData(stamp->data) : wallClockOfXmpStamp(pic.xmpStamp(slot));
}

bool isAmbiguousLocalTime(Date date, const absl::TimeZone &zone) {
    return !isMarker(date) && zone.At(date).cs == zone.At(date - usualStep).cs;
}

bool isDSTAmbiguityAtExportPossibleForDate(Date date, const absl::TimeZone &zone) {
    if (isMarker(date))
        return false;
    // Comparing offsets also serves years behind the end of the zone's table of changes. A change
    // exactly at either end of the window is no danger any more.
    const Date first = date - dangerWindow;
    const Date last = date + dangerWindow - absl::Nanoseconds(1);
    return zone.At(first).offset != zone.At(last).offset;
}

bool hasDSTAmbiguityForDate(const MySinglePic &pic, Date date, ExportDate which,
                            const absl::TimeZone &zone, DSTPreFilter preFilter) {
    const bool isPhoto = isInRange(pic.spType, SpTypeExifOriginal, SpTypeEmptyTiffFixedDate);
    if (isMarker(date) || (!isPhoto && !isLocalMovieDate(pic)))
        return false;
    if (preFilter == DSTPreFilter::On && !isDSTAmbiguityAtExportPossibleForDate(date, zone))
        return false;
    if (isPhoto && !isLocalStamp(pic, slotFor(which, pic.spType)))
        return false;
    const Date readAgain = instantFromCivil(civilFromInstant(date, zone), zone);
    return distance(readAgain, date) > roundTripTolerance && canBeStored(pic, date, zone);
}

bool hasDSTAmbiguityAtExportDatesource(const MySinglePic &pic, const MySingleFolder &folder,
                                       const Zones &zones) {
    return pic.isThisTimeUnsaved() &&
           hasDSTAmbiguityForDate(pic, pic.spDateTimeModified(), ExportDate::Main,
                                  targetTimeZoneForPic(pic, folder, zones).rules, DSTPreFilter::On);
}

unsigned dstAmbiguityAtExportState(const MySinglePic &pic, const MySingleFolder &folder,
                                   const Zones &zones) {
    if (!hasDSTAmbiguityAtExportDatesource(pic, folder, zones))
        return 0;
    switch (pic.spType) {
    case SpTypeExifOriginal:
    case SpTypeMovieRiff:
    case SpTypeMovieMvhdCreation:
        return bit(StampSlot::Original);
    case SpTypeExifDigitized:
        return bit(StampSlot::Digitized);
    default:
        return bit(StampSlot::Modification);
    }
}

bool hasBundleDstAmbiguityAtExport(const MySinglePic &pic, const MySingleFolder &folder,
                                   const Zones &zones) {
    return isTrueOfBundle(pic, [&](const MySinglePic &each) {
        return hasDSTAmbiguityAtExportDatesource(each, folder, zones);
    });
}

bool hasBundleDstDivergence(const MySinglePic &pic) {
    return isTrueOfBundle(
        pic, [](const MySinglePic &each) { return each.zones.dstDivergenceState != 0; });
}

bool hasBundleDstAmbiguityAtImport(const MySinglePic &pic) {
    return isTrueOfBundle(pic, hasImportAmbiguityForMainDate);
}

bool hasImportAmbiguityForDate(const MySinglePic &pic, const OptionalDate &date,
                               const absl::TimeZone &zone) {
    return date && hasStampsToCheck(pic) && isAmbiguousLocalTime(*date, zone);
}

DSTState checkDSTDivergence(const MySinglePic &pic, const absl::TimeZone &zone) {
    return checkDSTDivergence(pic, zone, pic.slots);
}

DSTState checkDSTDivergence(const MySinglePic &pic, const absl::TimeZone &zone,
                            const DateSlots &slots) {
    DSTState state;
    if (!hasStampsToCheck(pic))
        return state;
    // The three stamps of a photo are mostly equal: such slots take the verdict of the one before.
    OptionalDate judgedDate;
    const LocatedBytes *judgedStamp = nullptr;
    Verdict verdict;
    for (StampSlot slot : stampSlots) {
        const OptionalDate &date = slots.*description(slot).oldDate;
        if (!isCleanDate(date) || !isLocalStamp(pic, slot))
            continue;
        const LocatedBytes *stamp = readBytes(pic, slot);
        const bool isEqualStamp =
            stamp && judgedStamp ? stamp->data == judgedStamp->data : stamp == judgedStamp;
        if (date != judgedDate || !isEqualStamp)
            verdict = verdictFor(pic, slot, *date, zone);
        judgedDate = date;
        judgedStamp = stamp;
        state.divergence |= verdict.isDivergent ? bit(slot) : 0U;
        state.ambiguity |= verdict.isAmbiguous ? bit(slot) : 0U;
    }
    return state;
}

void checkImportDivergencyAndAmbiguityUsingZone(MySinglePic &pic, const absl::TimeZone &zone) {
    const DSTState state = checkDSTDivergence(pic, zone);
    pic.zones.dstDivergenceState = state.divergence;
    if (pic.zones.usesAltTimeAtAmbiguityReason == 0)
        pic.zones.dstAmbiguityAtImportState = state.ambiguity;
}

bool isDateSourceAmbiguousAtImport(const MySinglePic &pic) {
    const auto slot = firstDatedSlot(pic);
    return slot && (pic.zones.dstAmbiguityAtImportState & bit(*slot));
}

bool hasImportAmbiguityForMainDate(const MySinglePic &pic) {
    return pic.zones.dstAmbiguityAtImportState != 0;
}

void correctAmbiguousDatesBy(MySinglePic &pic, absl::Duration difference) {
    for (StampSlot slot : stampSlots) {
        OptionalDate &date = pic.slots.*description(slot).oldDate;
        if (date && (pic.zones.dstAmbiguityAtImportState & bit(slot)))
            date = shifted(*date, difference);
    }
    // An item that shows its file date is not moved by its stamp.
    const auto slot = firstDatedSlot(pic);
    if (slot && !isPreferringFileDate(pic.spType))
        pic.spDateTimeOriginal = *(pic.slots.*description(*slot).oldDate);
    if (pic.location.spGpsUTCDate)
        updateGpsDateWithCreationDate(pic, pic.spDateTimeOriginal);
}

void reapplyAmbiguityCorrection(MySinglePic &pic) {
    if (pic.zones.usesAltTimeAtAmbiguityReason != 0)
        correctAmbiguousDatesBy(pic, kEarlierReading);
}

} // namespace chronomender
