// SPDX-License-Identifier: GPL-3.0-or-later
#include "TemplateEditor.h"

#include "Controls.h"
#include "PaintPalette.h"
#include "TemplateNames.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace chronomender {
namespace {

constexpr std::size_t sampleCount = 8;

RenameElement elementOf(const QListWidgetItem &item) {
    return static_cast<RenameElement>(item.data(Qt::UserRole).toInt());
}

/// Elements that wait to be placed.
class TemplatePalette : public QListWidget {
public:
    using QListWidget::QListWidget;

protected:
    QMimeData *mimeData(const QList<QListWidgetItem *> &items) const override {
        std::vector<TemplatePart> parts;
        for (const QListWidgetItem *item : items)
            parts.push_back(TemplatePart::ofElement(elementOf(*item)));
        return TemplateField::mimeDataOf(parts);
    }
    void keyPressEvent(QKeyEvent *event) override {
        const bool isInsert = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                              event->key() == Qt::Key_Space;
        if (!isInsert)
            return QListWidget::keyPressEvent(event);
        if (currentItem())
            Q_EMIT itemDoubleClicked(currentItem());
        event->accept();
    }
};

} // namespace

TemplateEditor::TemplateEditor(WindowSession &session, RenameSheetController &samples, bool isNew,
                               QWidget *parent)
    : QDialog(parent),
      m_session(session),
      m_samples(samples),
      m_controller(session.defaults(), m_undo),
      m_field(named(new TemplateField(m_controller, m_undo, this), "rename_editorField")) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(qText(isNew ? "rename_editorNew" : "rename_editorChange"));
    if (isNew || !m_controller.templateModify())
        m_controller.templateAdd();
    auto *layout = new QVBoxLayout(this);
    auto *label = new QLabel(qText("rename_editorLabel"), this);
    label->setBuddy(m_field);
    layout->addWidget(label);
    layout->addWidget(m_field);
    m_status = new QLabel(this);
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    m_status->setMinimumHeight(2 * fontMetrics().lineSpacing());
    m_status->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    layout->addWidget(m_status);
    layout->addLayout(makePalette());
    layout->addLayout(makeOptions());
    m_sample = new QLabel(this);
    m_sample->setTextFormat(Qt::RichText);
    m_sample->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_sample->setMargin(fontMetrics().averageCharWidth());
    m_sample->setAutoFillBackground(true);
    m_sample->setBackgroundRole(QPalette::Base);
    m_sample->setMinimumHeight(static_cast<int>(sampleCount + 1) * fontMetrics().lineSpacing());
    layout->addWidget(m_sample, 1);
    layout->addLayout(makeButtons());
    connect(m_field, &TemplateField::edited, this, &TemplateEditor::refresh);
    connect(m_field, &TemplateField::refused, this,
            [this] { showStatus("rename_refusedCharacter", TemplateStatusLine::Color::Orange); });
    connect(m_field, &TemplateField::elementMenuWanted, this, &TemplateEditor::showElementMenu);
    m_field->render(static_cast<int>(m_controller.text().length()));
    constexpr int characters = 90;
    m_field->setMinimumWidth(characters * fontMetrics().averageCharWidth());
    refresh();
    m_field->setFocus();
}

QLayout *TemplateEditor::makePalette() {
    auto *layout = new QVBoxLayout;
    auto *label = new QLabel(qText("rename_palette"), this);
    m_palette = named(new TemplatePalette(this), "rename_paletteName");
    label->setBuddy(m_palette);
    m_palette->setFlow(QListView::LeftToRight);
    m_palette->setWrapping(true);
    m_palette->setResizeMode(QListView::Adjust);
    m_palette->setMovement(QListView::Static);
    m_palette->setSpacing(fontMetrics().averageCharWidth() / 2);
    m_palette->setDragEnabled(true);
    m_palette->setDragDropMode(QAbstractItemView::DragOnly);
    m_palette->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    constexpr int lines = 4;
    m_palette->setFixedHeight(lines * fontMetrics().lineSpacing());
    connect(m_palette, &QListWidget::itemDoubleClicked, this, [this] { insertFromPalette(); });
    layout->addWidget(label);
    layout->addWidget(m_palette);
    return layout;
}

QLayout *TemplateEditor::makeOptions() {
    auto *layout = new QHBoxLayout;
    const auto add = [&](const char *key, const char *nameKey, QWidget *field) {
        auto *label = new QLabel(qText(key), this);
        label->setBuddy(named(field, nameKey));
        layout->addWidget(label);
        layout->addWidget(field);
    };
    m_year = new QComboBox(this);
    m_year->addItem(QStringLiteral("2024"), 1);
    m_year->addItem(QStringLiteral("24"), 0);
    m_month = new QComboBox(this);
    m_month->addItem(QStringLiteral("10"), 1);
    m_month->addItem(QStringLiteral("A"), 0);
    m_month->setToolTip(qText("rename_monthHint"));
    m_counter = new QSpinBox(this);
    m_counter->setRange(1, mostCounterDigits);
    add("rename_year", "rename_yearName", m_year);
    add("rename_month", "rename_monthName", m_month);
    add("rename_digits", "rename_digitsName", m_counter);
    layout->addStretch(1);
    connect(m_year, &QComboBox::activated, this,
            [this] { configure(RenameElement::Year, m_year->currentData().toInt()); });
    connect(m_month, &QComboBox::activated, this,
            [this] { configure(RenameElement::Month, m_month->currentData().toInt()); });
    connect(m_counter, &QSpinBox::valueChanged, this,
            [this](int digits) { configure(RenameElement::Counter, digits - 1); });
    return layout;
}

