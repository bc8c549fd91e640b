// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace chronomender {

// Marker segments of a JPEG file (ITU-T T.81, B.1.1) and what Exif and XMP put into APP1.
// A segment is 0xFF, the marker, a 16-bit big-endian length that counts itself, and the payload.

inline constexpr std::string_view kJpegSignature{"\xFF\xD8\xFF", 3};
inline constexpr char kJpegMarkerPrefix = '\xFF';
inline constexpr std::uint64_t kJpegFirstSegment = 2; ///< behind the SOI marker
inline constexpr std::size_t kJpegMarkerLength = 2;
inline constexpr std::uint16_t kJpegShortestSegment = 2; ///< the length field counts itself

inline constexpr std::uint8_t kJpegFill = 0xFF; ///< may stand in front of a marker (B.1.1.2)
inline constexpr std::uint8_t kJpegMarkerApp1 = 0xE1;
inline constexpr std::uint8_t kJpegMarkerEndOfImage = 0xD9;
inline constexpr std::uint8_t kJpegMarkerStartOfScan = 0xDA;

/// A frame header (B.2.2) from its 0xFF on: marker, length, precision, height and width.
inline constexpr std::size_t kJpegFrameHeader = 9;
inline constexpr std::size_t kJpegFrameHeightAt = 5, kJpegFrameWidthAt = 7;
inline constexpr std::uint8_t kJpegFrameFirst = 0xC0, kJpegFrameExtended = 0xC1,
                              kJpegFrameProgressive = 0xC2;

/// Baseline and progressive frames, SOF0 and SOF2: metadata is looked for in front of them only.
constexpr bool isJpegFrameMarker(std::uint8_t marker) {
    return (marker & 0xFD) == 0xC0;
}

/// From the 0xFF of an APP1 segment to its TIFF header: marker, length, "Exif" and two zero bytes.
inline constexpr std::uint64_t kJpegExifHeaderAt = 10;
/// From the 0xFF of an APP1 segment to its XMP packet: marker, length and the 29 bytes of the
/// namespace "http://ns.adobe.com/xap/1.0/" with its zero byte.
inline constexpr std::uint64_t kJpegXmpPacketAt = 33;

/// How an XMP packet can begin.
inline constexpr std::string_view kXmpPacketStart = "<?xpacket begin=";
inline constexpr std::string_view kXmpMetaStart = "<x:xmpmeta ";

} // namespace chronomender
