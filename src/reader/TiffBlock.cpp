// SPDX-License-Identifier: GPL-3.0-or-later
#include "TiffBlock.h"

#include <algorithm>
#include <limits>

namespace chronomender {

namespace {

TiffEntry entryFrom(std::string_view bytes, std::uint64_t at, ByteOrder order) {
    return {at + kTiffEntryValueAt, number32(bytes.substr(kTiffEntryValueAt), order),
            tiffDeclaredLength(number16(bytes.substr(kTiffEntryTypeAt), order),
                               number32(bytes.substr(kTiffEntryCountAt), order))};
}

} // namespace

std::optional<TiffBlock> TiffBlock::at(const ByteRange &range, const TiffHeader &header) {
    const auto behind = range.from(header.offset);
    return behind ? std::optional(TiffBlock(*behind, header.order)) : std::nullopt;
}

std::uint32_t TiffBlock::firstDirectory() const {
    const auto bytes = m_range.bytes(kTiffFirstDirectoryAt, 4);
    return bytes ? number32(*bytes, m_order) : 0;
}

bool TiffBlock::findEntries(std::uint32_t offset, std::span<const std::uint16_t> tags,
                            std::span<std::optional<TiffEntry>> found) const {
    if (offset < kTiffHeaderLength) // an empty pointer, not a directory inside the header
        return false;
    const auto countBytes = m_range.bytes(offset, kTiffCountLength);
    const std::uint32_t count = countBytes ? number16(*countBytes, m_order) : 0;
    std::uint64_t at = std::uint64_t{offset} + kTiffCountLength;
    for (std::uint32_t i = 0; i < count; ++i, at += kTiffEntryLength) {
        const auto bytes = m_range.bytes(at, kTiffEntryLength);
        if (!bytes)
            break;
        const auto tag = std::ranges::find(tags, number16(*bytes, m_order));
        if (tag == tags.end())
            continue;
        auto &slot = found[static_cast<std::size_t>(tag - tags.begin())];
        if (!slot)
            slot = entryFrom(*bytes, at, m_order);
    }
    return count > 0;
}

std::uint32_t TiffBlock::roomElsewhere(const TiffEntry &entry) const {
    if (entry.declared <= kTiffInlineRoom)
        return 0;
    const std::uint64_t room = std::min(entry.declared, m_range.left(entry.value));
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(std::min(room, kMost));
}

std::uint32_t TiffBlock::roomInline(const TiffEntry &entry) const {
    return entry.declared > kTiffInlineRoom ? 0 : static_cast<std::uint32_t>(entry.declared);
}

} // namespace chronomender
