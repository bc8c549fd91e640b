// SPDX-License-Identifier: GPL-3.0-or-later
#include "RunSheets.h"

#include "Controls.h"
#include "ErrorLog.h"
#include "ProblemGroups.h"
#include "QuestionSheet.h"
#include "RowTexts.h"
#include "SupportFolders.h"
#include "WindowCommands.h"

#include <QCoreApplication>
#include <QFile>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace chronomender {
namespace {

constexpr int columns = 90, lines = 18; ///< of characters that a list or a text shows at once

void makeRoomy(QWidget *widget) {
    const QFontMetrics metrics = widget->fontMetrics();
    widget->setMinimumSize(metrics.averageCharWidth() * columns, metrics.lineSpacing() * lines);
}

QTreeWidget *list(const char *nameKey, std::initializer_list<const char *> headerKeys,
                  QuestionSheet *sheet) {
    auto *tree = named(new QTreeWidget(sheet), nameKey);
    QStringList titles;
    for (const char *key : headerKeys)
        titles.append(key[0] ? qText(key) : QString());
    tree->setHeaderLabels(titles);
    tree->setUniformRowHeights(true);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    makeRoomy(tree);
    sheet->body()->addWidget(tree);
    return tree;
}

QPlainTextEdit *textView(const char *nameKey, const QString &words, QuestionSheet *sheet) {
    auto *view = named(new QPlainTextEdit(words, sheet), nameKey);
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    makeRoomy(view);
    sheet->body()->addWidget(view);
    return view;
}

/// The sheet has said the first line already.
QString withoutHeader(const std::string &errors) {
    const QString all = qString(errors);
    return all.mid(all.indexOf(QLatin1Char('\n')) + 1).trimmed();
}

QTreeWidgetItem *groupItem(QTreeWidget *tree, const std::string &title, std::size_t count) {
    auto *item = new QTreeWidgetItem(tree, {qString(title + " (" + numberText(count) + ')')});
    QFont bold = tree->font();
    bold.setBold(true);
    item->setFont(0, bold);
    item->setFirstColumnSpanned(true);
    item->setExpanded(true);
    return item;
}

void addProblems(const std::vector<ProblemGroup> &groups, QTreeWidget *tree, QLabel *details) {
    for (const ProblemGroup &group : groups) {
        QTreeWidgetItem *parent = groupItem(tree, group.summary, group.rows.size());
        parent->setData(0, Qt::UserRole, qString(group.details));
        for (const ProblemGroup::Row &row : group.rows) {
            auto *item = new QTreeWidgetItem(
                parent, {qString(row.name), qString(row.folder), qString(row.detail)});
            item->setData(0, Qt::UserRole, qString(group.details));
        }
    }
    tree->header()->resizeSections(QHeaderView::ResizeToContents);
    QObject::connect(tree, &QTreeWidget::currentItemChanged, details,
                     [details](const QTreeWidgetItem *item) {
                         if (item)
                             details->setText(item->data(0, Qt::UserRole).toString());
                     });
    tree->setCurrentItem(tree->topLevelItem(0));
}

} // namespace

void openPreSaveSheet(const PreProcessResult &found, bool renames, QWidget *parent,
                      const std::function<void(PreSaveAnswer)> &answer) {
    const std::vector<ProblemGroup> groups = groupedProblems(found.problems);
    auto *sheet =
        new QuestionSheet(problemHeader(groups), text("preSaveSummary_header_subline"), parent);
    QTreeWidget *tree =
        list("preSave_list", {"preSave_file", "preSave_folder", "preSave_detail"}, sheet);
    auto *details = new QLabel(sheet);
    details->setWordWrap(true);
    details->setMinimumHeight(details->fontMetrics().lineSpacing() * 3);
    details->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    sheet->body()->addWidget(details);
    addProblems(groups, tree, details);
    const auto answers = [answer](PreSaveAnswer given) { return [=] { answer(given); }; };
    QPushButton *save = sheet->addButton(
        renames ? "preSaveSummary_submit_save&renamne" : "preSaveSummary_submit_save",
        QDialogButtonBox::AcceptRole, answers(PreSaveAnswer::Save));
    save->setAutoDefault(false);
    QPushButton *cancel = sheet->addButton("sheet_cancel", QDialogButtonBox::RejectRole,
                                           answers(PreSaveAnswer::Cancel));
    if (!itemsWithRewrittenZones(found.problems).empty())
        sheet->addButton("preSave_keepZones", QDialogButtonBox::ActionRole,
                         answers(PreSaveAnswer::KeepZones));
    cancel->setDefault(true);
    sheet->setDismissed(answers(PreSaveAnswer::Cancel));
    sheet->open();
}

