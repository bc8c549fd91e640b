// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Coalesced.h"
#include "ShiftFacts.h"

#include <QWidget>

#include <array>
#include <vector>

class QBoxLayout;
class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QSpinBox;

namespace chronomender {

class WindowSession;

/// The shift of the selected folders, or of the selected items in single mode, as fields at the
/// bottom of a window. What is typed counts at Enter or as the field is left, what is stepped after
/// a short pause: each is one step of undo. Main thread.
class ShiftBar : public QWidget {
    Q_OBJECT
public:
    /// The session outlives the bar.
    explicit ShiftBar(WindowSession &session, QWidget *parent = nullptr);

    /// To the first field, for a command.
    void focusFields();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// What an edit is meant for.
    struct Subject {
        std::vector<MySingleFolderPtr> folders;
        std::vector<MySinglePicPtr> items; ///< in single mode
        bool operator==(const Subject &) const = default;
    };

    QBoxLayout *makeFields();
    QBoxLayout *makeModes();
    QRadioButton *makeMode(const char *key, const char *tipKey);
    void connectControls();
    void refresh();
    Subject subjectOf(const ShiftFacts &facts, const std::vector<MySinglePicPtr> &pics) const;
    void dropEdit();
    void showFacts(const ShiftFacts &facts);
    void showMode(const Combined<EditMode> &mode);
    void showDirection(const std::optional<std::string> &direction);
    CompoundFields shownFields() const;
    bool areAllZero() const;
    void edited();
    void commit();
    void setMode(EditMode mode);

    WindowSession &m_session;
    QComboBox *m_direction = nullptr;
    std::array<QSpinBox *, 4> m_numbers{}; ///< days, hours, minutes, seconds
    QPushButton *m_reset = nullptr;
    QRadioButton *m_together = nullptr, *m_single = nullptr;
    QLabel *m_hint = nullptr;
    ShiftFacts m_facts;
    Subject m_subject;        ///< that `m_facts` are of
    bool m_isShowing = false; ///< the fields follow the session
    /// Picked while there is no shift that could have it.
    std::optional<std::string> m_waitingDirection;
    bool m_isDirty = false; ///< an edit waits to be committed
    Coalesced m_pause, m_refresh;
};

} // namespace chronomender
