// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PreferenceTable.h"
#include "ToolCheck.h"
#include "WindowSession.h"

#include <QDialog>

#include <vector>

class QGridLayout;
class QLabel;
class QToolButton;

namespace chronomender {

/// The preferences, page by page as their table says. What a person sets holds at once, and what
/// differs from the program's own choice can be put back.
class PreferencesSheet : public QDialog {
    Q_OBJECT
public:
    /// `session` outlives the sheet, which deletes itself when it is closed.
    PreferencesSheet(WindowSession &session, QWidget *parent);

Q_SIGNALS:
    /// A preference has another value.
    void preferenceChanged(const QString &key);

private:
    struct Row {
        const Preference *preference = nullptr;
        QWidget *control = nullptr, *label = nullptr;
        QToolButton *reset = nullptr;
    };
    QWidget *makePage(PreferencePage page);
    void addRow(const Preference &preference, QGridLayout &grid);
    QWidget *makeControl(const Preference &preference, QWidget *parent);
    QToolButton *makeReset(const Preference &preference, QWidget *parent);
    void wasSet(const Preference &preference, UserDefaults::Outcome outcome);
    void refresh();
    void checkTool();

    WindowSession &m_session;
    std::vector<Row> m_rows;
    QLabel *m_problem = nullptr, *m_toolAnswer = nullptr;
    ToolCheck m_tool;
};

} // namespace chronomender
