// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameSheetOptions.h"

#include "Controls.h"
#include "PreferencesControls.h"
#include "TemplateStore.h"
#include "TextModificationSheet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

namespace chronomender {
namespace {

constexpr std::array<const char *, 3> addOnKeys{"additionalText", "additionalText2",
                                                "additionalText3"};
constexpr std::array<const char *, 3> keepKeys{"rename_keepAddOn1", "rename_keepAddOn2",
                                               "rename_keepAddOn3"};
constexpr std::array<const char *, 3> addOnLabels{"rename_addOn1", "rename_addOn2",
                                                  "rename_addOn3"};
constexpr int compoundTag = CompoundMenuTag::compoundAlternative;

void nameBy(QWidget *widget, const QString &label) {
    QString words = label;
    widget->setAccessibleName(words.remove(QLatin1Char('&')));
}

} // namespace

RenameSheetOptions::RenameSheetOptions(WindowSession &session, RenameSheetController &controller,
                                       QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_defaults(session.defaults()),
      m_controller(controller),
      m_form(new QFormLayout(this)) {
    m_form->setContentsMargins({});
    m_form->setRowWrapPolicy(QFormLayout::WrapAllRows);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addRenameAtSave();
    addRestriction();
    addCounter();
    addAddOns();
    m_sourceName = addPreference("useNameAtImportAsSourceName");
    addModification(ModificationTag::Folder);
    addModification(ModificationTag::File);
    for (const char *key : {"frontDotHandlingMode", "suffixChangeCase", "suffixVisibility"})
        m_endings.push_back(addPreference(key));
    refresh();
}

QComboBox *RenameSheetOptions::addMenu(const char *labelKey) {
    auto *menu = new QComboBox(this);
    nameBy(menu, qText(labelKey));
    m_form->addRow(qText(labelKey), menu);
    return menu;
}

QCheckBox *RenameSheetOptions::addSwitch(const char *key, const char *labelKey) {
    auto *box = new QCheckBox(qText(labelKey), this);
    nameBy(box, qText(labelKey));
    box->setChecked(m_defaults.boolForKey(key));
    connect(box, &QCheckBox::toggled, this, [this, key](bool isOn) {
        m_defaults.set(key, isOn ? "1" : "0");
        Q_EMIT changed();
    });
    m_form->addRow(box);
    return box;
}

QWidget *RenameSheetOptions::addPreference(const char *key) {
    const Preference &preference = preferenceWithKey(key);
    QWidget *control = makePreferenceControl(
        preference, m_defaults, [this](UserDefaults::Outcome) { Q_EMIT changed(); }, this);
    m_form->addRow(qText(preference.textKey), control);
    return control;
}

void RenameSheetOptions::addRenameAtSave() {
    m_renameAtSave = addMenu("rename_atSave");
    m_renameAtSave->addItem(qText("rename_atSaveNothing"), 0);
    m_renameAtSave->addItem(qText("rename_atSaveCurrent"), 1);
    m_renameAtSave->addItem(qText("rename_atSaveAll"), 2);
    m_renameAtSave->addItem(qText("rename_atSaveCompound"), compoundTag);
    connect(m_renameAtSave, &QComboBox::currentIndexChanged, this, [this] {
        chooseMenuTag(renameAtSaveMenu, {m_renameAtSave->currentData().toInt()},
                      m_controller.items().isCompoundEntryVisible(), m_defaults);
        Q_EMIT changed();
    });
}

void RenameSheetOptions::addRestriction() {
    m_restriction = addMenu("rename_restriction");
    connect(m_restriction, &QComboBox::currentIndexChanged, this, [this] {
        m_controller.items().setRestrictRenameType(m_restriction->currentData().toInt());
        Q_EMIT changed();
    });
    m_showAll = addSwitch("rename_dontHideFilteredMedia", "rename_showAll");
}

void RenameSheetOptions::addCounter() {
    m_counterType = addMenu("rename_counter");
    m_counterType->addItem(qText("rename_counterRunning"), 1);
    m_counterType->addItem(qText("rename_counterPerFolder"), 0);
    m_counterType->addItem(qText("rename_counterCompound"), compoundTag);
    connect(m_counterType, &QComboBox::currentIndexChanged, this, [this] {
        chooseMenuTag(counterTypeMenu, {m_counterType->currentData().toInt()},
                      m_controller.items().isForCompound(), m_defaults);
        Q_EMIT changed();
    });
    m_counterStart = new QSpinBox(this);
    nameBy(m_counterStart, qText("rename_counterStart"));
    const DefaultEntry *entry = findDefaultEntry("renameCounterStartValue");
    m_counterStart->setRange(*entry->allowed.begin(), *(entry->allowed.end() - 1));
    m_form->addRow(qText("rename_counterStart"), m_counterStart);
    connect(m_counterStart, &QSpinBox::valueChanged, this, [this](int value) {
        m_defaults.set("renameCounterStartValue", std::to_string(value));
        m_defaults.set("renameCounterStartOption", "2"); // as the value says
        Q_EMIT changed();
    });
    m_restrictCounter = addSwitch("rename_restrictCounter", "rename_restrictCounter");
}

void RenameSheetOptions::addAddOns() {
    for (std::size_t i = 0; i < m_addOns.size(); ++i) {
        AddOn &addOn = m_addOns[i];
        addOn.field = new QLineEdit(qString(m_defaults.stringForKey(addOnKeys[i])), this);
        nameBy(addOn.field, qText(addOnLabels[i]));
        m_form->addRow(qText(addOnLabels[i]), addOn.field);
        // While it is typed it holds for now; what it came to is stored.
        connect(addOn.field, &QLineEdit::textChanged, this, [this, i](const QString &words) {
            m_defaults.setForThisRun(addOnKeys[i], words.toStdString());
            Q_EMIT changed();
        });
        connect(addOn.field, &QLineEdit::editingFinished, this, [this, i] {
            m_defaults.set(addOnKeys[i], m_addOns[i].field->text().toStdString());
        });
        addOn.keep = addSwitch(keepKeys[i], "rename_keepAddOn");
        addOn.keep->setAccessibleName(addOn.field->accessibleName() + QStringLiteral(": ") +
                                      addOn.keep->accessibleName());
    }
}

void RenameSheetOptions::addModification(ModificationTag tag) {
    const bool isFolder = tag == ModificationTag::Folder;
    const char *key = isFolder ? "modAtRenameFolder" : "modAtRenameFile";
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    auto *box = new QCheckBox(qText(isFolder ? "rename_changeFolder" : "rename_changeFile"), row);
    nameBy(box, box->text());
    box->setChecked(m_defaults.boolForKey(key));
    auto *button = new QPushButton(qText("rename_changeHow"), row);
    button->setAutoDefault(false);
    button->setAccessibleName(box->accessibleName() + QStringLiteral(": ") + button->text());
    layout->addWidget(box, 1);
    layout->addWidget(button);
    m_form->addRow(row);
    m_modifications[isFolder ? 0 : 1] = row;
    connect(box, &QCheckBox::toggled, this, [this, key](bool isOn) {
        m_defaults.set(key, isOn ? "1" : "0");
        Q_EMIT changed();
    });
    connect(button, &QPushButton::clicked, this, [this, tag] {
        auto *sheet = new TextModificationSheet(m_session, tag, window());
        connect(sheet, &TextModificationSheet::changed, this, &RenameSheetOptions::changed);
        sheet->open();
    });
}

void RenameSheetOptions::showRow(QWidget *field, bool isShown) {
    field->setVisible(isShown);
    if (QWidget *label = m_form->labelForField(field))
        label->setVisible(isShown);
}

void RenameSheetOptions::refreshMenu(QComboBox &menu, const CompoundMenu &kind,
                                     bool hasCompoundEntry) {
    const QSignalBlocker quiet(&menu);
    const int place = menu.findData(compoundTag);
    if (hasCompoundEntry && place < 0)
        menu.addItem(
            qText(&menu == m_counterType ? "rename_counterCompound" : "rename_atSaveCompound"),
            compoundTag);
    else if (!hasCompoundEntry && place >= 0)
        menu.removeItem(place);
    const CompoundMenuTag chosen = menuTag(kind, m_defaults);
    const int tag = hasCompoundEntry ? chosen.tag : chosen.integer();
    // Without its compound entry, "all together" of a counter means each folder by itself.
    const bool isEachFolder =
        &menu == m_counterType && !hasCompoundEntry && chosen.isCompoundAlternative();
    menu.setCurrentIndex(menu.findData(isEachFolder ? 0 : tag));
}

void RenameSheetOptions::refresh() {
    RenameSheetItems &items = m_controller.items();
    const auto type = items.renameSheetType();
    const bool isSave = type == RenameSheetType::SaveCurrent || type == RenameSheetType::SaveAll;
    const bool isRename = !isSave || items.renameAtSave() != RenameAtSave::Nothing;
    const TemplateSheetFlags flags =
        isRename ? sheetFlagsOf(selectedTemplate(m_defaults).value_or(RenameTemplate{}))
                 : TemplateSheetFlags{};
    showRow(m_renameAtSave, isSave);
    refreshMenu(*m_renameAtSave, renameAtSaveMenu, items.isCompoundEntryVisible());
    refreshRestriction(isRename);
    refreshCounter(flags.isCounterAvailable);
    const auto keeps = m_controller.validateOldAddOnButtons();
    for (std::size_t i = 0; i < m_addOns.size(); ++i) {
        showRow(m_addOns[i].field, isRename && keeps[i].isVisible);
        showRow(m_addOns[i].keep, isRename && keeps[i].isVisible && keeps[i].isEnabled);
    }
    showRow(m_sourceName, flags.isFileNameAvailable);
    showRow(m_modifications[0], flags.isFolderNameAvailable);
    showRow(m_modifications[1], flags.isFileNameAvailable);
    for (QWidget *field : m_endings)
        showRow(field, isRename);
}

void RenameSheetOptions::refreshRestriction(bool isRename) {
    RenameSheetItems &items = m_controller.items();
    const QSignalBlocker quiet(m_restriction);
    m_restriction->clear();
    m_restriction->addItem(qText("rename_restrictNone"), 0);
    for (const int strip : {1, 2})
        if (items.hasValidSelection(strip))
            m_restriction->addItem(
                qText(strip == 1 ? "rename_restrictFirst" : "rename_restrictSecond"), strip);
    m_restriction->setCurrentIndex(m_restriction->findData(items.restrictRenameType()));
    const bool isShown = isRename && items.shouldShowRestrictionOptions();
    showRow(m_restriction, isShown);
    showRow(m_showAll, isShown && items.restrictRenameType() != 0);
}

void RenameSheetOptions::refreshCounter(bool isShown) {
    RenameSheetItems &items = m_controller.items();
    refreshMenu(*m_counterType, counterTypeMenu, items.isForCompound());
    const QSignalBlocker quiet(m_counterStart);
    const int option = m_defaults.integerForKey("renameCounterStartOption");
    const bool isGiven = option == 2 || option == 3;
    m_counterStart->setValue(isGiven ? m_defaults.integerForKey("renameCounterStartValue") : 1);
    showRow(m_counterType, isShown);
    showRow(m_counterStart, isShown);
    showRow(m_restrictCounter, isShown && items.restrictRenameType() != 0);
}

} // namespace chronomender
