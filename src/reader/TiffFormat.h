// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ByteOrder.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace chronomender {

// Header and directories of TIFF 6.0 (section 2), used by TIFF, most raw formats and Exif.
// Header: "II" or "MM", 42, and the offset of the first directory. Directory: a 16-bit count and
// entries of 12 bytes. All offsets are relative to the header.

inline constexpr std::size_t kTiffMagicLength = 4;
inline constexpr std::string_view kTiffMagicIntel{"II*\0", kTiffMagicLength};
inline constexpr std::string_view kTiffMagicMotorola{"MM\0*", kTiffMagicLength};
inline constexpr std::string_view kTiffOrderIntel = "II";
inline constexpr std::string_view kTiffOrderMotorola = "MM";

inline constexpr std::uint32_t kTiffHeaderLength = 8;
inline constexpr std::uint64_t kTiffFirstDirectoryAt = 4; ///< from the header
inline constexpr std::size_t kTiffCountLength = 2;
inline constexpr std::size_t kTiffEntryLength = 12;
inline constexpr std::size_t kTiffEntryTypeAt = 2;
inline constexpr std::size_t kTiffEntryCountAt = 4;
inline constexpr std::size_t kTiffEntryValueAt = 8; ///< the value, or where it stands
inline constexpr std::uint64_t kTiffInlineRoom = 4; ///< longer values stand elsewhere

/// Bytes of one value of each type, by type number; 0 for a type that is not defined.
inline constexpr std::array<std::uint8_t, 14> kTiffTypeLengths{0, 1, 1, 2, 4, 8, 1,
                                                               1, 2, 4, 8, 4, 8, 4};

/// Bytes that an entry of this type and count declares; 0 for an undefined type.
constexpr std::uint64_t tiffDeclaredLength(std::uint16_t type, std::uint32_t count) {
    return type < kTiffTypeLengths.size() ? std::uint64_t{kTiffTypeLengths[type]} * count : 0;
}

/// The byte order of a TIFF magic, or none when the bytes do not begin with one.
constexpr std::optional<ByteOrder> byteOrderOfTiffMagic(std::string_view bytes) {
    if (bytes.starts_with(kTiffMagicIntel))
        return ByteOrder::Intel;
    if (bytes.starts_with(kTiffMagicMotorola))
        return ByteOrder::Motorola;
    return std::nullopt;
}

} // namespace chronomender
