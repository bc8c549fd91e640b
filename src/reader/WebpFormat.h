// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace chronomender {

// A WebP file (RFC 9649): "RIFF", a length, "WEBP", then chunks of a type of four letters, a 32-bit
// little-endian length and the data, with a zero byte behind data of odd length.

inline constexpr std::string_view kRiffSignature = "RIFF";
inline constexpr std::uint64_t kRiffFormAt = 8;
inline constexpr std::string_view kWebpForm = "WEBP";
inline constexpr std::uint64_t kWebpFirstChunk = 12;
inline constexpr std::uint64_t kWebpShortestFile = 21; ///< less has no first chunk
inline constexpr std::size_t kWebpChunkHeader = 8;     ///< type and length

inline constexpr std::string_view kWebpExifChunk = "EXIF";
inline constexpr std::string_view kWebpXmpChunk = "XMP ";
/// What some writers put in its place.
inline constexpr std::string_view kWebpXmpChunkWithZero{"XMP\0", 4};

} // namespace chronomender
