// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ByteRange.h"
#include "MetadataBlocks.h"

#include <cstdint>
#include <optional>

namespace chronomender {

/// The JPEG inside a raw file that is its preview: the first one of more than 640 pixels in width
/// and height, else the largest.
struct InternalPreview {
    ByteBlock bytes; ///< from the start marker to behind the end marker
    std::int32_t width = 0, height = 0;
};

/// Searches a raw file for complete JPEGs by their start and end markers; those inside of others
/// (thumbnails) do not count. A JPEG must be larger than the best one so far in both directions.
///
/// The search ends at the first JPEG whose size cannot be told from its frame header (as of a raw
/// picture in lossless JPEG), where JPEGs are nested more than three deep, and when `mostBytes`
/// were read. Holes are passed over.
inline constexpr std::uint64_t kMostPreviewBytes = 256ULL << 20;
std::optional<InternalPreview> savereadInternalJPGs(FileWindow &window,
                                                    std::uint64_t mostBytes = kMostPreviewBytes);

} // namespace chronomender
