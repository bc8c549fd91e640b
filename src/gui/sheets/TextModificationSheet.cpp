// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextModificationSheet.h"

#include "Controls.h"
#include "TextModificationRow.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace chronomender {
namespace {

TextModification newRow(std::size_t kind) {
    TextModification row = factoryModifications()[kind];
    std::visit([](auto &each) { each.isEnabled = true; }, row);
    return row;
}

std::string exampleOf(const WindowSession &session, ModificationTag tag) {
    MySinglePicPtr pic = session.mainPic();
    if (!pic && !session.controller().source_full().empty())
        pic = session.controller().source_full().front();
    if (!pic)
        return tag == ModificationTag::Folder ? "2024 Japan" : "IMG_0412";
    const MySingleFolderPtr folder = pic->spSingleRealFolder();
    return tag == ModificationTag::Folder && folder ? folder->sfFolder : pic->spBaseName();
}

} // namespace

TextModificationSheet::TextModificationSheet(WindowSession &session, ModificationTag tag,
                                             QWidget *parent)
    : QDialog(parent),
      m_session(session),
      m_tag(tag),
      m_rows(modificationsForTag(tag, session.defaults())),
      m_example(exampleOf(session, tag)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(qText(tag == ModificationTag::Folder ? "rename_rowsFolder" : "rename_rowsFile"));
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(makePresets());
    m_rowArea = new QWidget(this);
    m_rowLayout = new QVBoxLayout(m_rowArea);
    m_rowLayout->setContentsMargins({});
    layout->addWidget(m_rowArea);
    auto *add = new QPushButton(qText("rename_rowAdd"), this);
    named(add, "rename_rowAdd");
    add->setAutoDefault(false);
    auto *kinds = new QMenu(add);
    for (std::size_t kind = 0; kind < std::size(textModificationNames); ++kind)
        kinds->addAction(qText(textModificationNames[kind]), this, [this, kind] {
            m_rows.push_back(newRow(kind));
            buildRows();
            store();
        });
    add->setMenu(kinds);
    layout->addWidget(add, 0, Qt::AlignLeft);
    m_exampleLabel = new QLabel(this);
    m_exampleLabel->setTextFormat(Qt::PlainText);
    layout->addWidget(m_exampleLabel);
    layout->addStretch(1);
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(qText("prefs_close"), QDialogButtonBox::AcceptRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout->addWidget(buttons);
    buildRows();
    refreshPresets();
    showExample();
}

QLayout *TextModificationSheet::makePresets() {
    auto *layout = new QHBoxLayout;
    auto *label = new QLabel(qText("rename_presets"), this);
    m_presets = new QComboBox(this);
    named(m_presets, "rename_presetName");
    m_presets->setEditable(true);
    m_presets->setInsertPolicy(QComboBox::NoInsert);
    label->setBuddy(m_presets);
    layout->addWidget(label);
    layout->addWidget(m_presets, 1);
    const auto addButton = [&](const char *key, void (TextModificationSheet::*pressed)()) {
        auto *button = new QPushButton(qText(key), this);
        named(button, key);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, pressed);
        layout->addWidget(button);
    };
    addButton("rename_presetKeep", &TextModificationSheet::keepPreset);
    addButton("rename_presetRemove", &TextModificationSheet::removePreset);
    connect(m_presets, &QComboBox::activated, this, [this] { choosePreset(); });
    return layout;
}

void TextModificationSheet::refreshPresets() {
    const QString typed = m_presets->currentText();
    m_presets->clear();
    for (const TextModificationTemplate &each : textModTemplates(m_session.defaults()))
        m_presets->addItem(qString(each.name), each.key);
    m_presets->setCurrentIndex(m_presets->findText(typed));
    m_presets->setEditText(typed);
}

void TextModificationSheet::choosePreset() {
    chooseModificationTemplate(m_tag, m_presets->currentData().toInt(), m_session.defaults());
    m_rows = modificationsForTag(m_tag, m_session.defaults());
    buildRows();
    showExample();
    Q_EMIT changed();
}

void TextModificationSheet::keepPreset() {
    const std::string name = m_presets->currentText().trimmed().toStdString();
    if (name.empty()) {
        m_presets->setFocus();
        return;
    }
    auto all = textModTemplates(m_session.defaults());
    const auto same = std::ranges::find(all, name, &TextModificationTemplate::name);
    if (same != all.end())
        same->rows = m_rows;
    else
        all.push_back({all.empty() ? 1 : all.back().key + 1, name, m_rows});
    storeTextModTemplates(std::move(all), m_session.defaults());
    refreshPresets();
}

void TextModificationSheet::removePreset() {
    auto all = textModTemplates(m_session.defaults());
    const std::string name = m_presets->currentText().toStdString();
    std::erase_if(all, [&](const TextModificationTemplate &each) { return each.name == name; });
    // The rows stay, as rows of their own.
    store();
    storeTextModTemplates(std::move(all), m_session.defaults());
    m_presets->clearEditText();
    refreshPresets();
}

void TextModificationSheet::buildRows() {
    while (QLayoutItem *item = m_rowLayout->takeAt(0)) {
        if (QWidget *widget = item->widget()) {
            widget->hide();
            widget->deleteLater(); // the call may come from one of its buttons
        }
        delete item;
    }
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        m_rowLayout->addWidget(makeRow(i));
}

QWidget *TextModificationSheet::makeRow(std::size_t index) {
    QWidget *row = makeTextModificationRow(
        m_rows[index], [this] { store(); }, m_rowArea);
    addButtons(index, row);
    return row;
}

void TextModificationSheet::addButtons(std::size_t index, QWidget *row) {
    const auto addButton = [&](Qt::ArrowType arrow, const char *key, bool isEnabled, auto change) {
        auto *button = new QToolButton(row);
        named(button, key);
        button->setToolTip(button->accessibleName());
        button->setArrowType(arrow);
        if (arrow == Qt::NoArrow)
            button->setText(QStringLiteral("\u2212"));
        button->setFocusPolicy(Qt::StrongFocus);
        button->setEnabled(isEnabled);
        row->layout()->addWidget(button);
        connect(button, &QToolButton::clicked, this, [this, change] {
            change();
            buildRows();
            store();
        });
    };
    addButton(Qt::UpArrow, "rename_rowUp", index > 0,
              [this, index] { std::swap(m_rows[index], m_rows[index - 1]); });
    addButton(Qt::DownArrow, "rename_rowDown", index + 1 < m_rows.size(),
              [this, index] { std::swap(m_rows[index], m_rows[index + 1]); });
    addButton(Qt::NoArrow, "rename_rowDelete", true,
              [this, index] { m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(index)); });
}

void TextModificationSheet::store() {
    storeModifications(m_tag, m_rows, m_session.defaults());
    showExample();
    Q_EMIT changed();
}

void TextModificationSheet::showExample() {
    m_exampleLabel->setText(
        qText("rename_rowExample", {m_example, modifiedStringFromString(m_example, m_rows)}));
}

} // namespace chronomender
