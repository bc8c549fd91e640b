// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BoxCursor.h"

namespace chronomender {

/// Where an item of a HEIF file stands. Of its extents only the first one is told.
struct ItemLocation {
    std::uint64_t number = 0;
    std::uint64_t method = 0; ///< what the offset counts from, as `LocationMethod` where known
    std::uint64_t extents = 0;
    std::uint64_t base = 0, offset = 0, length = 0; ///< length 0: to the end
};

/// Reads the records of an `iloc` box (ISO/IEC 14496-12, 8.11.3) one after the other. The widths of
/// their numbers are told by the box, and so are the lengths of the records.
class ItemLocations {
public:
    /// `table` is the body of the box, which has no records when its form is unknown.
    explicit ItemLocations(const ByteRange &table);

    /// The next record; none at the end, and where the box is cut off.
    std::optional<ItemLocation> next();

private:
    std::uint64_t number(std::uint64_t width);

    ByteRange m_table;
    unsigned m_version = 0;
    std::uint64_t m_offsetWidth = 0, m_lengthWidth = 0, m_baseWidth = 0, m_indexWidth = 0;
    std::uint64_t m_recordsLeft = 0;
    std::uint64_t m_at = 0;
    bool m_isIntact = true;
};

/// The bytes of an item's first extent, as far as they are in the file or in the data of its `meta`
/// box; none when there are none, and for items that are made of others.
std::optional<ByteRange> firstExtent(const ItemLocation &location, const ByteRange &file,
                                     const std::optional<Box> &itemData);

} // namespace chronomender
