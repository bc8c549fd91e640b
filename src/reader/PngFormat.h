// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace chronomender {

// Chunks of a PNG file (ISO/IEC 15948, 5.3): a 32-bit big-endian length of the data, a type of four
// letters, the data and a checksum of type and data.

inline constexpr std::string_view kPngSignature{"\x89PNG\r\n\x1A\n", 8};
inline constexpr std::uint64_t kPngFirstChunk = 8;     ///< behind the signature
inline constexpr std::uint64_t kPngShortestFile = 21;  ///< less has no first chunk
inline constexpr std::size_t kPngChunkHeader = 8;      ///< length and type
inline constexpr std::uint64_t kPngChunkOverhead = 12; ///< header and checksum

inline constexpr std::string_view kPngExifChunk = "eXIf"; ///< Exif from its TIFF header on
inline constexpr std::string_view kPngTextChunk = "iTXt";
inline constexpr std::string_view kPngImageChunk = "IDAT";
inline constexpr std::string_view kPngEndChunk = "IEND";

/// An `iTXt` chunk (11.3.4.5): a keyword, a zero byte, a compression flag, a compression method,
/// then a language tag and a translated keyword, each with a zero byte, and the text.
inline constexpr std::string_view kPngXmpKeyword{"XML:com.adobe.xmp\0", 18};
inline constexpr std::size_t kPngCompressionLength = 2;

} // namespace chronomender
