// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterSheet.h"

#include "Controls.h"
#include "FilterTemplateBar.h"
#include "RowTexts.h"
#include "WindowSession.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <absl/time/clock.h>

#include <algorithm>

namespace chronomender {
namespace {

constexpr std::chrono::milliseconds editingPause{250};
constexpr std::size_t mostRows = 50;
constexpr int shownRows = 5;

enum Page { RowsPage, TextPage };

FilterRowWidget::Setting settingOf(const WindowSession &session) {
    const absl::TimeZone &zone = session.zones().systemZone().rules;
    return {zone, filterDates(session.controller().source_full(), absl::Now(), zone)};
}

} // namespace

FilterSheet::FilterSheet(WindowSession &session, QWidget *parent)
    : QDialog(parent),
      m_session(session),
      m_setting(settingOf(session)),
      m_pages(new QStackedWidget(this)),
      m_match(named(new QComboBox, "filter_matchName")),
      m_scroll(new QScrollArea),
      m_rowLayout(new QVBoxLayout),
      m_text(named(new QPlainTextEdit, "filter_textName")),
      m_counts(new QLabel(this)),
      m_templates(new FilterTemplateBar(session, this)),
      m_editing(editingPause, [this] { apply(); }) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(qText("filter_title"));
    m_pages->addWidget(makeRowsPage());
    m_pages->addWidget(makeTextPage());
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_counts);
    layout->addWidget(m_templates);
    layout->addSpacing(fontMetrics().height() / 2);
    layout->addWidget(makeButtons());
    setTabOrder(m_pages, m_templates);
    connect(m_templates, &FilterTemplateBar::chosen, this, [this](const Predicate &predicate) {
        m_editing.cancel();
        filterByPredicate(predicate);
        showPredicate(predicate);
    });
    connect(&session, &WindowSession::listChanged, this, [this] { refresh(); });
    showPredicate(session.controller().filters().filter_sourcePredicate());
    m_scroll->setMinimumWidth(m_scroll->widget()->minimumSizeHint().width() +
                              m_scroll->verticalScrollBar()->sizeHint().width());
    refresh();
    if (!m_rows.empty())
        m_rows.front()->focusKind();
}

QWidget *FilterSheet::makeRowsPage() {
    auto *page = new QWidget;
    auto *title = new QLabel(qText("filter_match"));
    title->setBuddy(m_match);
    m_match->addItems({qText("filter_matchAll"), qText("filter_matchAny")});
    auto *sentence = new QHBoxLayout;
    sentence->addWidget(title);
    sentence->addWidget(m_match);
    sentence->addWidget(new QLabel(qText("filter_matchEnd")), 1);
    auto *rows = new QWidget;
    rows->setLayout(m_rowLayout);
    m_rowLayout->setContentsMargins({});
    m_rowLayout->addStretch(1);
    m_scroll->setWidget(rows);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setMinimumHeight(m_match->sizeHint().height() * (shownRows + 1));
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins({});
    layout->addLayout(sentence);
    layout->addWidget(m_scroll, 1);
    connect(m_match, &QComboBox::activated, this, [this] { m_editing.postpone(); });
    return page;
}

QWidget *FilterSheet::makeTextPage() {
    auto *page = new QWidget;
    auto *explanation = new QLabel(qText("filter_asText"));
    explanation->setWordWrap(true);
    m_text->setReadOnly(true);
    m_text->setTabChangesFocus(true);
    auto *anew = new QPushButton(qText("filter_startAnew"));
    anew->setAutoDefault(false);
    connect(anew, &QPushButton::clicked, this, [this] { clear(); });
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins({});
    layout->addWidget(explanation);
    layout->addWidget(m_text, 1);
    layout->addWidget(anew, 0, Qt::AlignLeading);
    return page;
}

