// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RectangleSelection.h"

#include <QPointF>
#include <QRectF>
#include <QTimer>

#include <optional>

class QMouseEvent;

namespace chronomender {

class StripView;

/// What a pointer does on a strip: it clicks, draws a rectangle from empty space, or takes
/// thumbnails to another date. At the edges of the view the strip scrolls along.
class StripPointer {
public:
    explicit StripPointer(StripView &view);

    void press(const QMouseEvent &event);
    void move(const QMouseEvent &event);
    void release(const QMouseEvent &event);
    /// Gives up what is under way; a rectangle leaves the selection as it was.
    void cancel();

    bool isActive() const { return m_gesture != Gesture::None; }
    bool isDragging() const { return m_gesture == Gesture::Drag; }
    /// In the view; none while none is drawn.
    std::optional<QRectF> rectangle() const;
    QPointF position() const { return m_position; }

private:
    enum class Gesture : std::uint8_t { None, Pressed, Rectangle, Drag };

    void select(const MySinglePicPtr &pic, Qt::KeyboardModifiers modifiers);
    void follow();
    void updateRectangle();
    void scrollAtEdge();
    double edgeSpeed() const;
    /// A place of the view, on the strip.
    StripPoint onStrip(QPointF position) const;

    StripView &m_view;
    Gesture m_gesture = Gesture::None;
    QPointF m_start, m_position;
    MySinglePicPtr m_pressed;
    bool m_selectsOnRelease = false; ///< the item was selected among others already
    std::optional<RectangleSelection> m_rectangle;
    PicSelection m_selectionAtStart;
    QTimer m_edgeTimer;
};

} // namespace chronomender
