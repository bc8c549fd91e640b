// SPDX-License-Identifier: GPL-3.0-or-later
#include "ValueTexts.h"

#include "DateTexts.h"

#include <array>
#include <cstdint>

namespace chronomender {
namespace {

enum class ValueKind : std::uint8_t { Text, Rationals, Number, SecondsSince1904 };
struct KeyKind {
    std::string_view key;
    ValueKind kind;
};
// Values that are no texts (Exif 2.32, 4.6.6 "GPS Attribute Information"; ISO/IEC 14496-12, 8.2.2).
constexpr std::array<KeyKind, 8> kinds{{
    {"GPSTimeStamp", ValueKind::Rationals},
    {"latitude", ValueKind::Rationals},
    {"longitude", ValueKind::Rationals},
    {"altitude", ValueKind::Rationals},
    {"hPositioningError", ValueKind::Rationals},
    {"altitudeRef", ValueKind::Number},
    {"QTMvhdCreaDate", ValueKind::SecondsSince1904},
    {"QTMvhdModDate", ValueKind::SecondsSince1904},
}};

ValueKind kindOf(std::string_view key) {
    for (const KeyKind &kind : kinds)
        if (kind.key == key)
            return kind.kind;
    return ValueKind::Text;
}

std::uint32_t numberAt(const Bytes &bytes, std::size_t offset, bool isBigEndian) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8 | static_cast<unsigned char>(bytes[offset + (isBigEndian ? i : 3 - i)]);
    return value;
}

/// "3797491200 (2024-05-01T08:00:00Z)"; the number alone where it stands for no date.
std::string movieTimeText(std::uint32_t seconds) {
    const absl::Time start = absl::FromCivil(absl::CivilDay(1904, 1, 1), absl::UTCTimeZone());
    std::string number = std::to_string(seconds);
    if (seconds == 0)
        return number;
    return number + " (" + utcText(start + absl::Seconds(seconds)) + ')';
}

std::string rationalsText(const Bytes &bytes, bool isBigEndian) {
    std::string text;
    for (std::size_t offset = 0; offset + 8 <= bytes.size(); offset += 8) {
        if (!text.empty())
            text += ' ';
        text += std::to_string(numberAt(bytes, offset, isBigEndian));
        text += '/';
        text += std::to_string(numberAt(bytes, offset + 4, isBigEndian));
    }
    return text;
}

bool hasBigEndianRationals(std::string_view key, const SinglePicAttributes &attributes) {
    if (key == "GPSTimeStamp")
        return attributes.gpsTimeStamp && attributes.gpsTimeStamp->needsConv;
    return attributes.gpsLocation && attributes.gpsLocation->needsConv;
}

} // namespace

std::string hexText(const Bytes &bytes) {
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    text.reserve(2 * bytes.size());
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text += {digits[value >> 4], digits[value & 15]};
    }
    return text;
}

std::string valueText(std::string_view key, const Bytes &bytes,
                      const SinglePicAttributes &attributes) {
    switch (kindOf(key)) {
    case ValueKind::Rationals:
        return rationalsText(bytes, hasBigEndianRationals(key, attributes));
    case ValueKind::Number:
        return bytes.empty() ? "" : std::to_string(static_cast<unsigned char>(bytes[0]));
    case ValueKind::SecondsSince1904:
        return bytes.size() < 4 ? "" : movieTimeText(numberAt(bytes, 0, true));
    case ValueKind::Text:
        break;
    }
    return bytes.substr(0, bytes.find('\0'));
}

} // namespace chronomender
