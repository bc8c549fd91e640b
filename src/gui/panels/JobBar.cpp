// SPDX-License-Identifier: GPL-3.0-or-later
#include "JobBar.h"

#include "Controls.h"
#include "JobItem.h"
#include "JobRows.h"
#include "WindowSession.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <numeric>

namespace chronomender {
namespace {

constexpr std::chrono::milliseconds countsDelay{120};
constexpr std::chrono::seconds toldFor{8};

} // namespace

JobBar::JobBar(WindowSession &session, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_words(new QLabel),
      m_jobsLayout(new QHBoxLayout),
      m_counts(countsDelay, [this] { showCounts(); }) {
    setMinimumHeight(QPushButton().sizeHint().height()); // so that a job's button moves nothing
    m_words->setTextFormat(Qt::PlainText);
    m_words->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_jobsLayout->setSpacing(fontMetrics().height());
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(fontMetrics().height() / 2, 0, fontMetrics().height() / 2, 0);
    layout->addWidget(m_words, 1);
    layout->addLayout(m_jobsLayout);
    m_told.setSingleShot(true);
    m_told.setInterval(toldFor);
    m_told.callOnTimeout([this] { showCounts(); });
    const auto request = [this] { m_counts.request(); };
    connect(&session, &WindowSession::listChanged, this, request);
    connect(&session, &WindowSession::foldersChanged, this, request);
    connect(&session, &WindowSession::selectionChanged, this, request);
    connect(&session, &WindowSession::statusTold, this,
            [this](const QString &words) { tell(words); });
    connect(&session.jobs(), &Jobs::changed, this, [this] { showJobs(); });
    showCounts();
    showJobs();
}

void JobBar::tell(const QString &words) {
    m_words->setText(words);
    m_words->setToolTip(words);
    m_told.start();
    QAccessibleEvent event(m_words, QAccessible::Alert); // it is read out where somebody listens
    QAccessible::updateAccessibility(&event);
}

void JobBar::showCounts() {
    if (m_told.isActive())
        return;
    const auto &folders = m_session.folders();
    const auto unsaved = std::accumulate(
        folders.begin(), folders.end(), std::int64_t{0},
        [](std::int64_t sum, const auto &folder) { return sum + folder->unsavedImagesCount(); });
    const std::size_t items = m_session.controller().source_full().size();
    const QString words =
        items == 0
            ? QString()
            : qString(sessionText(items, m_session.timelines().focusedTimeline().selection.count(),
                                  static_cast<std::size_t>(unsaved)));
    m_words->setText(words);
    m_words->setToolTip(QString());
}

/// Jobs keep their widgets, so that a button that has the focus stays.
void JobBar::showJobs() {
    const std::vector<JobStatus> statuses = mergedByKind(m_session.jobs().statuses());
    while (m_items.size() < statuses.size()) {
        auto *item = new JobItem;
        connect(item, &JobItem::cancelWanted, this,
                [this](JobKind kind) { m_session.jobs().cancel(kind); });
        m_jobsLayout->addWidget(item);
        m_items.push_back(item);
    }
    for (; m_items.size() > statuses.size(); m_items.pop_back())
        m_items.back()->deleteLater();
    for (std::size_t i = 0; i < statuses.size(); ++i)
        m_items[i]->showStatus(statuses[i]);
}

} // namespace chronomender
