// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Predicate.h"
#include "UserDefaults.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <string>

class QComboBox;
class QLabel;
class QPushButton;

namespace chronomender {

class WindowSession;

/// The saved filters: a menu that applies one, and buttons to save the running filter under a name,
/// and to rename or remove the chosen one. Main thread.
class FilterTemplateBar : public QWidget {
    Q_OBJECT
public:
    /// The session outlives the bar.
    FilterTemplateBar(WindowSession &session, QWidget *parent);

    /// The filter that runs now: what is saved, and by which the menu shows its template.
    void setPredicate(const std::optional<Predicate> &predicate);

Q_SIGNALS:
    void chosen(const Predicate &predicate);

private:
    QPushButton *makeButton(const char *key, void (FilterTemplateBar::*pressed)());
    void refresh();
    std::string chosenKey() const;
    std::string chosenName() const;
    void choose();
    void save();
    void rename();
    void remove();
    void showOutcome(UserDefaults::Outcome outcome);

    WindowSession &m_session;
    std::string m_running;  ///< as text; "" for no filter
    std::string m_lastName; ///< of the template chosen last, offered for the next to be saved
    QComboBox *m_menu;
    QPushButton *m_save, *m_rename, *m_remove;
    QLabel *m_note;
};

} // namespace chronomender
