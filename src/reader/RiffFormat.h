// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ByteRange.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace chronomender {

// Chunks of a RIFF file (Multimedia Programming Interface and Data Specifications 1.0, chapter 2):
// a type of four letters, a 32-bit little-endian length, the body, and a byte of padding behind odd
// lengths. "RIFF" and "LIST" chunks begin with one more type and hold chunks.

inline constexpr std::size_t kRiffHeaderLength = 8, kRiffTypeLength = 4;
inline constexpr unsigned kMostRiffChunks = 64; ///< on one level, before the walk gives up

/// One chunk. `body` is cut to what the surroundings have.
struct RiffChunk {
    std::uint32_t type = 0; ///< as `boxType` spells it
    ByteRange body;
    bool isComplete = true; ///< false: the chunk claims more than its surroundings have
};

/// Walks the chunks of a range one after the other, as long as what the walk may read lasts.
class RiffCursor {
public:
    RiffCursor(const ByteRange &range, const ReadBudget &budget)
        : m_range(range), m_budget(&budget) {}

    std::optional<RiffChunk> next();

private:
    ByteRange m_range;
    const ReadBudget *m_budget; ///< not owned
    unsigned m_chunksLeft = kMostRiffChunks;
    std::uint64_t m_at = 0;
};

/// The first chunk of a type; none without one.
std::optional<RiffChunk> findChunk(const ByteRange &range, std::uint32_t type,
                                   const ReadBudget &budget);
/// The chunks inside the first list of a type; none without one.
std::optional<ByteRange> findList(const ByteRange &range, std::uint32_t listType,
                                  const ReadBudget &budget);

} // namespace chronomender
