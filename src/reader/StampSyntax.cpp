// SPDX-License-Identifier: GPL-3.0-or-later
#include "StampSyntax.h"

#include "ExifFormat.h"
#include "GpsFormat.h"

#include <algorithm>
#include <array>

namespace chronomender {

namespace {

constexpr std::array<std::size_t, 4> kStampColons{4, 7, 13, 16};
constexpr int kMostZoneHours = 18;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isStampCharacter(char c) {
    return isDigit(c) || c == ':' || c == ' ';
}

/// The number in a field of fixed width, which must lie inside the text. Blanks in front count as
/// zeros, as old cameras write them.
template<std::size_t width>
std::optional<int> numberInField(std::string_view text, std::size_t from) {
    int number = 0;
    bool hasDigit = false;
    for (std::size_t at = from; at < from + width; ++at) {
        const char c = text[at];
        if (c == ' ' && !hasDigit)
            continue;
        if (!isDigit(c))
            return std::nullopt;
        hasDigit = true;
        number = number * 10 + (c - '0');
    }
    return hasDigit ? std::optional(number) : std::nullopt;
}

int daysInMonth(int year, int month) {
    constexpr std::array kDays{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool isLeapYear = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return kDays[static_cast<std::size_t>(month - 1)] + (month == 2 && isLeapYear ? 1 : 0);
}

bool isRealDate(const CivilFields &fields) {
    return fields.year >= 1 && fields.month >= 1 && fields.month <= 12 && fields.day >= 1 &&
           fields.day <= daysInMonth(fields.year, fields.month) && fields.hour <= 23 &&
           fields.minute <= 59 && fields.second <= 59;
}

/// The characters in front of the first zero byte, if only zero bytes follow up to `end`.
std::optional<std::string_view> textBeforeZeros(std::string_view data, std::size_t end) {
    const std::string_view text = data.substr(0, std::min(data.find('\0'), end));
    const std::string_view rest =
        data.substr(text.size(), std::min(end, data.size()) - text.size());
    if (rest.find_first_not_of('\0') != std::string_view::npos)
        return std::nullopt;
    return text;
}

std::optional<std::array<char, kStampLength>> stampCharacters(const Bytes &data) {
    if (data.size() < kShortestStampLength || data.size() > kStoredStampLength)
        return std::nullopt;
    const auto text = textBeforeZeros(data, kStoredStampLength);
    if (!text || text->size() < kShortestStampLength || text->size() > kStampLength)
        return std::nullopt;
    std::array<char, kStampLength> stamp;
    std::fill(std::ranges::copy(*text, stamp.begin()).out, stamp.end(), '0');
    return stamp;
}

} // namespace

std::optional<std::string> exifTimeStampFromData(const Bytes &data) {
    const auto stamp = stampCharacters(data);
    return stamp ? std::optional(std::string(stamp->begin(), stamp->end())) : std::nullopt;
}

std::optional<CivilFields> civilFromExifData(const Bytes &data) {
    const auto stamp = stampCharacters(data);
    return stamp ? civilFromExifTimeStamp({stamp->data(), stamp->size()}) : std::nullopt;
}

std::optional<CivilFields> civilFromExifTimeStamp(std::string_view stamp) {
    if (stamp.size() != kStampLength || (stamp[10] != ' ' && stamp[10] != ':'))
        return std::nullopt;
    if (!std::ranges::all_of(kStampColons, [&](std::size_t at) { return stamp[at] == ':'; }))
        return std::nullopt;
    const auto year = numberInField<4>(stamp, 0), month = numberInField<2>(stamp, 5),
               day = numberInField<2>(stamp, 8), hour = numberInField<2>(stamp, 11),
               minute = numberInField<2>(stamp, 14), second = numberInField<2>(stamp, 17);
    if (!year || !month || !day || !hour || !minute || !second)
        return std::nullopt;
    const CivilFields fields{*year, *month, *day, *hour, *minute, *second};
    return isRealDate(fields) ? std::optional(fields) : std::nullopt;
}

bool isValidZeroStamp(std::string_view stamp) {
    return !civilFromExifTimeStamp(stamp.substr(0, kStampLength));
}

bool isUnreadableStamp(std::string_view stamp) {
    return isValidZeroStamp(stamp) &&
           std::ranges::any_of(stamp, [](char c) { return isDigit(c) && c != '0'; });
}

std::optional<std::string> exifOffsetFromData(const Bytes &data) {
    if (!verifyOffsetData(data))
        return std::nullopt;
    return data.substr(0, kZoneStampLength);
}

std::optional<std::int32_t> secondsFromExifOffset(std::string_view offset) {
    if (offset.size() != kZoneStampLength || offset[3] != ':' ||
        (offset[0] != '+' && offset[0] != '-'))
        return std::nullopt;
    if (!isDigit(offset[1]) || !isDigit(offset[2]) || !isDigit(offset[4]) || !isDigit(offset[5]))
        return std::nullopt;
    const int hours = (offset[1] - '0') * 10 + (offset[2] - '0');
    const int minutes = (offset[4] - '0') * 10 + (offset[5] - '0');
    if (minutes > 59 || hours * 60 + minutes > kMostZoneHours * 60)
        return std::nullopt;
    const int seconds = hours * 3600 + minutes * 60;
    return offset[0] == '-' ? -seconds : seconds;
}

// A stamp of zeros or of blanks passes on purpose: it marks an empty tag, which import must see.
// The last one or two characters may be zero bytes: some writers cut the seconds short.
bool verifyDateData(std::string_view data) {
    const auto text = textBeforeZeros(data, kStampLength);
    return text && text->size() >= kShortestStampLength &&
           std::ranges::all_of(kStampColons, [&](std::size_t at) { return (*text)[at] == ':'; }) &&
           std::ranges::all_of(*text, isStampCharacter);
}

// The seventh byte is not looked at: it is the terminator, or already somebody else's.
bool verifyOffsetData(std::string_view data) {
    if (data.size() != kZoneStampLength && data.size() != kStoredZoneStampLength)
        return false;
    const std::string_view text = data.substr(0, kZoneStampLength);
    return (text[0] == '+' || text[0] == '-') && text[3] == ':' &&
           text.find_first_not_of("0123456789+-:") == std::string_view::npos;
}

bool verifyGpsDateStampData(std::string_view data) {
    if (data.size() != kGpsDateLength || data.back() != '\0' || data[4] != ':' || data[7] != ':')
        return false;
    return data.substr(0, kGpsDateLength - 1).find_first_not_of("0123456789:") ==
           std::string_view::npos;
}

} // namespace chronomender
