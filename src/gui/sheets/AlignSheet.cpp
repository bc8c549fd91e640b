// SPDX-License-Identifier: GPL-3.0-or-later
#include "AlignSheet.h"

#include "Controls.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace chronomender {
namespace {

constexpr std::size_t mostRows = 500;
constexpr int lines = 16, nameColumns = 34, rowColumns = 70;

QString withoutMnemonic(QString words) {
    return words.remove(QLatin1Char('&'));
}

} // namespace

AlignSheet::AlignSheet(WindowSession &session, QWidget *parent)
    : QDialog(parent),
      m_session(session),
      m_selection{session.selectedPics(), session.mainPic()},
      m_context(session.controller().liveContext()),
      m_choices(named(new QListWidget, "align_choices")),
      m_explanation(new QLabel),
      m_rows(named(new QTreeWidget, "align_rows")) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    const std::size_t count = m_selection.sortedSelectedThumbsArray.size();
    setWindowTitle(qText("align_title", {std::to_string(count)}));
    const int line = fontMetrics().lineSpacing(), column = fontMetrics().averageCharWidth();
    m_choices->setMinimumSize(column * nameColumns, line * lines);
    m_rows->setMinimumWidth(column * rowColumns);
    m_rows->setHeaderLabels(
        {qText("align_columnName"), qText("align_columnNow"), qText("align_columnThen")});
    m_rows->setRootIsDecorated(false);
    m_rows->setUniformRowHeights(true);
    m_explanation->setWordWrap(true);
    m_explanation->setMinimumHeight(line * 2);
    m_explanation->setAlignment(Qt::AlignTop | Qt::AlignLeading);

    auto *buttons = new QDialogButtonBox;
    m_apply = buttons->addButton(qText("align_apply"), QDialogButtonBox::AcceptRole);
    buttons->addButton(qText("sheet_cancel"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { apply(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *outcome = new QVBoxLayout;
    outcome->addWidget(m_explanation);
    outcome->addWidget(m_rows, 1);
    auto *both = new QHBoxLayout;
    both->addWidget(m_choices);
    both->addLayout(outcome, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(both, 1);
    layout->addWidget(buttons);
    connect(m_choices, &QListWidget::currentRowChanged, this, [this] { showOutcome(); });
    fillChoices();
}

/// Only what can be done: taking over a date needs one that differs.
void AlignSheet::fillChoices() {
    constexpr auto firstCopy = AlignCommand::CopyDigitizedOld;
    for (const AlignChoice &choice : alignChoices()) {
        if (choice.command >= firstCopy &&
            !isCopyOffered(choice.command, m_selection.sortedSelectedThumbsArray, m_context))
            continue;
        auto *item =
            new QListWidgetItem(withoutMnemonic(qText(commandOf(choice.id).textKey)), m_choices);
        item->setData(Qt::UserRole, static_cast<int>(choice.id));
    }
    m_choices->setCurrentRow(0);
}

const AlignChoice *AlignSheet::chosen() const {
    const QListWidgetItem *item = m_choices->currentItem();
    return item ? alignChoiceOf(static_cast<CommandId>(item->data(Qt::UserRole).toInt())) : nullptr;
}

void AlignSheet::showOutcome() {
    m_rows->clear();
    const AlignChoice *choice = chosen();
    if (!choice)
        return;
    m_explanation->setText(qText(choice->explanationKey));
    const auto rows =
        alignRows(choice->command, m_selection, m_context, m_session.zones(), mostRows);
    QFont bold = font();
    bold.setBold(true);
    for (const AlignRow &row : rows) {
        auto *item =
            new QTreeWidgetItem(m_rows, {qString(row.name), qString(row.now), qString(row.then)});
        item->setFont(2, bold);
    }
    m_rows->header()->resizeSections(QHeaderView::ResizeToContents);
    m_apply->setEnabled(
        std::ranges::any_of(rows, [](const AlignRow &row) { return !row.then.empty(); }));
}

void AlignSheet::apply() {
    if (const AlignChoice *choice = chosen())
        runInSession(choice->id, m_session);
    accept();
}

} // namespace chronomender
