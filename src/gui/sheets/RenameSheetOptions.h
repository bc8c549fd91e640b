// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CompoundMenuTag.h"
#include "RenameSheetController.h"
#include "TemplateMenu.h"
#include "WindowSession.h"

#include <QWidget>

#include <array>
#include <vector>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace chronomender {

/// The choices of a rename, each stored as a preference as soon as it is made. What the template
/// makes no use of is not shown. The references outlive the options.
class RenameSheetOptions : public QWidget {
    Q_OBJECT
public:
    RenameSheetOptions(WindowSession &session, RenameSheetController &controller, QWidget *parent);

    /// Shows what the selected template and the sheet's items have use for.
    void refresh();

Q_SIGNALS:
    /// A preference or the restriction is another one; the controller does not know it yet.
    void changed();

private:
    struct AddOn {
        QLineEdit *field = nullptr;
        QCheckBox *keep = nullptr;
    };
    QComboBox *addMenu(const char *labelKey);
    QCheckBox *addSwitch(const char *key, const char *labelKey);
    QWidget *addPreference(const char *key);
    void addRestriction();
    void addRenameAtSave();
    void addCounter();
    void addAddOns();
    void addModification(ModificationTag tag);
    void refreshMenu(QComboBox &menu, const CompoundMenu &kind, bool hasCompoundEntry);
    void showRow(QWidget *field, bool isShown);
    void refreshRestriction(bool isRename);
    void refreshCounter(bool isShown);

    WindowSession &m_session;
    UserDefaults &m_defaults;
    RenameSheetController &m_controller;
    QFormLayout *m_form;
    QComboBox *m_renameAtSave = nullptr, *m_restriction = nullptr, *m_counterType = nullptr;
    QSpinBox *m_counterStart = nullptr;
    QCheckBox *m_restrictCounter = nullptr, *m_showAll = nullptr;
    QWidget *m_sourceName = nullptr;
    std::array<AddOn, 3> m_addOns;
    std::array<QWidget *, 2> m_modifications{};
    std::vector<QWidget *> m_endings; ///< front dots, and what becomes of the extension
};

} // namespace chronomender
