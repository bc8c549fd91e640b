// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RenameSheetController.h"
#include "TemplateMenu.h"
#include "WindowSession.h"

#include <QDialog>

#include <memory>
#include <optional>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QTableView;

namespace chronomender {

class RenameSheetOptions;
class RenameSheetRows;
class StyledNameDelegate;

/// Renames, or saves and renames: the template, the choices, and a row for each item with the name
/// that it would receive. "Check names" asks the disk; the last button starts the run and closes
/// the sheet.
class RenameSheet : public QDialog {
    Q_OBJECT
public:
    /// Opens the sheet over a window. Where a rename finds changes that wait for a save, it asks
    /// first, and then opens the sheet of the save in its place.
    static void openFor(RenameSheetRequest request, WindowSession &session, QWidget *window);

    /// `session` outlives the sheet, which deletes itself when it is closed.
    RenameSheet(RenameSheetRequest request, WindowSession &session, QWidget *parent);
    ~RenameSheet() override;

    void done(int result) override;

private:
    struct PendingCheck;

    QLayout *makeTemplateLine();
    QWidget *makeOptions();
    QWidget *makeRows();
    QLayout *makeButtons();
    void refreshTemplates();
    void chooseTemplate();
    void editTemplate(bool isNew);
    /// A choice is another one: names, fields and the summary follow.
    void choicesChanged();
    void refreshSummary();
    bool isRenaming();
    void startCheck();
    void checked(const std::vector<ItemRename> &outcomes);
    void start();

    WindowSession &m_session;
    RenameSheetController m_controller;
    std::vector<TemplateMenuEntry> m_templates;
    QComboBox *m_templateMenu = nullptr;
    QPushButton *m_edit = nullptr;
    RenameSheetOptions *m_options = nullptr;
    RenameSheetRows *m_rows = nullptr;
    StyledNameDelegate *m_delegate = nullptr;
    QTableView *m_table = nullptr;
    QLabel *m_summary = nullptr, *m_checkResult = nullptr;
    QPushButton *m_check = nullptr, *m_next = nullptr, *m_start = nullptr;
    std::shared_ptr<PendingCheck> m_pending; ///< a dry run that is under way; null: none
    std::optional<int> m_resultWaiting;      ///< the sheet closes with it as soon as that ended
};

} // namespace chronomender
