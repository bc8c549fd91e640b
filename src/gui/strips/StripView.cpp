// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripView.h"

#include "Controls.h"
#include "DroppedPaths.h"
#include "StripAccessible.h"
#include "StripFrame.h"
#include "StripKeys.h"
#include "StripPainter.h"
#include "StripWords.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace chronomender {
namespace {

constexpr double wheelStep = 120; // what a notch of a wheel tells

} // namespace

StripView::StripView(StripShared &shared, StripPlace place, QWidget *parent)
    : QWidget(parent),
      m_shared(shared),
      m_place(place),
      m_scrollBar(new QScrollBar(Qt::Horizontal, this)),
      m_pointer(*this) {
    installStripAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_scrollBar->setFocusPolicy(Qt::NoFocus);
    connect(m_scrollBar, &QScrollBar::valueChanged, this, [this](int value) { scrollTo(value); });
    connectSession();
    refreshLook();
}

void StripView::connectSession() {
    WindowSession *session = &m_shared.session;
    connect(session, &WindowSession::listChanged, this, &StripView::listChanged);
    connect(session, &WindowSession::selectionChanged, this, &StripView::selectionChanged);
    connect(session, &WindowSession::scrolled, this, &StripView::syncScroll);
    connect(session, &WindowSession::thumbsChanged, this, [this] { update(); });
    connect(session, &WindowSession::dateChangeAborted, this, &StripView::cancelDrag);
    connect(session, &WindowSession::foldersChanged, this, &StripView::takePalette);
}

TimelineStrip *StripView::strip() const {
    MyTimelinesController &timelines = session().timelines();
    return m_place == StripPlace::First ? &timelines.mainTimeline() : timelines.secondTimeline();
}

void StripView::takePalette() {
    m_palette = paintPalette(palette(), session().defaults().stringForKey("folderColors_7"));
    update();
}

void StripView::refreshLook() {
    takePalette();
    m_metrics = stripMetrics(font(), m_shared.thumbSize,
                             session().defaults().boolForKey("displayTimelineLabels"));
    TimelineStrip *strip = this->strip();
    if (!strip)
        return;
    const double before = strip->geometry.cellWidth();
    const double middle = (strip->scrollX + strip->width / 2) / before;
    strip->geometry = m_metrics.geometry;
    strip->drawerOffset = static_cast<float>(m_metrics.drawerOffset);
    if (before != strip->geometry.cellWidth())
        strip->scrollX = middle * strip->geometry.cellWidth() - strip->width / 2;
    updateGeometry();
    listChanged();
}

QSize StripView::sizeHint() const {
    return {static_cast<int>(4 * m_metrics.geometry.cellWidth()),
            static_cast<int>(m_metrics.height) + m_scrollBar->sizeHint().height()};
}

void StripView::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    const QEvent::Type type = event->type();
    if (type == QEvent::PaletteChange || type == QEvent::FontChange || type == QEvent::StyleChange)
        refreshLook();
}

void StripView::resizeEvent(QResizeEvent *) {
    const int barHeight = m_scrollBar->sizeHint().height();
    m_scrollBar->setGeometry(0, height() - barHeight, width(), barHeight);
    if (TimelineStrip *strip = this->strip())
        strip->width = width();
    listChanged();
}

StripPicture StripView::picture() const {
    const TimelineStrip &strip = *this->strip();
    StripPicture picture = stripFrame(m_shared, strip, m_metrics, hasFocus() ? m_cursor : nullptr,
                                      devicePixelRatioF());
    picture.rectangle = m_pointer.rectangle();
    picture.hasFocus = hasFocus();
    if (picture.drop) {
        const QPointF beside = m_pointer.isDragging()
                                   ? m_pointer.position()
                                   : QPointF(placeOf(m_shared.drag->mainIndex()).bottomRight());
        picture.callOut = {beside, m_shared.drag->proposedDate(), m_shared.drag->shift()};
    }
    return picture;
}

void StripView::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    if (strip())
        paintStrip(painter, picture(), m_palette);
    const int below = static_cast<int>(m_metrics.height);
    painter.fillRect(0, below, width(), height() - below, m_palette.strip);
}

void StripView::listChanged() {
    TimelineStrip *strip = this->strip();
    if (!strip)
        return;
    if (isDragging() && m_shared.drag->strip() == strip)
        m_shared.drag->listChanged();
    else if (!isDragging())
        strip->scrollX =
            strip->geometry.clampedScrollX(strip->scrollX, strip->width, strip->count());
    if (m_cursor && !strip->indexOf(*m_cursor))
        m_cursor.reset();
    m_toldRange = {};
    tellItems(*this);
    syncScroll();
}

