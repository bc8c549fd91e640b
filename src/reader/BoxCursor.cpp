// SPDX-License-Identifier: GPL-3.0-or-later
#include "BoxCursor.h"

#include "BmffFormat.h"

#include <algorithm>

namespace chronomender {

namespace {

constexpr std::uint64_t kShortHeader = 8, kLongHeader = 16;
constexpr std::uint32_t kSizeToTheEnd = 0, kSizeFollows = 1;

struct Extent {
    std::uint64_t header = kShortHeader;
    std::uint64_t length = 0;
};

/// The lengths that a box declares; none when they cannot be those of a box.
std::optional<Extent> extentAt(const ByteRange &range, std::uint64_t at, std::uint32_t size,
                               BoxLevel level) {
    if (size == kSizeToTheEnd)
        return level == BoxLevel::TopLevel ? std::optional(Extent{kShortHeader, range.left(at)})
                                           : std::nullopt;
    if (size != kSizeFollows)
        return size >= kShortHeader ? std::optional(Extent{kShortHeader, size}) : std::nullopt;
    const auto length = range.number(at + kShortHeader, 8);
    return length && *length >= kLongHeader ? std::optional(Extent{kLongHeader, *length})
                                            : std::nullopt;
}

} // namespace

std::optional<Box> BoxCursor::next() {
    if (m_boxesLeft == 0)
        return std::nullopt;
    --m_boxesLeft;
    const auto header = m_range.header(m_at, kShortHeader);
    if (!header)
        return std::nullopt;
    const std::uint32_t size = number32(*header, ByteOrder::Motorola);
    const std::uint32_t type = number32(header->substr(4), ByteOrder::Motorola);
    const auto extent = extentAt(m_range, m_at, size, m_level);
    if (!extent)
        return std::nullopt;
    const ByteRange whole = m_range.part(m_at, extent->length);
    const bool isComplete = extent->length <= m_range.left(m_at);
    if (isComplete)
        m_at += extent->length;
    else
        m_boxesLeft = 0;
    return Box{type, whole, whole.part(extent->header, whole.length()), isComplete};
}

std::optional<Box> findBox(const ByteRange &range, std::uint32_t type) {
    BoxCursor boxes(range, BoxLevel::Inside);
    while (auto box = boxes.next())
        if (box->type == type)
            return box;
    return std::nullopt;
}

bool isBoxFile(const ByteRange &file) {
    const auto type = file.number(4, 4);
    return type && *type == boxType("ftyp");
}

ByteRange metaChildren(const Box &meta) {
    const auto isKnownAt = [&](std::uint64_t at) {
        const auto type = meta.body.number(at + 4, 4);
        return type && std::ranges::find(kMetaChildren, *type) != std::end(kMetaChildren);
    };
    const std::uint64_t begin = isKnownAt(0) && !isKnownAt(kFullBoxHeader) ? 0 : kFullBoxHeader;
    return meta.body.part(begin, meta.body.length());
}

} // namespace chronomender
