// SPDX-License-Identifier: GPL-3.0-or-later
#include "JobItem.h"

#include "Controls.h"
#include "JobRows.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace chronomender {
namespace {

constexpr int barInColumns = 14, permille = 1000;

} // namespace

JobItem::JobItem(QWidget *parent)
    : QWidget(parent),
      m_title(new QLabel),
      m_progressText(new QLabel),
      m_progress(new QProgressBar),
      m_cancel(new QPushButton(qText("jobs_cancel"))) {
    m_progress->setTextVisible(false);
    m_progress->setFixedWidth(fontMetrics().averageCharWidth() * barInColumns);
    m_progressText->setForegroundRole(QPalette::PlaceholderText);
    for (QLabel *label : {m_title, m_progressText}) {
        label->setTextFormat(Qt::PlainText);
        label->setMinimumWidth(1); // a narrow window cuts words rather than grow
    }
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    for (QWidget *each : {static_cast<QWidget *>(m_title), static_cast<QWidget *>(m_progress),
                          static_cast<QWidget *>(m_progressText), static_cast<QWidget *>(m_cancel)})
        layout->addWidget(each);
    connect(m_cancel, &QPushButton::clicked, this, [this] { Q_EMIT cancelWanted(m_kind); });
}

void JobItem::showStatus(const JobStatus &status) {
    m_kind = status.kind;
    const QString title = qString(status.title), progress = qString(progressText(status));
    m_title->setText(title);
    m_progressText->setText(progress);
    // Without a total the bar only says that something is going on.
    const bool isKnown = status.total > 0;
    m_progress->setRange(0, isKnown ? permille : 0);
    if (isKnown)
        m_progress->setValue(static_cast<int>(static_cast<double>(status.done) * permille /
                                              static_cast<double>(status.total)));
    m_progress->setAccessibleName(title);
    m_progress->setAccessibleDescription(progress);
    m_cancel->setVisible(status.canBeCancelled);
    m_cancel->setEnabled(!status.isCancelling);
    m_cancel->setAccessibleName(qText("jobs_cancelNamed", {status.title}));
}

} // namespace chronomender
