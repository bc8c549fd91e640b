// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace chronomender {

/// The four letters of a box type as the number they are in the file.
constexpr std::uint32_t boxType(const char (&letters)[5]) {
    std::uint32_t type = 0;
    for (int i = 0; i < 4; ++i)
        type = type << 8 | static_cast<unsigned char>(letters[i]);
    return type;
}

// Boxes of ISO/IEC 14496-12 that lead to the metadata of pictures: a 32-bit size, a type, and what
// the type says. A full box begins with a version and flags.

inline constexpr std::uint64_t kFullBoxHeader = 4; ///< 8 bits of version, 24 of flags

/// What can stand in a `meta` box (8.11 there, and the metadata chapter of QuickTime).
inline constexpr std::uint32_t kMetaChildren[]{
    boxType("hdlr"), boxType("iinf"), boxType("iloc"), boxType("pitm"), boxType("iprp"),
    boxType("idat"), boxType("iref"), boxType("dinf"), boxType("ipro"), boxType("grpl"),
    boxType("keys"), boxType("ilst"), boxType("mhdr"), boxType("free"), boxType("xml "),
};

/// The item list (8.11.6): a count of 16 bits in version 0, else of 32, and boxes `infe`.
inline constexpr std::uint64_t kItemCountAt = kFullBoxHeader;
/// An entry of it: item numbers have 16 bits in version 2, 32 in version 3; older ones have no
/// type. Then a protection index, the type and the item's name, and where the type is `mime` the
/// content type and its encoding. Texts end with a zero byte.
inline constexpr std::uint64_t kItemNumberAt = kFullBoxHeader;
inline constexpr std::uint64_t kItemProtectionLength = 2;
inline constexpr std::uint64_t kItemTypeLength = 4;
inline constexpr unsigned kItemVersionShort = 2, kItemVersionLong = 3;
inline constexpr std::string_view kXmpContentType = "application/rdf+xml";

/// The item locations (8.11.3): version and flags, then the widths of the numbers in its records.
inline constexpr std::uint64_t kLocationWidthsAt = kFullBoxHeader;
inline constexpr std::uint64_t kLocationCountAt = kLocationWidthsAt + 2;
inline constexpr unsigned kLocationVersionMethods = 1; ///< from here on with construction methods
inline constexpr unsigned kLocationVersionLong = 2;    ///< with 32-bit item numbers
inline constexpr unsigned kLocationVersionMost = 2;
enum class LocationMethod : std::uint8_t { File = 0, ItemData = 1 };

/// An Exif item (ISO/IEC 23008-12, A.2.1) begins with the distance from behind this number to the
/// TIFF header.
inline constexpr std::uint64_t kExifItemDistanceLength = 4;

/// Canon CR3: boxes `uuid`, told apart by the 16 bytes behind their header.
inline constexpr std::size_t kUuidLength = 16;
inline constexpr std::string_view kCanonUuid{
    "\x85\xc0\xb6\x87\x82\x0f\x11\xe0\x81\x11\xf4\xce\x46\x2b\x6a\x48", kUuidLength};
inline constexpr std::string_view kXmpUuid{
    "\xbe\x7a\xcf\xcb\x97\xa9\x42\xe8\x9c\x71\x99\x94\x91\xe3\xaf\xac", kUuidLength};

} // namespace chronomender