void openRunErrorsSheet(const SaveRunResult &result, QWidget *parent) {
    const std::size_t count = result.errors.size();
    auto *sheet = new QuestionSheet(
        text("errorPanelMessageText"),
        (count == 1 ? text("errorPanelInformativeText_front_single")
                    : text("errorPanelInformativeText_front_multi", {numberText(count)})) +
            ' ' +
            text(count == 1 ? "errorPanelInformativeText_back_single"
                            : "errorPanelInformativeText_back_multi"),
        parent);
    textView("errors_text", withoutHeader(actionErrorText(result.errors, result.toolErrors)),
             sheet);
    sheet->addButton("errorPanelDefaultButton", QDialogButtonBox::AcceptRole)->setDefault(true);
    sheet->open();
}

void openTextSheet(const std::string &message, const std::string &information,
                   const std::vector<std::string> &lineTexts, QWidget *parent) {
    auto *sheet = new QuestionSheet(message, information, parent);
    QStringList all;
    for (const std::string &line : lineTexts)
        all.append(qString(line));
    if (!all.empty())
        textView("notice_text", all.join(QLatin1Char('\n')), sheet);
    sheet->addButton("errorPanelDefaultButton", QDialogButtonBox::AcceptRole)->setDefault(true);
    sheet->open();
}

void openErrorLogSheet(QWidget *parent) {
    const QString path = qString(ErrorLog(supportFolder()).path());
    QFile file(path);
    const QString log =
        file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    auto *sheet = new QuestionSheet(
        text("errorLog_message"),
        log.isEmpty() ? text("errorLog_empty") : text("errorLog_information"), parent);
    if (!log.isEmpty()) {
        textView("errorLog_text", log, sheet)->moveCursor(QTextCursor::End);
        sheet->addButton("errorLog_delete", QDialogButtonBox::DestructiveRole,
                         [path] { QFile::remove(path); });
    }
    sheet->addButton("sheet_close", QDialogButtonBox::RejectRole)->setDefault(true);
    sheet->open();
}

void openShortcutsSheet(QWidget *parent) {
    auto *sheet =
        new QuestionSheet(text("shortcuts_message"), text("shortcuts_information"), parent);
    QTreeWidget *tree = list("shortcuts_list", {"shortcuts_command", "shortcuts_keys"}, sheet);
    QTreeWidgetItem *menu = nullptr;
    const char *title = "";
    const auto plain = [](const char *key) {
        return qText(key).remove(QLatin1Char('&')).remove(QChar(0x2026)).trimmed();
    };
    for (const WindowCommand &command : commandTable()) {
        if (title != titleKey(command.menu)) {
            title = titleKey(command.menu);
            menu = new QTreeWidgetItem(tree, {plain(title)});
            menu->setExpanded(true);
        }
        const QKeySequence keys(QLatin1String(command.shortcut));
        new QTreeWidgetItem(menu,
                            {plain(command.textKey), keys.toString(QKeySequence::NativeText)});
    }
    tree->header()->resizeSections(QHeaderView::ResizeToContents);
    sheet->addButton("sheet_close", QDialogButtonBox::RejectRole)->setDefault(true);
    sheet->open();
}

void openAboutSheet(QWidget *parent) {
    const std::string version = QCoreApplication::applicationVersion().toStdString();
    openTextSheet(text("about_message", {version}), text("about_information"), {}, parent);
}

} // namespace chronomender
