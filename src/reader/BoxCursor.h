// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BmffFormat.h"
#include "ByteRange.h"

#include <cstdint>
#include <optional>

namespace chronomender {

/// One box of ISO/IEC 14496-12, or atom of a QuickTime file. `whole` and `body` (what lies behind
/// the header) are cut to the range in which the box was found.
struct Box {
    std::uint32_t type = 0;
    ByteRange whole;
    ByteRange body;
    bool isComplete = true; ///< false: the box claims more than its surroundings have
};

/// Whether boxes of size 0 reach to the end (top level of a file), or end the walk.
enum class BoxLevel : std::uint8_t { TopLevel, Inside };

/// Walks the boxes of a range one after the other. The cursor owns the bounds: sizes 2 to 7, a
/// header cut off by the end, and size 0 inside other boxes end the walk; each step goes on by 8
/// bytes at least; and after `kMostBoxes` boxes it stops, so that no file makes it endless.
///
///     BoxCursor boxes(file, BoxLevel::TopLevel);
///     while (const auto box = boxes.next())
///         if (box->type == boxType("moov")) …
class BoxCursor {
public:
    static constexpr unsigned kMostBoxes = 4096;

    BoxCursor(const ByteRange &range, BoxLevel level, unsigned mostBoxes = kMostBoxes)
        : m_range(range), m_level(level), m_boxesLeft(mostBoxes) {}

    /// The next box; none at the end. An incomplete box is the last one.
    std::optional<Box> next();

    /// True when all boxes were seen and nothing is left over.
    bool isAtEnd() const { return m_range.left(m_at) == 0; }

private:
    ByteRange m_range;
    BoxLevel m_level;
    unsigned m_boxesLeft;
    std::uint64_t m_at = 0;
};

/// The first box of a type inside a range; none without one.
std::optional<Box> findBox(const ByteRange &range, std::uint32_t type);

/// True for a file that begins with a file type box.
bool isBoxFile(const ByteRange &file);

/// Where the children of a `meta` box stand: behind version and flags (ISO/IEC 14496-12, 8.11.1),
/// or at once, as QuickTime writes it. What begins with a known child is right.
ByteRange metaChildren(const Box &meta);

} // namespace chronomender
