// SPDX-License-Identifier: GPL-3.0-or-later
#include "BoxCursor.h"
#include "RiffFormat.h"

namespace chronomender {

std::optional<RiffChunk> RiffCursor::next() {
    if (m_chunksLeft == 0 || m_budget->isSpent())
        return std::nullopt;
    --m_chunksLeft;
    const auto header = m_range.header(m_at, kRiffHeaderLength);
    if (!header)
        return std::nullopt;
    const std::uint32_t type = number32(*header, ByteOrder::Motorola);
    const std::uint64_t length = number32(header->substr(kRiffTypeLength), ByteOrder::Intel);
    const std::uint64_t begin = m_at + kRiffHeaderLength;
    const bool isComplete = length <= m_range.left(begin);
    m_at = begin + length + length % 2;
    if (!isComplete)
        m_chunksLeft = 0;
    return RiffChunk{type, m_range.part(begin, length), isComplete};
}

std::optional<RiffChunk> findChunk(const ByteRange &range, std::uint32_t type,
                                   const ReadBudget &budget) {
    RiffCursor chunks(range, budget);
    while (auto chunk = chunks.next())
        if (chunk->type == type)
            return chunk;
    return std::nullopt;
}

std::optional<ByteRange> findList(const ByteRange &range, std::uint32_t listType,
                                  const ReadBudget &budget) {
    RiffCursor chunks(range, budget);
    while (const auto chunk = chunks.next()) {
        const auto type =
            chunk->type == boxType("LIST") ? chunk->body.header(0, kRiffTypeLength) : std::nullopt;
        if (type && number32(*type, ByteOrder::Motorola) == listType)
            return chunk->body.part(kRiffTypeLength, chunk->body.length());
    }
    return std::nullopt;
}

} // namespace chronomender
