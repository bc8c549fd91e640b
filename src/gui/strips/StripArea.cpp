// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripArea.h"

#include "Controls.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace chronomender {
namespace {

constexpr int sizeStep = 16;

bool hasLabels(WindowSession &session) {
    return session.defaults().boolForKey("displayTimelineLabels");
}

} // namespace

StripArea::StripArea(WindowSession &session, QWidget *parent)
    : QWidget(parent),
      m_shared(session),
      m_first(named(new StripView(m_shared, StripPlace::First, this), "strip_timeline")),
      m_title(new QLabel(this)),
      m_hasLabels(hasLabels(session)) {
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_first);
    column->addWidget(m_title);
    m_title->setMargin(fontMetrics().height() / 4);
    m_title->hide();
    connectView(m_first);
    connect(&session, &WindowSession::stripsChanged, this, [this] { followStrips(); });
    connect(&session, &WindowSession::selectionChanged, this, [this] { followFocus(); });
    connect(&session, &WindowSession::listChanged, this, [this] {
        followStrips();
        if (m_hasLabels != hasLabels(m_shared.session))
            refreshLook();
    });
    followStrips();
}

StripArea::~StripArea() = default;

void StripArea::connectView(StripView *view) {
    connect(view, &StripView::menuWanted, this, &StripArea::menuWanted);
    connect(view, &StripView::activated, this, &StripArea::activated);
    connect(view, &StripView::viewMoved, this, [this] { tellOnScreen(); });
    connect(view, &StripView::zoomWanted, this, [this](int steps) { enlargeThumbs(steps); });
    connect(view, &StripView::focused, this, [this, view] {
        const bool isSecond = view == m_second;
        if (m_shared.session.timelines().mirrorFirstRespState() != isSecond)
            m_shared.session.select([isSecond](MyTimelinesController &strips) {
                strips.setMirrorFirstRespState(isSecond);
            });
    });
}

/// Makes or removes the second view as the session has a second strip.
void StripArea::followStrips() {
    const TimelineStrip *strip = m_shared.session.timelines().secondTimeline();
    if (!strip) {
        if (!m_second)
            return;
        const bool hadFocus = m_second->hasFocus();
        m_shared.drag.reset();
        // It may be the one whose event led here.
        m_second->hide();
        std::exchange(m_second, nullptr)->deleteLater();
        m_title->hide();
        if (hadFocus)
            m_first->setFocus(Qt::OtherFocusReason);
        return;
    }
    const char *key = strip->isShelf() ? "strip_shelf" : "strip_mirror";
    const bool isNew = !m_second;
    if (isNew) {
        m_second = new StripView(m_shared, StripPlace::Second, this);
        layout()->addWidget(m_second);
        connectView(m_second);
    }
    named(m_second, key);
    m_title->setText(qText(key));
    if (isNew) {
        m_title->show();
        m_second->show();
        setTabOrder(m_first, m_second);
    }
    // A strip of another kind begins with sizes of its own.
    if (strip->geometry.thumbSize != m_first->strip()->geometry.thumbSize ||
        strip->width != m_second->width())
        m_second->refreshLook();
}

StripView &StripArea::focusedView() {
    const bool isSecond = m_shared.session.timelines().mirrorFirstRespState();
    return isSecond && m_second ? *m_second : *m_first;
}

/// The keyboard goes where a command has put the focus, if it was on a strip.
void StripArea::followFocus() {
    followStrips();
    const bool isOnStrip = m_first->hasFocus() || (m_second && m_second->hasFocus());
    if (isOnStrip && !focusedView().hasFocus())
        focusStrip();
}

void StripArea::setThumbSize(int size) {
    m_shared.thumbSize = std::clamp(size, smallestThumb, largestThumb);
    refreshLook();
}

void StripArea::enlargeThumbs(int steps) {
    setThumbSize(m_shared.thumbSize + steps * sizeStep);
}

void StripArea::refreshLook() {
    m_hasLabels = hasLabels(m_shared.session);
    m_first->refreshLook();
    if (m_second)
        m_second->refreshLook();
}

/// The items in view and near it, by their distance from the middle, of both strips in turn.
void StripArea::tellOnScreen() {
    struct Wanted {
        double distance;
        MySinglePicPtr pic;
    };
    std::vector<Wanted> wanted;
    for (const StripView *view : {m_first, m_second}) {
        const TimelineStrip *strip = view ? view->strip() : nullptr;
        if (!strip)
            continue;
        const IndexRange range = view->nearRange();
        const double middle = strip->scrollX + strip->width / 2;
        for (std::int64_t index = range.begin; index < range.end; ++index)
            wanted.push_back({std::abs(strip->geometry.centerOf(index) - middle),
                              strip->shown()[static_cast<std::size_t>(index)]});
    }
    std::ranges::stable_sort(wanted, {}, &Wanted::distance);
    std::vector<MySinglePicPtr> pics;
    pics.reserve(wanted.size());
    for (Wanted &each : wanted)
        pics.push_back(std::move(each.pic));
    m_shared.session.thumbnails().setOnScreen(pics);
}

} // namespace chronomender
