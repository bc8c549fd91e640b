// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieStampSyntax.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace chronomender {

namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::size_t kUtcLength = 20, kBasicLength = 24, kExtendedLength = 25;
constexpr std::size_t kShortestLocation = 3;
constexpr std::size_t kRiffTextLength = 24;

char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The number of a month's name, as two digits; none for other words.
std::optional<std::string> monthDigits(std::string_view name) {
    const auto isSame = [&](std::string_view known) {
        return std::ranges::equal(known, name, {}, lowered, lowered);
    };
    const auto *const found = std::ranges::find_if(kMonthNames, isSame);
    if (found == std::end(kMonthNames))
        return std::nullopt;
    const auto number = found - std::begin(kMonthNames) + 1;
    return std::string{static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
}

/// The place of the dot in a signed number that is all of `text`; none for another form.
std::optional<std::size_t> dotOf(std::string_view text) {
    const std::size_t dot = text.find('.');
    if (dot == std::string_view::npos || dot < 2 || dot + 1 >= text.size())
        return std::nullopt;
    const bool hasSign = text[0] == '+' || text[0] == '-';
    const bool hasDigits =
        text.substr(1, dot - 1).find_first_not_of(kDigits) == std::string_view::npos &&
        text.substr(dot + 1).find_first_not_of(kDigits) == std::string_view::npos;
    return hasSign && hasDigits ? std::optional(dot) : std::nullopt;
}

} // namespace

bool isValidQtCreationDateData(std::string_view data) {
    const std::size_t length = data.size();
    if (length != kUtcLength && length != kBasicLength && length != kExtendedLength)
        return false;
    if (data[4] != '-' || data[7] != '-' || data[10] != 'T')
        return false;
    if ((length == kUtcLength && data[19] != 'Z') || (length == kExtendedLength && data[22] != ':'))
        return false;
    return data.substr(0, length - 1).find_first_not_of("0123456789+-:T") == std::string_view::npos;
}

bool isValidQtLocationData(std::string_view data) {
    return data.size() >= kShortestLocation && (data.front() == '+' || data.front() == '-') &&
           (data.back() == '/' || kDigits.find(data.back()) != std::string_view::npos);
}

std::optional<QTMovLocDataMeasure> measureData(std::string_view text) {
    const std::size_t second = text.find_first_of("+-", 1);
    if (second == std::string_view::npos)
        return std::nullopt;
    const std::size_t end = std::min(text.find_first_of("+-/", second + 1), text.size());
    const auto latitudeDot = dotOf(text.substr(0, second));
    const auto longitudeDot = dotOf(text.substr(second, end - second));
    if (!latitudeDot || !longitudeDot)
        return std::nullopt;
    return QTMovLocDataMeasure{second, end, *latitudeDot, second + *longitudeDot};
}

std::optional<CivilFields> civilFromRiffTimeStamp(std::string_view text) {
    if (text.size() < kRiffTextLength || text[3] != ' ' || text[7] != ' ' || text[10] != ' ' ||
        text[19] != ' ')
        return std::nullopt;
    const auto month = monthDigits(text.substr(4, 3));
    if (!month)
        return std::nullopt;
    std::string stamp(text.substr(20, 4));
    stamp.append(1, ':').append(*month).append(1, ':').append(text.substr(8, 2));
    stamp.append(1, ' ').append(text.substr(11, 8));
    return civilFromExifTimeStamp(stamp);
}

} // namespace chronomender
