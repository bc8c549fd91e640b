// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterRowWidget.h"

#include "Controls.h"
#include "StampConversions.h"

#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QToolButton>

#include <algorithm>

namespace chronomender {
namespace {

constexpr int textColumns = 30;

enum OperatorPage { Comparisons, RangeWord };
enum ValuePage { TextPage, ChoicePage, DatePage, RangePage };

ValuePage pageOf(FilterRowKind kind) {
    switch (kind) {
    case FilterRowKind::MediaType:
    case FilterRowKind::State:
        return ChoicePage;
    case FilterRowKind::SingleDate:
        return DatePage;
    case FilterRowKind::DateRange:
        return RangePage;
    default:
        return TextPage;
    }
}

void fill(QComboBox &menu, std::span<const FilterChoice> choices) {
    for (const FilterChoice &each : choices)
        menu.addItem(qText(each.textKey), each.value);
}

void choose(QComboBox &menu, int value) {
    menu.setCurrentIndex(menu.findData(value));
}

/// The menu is wide enough for what it has for any kind of row.
void keepRoom(QComboBox &menu, std::span<const FilterChoice> (*choicesOf)(FilterRowKind)) {
    for (const FilterChoice &kind : filterKinds())
        fill(menu, choicesOf(static_cast<FilterRowKind>(kind.value)));
    menu.setMinimumWidth(menu.sizeHint().width());
}

QDateTime clockOf(Date date, const absl::TimeZone &zone) {
    const CivilFields clock = civilFromInstant(date, zone);
    return {QDate(clock.year, clock.month, clock.day),
            QTime(clock.hour, clock.minute, clock.second), Qt::UTC};
}

QDate qDate(absl::CivilDay day) {
    return {static_cast<int>(day.year()), day.month(), day.day()};
}
absl::CivilDay civilDay(QDate day) {
    return absl::CivilDay(day.year(), day.month(), day.day());
}

} // namespace

FilterRowWidget::FilterRowWidget(FilterCondition row, const Setting &setting, QWidget *parent)
    : QWidget(parent),
      m_row(std::move(row)),
      m_setting(setting),
      m_kind(new QComboBox(this)),
      m_operator(new QComboBox),
      m_choice(new QComboBox),
      m_operators(new QStackedWidget(this)),
      m_values(new QStackedWidget(this)),
      m_text(new QLineEdit),
      m_date(new QDateTimeEdit),
      m_from(new QDateEdit),
      m_till(new QDateEdit),
      m_remove(new QToolButton(this)),
      m_add(new QToolButton(this)) {
    fill(*m_kind, filterKinds());
    makeOperators();
    makeValues();
    makeButtons();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_kind);
    layout->addWidget(m_operators);
    layout->addWidget(m_values, 1);
    layout->addWidget(m_remove);
    layout->addWidget(m_add);
    showCondition();
    connectControls();
}

