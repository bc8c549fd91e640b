// SPDX-License-Identifier: GPL-3.0-or-later
#include "RectangleSelection.h"

#include "SelectionModes.h"

#include <algorithm>
#include <cmath>

namespace chronomender {

RectangleSelection::RectangleSelection(const TimelineStrip &strip, StripPoint start,
                                       RectangleMode mode)
    : m_start(start), m_pointer(start), m_mode(mode), m_startMain(strip.selection.picSelection) {
    if (mode != RectangleMode::Replace)
        m_rectSelectionStartSet = strip.selection.pics();
}

StripRect RectangleSelection::rect() const {
    return {std::min(m_start.x, m_pointer.x), std::min(m_start.y, m_pointer.y),
            std::abs(m_start.x - m_pointer.x), std::abs(m_start.y - m_pointer.y)};
}

PicSet RectangleSelection::picsInRect(const TimelineStrip &strip) const {
    const StripRect area = rect();
    const IndexRange columns = strip.geometry.visibleThumbsRangeExtendedBy(
        0, 0, area.x, area.width, static_cast<std::int64_t>(strip.theSource.size()));
    PicSet pics;
    for (std::int64_t index = columns.begin; index < columns.end; ++index) {
        const StripRect thumb = strip.thumbRectAtIndex(index);
        if (area.y < thumb.y + thumb.height && area.y + area.height > thumb.y)
            pics.insert(strip.theSource[static_cast<std::size_t>(index)]);
    }
    return pics;
}

PicSelection RectangleSelection::updateSelectionInRect(const TimelineStrip &strip) const {
    PicSet selected = m_rectSelectionStartSet;
    for (const MySinglePicPtr &pic : picsInRect(strip))
        if (!selected.insert(pic).second && m_mode == RectangleMode::Toggle)
            selected.erase(pic);
    if (selected.contains(m_startMain))
        return selectionOf(strip, std::move(selected), m_startMain);
    const auto count = static_cast<std::int64_t>(strip.theSource.size());
    const auto pointed = strip.geometry.picIndexAtHorizontalMouseLocation(m_pointer.x, true, count);
    if (pointed < 0)
        return {};
    const MySinglePicPtr &nearPointer = strip.theSource[static_cast<std::size_t>(pointed)];
    return selectionNear(strip, std::move(selected), nearPointer);
}

} // namespace chronomender
