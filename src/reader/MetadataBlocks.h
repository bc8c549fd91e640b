// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DatesData.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace chronomender {

/// Some bytes of a file that belong together, in file offsets.
struct ByteBlock {
    std::uint64_t offset = 0;
    std::uint64_t length = 0;

    bool operator==(const ByteBlock &) const = default;
};

/// Where a container keeps what describes the picture. `exif` begins at the TIFF header, `xmp` at
/// the packet; both end where their container says, never behind the file. Absent when the
/// container has none, or when its structure is broken before it.
struct MetadataBlocks {
    std::optional<ByteBlock> exif, xmp;
    bool isBroken = false; ///< the walk did not come to its end, so that more may be there
    std::vector<Finding> findings;

    bool operator==(const MetadataBlocks &) const = default;
};

} // namespace chronomender