void StripView::selectionChanged() {
    const TimelineStrip *strip = this->strip();
    if (!strip)
        return;
    const MySinglePicPtr &main = strip->selection.picSelection;
    if (main != m_shownMain) {
        m_shownMain = main;
        m_cursor.reset();
        const auto index = main ? strip->indexOf(*main) : std::nullopt;
        if (index && !m_pointer.isActive() && !isDragging())
            scrollToShow(*index);
        tellMainItem(*this);
    }
    update();
}

void StripView::syncScroll() {
    const TimelineStrip *strip = this->strip();
    if (!strip)
        return;
    const QSignalBlocker blocker(m_scrollBar);
    const double most = std::max(0.0, strip->geometry.totalWidth(strip->count()) - strip->width);
    m_scrollBar->setRange(0, static_cast<int>(std::ceil(most)));
    m_scrollBar->setPageStep(std::max(1, static_cast<int>(strip->width)));
    m_scrollBar->setSingleStep(static_cast<int>(strip->geometry.cellWidth()));
    m_scrollBar->setValue(static_cast<int>(std::round(strip->scrollX)));
    const IndexRange range = nearRange();
    if (range != m_toldRange) {
        m_toldRange = range;
        Q_EMIT viewMoved();
    }
    update();
}

// ---- places and scrolling

IndexRange StripView::visibleRange() const {
    const TimelineStrip *strip = this->strip();
    return strip ? strip->geometry.trueVisibleThumbsRange(strip->scrollX, strip->width,
                                                          strip->count())
                 : IndexRange{};
}

IndexRange StripView::nearRange() const {
    const TimelineStrip *strip = this->strip();
    return strip ? strip->geometry.visibleThumbsRangeExtendedBy(strip->width, 0, strip->scrollX,
                                                                strip->width, strip->count())
                 : IndexRange{};
}

QRect StripView::placeOf(std::int64_t index) const {
    const TimelineStrip *strip = this->strip();
    const StripRect rect = strip ? strip->thumbRectAtIndex(index) : StripRect{};
    return QRectF(double{rect.x} - (strip ? strip->scrollX : 0), rect.y, rect.width, rect.height)
        .toRect();
}

MySinglePicPtr StripView::picAt(QPointF position) const {
    const TimelineStrip *strip = this->strip();
    if (!strip)
        return nullptr;
    const std::int64_t index = strip->geometry.picIndexAtHorizontalMouseLocation(
        static_cast<float>(position.x() + strip->scrollX), false, strip->count());
    if (index < 0 || !placeOf(index).contains(position.toPoint()))
        return nullptr;
    return strip->shown()[static_cast<std::size_t>(index)];
}

void StripView::scrollTo(double scrollX) {
    TimelineStrip *strip = this->strip();
    if (!strip)
        return;
    strip->scrollX = strip->geometry.clampedScrollX(scrollX, strip->width, strip->count());
    syncScroll();
}

void StripView::scrollToShow(std::int64_t index) {
    if (const TimelineStrip *strip = this->strip())
        scrollTo(scrollXToShow(*strip, index));
}

void StripView::wheelEvent(QWheelEvent *event) {
    const QPoint notches = event->angleDelta();
    const int delta = notches.x() != 0 ? notches.x() : notches.y();
    if (event->modifiers() & Qt::ControlModifier) {
        Q_EMIT zoomWanted(delta > 0 ? 1 : -1);
    } else if (const TimelineStrip *strip = this->strip()) {
        const QPoint pixels = event->pixelDelta();
        const double way = pixels.isNull() ? delta / wheelStep * strip->geometry.cellWidth()
                                           : (pixels.x() != 0 ? pixels.x() : pixels.y());
        scrollTo(strip->scrollX - way);
    }
    event->accept();
}

// ---- keys and focus

MySinglePicPtr StripView::cursor() const {
    const TimelineStrip *strip = this->strip();
    if (m_cursor || !strip)
        return m_cursor;
    return strip->selection.picSelection;
}

void StripView::setCursor(const MySinglePicPtr &pic) {
    m_cursor = pic;
    update();
}

void StripView::keyPressEvent(QKeyEvent *event) {
    if (!handleStripKey(*this, m_pointer, *event))
        QWidget::keyPressEvent(event);
}

