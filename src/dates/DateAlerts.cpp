// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateAlerts.h"

#include "DateDifferences.h"
#include "DaylightSavingChecks.h"
#include "ItemDates.h"
#include "StampConversions.h"
#include "ZoneLookup.h"

#include <algorithm>
#include <optional>

namespace chronomender {
namespace {

struct Place {
    const MySingleFolder &folder;
    const Zones &zones;
};

DateAlert alertOf(DateAlertKind kind, Date date, const Zone &zone) {
    DateAlert alert;
    alert.kind = kind;
    alert.date = date;
    alert.zone = zone;
    alert.clock = civilFromInstant(date, zone.rules);
    return alert;
}

/// An item that shows its file date, or its master's, is not moved by its own stamp.
bool isStampShown(const MySinglePic &pic) {
    return !isPreferringFileDate(pic.spType) && !pic.isThisHarmonizationChanged();
}

std::optional<DateAlert> repeatedTime(const MySinglePic &pic, const Place &place) {
    if (!isDateSourceAmbiguousAtImport(pic) || !isStampShown(pic))
        return std::nullopt;
    DateAlert alert = alertOf(DateAlertKind::RepeatedTime, pic.spDateTimeOriginal,
                              sourceTimeZoneForPic(pic, place.folder, place.zones));
    alert.isAlternative = pic.zones.usesAltTimeAtAmbiguityReason != 0;
    return alert;
}

std::optional<DateAlert> divergence(const MySinglePic &pic, const Place &place) {
    const auto slot = firstDatedSlot(pic);
    if (!slot || !(pic.zones.dstDivergenceState & bit(*slot)) || !isStampShown(pic))
        return std::nullopt;
    const auto clock = wallClockInFile(pic, *slot);
    if (!clock)
        return std::nullopt;
    const Zone &zone = sourceTimeZoneForPic(pic, place.folder, place.zones);
    const Date readAgain = instantFromCivil(*clock, zone.rules);
    const bool isSkipped = civilFromInstant(readAgain, zone.rules) != *clock;
    DateAlert alert =
        alertOf(isSkipped ? DateAlertKind::SkippedTime : DateAlertKind::OtherThanInFile,
                pic.spDateTimeOriginal, zone);
    alert.clock = *clock;
    return alert;
}

std::optional<DateAlert> cannotBeWritten(const MySinglePic &pic, const Place &place) {
    if (!hasDSTAmbiguityAtExportDatesource(pic, place.folder, place.zones))
        return std::nullopt;
    return alertOf(DateAlertKind::CannotBeWritten, pic.spDateTimeModified(),
                   targetTimeZoneForPic(pic, place.folder, place.zones));
}

std::optional<DateAlert> zoneDisagrees(const MySinglePic &pic, const Place &place) {
    const ZoneChoice *said = choiceForPic(pic, place.folder.sourceTimeZones);
    if (!(pic.zones.majorDateDifferenceType & kZoneDisagrees) || !said || !said->zone())
        return std::nullopt;
    const auto found = zoneDisagreement(pic, said->zone()->rules);
    if (!found)
        return std::nullopt;
    DateAlert alert = alertOf(DateAlertKind::ZoneDisagrees, pic.spDateTimeOriginal, *said->zone());
    alert.difference = absl::Seconds(-found->seconds);
    alert.secondsEastOfUtc = found->secondsEastOfUtc;
    return alert;
}

/// Groups that are made one by harmonising deviate on purpose.
std::optional<DateAlert> groupApart(const MySinglePic &pic, const Place &place) {
    const MySinglePicPtr &dependent = pic.group.bundleDependentImage;
    if (!dependent || !(pic.zones.majorDateDifferenceType & kGroupDeviates) ||
        pic.isGroupHarmonized())
        return std::nullopt;
    DateAlert alert = alertOf(DateAlertKind::GroupApart, dependent->spDateTimeOriginal,
                              sourceTimeZoneForPic(pic, place.folder, place.zones));
    alert.difference = dependent->spDateTimeOriginal - pic.spDateTimeOriginal;
    return alert;
}

std::optional<DateAlert> gpsApart(const MySinglePic &pic, const Place &place) {
    const OptionalDate &gps = pic.location.spGpsUTCDate;
    if (!pic.zones.hasMinorDateDifference || !gps)
        return std::nullopt;
    DateAlert alert = alertOf(DateAlertKind::GpsApart, *gps,
                              sourceTimeZoneForPic(pic, place.folder, place.zones));
    alert.difference = absl::Seconds(differenceFromGPSDateToDate(pic, pic.spDateTimeOriginal));
    return alert;
}

/// One finder for each reason, in the order of DateAlertKind.
constexpr std::optional<DateAlert> (*kFinders[])(const MySinglePic &, const Place &) = {
    repeatedTime, divergence, cannotBeWritten, zoneDisagrees, groupApart, gpsApart};

std::vector<DateAlert> alertsOfFile(const MySinglePic &pic, const Place &place) {
    std::vector<DateAlert> alerts;
    if (pic.importState.isLeftAlone || !pic.hasCorrectableDate())
        return alerts;
    for (const auto find : kFinders)
        if (auto alert = find(pic, place))
            alerts.push_back(*std::move(alert));
    return alerts;
}

/// The two files of a shot tell the same up to some seconds.
bool tellsTheSame(const DateAlert &a, const DateAlert &b) {
    constexpr absl::Duration kOneShot = absl::Minutes(5);
    return a.kind == b.kind && a.zone == b.zone && a.isAlternative == b.isAlternative &&
           a.secondsEastOfUtc == b.secondsEastOfUtc && distance(a.date, b.date) <= kOneShot &&
           absl::AbsDuration(a.difference - b.difference) <= kOneShot;
}

} // namespace

std::vector<DateAlert> dateAlerts(const MySinglePic &pic, const MySingleFolder &folder,
                                  const Zones &zones) {
    const Place place{folder, zones};
    std::vector<DateAlert> alerts = alertsOfFile(pic, place);
    const MySinglePicPtr &dependent = pic.group.bundleDependentImage;
    if (!dependent)
        return alerts;
    const std::size_t ofMaster = alerts.size();
    for (DateAlert &alert : alertsOfFile(*dependent, place)) {
        const auto end = alerts.begin() + static_cast<std::ptrdiff_t>(ofMaster);
        alert.isOfDependent = true;
        if (std::none_of(alerts.begin(), end,
                         [&](const DateAlert &each) { return tellsTheSame(each, alert); }))
            alerts.push_back(std::move(alert));
    }
    return alerts;
}

} // namespace chronomender
