// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TimelineStrip.h"

namespace chronomender {

struct StripPoint {
    float x = 0, y = 0;
};

/// What items in a rectangle mean for those that were selected before it was drawn.
enum class RectangleMode : std::uint8_t {
    Replace, ///< they alone are selected
    Extend,  ///< they join the selection
    Toggle,  ///< those that were selected are not any more
};

/// A rectangle that is being drawn over a strip. Every move is held against the selection of its
/// start, so that items that it leaves again are as they were. Main thread.
///
///     RectangleSelection rectangle(strip, {10, 5}, RectangleMode::Extend);
///     rectangle.updateSelectionRectIsPointSet({600, 90});
///     timelines.setSelection(rectangle.updateSelectionInRect(strip), strip);
class RectangleSelection {
public:
    RectangleSelection(const TimelineStrip &strip, StripPoint start, RectangleMode mode);

    /// The pointer is here now, left or right of the start, above or below it.
    void updateSelectionRectIsPointSet(StripPoint pointer) { m_pointer = pointer; }
    StripRect rect() const;
    /// The selection as it is with the items whose frame the rectangle touches. The main item of
    /// the start stays the main one where it is selected; else it is the one nearest to the
    /// pointer.
    PicSelection updateSelectionInRect(const TimelineStrip &strip) const;

private:
    PicSet picsInRect(const TimelineStrip &strip) const;

    StripPoint m_start, m_pointer;
    RectangleMode m_mode;
    PicSet m_rectSelectionStartSet;
    MySinglePicPtr m_startMain;
};

} // namespace chronomender
