// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MetadataBlocks.h"
#include "TiffBlock.h"

namespace chronomender {

/// What the marker segments of a JPEG hold; offsets are absolute in the file.
struct JpgOffsets {
    std::optional<TiffHeader> tiff;
    std::optional<std::uint64_t> xmp; ///< start of the last XMP packet in front of the Exif segment
};

/// Walks the marker segments from the second byte pair on. The walk ends at the first Exif segment,
/// at a baseline or progressive frame, or where the segments do: metadata behind is not looked for.
JpgOffsets readJpgHeader(const ByteRange &file);

/// The first XMP packet in front of the picture, also behind the Exif segment, and how far its
/// segment goes; none without one.
std::optional<ByteBlock> firstJpgXmpPacket(const ByteRange &file);
/// The packet that begins at this place, up to the end of its segment; none when the file has no
/// such segment there.
std::optional<ByteBlock> jpgXmpPacketAt(const ByteRange &file, std::uint64_t offset);

/// Width and height from the frame header of the JPEG at the beginning of `jpeg`; none without one.
struct JpegSize {
    std::int32_t width = 0, height = 0;
};
std::optional<JpegSize> jpegFrameSize(const ByteRange &jpeg);

/// Whether an XMP packet begins at this place of a file.
bool isXmpPacketAt(const ByteRange &file, std::uint64_t offset);

} // namespace chronomender
