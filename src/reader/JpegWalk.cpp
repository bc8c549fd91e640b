// SPDX-License-Identifier: GPL-3.0-or-later
#include "JpegWalk.h"

#include "JpegFormat.h"

namespace chronomender {

namespace {

/// Far more than any writer makes; ends a file that consists of nothing but tiny segments.
constexpr int kMostSegments = 65536;
/// As many bytes as tell an Exif segment from others: marker, length, identifier and TIFF magic.
constexpr std::size_t kSegmentStart = kJpegExifHeaderAt + kTiffMagicLength;

struct Segment {
    std::uint8_t marker = 0;
    std::uint16_t length = 0;           ///< without the marker
    std::optional<ByteOrder> exifOrder; ///< set when a TIFF magic stands where Exif puts it
};

/// The segment at `at`; none where no segment stands or where the walk has to end.
std::optional<Segment> segmentAt(const ByteRange &file, std::uint64_t at) {
    const auto start = file.bytes(at, kSegmentStart);
    if (!start || start->front() != kJpegMarkerPrefix)
        return std::nullopt;
    const Segment segment{static_cast<std::uint8_t>(start->at(1)),
                          number16(start->substr(kJpegMarkerLength), ByteOrder::Motorola),
                          byteOrderOfTiffMagic(start->substr(kJpegExifHeaderAt))};
    const bool isEnd = isJpegFrameMarker(segment.marker) ||
                       segment.marker == kJpegMarkerStartOfScan ||
                       segment.marker == kJpegMarkerEndOfImage;
    return isEnd ? std::nullopt : std::optional(segment);
}

bool isXmpAt(const ByteRange &file, std::uint64_t offset) {
    for (const std::string_view begin : {kXmpPacketStart, kXmpMetaStart}) {
        const auto bytes = file.bytes(offset, begin.size());
        if (bytes && *bytes == begin)
            return true;
    }
    return false;
}

} // namespace

JpgOffsets readJpgHeader(const ByteRange &file) {
    JpgOffsets offsets;
    std::uint64_t at = kJpegFirstSegment;
    for (int i = 0; i < kMostSegments; ++i) {
        const auto segment = segmentAt(file, at);
        if (segment && segment->marker == kJpegFill) {
            ++at;
            continue;
        }
        if (!segment || segment->length < kJpegShortestSegment)
            break;
        if (segment->marker == kJpegMarkerApp1 && segment->exifOrder) {
            offsets.tiff = TiffHeader{at + kJpegExifHeaderAt, *segment->exifOrder};
            break;
        }
        if (segment->marker == kJpegMarkerApp1 && isXmpAt(file, at + kJpegXmpPacketAt))
            offsets.xmp = at + kJpegXmpPacketAt;
        at += kJpegMarkerLength + segment->length;
    }
    return offsets;
}

} // namespace chronomender
