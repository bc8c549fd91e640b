// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterTemplateBar.h"

#include "Controls.h"
#include "FilterTemplateStore.h"
#include "QuestionSheet.h"
#include "WindowSession.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace chronomender {
namespace {

constexpr int menuColumns = 24;

/// What the sheet for a name says.
struct NameQuestion {
    std::string title;
    const char *acceptKey;
    std::string name;                                  ///< to begin with
    std::function<bool(const std::string &)> replaces; ///< a template of that name; may be empty
};

void askForName(const NameQuestion &question, QWidget *parent,
                const std::function<void(std::string)> &answer) {
    auto *sheet = new QuestionSheet(question.title, {}, parent);
    auto *field = named(new QLineEdit(sheet), "filter_templateName");
    auto *note = new QLabel(sheet);
    sheet->body()->addWidget(field);
    sheet->body()->addWidget(note);
    const auto name = [field] { return field->text().trimmed().toStdString(); };
    QPushButton *accept =
        sheet->addButton(question.acceptKey, QDialogButtonBox::AcceptRole, [=] { answer(name()); });
    sheet->addButton("sheet_cancel", QDialogButtonBox::RejectRole)->setAutoDefault(false);
    accept->setDefault(true);
    const auto look = [=, replaces = question.replaces] {
        accept->setEnabled(!name().empty());
        note->setText(replaces && replaces(name()) ? qText("filter_templateReplaces") : QString());
    };
    QObject::connect(field, &QLineEdit::textChanged, sheet, look);
    field->setText(qString(question.name));
    field->selectAll();
    look();
    field->setFocus();
    sheet->open();
}

} // namespace

FilterTemplateBar::FilterTemplateBar(WindowSession &session, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_menu(named(new QComboBox(this), "filter_templatesName")),
      m_save(makeButton("filter_templateSave", &FilterTemplateBar::save)),
      m_rename(makeButton("filter_templateRename", &FilterTemplateBar::rename)),
      m_remove(makeButton("filter_templateRemove", &FilterTemplateBar::remove)),
      m_note(new QLabel(this)) {
    m_menu->setPlaceholderText(qText("filter_templatesNone"));
    m_menu->setMinimumWidth(fontMetrics().averageCharWidth() * menuColumns);
    m_menu->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_note->hide();
    auto *title = new QLabel(qText("filter_templates"), this);
    title->setBuddy(m_menu);
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins({});
    int column = 0;
    for (QWidget *each :
         std::initializer_list<QWidget *>{title, m_menu, m_save, m_rename, m_remove})
        layout->addWidget(each, 0, column++);
    layout->setColumnStretch(1, 1);
    layout->addWidget(m_note, 1, 1, 1, -1);
    connect(m_menu, &QComboBox::activated, this, [this] { choose(); });
    refresh();
}

QPushButton *FilterTemplateBar::makeButton(const char *key, void (FilterTemplateBar::*pressed)()) {
    auto *button = new QPushButton(qText(key), this);
    button->setAccessibleName(qText(key).remove(QLatin1Char('&')));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, pressed);
    return button;
}

void FilterTemplateBar::setPredicate(const std::optional<Predicate> &predicate) {
    std::string running = predicate ? predicateFormat(*predicate) : std::string();
    if (running == m_running)
        return;
    m_running = std::move(running);
    m_note->hide();
    refresh();
}

/// The template whose filter runs is the chosen one; of several of the same filter it is the one
/// that was chosen.
void FilterTemplateBar::refresh() {
    const std::string before = m_menu->currentIndex() < 0 ? std::string() : chosenKey();
    const std::vector<FilterTemplate> menu = m_session.controller().filters().updateSource();
    m_menu->clear();
    int shown = -1;
    for (const FilterTemplate &each : menu) {
        m_menu->addItem(qString(each.name), qString(each.key));
        if (each.predicate == m_running && (shown < 0 || each.key == before))
            shown = m_menu->count() - 1;
    }
    m_menu->setCurrentIndex(shown);
    m_menu->setEnabled(!menu.empty());
    m_save->setEnabled(!m_running.empty());
    m_rename->setEnabled(shown >= 0);
    m_remove->setEnabled(shown >= 0);
}

std::string FilterTemplateBar::chosenKey() const {
    return m_menu->currentData().toString().toStdString();
}

std::string FilterTemplateBar::chosenName() const {
    return m_menu->currentText().toStdString();
}

void FilterTemplateBar::choose() {
    const auto menu = m_session.controller().filters().updateSource();
    const FilterTemplate *chosenOne = filterTemplateNamed(chosenName(), menu);
    const auto parsed = parsePredicate(chosenOne ? chosenOne->predicate : std::string());
    m_lastName = chosenName();
    if (const auto *predicate = std::get_if<Predicate>(&parsed))
        return Q_EMIT chosen(*predicate);
    m_note->setText(qText("filter_templateUnreadable"));
    m_note->show();
    // It can still be removed.
    m_rename->setEnabled(true);
    m_remove->setEnabled(true);
}

void FilterTemplateBar::save() {
    const auto isTaken = [this](const std::string &name) {
        return filterTemplateNamed(name, m_session.controller().filters().updateSource()) !=
               nullptr;
    };
    askForName({text("filter_templateSaveTitle"), "filter_templateKeepNow", m_lastName, isTaken},
               this, [this](const std::string &name) {
                   m_lastName = name;
                   showOutcome(keepFilterTemplate(name, m_running, m_session.controller().filters(),
                                                  m_session.defaults()));
               });
}

void FilterTemplateBar::rename() {
    askForName({text("filter_templateRenameTitle", {chosenName()}),
                "filter_templateRenameNow",
                chosenName(),
                {}},
               this, [this, key = chosenKey()](const std::string &name) {
                   m_lastName = name;
                   showOutcome(renameFilterTemplate(key, name, m_session.controller().filters(),
                                                    m_session.defaults()));
               });
}

void FilterTemplateBar::remove() {
    auto *sheet = new QuestionSheet(text("filter_templateRemoveTitle", {chosenName()}), {}, this);
    sheet->addButton("filter_templateRemoveNow", QDialogButtonBox::AcceptRole,
                     [this, key = chosenKey()] {
                         showOutcome(removeFilterTemplate(key, m_session.controller().filters(),
                                                          m_session.defaults()));
                     });
    QPushButton *cancel = sheet->addButton("sheet_cancel", QDialogButtonBox::RejectRole);
    cancel->setDefault(true);
    cancel->setFocus();
    sheet->open();
}

void FilterTemplateBar::showOutcome(UserDefaults::Outcome outcome) {
    refresh();
    using enum UserDefaults::Outcome;
    m_note->setVisible(outcome != Done);
    m_note->setText(qText(outcome == NotStored ? "prefs_notStored" : "filter_templateTooLong"));
}

} // namespace chronomender
