// SPDX-License-Identifier: GPL-3.0-or-later
#include "PreferencesControls.h"

#include "Controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSignalBlocker>
#include <QSpinBox>

#include <utility>

namespace chronomender {
namespace {

QString withoutMnemonic(QString words) {
    return words.remove(QLatin1Char('&'));
}

} // namespace

QWidget *makePreferenceControl(const Preference &preference, UserDefaults &defaults,
                               PreferenceSet isSet, QWidget *parent) {
    const QString words = qText(preference.textKey);
    const auto set = [&preference, &defaults, isSet = std::move(isSet)](int value) {
        isSet(defaults.set(preference.key, std::to_string(value)));
    };
    QWidget *control = nullptr;
    if (preference.kind == PreferenceKind::Switch) {
        auto *box = new QCheckBox(words, parent);
        QObject::connect(box, &QCheckBox::toggled, box, [set](bool isOn) { set(isOn ? 1 : 0); });
        control = box;
    } else if (preference.kind == PreferenceKind::Choice) {
        auto *menu = new QComboBox(parent);
        for (const PreferenceChoice &choice : preference.choices)
            menu->addItem(qText(choice.textKey), choice.value);
        QObject::connect(menu, &QComboBox::currentIndexChanged, menu,
                         [set, menu] { set(menu->currentData().toInt()); });
        control = menu;
    } else {
        auto *field = new QSpinBox(parent);
        const DefaultEntry *entry = findDefaultEntry(preference.key);
        field->setRange(*entry->allowed.begin(), *(entry->allowed.end() - 1));
        QObject::connect(field, &QSpinBox::valueChanged, field, set);
        control = field;
    }
    control->setAccessibleName(withoutMnemonic(words));
    showPreference(*control, preference, defaults);
    return control;
}

void showPreference(QWidget &control, const Preference &preference, const UserDefaults &defaults) {
    const QSignalBlocker quiet(&control);
    const int value = defaults.integerForKey(preference.key);
    if (auto *box = qobject_cast<QCheckBox *>(&control))
        box->setChecked(value != 0);
    else if (auto *menu = qobject_cast<QComboBox *>(&control))
        menu->setCurrentIndex(menu->findData(value));
    else if (auto *field = qobject_cast<QSpinBox *>(&control))
        field->setValue(value);
    control.setEnabled(isInEffect(preference, defaults));
}

} // namespace chronomender
