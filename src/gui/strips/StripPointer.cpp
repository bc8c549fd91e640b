// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripPointer.h"

#include "StripView.h"

#include <QApplication>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace chronomender {
namespace {

constexpr int edgePeriod = 16;     // ms
constexpr double edgeWidth = 32;   // of the view's ends where the strip scrolls along
constexpr double mostSpeed = 24;   // pixels a step
constexpr double besideStrip = 60; // so far above or below it a drag aims at nothing

RectangleMode rectangleMode(Qt::KeyboardModifiers modifiers) {
    if (modifiers & Qt::ControlModifier)
        return RectangleMode::Toggle;
    return modifiers & Qt::ShiftModifier ? RectangleMode::Extend : RectangleMode::Replace;
}

} // namespace

StripPointer::StripPointer(StripView &view) : m_view(view) {
    m_edgeTimer.setInterval(edgePeriod);
    QObject::connect(&m_edgeTimer, &QTimer::timeout, &view, [this] { scrollAtEdge(); });
}

StripPoint StripPointer::onStrip(QPointF position) const {
    const TimelineStrip *strip = m_view.strip();
    return {static_cast<float>(position.x() + (strip ? strip->scrollX : 0)),
            static_cast<float>(position.y())};
}

void StripPointer::press(const QMouseEvent &event) {
    const TimelineStrip *strip = m_view.strip();
    if (!strip || event.button() != Qt::LeftButton || m_view.isDragging())
        return;
    m_start = m_position = event.position();
    m_pressed = m_view.picAt(m_start);
    m_selectionAtStart = strip->selection;
    m_selectsOnRelease = false;
    if (m_pressed) {
        m_gesture = Gesture::Pressed;
        select(m_pressed, event.modifiers());
    } else {
        m_gesture = Gesture::Rectangle;
        m_rectangle.emplace(*strip, onStrip(m_start), rectangleMode(event.modifiers()));
        updateRectangle();
    }
}

void StripPointer::select(const MySinglePicPtr &pic, Qt::KeyboardModifiers modifiers) {
    TimelineStrip &strip = *m_view.strip();
    const bool isSelected = strip.selection.contains(pic);
    m_selectsOnRelease = modifiers == Qt::NoModifier && isSelected && strip.selection.count() > 1;
    if (m_selectsOnRelease)
        return;
    m_view.session().select([&](MyTimelinesController &strips) {
        if (modifiers & Qt::ShiftModifier)
            strips.multiSelectAllFrom(pic, strip);
        else if (!(modifiers & Qt::ControlModifier))
            strips.simpleSelectThumb(pic, strip);
        else if (isSelected)
            strips.multiSelectionRemove(pic, strip);
        else
            strips.multiSelectionAdd(pic, strip);
    });
}

void StripPointer::move(const QMouseEvent &event) {
    m_position = event.position();
    if (m_gesture == Gesture::Pressed) {
        const QPoint way = (m_position - m_start).toPoint();
        if (way.manhattanLength() < QApplication::startDragDistance())
            return;
        m_gesture = m_view.beginDrag(m_pressed) ? Gesture::Drag : Gesture::None;
        m_selectsOnRelease = false;
    }
    follow();
    const bool isAtEdge = isActive() && edgeSpeed() != 0;
    if (isAtEdge && !m_edgeTimer.isActive())
        m_edgeTimer.start();
    if (!isAtEdge)
        m_edgeTimer.stop();
}

void StripPointer::follow() {
    if (m_gesture == Gesture::Rectangle)
        updateRectangle();
    if (m_gesture != Gesture::Drag)
        return;
    if (!m_view.isDragging()) {
        m_gesture = Gesture::None;
        return;
    }
    const bool isBeside =
        m_position.y() < -besideStrip || m_position.y() > m_view.height() + besideStrip;
    StripDrag &drag = *m_view.shared().drag;
    if (isBeside)
        drag.pointNowhere();
    else
        drag.pointTo(m_position.x() + m_view.strip()->scrollX);
    m_view.dragMoved();
}

void StripPointer::updateRectangle() {
    TimelineStrip *strip = m_view.strip();
    if (!strip || !m_rectangle)
        return;
    m_rectangle->updateSelectionRectIsPointSet(onStrip(m_position));
    PicSelection selection = m_rectangle->updateSelectionInRect(*strip);
    if (selection != strip->selection)
        m_view.session().select([&](MyTimelinesController &strips) {
            strips.setSelection(std::move(selection), *strip);
        });
    m_view.update();
}

void StripPointer::release(const QMouseEvent &event) {
    if (event.button() != Qt::LeftButton)
        return;
    m_edgeTimer.stop();
    const Gesture ended = std::exchange(m_gesture, Gesture::None);
    m_rectangle.reset();
    TimelineStrip *strip = m_view.strip();
    if (ended == Gesture::Drag)
        m_view.commitDrag();
    else if (ended == Gesture::Pressed && m_selectsOnRelease && strip)
        m_view.session().select(
            [&](MyTimelinesController &strips) { strips.simpleSelectThumb(m_pressed, *strip); });
    m_pressed.reset();
    m_view.update();
}

void StripPointer::cancel() {
    m_edgeTimer.stop();
    TimelineStrip *strip = m_view.strip();
    if (std::exchange(m_gesture, Gesture::None) == Gesture::Rectangle && strip)
        m_view.session().select([&](MyTimelinesController &strips) {
            strips.setSelection(m_selectionAtStart, *strip);
        });
    m_rectangle.reset();
    m_pressed.reset();
    m_view.update();
}

std::optional<QRectF> StripPointer::rectangle() const {
    const TimelineStrip *strip = m_view.strip();
    if (!m_rectangle || !strip)
        return std::nullopt;
    const StripRect rect = m_rectangle->rect();
    return QRectF(rect.x - strip->scrollX, rect.y, rect.width, rect.height);
}

double StripPointer::edgeSpeed() const {
    if (m_gesture == Gesture::Pressed)
        return 0;
    const double left = edgeWidth - m_position.x();
    const double right = m_position.x() - (m_view.width() - edgeWidth);
    if (left > 0)
        return -std::min(left / 2, mostSpeed);
    return right > 0 ? std::min(right / 2, mostSpeed) : 0;
}

void StripPointer::scrollAtEdge() {
    TimelineStrip *strip = m_view.strip();
    if (!strip || !isActive())
        return m_edgeTimer.stop();
    // What is pointed at may have drawn the strip beyond its ends; it is not pushed back.
    const double speed = edgeSpeed(), present = strip->scrollX;
    const double legal =
        strip->geometry.clampedScrollX(present + speed, strip->width, strip->count());
    strip->scrollX = speed > 0 ? std::max(present, legal) : std::min(present, legal);
    follow();
    m_view.dragMoved();
}

} // namespace chronomender
