// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Coalesced.h"
#include "FilterFacts.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace chronomender {

class WindowSession;

/// The quick filter above the strips: words of a name or a camera, a rating, and how many items are
/// hidden by it. Main thread.
class FilterBar : public QWidget {
    Q_OBJECT
public:
    /// Filters by what the last session was filtered by. The session outlives the bar.
    explicit FilterBar(WindowSession &session, QWidget *parent = nullptr);

    /// To the words, for a command.
    void focusWords();
    /// Filters by what is still being typed.
    void finishTyping();

Q_SIGNALS:
    /// More is to be asked than words can say.
    void editorWanted();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void refresh();
    void apply();
    void clear();

    WindowSession &m_session;
    QLineEdit *m_words = nullptr;
    QComboBox *m_rating = nullptr;
    QLabel *m_hidden = nullptr;
    QPushButton *m_clear = nullptr, *m_more = nullptr;
    QuickFilter m_shown; ///< what the session filters by
    Coalesced m_typing, m_refresh;
};

} // namespace chronomender
