// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TiffBlock.h"

namespace chronomender {

/// A TIFF header that stands exactly at `offset`, or behind "Exif" and two zero bytes there.
std::optional<TiffHeader> headerAt(const ByteRange &file, std::uint64_t offset);

/// A TIFF header at the start of the file. The two letters of the byte order are enough there: raw
/// formats put a version of their own in place of 42.
std::optional<TiffHeader> headerAtFileStart(const ByteRange &file);

/// The first TIFF header anywhere in the file: at its start as above, else the first full magic.
/// Holes are passed over, and reading ends at the first block that reaches `mostBytes`.
struct HeaderScan {
    std::optional<TiffHeader> header;
    bool hasReachedLimit = false; ///< the search ended for its limit, not for the file's end
};
inline constexpr std::uint64_t kMostScannedBytes = 256ULL << 20;
HeaderScan scanForHeader(FileWindow &window, std::uint64_t mostBytes = kMostScannedBytes);

} // namespace chronomender
