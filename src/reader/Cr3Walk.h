// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ByteRange.h"
#include "MetadataBlocks.h"

namespace chronomender {

/// The metadata blocks of a Canon CR3 file. `CMT1` holds IFD0, `CMT2` the Exif directory, `CMT4`
/// the GPS directory, each behind a TIFF header of its own; offsets are relative to the block.
struct Cr3Blocks {
    std::optional<ByteBlock> cmt1, cmt2, cmt4, xmp;
    bool isHeaderIntel = true;
};

Cr3Blocks findCr3Blocks(const ByteRange &file);

} // namespace chronomender
