// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PaintPalette.h"
#include "StripPointer.h"
#include "StripShared.h"

#include <QWidget>

#include <optional>
#include <vector>

class QScrollBar;

namespace chronomender {

enum class StripPlace : std::uint8_t { First, Second };

/// Draws one strip of the session and lets it be scrolled, selected on, and dragged about by
/// pointer and keys. Where it is scrolled to and what is selected stands in the session's
/// TimelineStrip; the view keeps nothing of it.
///
/// Keys: arrows, Home, End and the page keys go from item to item and select it, with Shift all on
/// the way; with Ctrl only a cursor moves, and Space selects or deselects the item that it is on.
class StripView : public QWidget {
    Q_OBJECT
public:
    /// `shared` outlives the view.
    StripView(StripShared &shared, StripPlace place, QWidget *parent = nullptr);

    WindowSession &session() const { return m_shared.session; }
    StripShared &shared() const { return m_shared; }
    /// Null where there is no such strip (any more).
    TimelineStrip *strip() const;
    StripPlace place() const { return m_place; }

    /// Sizes, fonts or colours are others now.
    void refreshLook();
    /// The items in view and one screen beside them, in order.
    IndexRange nearRange() const;
    IndexRange visibleRange() const;

    // ---- places, in the view
    MySinglePicPtr picAt(QPointF position) const;
    QRect placeOf(std::int64_t index) const;

    // ---- scrolling
    void scrollTo(double scrollX);
    void scrollToShow(std::int64_t index);

    // ---- what the keys work on
    /// The item that keys go from: the cursor, else the main item.
    MySinglePicPtr cursor() const;
    void setCursor(const MySinglePicPtr &pic);

    // ---- dragging to another date
    /// Lifts the item; false, with a word in the status line, when it cannot be moved.
    bool beginDrag(const MySinglePicPtr &pic);
    bool isDragging() const;
    /// After each step of a drag.
    void dragMoved();
    /// Ends it, with its dates or without.
    void commitDrag() { endDrag(&StripDrag::commit); }
    void cancelDrag() { endDrag(&StripDrag::cancel); }
    /// From now on arrow keys lead a drag of the main item: Enter ends it with its dates, Esc
    /// without.
    void beginMoveWithArrows();

    QString spokenName(const MySinglePicPtr &pic) const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

Q_SIGNALS:
    void menuWanted(const QPoint &globalPosition);
    /// The main item was double clicked, or Enter was pressed on it.
    void activated();
    void focused();
    /// Other items are in view now.
    void viewMoved();
    /// By so many steps.
    void zoomWanted(int steps);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override { m_pointer.press(*event); }
    void mouseMoveEvent(QMouseEvent *event) override { m_pointer.move(*event); }
    void mouseReleaseEvent(QMouseEvent *event) override { m_pointer.release(*event); }
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void connectSession();
    void takePalette();
    void listChanged();
    void selectionChanged();
    /// Takes over where the strip is scrolled to.
    void syncScroll();
    StripPicture picture() const;
    void endDrag(void (StripDrag::*ending)());
    bool showToolTip(const QPoint &position, const QPoint &global);

    StripShared &m_shared;
    StripPlace m_place;
    QScrollBar *m_scrollBar;
    StripPointer m_pointer;
    StripMetrics m_metrics;
    PaintPalette m_palette;
    MySinglePicPtr m_cursor;
    MySinglePicPtr m_shownMain; ///< the main item that was scrolled to last
    IndexRange m_toldRange;
};

} // namespace chronomender
