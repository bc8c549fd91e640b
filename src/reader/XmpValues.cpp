// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpValues.h"

#include "StampSyntax.h"
#include "XmpFormat.h"

#include <array>
#include <charconv>

namespace chronomender {

namespace {

constexpr std::string_view kDayShape = "0000-00-00";
constexpr std::string_view kClockShape = "0000-00-00T00:00:00";
constexpr std::string_view kZoneShape = "+00:00", kZoneShapeWithoutColon = "+0000";
constexpr std::size_t kSecondsColon = 16;
constexpr std::size_t kLongestWithoutSeconds = 26;
constexpr std::size_t kZoneColon = 3;
constexpr std::string_view kDigits = "0123456789";
/// More digits than any receiver gives.
constexpr std::size_t kLongestNumber = 32;

/// Digits where the shape has zeros, a sign where it has one, its own characters elsewhere.
bool hasShape(std::string_view text, std::string_view shape) {
    const auto fits = [](char wanted, char present) {
        if (wanted == '0')
            return kDigits.find(present) != std::string_view::npos;
        return wanted == present || (wanted == '+' && present == '-');
    };
    return text.size() == shape.size() &&
           std::equal(shape.begin(), shape.end(), text.begin(), fits);
}

/// "2024-05-06T07:08:09" names a real second.
bool isRealClock(std::string_view clock) {
    std::string stamp(clock);
    if (stamp.size() < kClockShape.size())
        stamp += ":00";
    stamp[4] = stamp[7] = ':';
    stamp[10] = ' ';
    return civilFromExifTimeStamp(stamp).has_value();
}

/// What may stand between the clock and the zone.
bool isFraction(std::string_view text) {
    return text.find_first_not_of("0123456789.") == std::string_view::npos;
}

/// The type by the end of the text; `rest` is what stands behind the clock.
XmpStampType typeByEnd(std::string_view rest, unsigned &subtype) {
    for (const std::string_view shape : {kZoneShape, kZoneShapeWithoutColon}) {
        if (rest.size() < shape.size() || !hasShape(rest.substr(rest.size() - shape.size()), shape))
            continue;
        subtype |= shape == kZoneShapeWithoutColon ? kXmpZoneWithoutColon : 0U;
        rest.remove_suffix(shape.size());
        return isFraction(rest) ? XmpStampType::Zoned : XmpStampType::Invalid;
    }
    const bool isUtc = rest.ends_with('Z');
    rest.remove_suffix(isUtc ? 1 : 0);
    if (!isFraction(rest))
        return XmpStampType::Invalid;
    return isUtc ? XmpStampType::Utc : XmpStampType::Local;
}

struct AxisLetters {
    char positive, negative;
};
constexpr std::array<AxisLetters, 2> kAxisLetters{{{'N', 'S'}, {'E', 'W'}}};

AxisLetters lettersOf(XmpAxis axis) {
    return kAxisLetters[static_cast<std::size_t>(axis)];
}

/// Takes the text up to the next comma off the front.
std::string_view takePart(std::string_view &text) {
    const std::size_t comma = text.find(',');
    const std::string_view part = text.substr(0, comma);
    text = comma == std::string_view::npos ? std::string_view() : text.substr(comma + 1);
    return part;
}

/// Degrees of one to three parts, degrees, minutes and seconds; minutes and seconds below 60.
std::optional<double> degreesOfParts(std::string_view text) {
    constexpr std::array<double, 3> kPartsOfDegree{1, 60, 3600};
    if (text.ends_with(','))
        return std::nullopt;
    double degrees = 0;
    bool isFirst = true;
    for (const double unit : kPartsOfDegree) {
        const auto number = xmpNumber(takePart(text));
        if (!number || (!isFirst && *number >= 60))
            return std::nullopt;
        degrees += *number / unit;
        isFirst = false;
        if (text.empty())
            return degrees;
    }
    return std::nullopt;
}

} // namespace

XmpStampType verifiedXmpDateDataType(std::string_view text, unsigned &subtype) {
    subtype = 0;
    if (text.size() < xmpClockLength(kXmpWithoutSeconds) || text.size() > kXmpLongestDate)
        return XmpStampType::Invalid;
    const bool hasSeconds = text.size() > kSecondsColon && text[kSecondsColon] == ':';
    if (!hasSeconds)
        subtype = kXmpWithoutSeconds;
    const std::size_t length = xmpClockLength(subtype);
    const bool isOfLength =
        hasSeconds ? text.size() >= length : text.size() <= kLongestWithoutSeconds;
    const std::string_view clock = text.substr(0, length);
    if (!isOfLength || !hasShape(clock, kClockShape.substr(0, length)) || !isRealClock(clock))
        return XmpStampType::Invalid;
    return typeByEnd(text.substr(length), subtype);
}

bool isXmpZoneInRange(std::string_view text, XmpStampType type, unsigned subtype) {
    if (type != XmpStampType::Zoned)
        return true;
    std::string zone(text.substr(text.size() - std::min(text.size(), xmpZoneLength(subtype))));
    if (subtype & kXmpZoneWithoutColon)
        zone.insert(std::min(zone.size(), kZoneColon), 1, ':');
    return secondsFromExifOffset(zone).has_value();
}

bool isXmpDateWithoutTime(std::string_view text) {
    constexpr std::array<std::size_t, 3> kLengths{4, 7, 10};
    return std::ranges::any_of(
        kLengths, [&](std::size_t length) { return hasShape(text, kDayShape.substr(0, length)); });
}

std::optional<double> degreesFromXmpCoordinate(std::string_view text, std::string_view reference,
                                               XmpAxis axis) {
    if (!text.empty() && isXmpReference(text.substr(text.size() - 1), axis)) {
        reference = text.substr(text.size() - 1);
        text.remove_suffix(1);
    }
    const bool isSigned = text.starts_with('-') || text.starts_with('+');
    const bool isNegative = text.starts_with('-');
    if (isSigned)
        text.remove_prefix(1);
    const bool isDecimal = text.find(',') == std::string_view::npos;
    const bool hasReference = isXmpReference(reference, axis);
    if ((!hasReference && (!isDecimal || !reference.empty())) || (isSigned && hasReference))
        return std::nullopt;
    const auto degrees = degreesOfParts(text);
    if (!degrees)
        return std::nullopt;
    const bool isOther = hasReference && reference[0] == lettersOf(axis).negative;
    return isNegative || isOther ? -*degrees : *degrees;
}

bool isXmpReference(std::string_view text, XmpAxis axis) {
    const AxisLetters letters = lettersOf(axis);
    return text.size() == 1 && (text[0] == letters.positive || text[0] == letters.negative);
}

std::optional<double> xmpNumber(std::string_view text) {
    const bool hasDigitsAtEnds = !text.empty() &&
                                 kDigits.find(text.front()) != std::string_view::npos &&
                                 kDigits.find(text.back()) != std::string_view::npos;
    if (!hasDigitsAtEnds || text.size() > kLongestNumber ||
        text.find_first_not_of("0123456789.") != std::string_view::npos)
        return std::nullopt;
    double number = 0;
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, std::chars_format::fixed);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

} // namespace chronomender
