// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

} // namespace chronomender
