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

/// Searches a raw file for complete JPEGs by their start and end markers. The search is bounded,
/// and jumps over what it knows.
std::optional<InternalPreview> savereadInternalJPGs(FileWindow &window);

} // namespace chronomender