QWidget *FilterSheet::makeButtons() {
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *reset = buttons->addButton(qText("filter_reset"), QDialogButtonBox::ResetRole);
    reset->setAutoDefault(false);
    QPushButton *close = buttons->addButton(qText("sheet_close"), QDialogButtonBox::AcceptRole);
    close->setDefault(true);
    connect(reset, &QPushButton::clicked, this, [this] { clear(); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    return buttons;
}

void FilterSheet::showPredicate(const std::optional<Predicate> &predicate) {
    while (!m_rows.empty())
        dropRow(m_rows.back());
    const auto conditions = conditionsOf(predicate, m_setting.zone);
    m_pages->setCurrentIndex(conditions ? RowsPage : TextPage);
    m_text->setPlainText(conditions ? QString() : qString(predicateFormat(*predicate)));
    if (!conditions)
        return;
    m_match->setCurrentIndex(static_cast<int>(conditions->match));
    for (const FilterCondition &each : conditions->rows)
        insertRow(m_rows.size(), each);
    placeRows();
}

FilterRowWidget *FilterSheet::insertRow(std::size_t index, const FilterCondition &condition) {
    auto *row = new FilterRowWidget(condition, m_setting, m_scroll->widget());
    m_rowLayout->insertWidget(static_cast<int>(index), row);
    m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(index), row);
    connect(row, &FilterRowWidget::edited, this, [this] { m_editing.postpone(); });
    connect(row, &FilterRowWidget::addWanted, this, [this, row] { addRowBelow(row); });
    connect(row, &FilterRowWidget::removeWanted, this, [this, row] { removeRow(row); });
    return row;
}

/// The call may come from one of its buttons.
void FilterSheet::dropRow(FilterRowWidget *row) {
    std::erase(m_rows, row);
    m_rowLayout->removeWidget(row);
    row->hide();
    row->deleteLater();
}

void FilterSheet::addRowBelow(FilterRowWidget *row) {
    const auto index = std::ranges::find(m_rows, row) - m_rows.begin();
    FilterRowWidget *added = insertRow(static_cast<std::size_t>(index) + 1, {});
    placeRows();
    added->show();
    added->focusKind();
    // Once it has its place.
    QTimer::singleShot(0, added, [this, added] { m_scroll->ensureWidgetVisible(added); });
    m_editing.postpone();
}

void FilterSheet::removeRow(FilterRowWidget *row) {
    const auto index = static_cast<std::size_t>(std::ranges::find(m_rows, row) - m_rows.begin());
    dropRow(row);
    placeRows();
    m_rows[std::min(index, m_rows.size() - 1)]->focusKind();
    m_editing.postpone();
}

void FilterSheet::placeRows() {
    QWidget *last = m_match;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        m_rows[i]->setPlace(i + 1, m_rows.size() < mostRows, m_rows.size() > 1);
        for (QWidget *each : m_rows[i]->controls()) {
            setTabOrder(last, each);
            last = each;
        }
    }
}

FilterConditions FilterSheet::conditions() const {
    FilterConditions shown{static_cast<FilterConditions::Match>(m_match->currentIndex()), {}};
    for (const FilterRowWidget *row : m_rows)
        shown.rows.push_back(row->condition());
    return shown;
}

void FilterSheet::apply() {
    m_editing.cancel();
    if (!m_rows.empty())
        filterByPredicate(predicateOf(conditions()));
}

void FilterSheet::filterByPredicate(const std::optional<Predicate> &predicate) {
    FilterSourceController &filters = m_session.controller().filters();
    if (predicate == filters.filter_sourcePredicate())
        return;
    filterBy(predicate, filters, m_session.defaults());
    // Views tell that a filter is on, also where the list is the same.
    Q_EMIT m_session.listChanged();
}

void FilterSheet::clear() {
    m_editing.cancel();
    filterByPredicate(std::nullopt);
    showPredicate(std::nullopt);
    m_rows.front()->focusKind();
}

void FilterSheet::refresh() {
    AppController &controller = m_session.controller();
    const auto hidden = static_cast<std::int64_t>(controller.sourceBuilder().filteredImagesCount());
    const auto shown = static_cast<std::int64_t>(m_session.timelines().source_filtered().size());
    m_counts->setText(qText(
        "filter_counts", {countText("filter_shown", shown), countText("filter_hidden", hidden)}));
    m_templates->setPredicate(controller.filters().filter_sourcePredicate());
}

void FilterSheet::done(int result) {
    if (m_editing.isWaiting())
        m_editing.doNow();
    QDialog::done(result);
}

} // namespace chronomender
