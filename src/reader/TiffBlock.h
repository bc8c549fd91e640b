// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ByteRange.h"
#include "TiffFormat.h"

#include <span>

namespace chronomender {

/// The place of a TIFF header in a file, and the order of bytes that it states.
struct TiffHeader {
    std::uint64_t offset = 0;
    ByteOrder order = ByteOrder::Motorola;

    bool operator==(const TiffHeader &) const = default;
};

/// One entry of a directory. The value may stand in the entry itself or elsewhere; the walk does
/// not decide which, since files in the wild get type and count wrong.
struct TiffEntry {
    std::uint64_t inlineAt = 0; ///< where the value field of the entry stands, from the header
    std::uint32_t value = 0;    ///< the value field as a number: an offset from the header
    std::uint64_t declared = 0; ///< bytes by type and count; 0 for an undefined type
};

/// Directories and values behind one TIFF header. Offsets are relative to the header, as in the
/// file.
class TiffBlock {
public:
    /// None when the header lies outside of `range`.
    static std::optional<TiffBlock> at(const ByteRange &range, const TiffHeader &header);

    ByteOrder order() const { return m_order; }
    const ByteRange &range() const { return m_range; }

    /// Offset of the first directory; 0 when the file ends before it is told.
    std::uint32_t firstDirectory() const;

    /// Looks for `tags` in the directory at `offset`, to its end, and puts the first entry of each
    /// into the same place of `found`. Answers false when there is no directory: outside, or empty.
    bool findEntries(std::uint32_t offset, std::span<const std::uint16_t> tags,
                     std::span<std::optional<TiffEntry>> found) const;

    /// Bytes that the file declares for the value that stands at the entry's offset: 0 when the
    /// entry keeps its value inline, since then nothing is declared there.
    std::uint32_t roomElsewhere(const TiffEntry &entry) const;
    /// Bytes that the file declares inside the entry: 0 when its value stands elsewhere.
    std::uint32_t roomInline(const TiffEntry &entry) const;

private:
    TiffBlock(const ByteRange &range, ByteOrder order) : m_range(range), m_order(order) {}

    ByteRange m_range;
    ByteOrder m_order;
};

} // namespace chronomender
