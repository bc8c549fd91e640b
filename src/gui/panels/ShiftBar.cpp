// SPDX-License-Identifier: GPL-3.0-or-later
#include "ShiftBar.h"

#include "Controls.h"
#include "WindowCommands.h"
#include "WindowSession.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace chronomender {
namespace {

constexpr std::chrono::milliseconds pauseOfSteps{500}, refreshDelay{30};
constexpr int ownValue = -1; ///< of a field in which folders or items differ

struct NumberField {
    const char *key;
    int most;
    std::optional<std::string> CompoundFields::*part;
};
/// More than a day's hours may be typed; they come back as days and hours.
constexpr std::array<NumberField, 4> numberFields{{
    {"shift_days", 1'999'999, &CompoundFields::dmDays},
    {"shift_hours", 9'999, &CompoundFields::dmHours},
    {"shift_minutes", 9'999, &CompoundFields::dmMinutes},
    {"shift_seconds", 99'999, &CompoundFields::dmSeconds},
}};

QString withoutMnemonic(QString text) {
    return text.remove(QLatin1Char('&'));
}

QSpinBox *makeNumber(const NumberField &field) {
    auto *box = new QSpinBox;
    box->setRange(0, field.most);
    box->setKeyboardTracking(false); // what is half typed shifts nothing
    box->setAlignment(Qt::AlignRight);
    box->setAccessibleName(withoutMnemonic(qText(field.key)));
    return box;
}

} // namespace

ShiftBar::ShiftBar(WindowSession &session, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_hint(new QLabel),
      m_pause(pauseOfSteps, [this] { commit(); }),
      m_refresh(refreshDelay, [this] { refresh(); }) {
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(fontMetrics().height() / 2, fontMetrics().height() / 4,
                               fontMetrics().height() / 2, fontMetrics().height() / 4);
    layout->setSpacing(fontMetrics().height() / 4);
    layout->addLayout(makeFields());
    layout->addLayout(makeModes());
    connectControls();
    refresh();
}

QBoxLayout *ShiftBar::makeFields() {
    auto *row = new QHBoxLayout;
    auto *title = new QLabel(qText("shift_direction"));
    m_direction = new QComboBox;
    m_direction->setAccessibleName(withoutMnemonic(qText("shift_direction")));
    m_direction->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_direction->addItems({qText("shift_later"), qText("shift_earlier")});
    title->setBuddy(m_direction);
    row->addWidget(title);
    row->addWidget(m_direction);
    for (std::size_t i = 0; i < m_numbers.size(); ++i) {
        m_numbers[i] = makeNumber(numberFields[i]);
        auto *unit = new QLabel(qText(numberFields[i].key));
        unit->setBuddy(m_numbers[i]);
        unit->setContentsMargins(0, 0, fontMetrics().height() / 3, 0);
        row->addWidget(m_numbers[i]);
        row->addWidget(unit);
    }
    m_reset = named(new QPushButton(qText("shift_reset")), "shift_resetTip");
    m_reset->setToolTip(qText("shift_resetTip"));
    row->addSpacing(fontMetrics().height());
    row->addWidget(m_reset);
    row->addStretch();
    return row;
}

QRadioButton *ShiftBar::makeMode(const char *key, const char *tipKey) {
    auto *button = new QRadioButton(qText(key));
    button->setAccessibleName(withoutMnemonic(qText(key)));
    button->setAccessibleDescription(qText(tipKey));
    button->setToolTip(qText(tipKey));
    button->setAutoExclusive(false); // of folders in both modes none is chosen
    return button;
}

QBoxLayout *ShiftBar::makeModes() {
    auto *row = new QHBoxLayout;
    m_together = makeMode("shift_together", "shift_togetherTip");
    m_single = makeMode("shift_single", "shift_singleTip");
    row->addWidget(m_together);
    row->addWidget(m_single);
    row->addSpacing(fontMetrics().height());
    row->addWidget(m_hint, 1);
    return row;
}

void ShiftBar::connectControls() {
    for (QSpinBox *number : m_numbers) {
        connect(number, &QSpinBox::valueChanged, this, [this] { edited(); });
        connect(number, &QSpinBox::editingFinished, this, [this] {
            if (m_isDirty)
                commit();
        });
        number->installEventFilter(this);
        number->findChild<QLineEdit *>()->installEventFilter(this);
    }
    connect(m_direction, &QComboBox::activated, this, [this] {
        edited();
        commit();
    });
    connect(m_reset, &QPushButton::clicked, this, [this] {
        dropEdit();
        m_session.resetShift();
    });
    connect(m_together, &QRadioButton::clicked, this, [this] { setMode(EditMode::Together); });
    connect(m_single, &QRadioButton::clicked, this, [this] { setMode(EditMode::Single); });
    const auto request = [this] { m_refresh.request(); };
    connect(&m_session, &WindowSession::foldersChanged, this, request);
    connect(&m_session, &WindowSession::listChanged, this, request);
    connect(&m_session, &WindowSession::selectionChanged, this, request);
    connect(&m_session, &WindowSession::dateDragMoved, this, request);
    connect(&m_session.saveFlow(), &SaveFlow::stageChanged, this, request);
}

void ShiftBar::focusFields() {
    m_numbers[1]->setFocus(Qt::ShortcutFocusReason);
    m_numbers[1]->selectAll();
}

/// A field without anything typed into it leaves undo and redo to the window.
bool ShiftBar::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::ShortcutOverride)
        return QWidget::eventFilter(watched, event);
    auto *line = qobject_cast<QLineEdit *>(watched);
    if (!line)
        line = watched->findChild<QLineEdit *>();
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isUndo = key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo);
    if (!isUndo || !line || line->isModified())
        return QWidget::eventFilter(watched, event);
    event->ignore();
    return true;
}

// ---- from the session to the fields

void ShiftBar::refresh() {
    const std::vector<MySinglePicPtr> pics = m_session.selectedPics();
    const ShiftFacts facts =
        shiftFacts(m_session.selectedCompound(), pics, !m_session.saveFlow().isIdle(),
                   m_session.zones(), m_session.dateDrag());
    if (Subject subject = subjectOf(facts, pics); subject != m_subject) {
        dropEdit(); // what was half edited was meant for others
        m_subject = std::move(subject);
    }
    m_isShowing = true;
    showFacts(facts);
    m_isShowing = false;
}

ShiftBar::Subject ShiftBar::subjectOf(const ShiftFacts &facts,
                                      const std::vector<MySinglePicPtr> &pics) const {
    const bool isOfItems = facts.target == ShiftFacts::Target::Items;
    return {m_session.selectedFolders(), isOfItems ? pics : std::vector<MySinglePicPtr>()};
}

void ShiftBar::dropEdit() {
    m_isDirty = false;
    m_waitingDirection.reset();
    m_pause.cancel();
}

void ShiftBar::showFacts(const ShiftFacts &facts) {
    m_facts = facts;
    const bool isOn = facts.target != ShiftFacts::Target::Nothing;
    for (std::size_t i = 0; i < m_numbers.size(); ++i) {
        QSpinBox &box = *m_numbers[i];
        box.setEnabled(isOn);
        const std::optional<std::string> &part = facts.fields.*numberFields[i].part;
        const bool isMixed = isOn && !part;
        if (!m_isDirty) {
            // The text stands for the lowest value, whatever that is.
            box.setSpecialValueText(isMixed ? QStringLiteral("–") : QString());
            box.setMinimum(isMixed ? ownValue : 0);
            box.setValue(part ? std::stoi(*part) : isMixed ? ownValue : 0);
        }
        box.setAccessibleDescription(isMixed ? qText("shift_own") : QString());
        box.setToolTip(isMixed ? qText("shift_own") : QString());
    }
    m_direction->setEnabled(isOn);
    if (facts.isShifted)
        m_waitingDirection.reset();
    if (!m_isDirty)
        showDirection(m_waitingDirection ? m_waitingDirection : facts.fields.dmDirection);
    m_reset->setEnabled(isOn && facts.isShifted);
    showMode(facts.mode);
    m_hint->setText(qString(facts.reason.empty() ? facts.hint : facts.reason));
    m_hint->setToolTip(m_hint->text());
}

/// Of several that differ there is a third choice, which leaves each its own.
void ShiftBar::showDirection(const std::optional<std::string> &direction) {
    const bool isMixed = !direction && m_facts.target != ShiftFacts::Target::Nothing;
    if (isMixed && m_direction->count() == 2)
        m_direction->addItem(qText("shift_own"));
    if (!isMixed && m_direction->count() == 3)
        m_direction->removeItem(2);
    m_direction->setCurrentIndex(isMixed ? 2 : direction == "-" ? 1 : 0);
}

void ShiftBar::showMode(const Combined<EditMode> &mode) {
    const bool canChange = !m_subject.folders.empty() && m_session.saveFlow().isIdle();
    for (QRadioButton *button : {m_together, m_single})
        button->setEnabled(canChange);
    m_together->setChecked(mode.value == EditMode::Together);
    m_single->setChecked(mode.value == EditMode::Single);
}

// ---- from the fields to the session

void ShiftBar::edited() {
    if (m_isShowing)
        return;
    m_isDirty = true;
    m_pause.postpone();
}

bool ShiftBar::areAllZero() const {
    return std::ranges::all_of(m_numbers, [](const QSpinBox *box) { return box->value() == 0; });
}

CompoundFields ShiftBar::shownFields() const {
    CompoundFields fields;
    constexpr std::array<const char *, 2> directions{"+", "-"};
    if (const auto index = static_cast<std::size_t>(m_direction->currentIndex());
        index < directions.size())
        fields.dmDirection = directions[index];
    for (std::size_t i = 0; i < m_numbers.size(); ++i)
        if (const int value = m_numbers[i]->value(); value != ownValue)
            fields.*numberFields[i].part = std::to_string(value);
    return fields;
}

/// A direction that was picked while there is no shift waits for the first number.
void ShiftBar::commit() {
    m_pause.cancel();
    const bool isOfOthers = m_subject != subjectOf(m_facts, m_session.selectedPics());
    if (!std::exchange(m_isDirty, false) || isOfOthers)
        return m_refresh.request();
    for (QSpinBox *number : m_numbers) // what was typed is no longer the field's to undo
        number->findChild<QLineEdit *>()->setModified(false);
    const CompoundFields fields = shownFields();
    if (areAllZero() && !m_facts.isShifted) {
        m_waitingDirection = fields.dmDirection;
        return;
    }
    if (m_facts.target == ShiftFacts::Target::Folders)
        m_session.shiftSelectedFolders(fields);
    else if (m_facts.target == ShiftFacts::Target::Items)
        m_session.edit([&](AppController &controller) {
            m_session.tellOutcome(shiftItemsTo(m_session.selectedPics(), fields,
                                               controller.undoManager(), m_session.mainPic()));
        });
    m_refresh.doNow(); // a refused shift leaves the fields as they were
}

void ShiftBar::setMode(EditMode mode) {
    runInSession(mode == EditMode::Together ? CommandId::TogetherMode : CommandId::SingleMode,
                 m_session);
    m_refresh.doNow();
}

} // namespace chronomender
