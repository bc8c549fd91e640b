// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Coalesced.h"
#include "InspectorFacts.h"

#include <QScrollArea>

namespace chronomender {

class WindowSession;

/// Everything about the selected items at the right of a window, with what can be done about their
/// alerts. Main thread.
class InspectorPanel : public QScrollArea {
    Q_OBJECT
public:
    /// The session outlives the panel.
    explicit InspectorPanel(WindowSession &session, QWidget *parent = nullptr);

    /// What is shown now.
    const InspectorFacts &facts() const { return m_facts; }

Q_SIGNALS:
    /// The person wants to set zones of the selected items.
    void zonesWanted();
    /// The person wants to read what went wrong.
    void errorsWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    void refresh();
    void rebuild();
    void act(AlertAction action, AlternativeTarget target);

    WindowSession &m_session;
    InspectorFacts m_facts;
    Coalesced m_refresh;
};

} // namespace chronomender
