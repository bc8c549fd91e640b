// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateAlertTexts.h"

#include "StampConversions.h"
#include "Texts.h"
#include "TimeTexts.h"

#include <array>

namespace chronomender {
namespace {

/// The time alone where the day is the one just named.
std::string clockTextAfter(const CivilFields &named, const CivilFields &fields) {
    const bool isSameDay =
        named.year == fields.year && named.month == fields.month && named.day == fields.day;
    return isSameDay ? clockText(fields) : dayText(fields) + ", " + clockText(fields);
}

std::string zoneDisagreesText(const DateAlert &alert) {
    const std::int64_t ahead = absl::ToInt64Seconds(alert.difference);
    return text("alert_zoneDisagrees",
                {offsetText(alert.secondsEastOfUtc), alert.zone.name,
                 offsetText(alert.secondsEastOfUtc - ahead), spanText(alert.difference)});
}

} // namespace

std::string alertText(const DateAlert &alert) {
    const std::string day = dayText(alert.clock), &zone = alert.zone.name;
    const std::string span = spanText(alert.difference);
    const bool isLater = alert.difference > absl::ZeroDuration();
    const CivilFields shown = civilFromInstant(alert.date, alert.zone.rules);
    switch (alert.kind) {
    case DateAlertKind::RepeatedTime:
        return alert.isAlternative ? text("alert_repeatedTime_earlier", {day, zone})
                                   : text("alert_repeatedTime_later", {day, zone});
    case DateAlertKind::SkippedTime:
        return text("alert_skippedTime", {day, zone, clockTextAfter(alert.clock, shown)});
    case DateAlertKind::OtherThanInFile:
        return text("alert_otherThanInFile",
                    {day + ", " + clockText(alert.clock), clockTextAfter(alert.clock, shown)});
    case DateAlertKind::CannotBeWritten:
        return text("alert_cannotBeWritten", {clockText(alert.clock), day, zone});
    case DateAlertKind::ZoneDisagrees:
        return zoneDisagreesText(alert);
    case DateAlertKind::GroupApart:
        return isLater ? text("alert_groupApart_later", {span})
                       : text("alert_groupApart_earlier", {span});
    case DateAlertKind::GpsApart:
        return isLater ? text("alert_gpsApart_later", {span})
                       : text("alert_gpsApart_earlier", {span});
    }
    return {};
}

std::string_view alertName(DateAlertKind kind) {
    constexpr std::array<std::string_view, 7> kNames{
        "repeatedTime",  "skippedTime", "otherThanInFile", "cannotBeWritten",
        "zoneDisagrees", "groupApart",  "gpsApart"};
    return kNames[static_cast<std::size_t>(kind)];
}

} // namespace chronomender
