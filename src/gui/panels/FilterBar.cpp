// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterBar.h"

#include "Controls.h"
#include "RowTexts.h"
#include "WindowSession.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace chronomender {
namespace {

constexpr std::chrono::milliseconds typingPause{250}, refreshDelay{50};
constexpr int wordsInColumns = 28;

} // namespace

FilterBar::FilterBar(WindowSession &session, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_words(named(new QLineEdit, "filter_words")),
      m_rating(new QComboBox),
      m_hidden(new QLabel),
      m_clear(new QPushButton(qText("filter_clear"))),
      m_more(new QPushButton(qText("filter_more"))),
      m_typing(typingPause, [this] { apply(); }),
      m_refresh(refreshDelay, [this] { refresh(); }) {
    m_words->setClearButtonEnabled(true);
    m_words->setMinimumWidth(fontMetrics().averageCharWidth() * wordsInColumns);
    auto *ratingTitle = new QLabel(qText("filter_rating"));
    ratingTitle->setBuddy(m_rating);
    m_rating->addItems({qText("filter_all"), qText("filter_notRejected"), qText("filter_keepers")});
    m_rating->setAccessibleName(qText("filter_rating").remove(QLatin1Char('&')));
    named(m_more, "filter_moreName")->setToolTip(qText("filter_moreName"));
    m_clear->setAccessibleName(qText("filter_clear").remove(QLatin1Char('&')));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(fontMetrics().height() / 2, fontMetrics().height() / 4,
                               fontMetrics().height() / 2, fontMetrics().height() / 4);
    layout->addWidget(m_words, 1);
    for (QWidget *each : {static_cast<QWidget *>(ratingTitle), static_cast<QWidget *>(m_rating),
                          static_cast<QWidget *>(m_more), static_cast<QWidget *>(m_hidden),
                          static_cast<QWidget *>(m_clear)})
        layout->addWidget(each);
    connect(m_words, &QLineEdit::textEdited, this, [this] { m_typing.postpone(); });
    connect(m_words, &QLineEdit::returnPressed, this, [this] { m_typing.doNow(); });
    connect(m_rating, &QComboBox::activated, this, [this] { apply(); });
    connect(m_clear, &QPushButton::clicked, this, [this] { clear(); });
    connect(m_more, &QPushButton::clicked, this, &FilterBar::editorWanted);
    connect(&session, &WindowSession::listChanged, this, [this] { m_refresh.request(); });
    restoreFilter(session.controller().filters(), session.defaults());
    refresh();
}

void FilterBar::focusWords() {
    m_words->setFocus(Qt::ShortcutFocusReason);
    m_words->selectAll();
}

void FilterBar::finishTyping() {
    if (m_typing.isWaiting())
        m_typing.doNow();
}

void FilterBar::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape && m_shown.isAnything())
        return clear();
    QWidget::keyPressEvent(event);
}

void FilterBar::refresh() {
    m_shown = quickFilter(m_session.controller().filters(), m_session.defaults());
    if (!m_typing.isWaiting() && m_words->text() != qString(m_shown.words))
        m_words->setText(qString(m_shown.words));
    m_words->setPlaceholderText(qText(m_shown.isOther ? "filter_other" : "filter_words"));
    m_rating->setCurrentIndex(static_cast<int>(m_shown.rating));
    const auto hidden =
        static_cast<std::int64_t>(m_session.controller().sourceBuilder().filteredImagesCount());
    m_hidden->setText(hidden > 0 ? qString(countText("filter_hidden", hidden)) : QString());
    m_clear->setEnabled(m_shown.isAnything());
}

void FilterBar::apply() {
    m_typing.cancel();
    QuickFilter wanted;
    wanted.words = m_words->text().trimmed().toStdString();
    wanted.rating = static_cast<RatingChoice>(m_rating->currentIndex());
    wanted.isOther = m_shown.isOther && wanted.words.empty();
    if (wanted != m_shown)
        setQuickFilter(wanted, m_session.controller().filters(), m_session.defaults());
    m_refresh.request();
}

void FilterBar::clear() {
    m_words->clear();
    m_typing.cancel();
    setQuickFilter({}, m_session.controller().filters(), m_session.defaults());
    m_refresh.request();
}

} // namespace chronomender
