// SPDX-License-Identifier: GPL-3.0-or-later
#include "JpegWalk.h"

#include "JpegFormat.h"

namespace chronomender {

namespace {

/// Far more than any writer makes; ends a file that consists of nothing but tiny segments.
constexpr int kMostSegments = 65536;
constexpr int kMostSegmentsToFrame = 1000;
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

/// Steps from segment to segment, over fill bytes.
class SegmentCursor {
public:
    explicit SegmentCursor(const ByteRange &file) : m_file(file) {}

    /// The next segment; none where the walk ends.
    std::optional<Segment> next() {
        m_at = m_next;
        for (; m_segmentsLeft > 0; --m_segmentsLeft, ++m_at) {
            const auto segment = segmentAt(m_file, m_at);
            if (segment && segment->marker == kJpegFill)
                continue;
            if (!segment || segment->length < kJpegShortestSegment)
                break;
            m_next = m_at + kJpegMarkerLength + segment->length;
            --m_segmentsLeft;
            return segment;
        }
        return std::nullopt;
    }
    std::uint64_t at() const { return m_at; } ///< where the segment given last begins

private:
    ByteRange m_file;
    std::uint64_t m_at = 0, m_next = kJpegFirstSegment;
    int m_segmentsLeft = kMostSegments;
};

bool hasXmp(const ByteRange &file, const Segment &segment, std::uint64_t at) {
    return segment.marker == kJpegMarkerApp1 && !segment.exifOrder &&
           isXmpPacketAt(file, at + kJpegXmpPacketAt);
}

/// From the packet of the segment at `at` to the segment's end.
ByteBlock packetOf(const ByteRange &file, const Segment &segment, std::uint64_t at) {
    const std::uint64_t offset = at + kJpegXmpPacketAt;
    const std::uint64_t end = at + kJpegMarkerLength + segment.length;
    return {offset, std::min(end > offset ? end - offset : 0, file.left(offset))};
}

} // namespace

JpgOffsets readJpgHeader(const ByteRange &file) {
    JpgOffsets offsets;
    SegmentCursor segments(file);
    while (const auto segment = segments.next()) {
        if (segment->marker == kJpegMarkerApp1 && segment->exifOrder) {
            offsets.tiff = TiffHeader{segments.at() + kJpegExifHeaderAt, *segment->exifOrder};
            break;
        }
        if (hasXmp(file, *segment, segments.at()))
            offsets.xmp = segments.at() + kJpegXmpPacketAt;
    }
    return offsets;
}

std::optional<ByteBlock> firstJpgXmpPacket(const ByteRange &file) {
    SegmentCursor segments(file);
    while (const auto segment = segments.next())
        if (hasXmp(file, *segment, segments.at()))
            return packetOf(file, *segment, segments.at());
    return std::nullopt;
}

std::optional<ByteBlock> jpgXmpPacketAt(const ByteRange &file, std::uint64_t offset) {
    if (offset < kJpegXmpPacketAt)
        return std::nullopt;
    const std::uint64_t at = offset - kJpegXmpPacketAt;
    const auto segment = segmentAt(file, at);
    return segment && hasXmp(file, *segment, at) ? std::optional(packetOf(file, *segment, at))
                                                 : std::nullopt;
}

bool isXmpPacketAt(const ByteRange &file, std::uint64_t offset) {
    for (const std::string_view begin : {kXmpPacketStart, kXmpMetaStart}) {
        const auto bytes = file.bytes(offset, begin.size());
        if (bytes && *bytes == begin)
            return true;
    }
    return false;
}

std::optional<JpegSize> jpegFrameSize(const ByteRange &jpeg) {
    std::uint64_t at = kJpegFirstSegment;
    for (int i = 0; i < kMostSegmentsToFrame; ++i) {
        const auto segment = jpeg.bytes(at, kJpegFrameHeader);
        if (!segment || segment->front() != kJpegMarkerPrefix)
            return std::nullopt;
        const auto marker = static_cast<std::uint8_t>(segment->at(1));
        const auto number = [&](std::size_t from) {
            return number16(segment->substr(from), ByteOrder::Motorola);
        };
        if (marker == kJpegFill) {
            ++at;
            continue;
        }
        if (marker >= kJpegFrameFirst && marker <= kJpegFrameProgressive) {
            const JpegSize size{number(kJpegFrameWidthAt), number(kJpegFrameHeightAt)};
            return size.width > 0 && size.height > 0 ? std::optional(size) : std::nullopt;
        }
        if (marker == kJpegMarkerStartOfScan || number(kJpegMarkerLength) < kJpegShortestSegment)
            return std::nullopt;
        at += kJpegMarkerLength + number(kJpegMarkerLength);
    }
    return std::nullopt;
}

} // namespace chronomender
