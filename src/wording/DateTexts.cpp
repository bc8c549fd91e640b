// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateTexts.h"

namespace chronomender {
namespace {

void appendDigits(std::string &out, std::int64_t value, int width) {
    const std::size_t start = out.size();
    out.append(static_cast<std::size_t>(width), '0');
    for (std::size_t i = out.size(); i > start && value > 0; value /= 10)
        out[--i] = static_cast<char>('0' + value % 10);
}

void appendCivil(std::string &out, absl::CivilSecond second, char separator) {
    appendDigits(out, second.year(), 4);
    out += '-';
    appendDigits(out, second.month(), 2);
    out += '-';
    appendDigits(out, second.day(), 2);
    out += separator;
    appendDigits(out, second.hour(), 2);
    out += ':';
    appendDigits(out, second.minute(), 2);
    out += ':';
    appendDigits(out, second.second(), 2);
}

/// Nanoseconds without the zeros at the end.
void appendFraction(std::string &out, absl::Duration subsecond) {
    const std::int64_t nanoseconds = absl::ToInt64Nanoseconds(subsecond);
    if (nanoseconds == 0)
        return;
    out += '.';
    appendDigits(out, nanoseconds, 9);
    out.erase(out.find_last_not_of('0') + 1);
}

/// ±HH:MM, and ±HH:MM:SS for the local mean times of long ago.
void appendOffset(std::string &out, int seconds) {
    out += seconds < 0 ? '-' : '+';
    const int size = seconds < 0 ? -seconds : seconds;
    appendDigits(out, size / 3600, 2);
    out += ':';
    appendDigits(out, size / 60 % 60, 2);
    if (size % 60 != 0) {
        out += ':';
        appendDigits(out, size % 60, 2);
    }
}

std::string zonedText(Date date, const absl::TimeZone &zone, char separator) {
    std::string out;
    if (isMarker(date))
        return out;
    out.reserve(40);
    const absl::TimeZone::CivilInfo info = zone.At(date);
    appendCivil(out, info.cs, separator);
    if (separator == ' ') {
        appendFraction(out, absl::Trunc(info.subsecond, absl::Milliseconds(1)));
        out += ' ';
    } else {
        appendFraction(out, info.subsecond);
    }
    appendOffset(out, info.offset);
    return out;
}

} // namespace

std::string utcText(Date date) {
    std::string out;
    if (isMarker(date))
        return out;
    out.reserve(32);
    const absl::TimeZone::CivilInfo info = absl::UTCTimeZone().At(date);
    appendCivil(out, info.cs, 'T');
    appendFraction(out, info.subsecond);
    out += 'Z';
    return out;
}

std::string localText(Date date, const absl::TimeZone &zone) {
    return zonedText(date, zone, 'T');
}

std::string readableText(Date date, const absl::TimeZone &zone) {
    return zonedText(date, zone, ' ');
}

} // namespace chronomender
