// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ByteRange.h"
#include "MetadataBlocks.h"

#include <optional>

namespace chronomender {

/// What the Exif data of a JPEG say of how it is to be shown.
struct ExifPictureFacts {
    int orientation = 1;                ///< 1 to 8
    std::optional<ByteBlock> thumbnail; ///< a JPEG of its own, inside of the file
};

/// An Exif thumbnail lies in a segment of at most 64 KB; cameras make it 160 × 120.
inline constexpr int kLongestExifThumbnail = 4096;

ExifPictureFacts readExifPictureFacts(const ByteRange &jpeg);

} // namespace chronomender