void StripView::focusInEvent(QFocusEvent *event) {
    QWidget::focusInEvent(event);
    Q_EMIT focused();
    tellMainItem(*this);
    update();
}

void StripView::focusOutEvent(QFocusEvent *event) {
    if (!m_pointer.isDragging() && event->reason() != Qt::ActiveWindowFocusReason)
        cancelDrag();
    QWidget::focusOutEvent(event);
    update();
}

bool StripView::event(QEvent *event) {
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        return showToolTip(help->pos(), help->globalPos());
    }
    if (event->type() == QEvent::ShortcutOverride && isDragging()) {
        event->accept(); // while something is lifted every key is the drag's
        return true;
    }
    return QWidget::event(event);
}

bool StripView::showToolTip(const QPoint &position, const QPoint &global) {
    const MySinglePicPtr pic = isDragging() ? nullptr : picAt(position);
    if (!pic) {
        QToolTip::hideText();
        return true;
    }
    const ThumbAnswer answer = m_shared.thumbnail(pic, ThumbSide::Normal);
    const bool isUnsupported = answer.state == ThumbState::Unsupported;
    QToolTip::showText(global,
                       itemToolTip(session(), *pic, cellMarks(*pic, m_shared.filters()),
                                   isUnsupported ? answer.reasonKey : std::string_view()),
                       this);
    return true;
}

void StripView::mouseDoubleClickEvent(QMouseEvent *event) {
    m_pointer.press(*event);
    if (event->button() == Qt::LeftButton && picAt(event->position()))
        Q_EMIT activated();
}

void StripView::contextMenuEvent(QContextMenuEvent *event) {
    TimelineStrip *strip = this->strip();
    if (!strip || isDragging())
        return;
    QPoint place = event->globalPos();
    const MySinglePicPtr pic =
        event->reason() == QContextMenuEvent::Keyboard ? cursor() : picAt(event->pos());
    if (pic && !strip->selection.contains(pic))
        session().select(
            [&](MyTimelinesController &strips) { strips.simpleSelectThumb(pic, *strip); });
    const auto index = pic ? strip->indexOf(*pic) : std::nullopt;
    if (index && event->reason() == QContextMenuEvent::Keyboard)
        place = mapToGlobal(placeOf(*index).center());
    Q_EMIT menuWanted(place);
}

// ---- drags

bool StripView::isDragging() const {
    return m_shared.drag != nullptr;
}

bool StripView::beginDrag(const MySinglePicPtr &pic) {
    TimelineStrip *strip = this->strip();
    cancelDrag();
    if (!strip || !pic)
        return false;
    if (!session().saveFlow().isIdle()) {
        session().tell(text("status_waitForSave"));
        return false;
    }
    m_shared.drag = StripDrag::begin(session(), pic, *strip);
    if (!m_shared.drag)
        session().tell(text("strip_cannotMove", {pic->spName}));
    dragMoved();
    return isDragging();
}

void StripView::beginMoveWithArrows() {
    const TimelineStrip *strip = this->strip();
    const MySinglePicPtr main = strip ? strip->selection.picSelection : nullptr;
    if (!main)
        return;
    setFocus(Qt::OtherFocusReason);
    if (const auto index = strip->indexOf(*main))
        scrollToShow(*index);
    beginDrag(main);
}

void StripView::dragMoved() {
    setAccessibleDescription(isDragging() ? m_shared.drag->spoken() : QString());
    Q_EMIT session().scrolled(); // a second strip shows the same
}

void StripView::endDrag(void (StripDrag::*ending)()) {
    const auto drag = std::move(m_shared.drag);
    if (!drag)
        return;
    m_pointer.cancel();
    (drag.get()->*ending)();
    dragMoved();
}

void StripView::dragEnterEvent(QDragEnterEvent *event) {
    if (!draggedPaths(event->mimeData()).empty())
        event->acceptProposedAction();
}

void StripView::dropEvent(QDropEvent *event) {
    openDropped(*event, session());
}

QString StripView::spokenName(const MySinglePicPtr &pic) const {
    const TimelineStrip *strip = this->strip();
    const Date date =
        isDragging() ? m_shared.drag->live().date(*pic) : pic->spDateTimeModified_sort();
    return spokenItem(session(), *pic, date, strip && strip->selection.contains(pic),
                      cellMarks(*pic, m_shared.filters()));
}

} // namespace chronomender
