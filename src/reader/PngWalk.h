// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ByteRange.h"
#include "MetadataBlocks.h"

namespace chronomender {

/// Where a PNG file (ISO/IEC 15948) keeps its `eXIf` chunk and an uncompressed `iTXt` chunk with
/// the keyword "XML:com.adobe.xmp".
MetadataBlocks findPngBlocks(const ByteRange &file);

} // namespace chronomender
