// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Coalesced.h"

#include <QWidget>

#include <vector>

class QBoxLayout;
class QLabel;

namespace chronomender {

class JobItem;
class WindowSession;

/// The line at the bottom of a window: a word of what just happened, or how many items there are;
/// and each long work with its progress and a way to stop it. Main thread.
class JobBar : public QWidget {
    Q_OBJECT
public:
    /// The session outlives the bar.
    explicit JobBar(WindowSession &session, QWidget *parent = nullptr);

private:
    void tell(const QString &words);
    void showCounts();
    void showJobs();

    WindowSession &m_session;
    QLabel *m_words = nullptr;
    QBoxLayout *m_jobsLayout = nullptr;
    std::vector<JobItem *> m_items;
    Coalesced m_counts;
    QTimer m_told; ///< runs while a word stands in place of the counts
};

} // namespace chronomender
