// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Jobs.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace chronomender {

/// One long work: what, how far, how long still, and a button to stop it. Main thread.
class JobItem : public QWidget {
    Q_OBJECT
public:
    explicit JobItem(QWidget *parent = nullptr);
    void showStatus(const JobStatus &status);

Q_SIGNALS:
    void cancelWanted(chronomender::JobKind kind);

private:
    QLabel *m_title = nullptr, *m_progressText = nullptr;
    QProgressBar *m_progress = nullptr;
    QPushButton *m_cancel = nullptr;
    JobKind m_kind{};
};

} // namespace chronomender
