// SPDX-License-Identifier: GPL-3.0-or-later
#include "HeifLocations.h"

#include <limits>

namespace chronomender {

namespace {

constexpr bool isWidth(std::uint64_t width) {
    return width == 0 || width == 4 || width == 8;
}

} // namespace

ItemLocations::ItemLocations(const ByteRange &table) : m_table(table) {
    constexpr std::uint64_t kWidthMask = 0xF;
    m_version = static_cast<unsigned>(number(1));
    m_at = kLocationWidthsAt;
    const std::uint64_t widths = number(2);
    m_offsetWidth = widths >> 12 & kWidthMask;
    m_lengthWidth = widths >> 8 & kWidthMask;
    m_baseWidth = widths >> 4 & kWidthMask;
    m_indexWidth = m_version >= kLocationVersionMethods ? widths & kWidthMask : 0;
    const bool isKnown = m_version <= kLocationVersionMost && isWidth(m_offsetWidth) &&
                         isWidth(m_lengthWidth) && isWidth(m_baseWidth) && isWidth(m_indexWidth);
    const std::uint64_t count = number(m_version >= kLocationVersionLong ? 4 : 2);
    m_recordsLeft = isKnown && m_isIntact ? count : 0;
}

/// The next number. One that is not there makes the record absent, and all that follow.
std::uint64_t ItemLocations::number(std::uint64_t width) {
    if (width == 0)
        return 0;
    const auto number = m_table.number(m_at, static_cast<std::size_t>(width));
    m_isIntact = m_isIntact && number;
    m_at += width;
    return number.value_or(0);
}

std::optional<ItemLocation> ItemLocations::next() {
    constexpr std::uint64_t kMethodMask = 0xF, kDataReferenceWidth = 2;
    if (m_recordsLeft == 0)
        return std::nullopt;
    --m_recordsLeft;
    ItemLocation location;
    location.number = number(m_version >= kLocationVersionLong ? 4 : 2);
    if (m_version >= kLocationVersionMethods)
        location.method = number(2) & kMethodMask;
    m_at += kDataReferenceWidth;
    location.base = number(m_baseWidth);
    location.extents = number(2);
    if (location.extents > 0) {
        m_at += m_indexWidth;
        location.offset = number(m_offsetWidth);
        location.length = number(m_lengthWidth);
        m_at += (location.extents - 1) * (m_indexWidth + m_offsetWidth + m_lengthWidth);
    }
    return m_isIntact ? std::optional(location) : std::nullopt;
}

std::optional<ByteRange> firstExtent(const ItemLocation &location, const ByteRange &file,
                                     const std::optional<Box> &itemData) {
    const bool isInside = location.method == static_cast<std::uint64_t>(LocationMethod::ItemData);
    if (location.extents == 0 || (isInside && !itemData) ||
        location.method > static_cast<std::uint64_t>(LocationMethod::ItemData))
        return std::nullopt;
    const ByteRange &source = isInside ? itemData->body : file;
    if (location.offset > std::numeric_limits<std::uint64_t>::max() - location.base)
        return std::nullopt;
    const ByteRange extent = source.part(location.base + location.offset,
                                         location.length > 0 ? location.length : source.length());
    return extent.length() > 0 ? std::optional(extent) : std::nullopt;
}

} // namespace chronomender
