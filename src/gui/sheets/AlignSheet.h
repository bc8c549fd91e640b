// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AlignRows.h"
#include "WindowSession.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;
class QTreeWidget;

namespace chronomender {

/// The ways to put the selection in order, with what each would do to its dates. Nothing is changed
/// before it is applied, which is one step that can be undone.
class AlignSheet : public QDialog {
    Q_OBJECT
public:
    /// `session` outlives the sheet, which deletes itself when it is closed.
    AlignSheet(WindowSession &session, QWidget *parent);

private:
    void fillChoices();
    const AlignChoice *chosen() const;
    void showOutcome();
    void apply();

    WindowSession &m_session;
    AlignSelection m_selection;
    NewDateContext m_context;
    QListWidget *m_choices;
    QLabel *m_explanation;
    QTreeWidget *m_rows;
    QPushButton *m_apply = nullptr;
};

} // namespace chronomender
