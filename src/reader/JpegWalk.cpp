// SPDX-License-Identifier: GPL-3.0-or-later
#include "JpegWalk.h"

#include "JpegFormat.h"

namespace chronomender {

namespace {

/// Far more than any writer makes; ends a file that consists of nothing but tiny segments.
constexpr int kMostSegments = 65536;
/// As many bytes as tell an Exif segment from others: marker, length, identifier and TIFF magic.
constexpr std::size_t kSegmentStart = kJpegExifHeaderAt + kTiffMagicLength;

bool isXmpAt(const ByteRange &file, std::uint64_t offset) {
    const auto longStart = file.bytes(offset, kXmpPacketStart.size());
    if (longStart && *longStart == kXmpPacketStart)
        return true;
    const auto shortStart = file.bytes(offset, kXmpMetaStart.size());
    return shortStart && *shortStart == kXmpMetaStart;
}

bool endsSegments(std::uint8_t marker) {
    return isJpegFrameMarker(marker) || marker == kJpegMarkerStartOfScan ||
           marker == kJpegMarkerEndOfImage;
}

} // namespace

JpgOffsets readJpgHeader(const ByteRange &file) {
    JpgOffsets offsets;
    std::uint64_t at = kJpegFirstSegment;
    for (int i = 0; i < kMostSegments; ++i) {
        const auto start = file.bytes(at, kSegmentStart);
        if (!start || start->front() != kJpegMarkerPrefix)
            break;
        const auto marker = static_cast<std::uint8_t>((*start)[1]);
        if (start->at(1) == kJpegMarkerPrefix) { // T.81 allows fill bytes in front of a marker
            ++at;
            continue;
        }
        const std::uint16_t length =
            number16(start->substr(kJpegMarkerLength), ByteOrder::Motorola);
        if (endsSegments(marker) || length < kJpegShortestSegment)
            break;
        if (marker == kJpegMarkerApp1) {
            if (const auto order = byteOrderOfTiffMagic(start->substr(kJpegExifHeaderAt))) {
                offsets.tiff = TiffHeader{at + kJpegExifHeaderAt, *order};
                break;
            }
            if (isXmpAt(file, at + kJpegXmpPacketAt))
                offsets.xmp = at + kJpegXmpPacketAt;
        }
        at += kJpegMarkerLength + length;
    }
    return offsets;
}

} // namespace chronomender