QLayout *TemplateEditor::makeButtons() {
    auto *layout = new QHBoxLayout;
    const auto add = [&](const char *key, auto pressed) {
        auto *button = named(new QPushButton(qText(key), this), key);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, pressed);
        layout->addWidget(button);
        return button;
    };
    m_undoButton = add("rename_undo", [this] { m_field->undoStep(false); });
    m_redoButton = add("rename_redo", [this] { m_field->undoStep(true); });
    const bool isChange = m_controller.sheetType() == PrefRenameController::SheetType::Modify;
    add("rename_templateRemove", [this] { remove(); })->setVisible(isChange);
    layout->addStretch(1);
    add("rename_cancel", [this] { reject(); });
    m_saveAsNew = add("rename_templateSaveAsNew", [this] { save(true); });
    m_saveAsNew->setVisible(isChange);
    m_save = add("rename_templateSave", [this] { save(false); });
    m_save->setDefault(true);
    return layout;
}

void TemplateEditor::insertFromPalette() {
    const QListWidgetItem *item = m_palette->currentItem();
    if (!item)
        return;
    const int row = m_palette->currentRow();
    m_field->insert(elementOf(*item));
    m_palette->setCurrentRow(std::min(row, m_palette->count() - 1));
}

void TemplateEditor::refreshPalette() {
    m_palette->clear();
    for (const RenameElement element : m_controller.palette()) {
        const int used = element == RenameElement::AddOn
                             ? std::max(0, m_controller.currentlyUsedAddOns() - 1)
                             : 0;
        auto *item = new QListWidgetItem(elementLabel(element, used), m_palette);
        item->setData(Qt::UserRole, static_cast<int>(element));
        item->setBackground(tintOfSlot(elementSlot(element, used), palette()));
    }
}

void TemplateEditor::refresh() {
    refreshPalette();
    const TemplateOptions &options = m_controller.currentMenuOptions();
    const RenameTemplate present = m_controller.currentSettings();
    const QSignalBlocker quiet(m_counter);
    m_year->setCurrentIndex(m_year->findData(options.yearHasFourDigits != 0 ? 1 : 0));
    m_month->setCurrentIndex(m_month->findData(options.monthHasTwoDigits != 0 ? 1 : 0));
    m_counter->setValue(options.counterDigits + 1);
    m_year->setEnabled(present.has(RenameElement::Year));
    m_month->setEnabled(present.has(RenameElement::Month));
    m_counter->setEnabled(present.has(RenameElement::Counter));
    const TemplateStatusLine status = m_controller.status();
    showStatus(status.textKey.data(), status.color);
    m_save->setEnabled(status.isSaveEnabled);
    m_saveAsNew->setEnabled(status.isSaveEnabled);
    m_undoButton->setEnabled(m_undo.canUndo());
    m_redoButton->setEnabled(m_undo.canRedo());
    m_sample->setText(richTextOf(m_samples.sampleTextForImages(sampleCount, present), palette()));
}

void TemplateEditor::showStatus(const char *key, TemplateStatusLine::Color color) {
    const bool isEmpty = key == nullptr || *key == '\0';
    m_status->setText(isEmpty ? QString() : qText(key));
    QPalette colors = palette();
    const PaintPalette paints = paintPalette(colors, {});
    if (color != TemplateStatusLine::Color::None)
        colors.setColor(QPalette::WindowText,
                        color == TemplateStatusLine::Color::Red ? paints.danger : paints.warning);
    m_status->setPalette(colors);
}

void TemplateEditor::configure(RenameElement element, int value) {
    if (m_controller.configure(element, value))
        refresh();
}

void TemplateEditor::showElementMenu(RenameElement element, const QPoint &globalPosition) {
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QComboBox *choices = element == RenameElement::Year    ? m_year
                               : element == RenameElement::Month ? m_month
                                                                 : nullptr;
    for (int i = 0; choices && i < choices->count(); ++i)
        menu->addAction(
            choices->itemText(i), this,
            [this, element, value = choices->itemData(i).toInt()] { configure(element, value); });
    for (int digits = 1; element == RenameElement::Counter && digits <= mostCounterDigits; ++digits)
        menu->addAction(QString(digits - 1, QLatin1Char('0')) + QLatin1Char('1'), this,
                        [this, digits] { configure(RenameElement::Counter, digits - 1); });
    if (menu->isEmpty())
        delete menu;
    else
        menu->popup(globalPosition);
}

void TemplateEditor::save(bool asAddition) {
    const auto outcome = m_controller.save(asAddition);
    if (!outcome)
        return;
    if (*outcome == UserDefaults::Outcome::ValueNotAllowed)
        return showStatus("rename_listFull", TemplateStatusLine::Color::Red);
    Q_EMIT templatesChanged();
    accept();
}

void TemplateEditor::remove() {
    m_session.questions().confirm({.message = text("confirmRemoveTemplateMessageText"),
                                   .information = {},
                                   .acceptText = text("rename_templateRemoveNow"),
                                   .isDestructive = true},
                                  [editor = QPointer(this)](Answer answer) {
                                      if (!editor || answer != Answer::Accepted)
                                          return;
                                      editor->m_controller.cancel();
                                      editor->m_controller.templateRemove();
                                      Q_EMIT editor->templatesChanged();
                                      editor->accept();
                                  });
}

} // namespace chronomender
