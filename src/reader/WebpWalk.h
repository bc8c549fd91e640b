// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ByteRange.h"
#include "MetadataBlocks.h"

namespace chronomender {

/// Where a WebP file keeps its `EXIF` and `XMP ` chunks, also where they stand one byte late.
MetadataBlocks findWebpBlocks(const ByteRange &file);

} // namespace chronomender
