// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ByteRange.h"
#include "MetadataBlocks.h"

namespace chronomender {

/// Where a HEIF or AVIF file (ISO/IEC 23008-12) keeps its Exif and XMP items: `meta`, its item list
/// and its item locations. Nothing when the structure is broken, or when `mdat` stands first.
MetadataBlocks findHeifBlocks(const ByteRange &file);

} // namespace chronomender
