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

/// An entry of the item list (8.11.6), from its body: version 2 has 16-bit item numbers, version 3
/// has 32 bits. Behind the number stand a 16-bit protection index, the type and the name.
inline constexpr std::uint64_t kItemNumberAt = kFullBoxHeader;
inline constexpr std::uint64_t kItemProtectionLength = 2;
inline constexpr std::uint64_t kItemTypeLength = 4;
inline constexpr std::string_view kXmpContentType = "application/rdf+xml";

} // namespace chronomender
