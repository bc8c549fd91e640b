// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PreferencesControls.h"

#include <QWidget>

#include <string>
#include <vector>

class QLineEdit;
class QPushButton;

namespace chronomender {

/// The path of ExifTool: typed, or chosen as a file.
class PreferencesToolField : public QWidget {
    Q_OBJECT
public:
    PreferencesToolField(const Preference &preference, UserDefaults &defaults, PreferenceSet isSet,
                         QWidget *parent);
    void showPresent();

private:
    void choose();

    const Preference &m_preference;
    UserDefaults &m_defaults;
    PreferenceSet m_isSet;
    QLineEdit *m_path;
};

/// The colours of folders, one button each.
class PreferencesColorsField : public QWidget {
    Q_OBJECT
public:
    PreferencesColorsField(const Preference &preference, UserDefaults &defaults,
                           PreferenceSet isSet, QWidget *parent);
    void showPresent();

private:
    void choose(std::size_t index);

    const Preference &m_preference;
    UserDefaults &m_defaults;
    PreferenceSet m_isSet;
    std::vector<QPushButton *> m_buttons;
};

} // namespace chronomender
