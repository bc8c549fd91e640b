// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateAlertTexts.h"

#include "StampConversions.h"
#include "Texts.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace chronomender {
namespace {

struct Unit {
    std::int64_t seconds;
    const char *symbol; ///< the international one, the same in every language
};
constexpr std::array<Unit, 4> kUnits{{{86400, "d"}, {3600, "h"}, {60, "min"}, {1, "s"}}};

std::string padded(std::int64_t number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

/// "7 h", "5 h 30 min": the largest unit and the one below it.
std::string spanText(absl::Duration span) {
    std::int64_t seconds = absl::ToInt64Seconds(absl::AbsDuration(span));
    std::string joined;
    int parts = 0;
    for (const Unit &unit : kUnits) {
        const std::int64_t count = seconds / unit.seconds;
        seconds %= unit.seconds;
        if (count > 0 && parts < 2)
            joined += (joined.empty() ? "" : " ") + std::to_string(count) + ' ' + unit.symbol;
        parts += parts > 0 || count > 0 ? 1 : 0;
    }
    return joined.empty() ? "0 s" : joined;
}

/// "27 Oct 2024"
std::string dayText(const CivilFields &fields) {
    return text("alert_day",
                {std::to_string(fields.day), text("month_short_" + std::to_string(fields.month)),
                 padded(fields.year, 4)});
}

std::string clockText(const CivilFields &fields) {
    return padded(fields.hour, 2) + ':' + padded(fields.minute, 2);
}

/// The time alone where the day is the one just named.
std::string clockTextAfter(const CivilFields &named, const CivilFields &fields) {
    const bool isSameDay =
        named.year == fields.year && named.month == fields.month && named.day == fields.day;
    return isSameDay ? clockText(fields) : dayText(fields) + ", " + clockText(fields);
}

/// "+09:00"; with seconds where an old offset has them.
std::string offsetText(std::int64_t seconds) {
    const std::int64_t amount = std::abs(seconds);
    return (seconds < 0 ? '-' : '+') + padded(amount / 3600, 2) + ':' +
           padded(amount / 60 % 60, 2) + (amount % 60 == 0 ? "" : ':' + padded(amount % 60, 2));
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
