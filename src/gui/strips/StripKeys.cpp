// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripKeys.h"

#include "StripView.h"

#include <QKeyEvent>

#include <algorithm>
#include <limits>

namespace chronomender {
namespace {

constexpr int itemsOfLeap = 10;
constexpr std::int64_t toTheEnd = std::numeric_limits<std::int32_t>::max();

/// How many items further a key leads; none for other keys. A page is what is in view.
std::optional<std::int64_t> wayOf(int key, std::int64_t page) {
    switch (key) {
    case Qt::Key_Left:
        return -1;
    case Qt::Key_Right:
        return 1;
    case Qt::Key_PageUp:
        return -page;
    case Qt::Key_PageDown:
        return page;
    case Qt::Key_Home:
        return -toTheEnd;
    case Qt::Key_End:
        return toTheEnd;
    default:
        return std::nullopt;
    }
}

void goTo(StripView &view, std::int64_t index, Qt::KeyboardModifiers modifiers) {
    TimelineStrip &strip = *view.strip();
    const MySinglePicPtr pic = strip.theSource[static_cast<std::size_t>(index)];
    if (modifiers & Qt::ControlModifier) {
        view.setCursor(pic);
    } else {
        view.session().select([&](MyTimelinesController &strips) {
            if (modifiers & Qt::ShiftModifier)
                strips.multiSelectAllFrom(pic, strip);
            else
                strips.simpleSelectThumb(pic, strip);
        });
    }
    view.scrollToShow(index);
}

/// Without a cursor the keys begin at the first item in view.
bool go(StripView &view, std::int64_t way, Qt::KeyboardModifiers modifiers) {
    const TimelineStrip &strip = *view.strip();
    if (strip.theSource.empty())
        return true;
    const MySinglePicPtr cursor = view.cursor();
    const auto from = cursor ? strip.indexOf(*cursor) : std::nullopt;
    const std::int64_t last = std::ssize(strip.theSource) - 1;
    const std::int64_t to = from ? *from + way : view.visibleRange().begin;
    goTo(view, std::clamp<std::int64_t>(to, 0, last), modifiers);
    return true;
}

bool toggleAtCursor(StripView &view) {
    const MySinglePicPtr pic = view.cursor();
    TimelineStrip &strip = *view.strip();
    if (!pic)
        return true;
    const bool isSelected = strip.selection.contains(pic);
    view.session().select([&](MyTimelinesController &strips) {
        if (isSelected)
            strips.multiSelectionRemove(pic, strip);
        else
            strips.multiSelectionAdd(pic, strip);
    });
    view.setCursor(pic);
    return true;
}

/// All keys are the drag's: what they do not mean is nothing.
bool leadDrag(StripView &view, const QKeyEvent &event) {
    StripDrag &drag = *view.shared().drag;
    const bool isLeap = event.modifiers() & Qt::ControlModifier;
    const int step = isLeap ? itemsOfLeap * StripDrag::placesOfItem : 1;
    switch (event.key()) {
    case Qt::Key_Left:
        drag.step(-step);
        break;
    case Qt::Key_Right:
        drag.step(step);
        break;
    case Qt::Key_Home:
    case Qt::Key_End:
        drag.stepToEnd(event.key() == Qt::Key_End);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        view.commitDrag();
        return true;
    default:
        return true;
    }
    view.dragMoved();
    return true;
}

} // namespace

bool handleStripKey(StripView &view, StripPointer &pointer, const QKeyEvent &event) {
    const int key = event.key();
    if (key == Qt::Key_Escape && (view.isDragging() || pointer.isActive())) {
        view.cancelDrag();
        pointer.cancel();
        return true;
    }
    if (view.isDragging())
        return pointer.isDragging() || leadDrag(view, event);
    const TimelineStrip *strip = view.strip();
    if (!strip)
        return false;
    const auto page = std::max<std::int64_t>(view.visibleRange().count() - 1, 1);
    if (const auto way = wayOf(key, page))
        return go(view, *way, event.modifiers());
    if (key == Qt::Key_Space)
        return toggleAtCursor(view);
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && strip->selection.picSelection) {
        Q_EMIT view.activated();
        return true;
    }
    return false;
}

} // namespace chronomender
