// SPDX-License-Identifier: GPL-3.0-or-later
#include "InspectorPanel.h"

#include "Controls.h"
#include "InspectorContent.h"
#include "PanelColors.h"
#include "WindowSession.h"

#include <QEvent>
#include <QPushButton>

namespace chronomender {
namespace {

constexpr std::chrono::milliseconds refreshDelay{40};
constexpr int leastColumns = 48; ///< a name and a date fit beside each other

} // namespace

InspectorPanel::InspectorPanel(WindowSession &session, QWidget *parent)
    : QScrollArea(parent), m_session(session), m_refresh(refreshDelay, [this] { refresh(); }) {
    named(this, "inspector_title");
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumWidth(fontMetrics().averageCharWidth() * leastColumns);
    const auto request = [this] { m_refresh.request(); };
    connect(&session, &WindowSession::selectionChanged, this, request);
    connect(&session, &WindowSession::listChanged, this, request);
    connect(&session, &WindowSession::foldersChanged, this, request);
    connect(&session, &WindowSession::dateDragMoved, this, request);
    rebuild();
}

void InspectorPanel::changeEvent(QEvent *event) {
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        rebuild();
}

void InspectorPanel::refresh() {
    const std::vector<MySinglePicPtr> pics = m_session.selectedPics();
    NewDateContext liveContext = m_session.controller().liveContext();
    if (const DateDrag *drag = m_session.dateDrag(); drag && pics.size() == 1)
        liveContext.drag = drag->liveDragOf(*pics.front());
    InspectorFacts facts =
        inspectorFacts(pics, liveContext, filterContext(m_session.zones(), m_session.defaults()));
    if (facts == m_facts)
        return;
    m_facts = std::move(facts);
    rebuild();
}

/// A button that had the focus has it again, where it is still there.
void InspectorPanel::rebuild() {
    const QWidget *focused = widget() ? widget()->focusWidget() : nullptr;
    const bool hadFocus = focused && focused->hasFocus();
    const QString name = hadFocus ? focused->objectName() : QString();
    setWidget(makeInspectorContent(
        m_facts, paletteOf(*this, m_session),
        [this](const AlertRow &row, AlertAction action) { act(action, row.target); }));
    setAccessibleDescription(wordsOf(m_facts));
    if (!hadFocus)
        return;
    QWidget *again = widget()->findChild<QPushButton *>(name);
    (again ? again : this)->setFocus();
}

void InspectorPanel::act(AlertAction action, AlternativeTarget target) {
    if (action == AlertAction::SetZones)
        return Q_EMIT zonesWanted();
    if (action == AlertAction::ShowErrors)
        return Q_EMIT errorsWanted();
    const std::vector<MySinglePicPtr> pics = m_session.selectedPics();
    m_session.edit([&](AppController &controller) { perform(action, target, pics, controller); });
}

} // namespace chronomender