/// As wide for every kind, so that the values stand below each other.
void FilterRowWidget::makeOperators() {
    keepRoom(*m_operator, filterOperators);
    m_operators->addWidget(m_operator);
    auto *from = new QLabel(qText("filter_rangeFrom"));
    from->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    m_operators->addWidget(from);
    for (QWidget *each : std::initializer_list<QWidget *>{m_kind, m_operators})
        each->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

/// Wall clocks: the zone is the row's, whatever the computer's is by now.
void FilterRowWidget::makeValues() {
    m_text->setPlaceholderText(qText("filter_anyValue"));
    m_text->setMinimumWidth(fontMetrics().averageCharWidth() * textColumns);
    keepRoom(*m_choice, filterValues);
    m_date->setTimeSpec(Qt::UTC);
    m_date->setDisplayFormat(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    m_date->setCalendarPopup(true);
    m_values->addWidget(m_text);
    m_values->addWidget(m_choice);
    m_values->addWidget(m_date);
    m_values->addWidget(makeRange());
    m_values->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QWidget *FilterRowWidget::makeRange() {
    auto *range = new QWidget;
    auto *layout = new QHBoxLayout(range);
    layout->setContentsMargins({});
    for (QDateEdit *each : {m_from, m_till}) {
        each->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
        each->setCalendarPopup(true);
    }
    layout->addWidget(m_from, 1);
    layout->addWidget(new QLabel(qText("filter_rangeTill")));
    layout->addWidget(m_till, 1);
    return range;
}

void FilterRowWidget::makeButtons() {
    m_remove->setText(QStringLiteral("\u2212"));
    m_add->setText(QStringLiteral("+"));
    const int side = std::max(m_kind->sizeHint().height(), m_add->sizeHint().width());
    for (QToolButton *each : {m_remove, m_add}) {
        each->setFocusPolicy(Qt::StrongFocus);
        each->setFixedSize(side, m_kind->sizeHint().height());
    }
}

void FilterRowWidget::connectControls() {
    connect(m_kind, &QComboBox::activated, this, [this] { chooseKind(); });
    connect(m_operator, &QComboBox::activated, this, [this] {
        m_row.comparison = static_cast<PredicateOperator>(m_operator->currentData().toInt());
        Q_EMIT edited();
    });
    connect(m_text, &QLineEdit::textEdited, this, [this](const QString &words) {
        m_row.text = words.toStdString();
        Q_EMIT edited();
    });
    connect(m_choice, &QComboBox::activated, this, [this] {
        m_row.number = m_choice->currentData().toInt();
        Q_EMIT edited();
    });
    connect(m_date, &QDateTimeEdit::dateTimeChanged, this, [this] { takeDate(); });
    for (QDateEdit *each : {m_from, m_till}) {
        connect(each, &QDateEdit::dateChanged, this, [this] { takeRange(); });
        // Only now: on the way to a date the other one would go along.
        connect(each, &QDateEdit::editingFinished, this, [this, each] {
            if (m_till->date() < m_from->date())
                (each == m_from ? m_till : m_from)->setDate(each->date());
        });
    }
    connect(m_add, &QToolButton::clicked, this, &FilterRowWidget::addWanted);
    connect(m_remove, &QToolButton::clicked, this, &FilterRowWidget::removeWanted);
}

void FilterRowWidget::showCondition() {
    choose(*m_kind, static_cast<int>(m_row.kind));
    showOperators();
    showValue();
}

void FilterRowWidget::showOperators() {
    const auto operators = filterOperators(m_row.kind);
    m_operators->setCurrentIndex(operators.empty() ? RangeWord : Comparisons);
    m_operator->clear();
    fill(*m_operator, operators);
    choose(*m_operator, static_cast<int>(m_row.comparison));
}

void FilterRowWidget::showValue() {
    const QSignalBlocker ofDate(m_date), ofFrom(m_from), ofTill(m_till);
    m_values->setCurrentIndex(pageOf(m_row.kind));
    m_text->setText(qString(m_row.text));
    m_choice->clear();
    fill(*m_choice, filterValues(m_row.kind));
    choose(*m_choice, m_row.number);
    m_date->setDateTime(clockOf(m_row.from, m_setting.zone));
    m_from->setDate(qDate(absl::ToCivilDay(m_row.from, m_setting.zone)));
    m_till->setDate(qDate(absl::ToCivilDay(m_row.till, m_setting.zone) - 1));
}

void FilterRowWidget::chooseKind() {
    const auto kind = static_cast<FilterRowKind>(m_kind->currentData().toInt());
    if (kind == m_row.kind)
        return;
    m_row = withKind(std::move(m_row), kind, m_setting.dates);
    showCondition();
    Q_EMIT edited();
}

void FilterRowWidget::takeDate() {
    const QDate day = m_date->date();
    const QTime time = m_date->time();
    m_row.from = instantFromCivil(
        {day.year(), day.month(), day.day(), time.hour(), time.minute(), time.second()},
        m_setting.zone);
    Q_EMIT edited();
}

void FilterRowWidget::takeRange() {
    m_row.from = startOfDay(civilDay(m_from->date()), m_setting.zone);
    m_row.till = startOfDay(civilDay(m_till->date()) + 1, m_setting.zone);
    Q_EMIT edited();
}

void FilterRowWidget::setPlace(std::size_t number, bool canAdd, bool canRemove) {
    m_add->setEnabled(canAdd);
    m_remove->setEnabled(canRemove);
    const struct {
        QWidget *control;
        const char *key;
    } names[] = {{m_kind, "filter_rowKind"},  {m_operator, "filter_rowOperator"},
                 {m_text, "filter_rowValue"}, {m_choice, "filter_rowValue"},
                 {m_date, "filter_rowValue"}, {m_from, "filter_rowFrom"},
                 {m_till, "filter_rowTill"},  {m_remove, "filter_rowRemove"},
                 {m_add, "filter_rowAdd"}};
    for (const auto &[control, key] : names)
        control->setAccessibleName(qText("filter_row", {std::to_string(number), text(key)}));
    m_remove->setToolTip(qText("filter_rowRemove"));
    m_add->setToolTip(qText("filter_rowAdd"));
}

std::vector<QWidget *> FilterRowWidget::controls() const {
    return {m_kind, m_operator, m_text, m_choice, m_date, m_from, m_till, m_remove, m_add};
}

void FilterRowWidget::focusKind() {
    m_kind->setFocus(Qt::OtherFocusReason);
}

} // namespace chronomender
