// SPDX-License-Identifier: GPL-3.0-or-later
#include "TimeTexts.h"

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

} // namespace

std::string spanText(absl::Duration span, int parts) {
    std::int64_t seconds = absl::ToInt64Seconds(absl::AbsDuration(span));
    std::string joined;
    int taken = 0;
    for (const Unit &unit : kUnits) {
        const std::int64_t count = seconds / unit.seconds;
        seconds %= unit.seconds;
        if (count > 0 && taken < parts)
            joined += (joined.empty() ? "" : " ") + std::to_string(count) + ' ' + unit.symbol;
        taken += taken > 0 || count > 0 ? 1 : 0;
    }
    return joined.empty() ? "0 s" : joined;
}

std::string shiftText(absl::Duration shift) {
    if (absl::AbsDuration(shift) < absl::Seconds(1))
        return {};
    const std::string span = spanText(shift, static_cast<int>(kUnits.size()));
    return shift > absl::ZeroDuration() ? text("time_later", {span}) : text("time_earlier", {span});
}

std::string dayText(const CivilFields &fields) {
    return text("alert_day",
                {std::to_string(fields.day), text("month_short_" + std::to_string(fields.month)),
                 padded(fields.year, 4)});
}

std::string clockText(const CivilFields &fields) {
    return padded(fields.hour, 2) + ':' + padded(fields.minute, 2);
}

std::string dayAndTimeText(Date date, const absl::TimeZone &zone) {
    if (isMarker(date))
        return {};
    const CivilFields fields = civilFromInstant(date, zone);
    return dayText(fields) + ", " + clockText(fields) + ':' + padded(fields.second, 2);
}

std::string offsetText(std::int64_t secondsEastOfUtc) {
    const std::int64_t amount = std::abs(secondsEastOfUtc);
    return (secondsEastOfUtc < 0 ? '-' : '+') + padded(amount / 3600, 2) + ':' +
           padded(amount / 60 % 60, 2) + (amount % 60 == 0 ? "" : ':' + padded(amount % 60, 2));
}

} // namespace chronomender
