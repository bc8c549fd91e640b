// SPDX-License-Identifier: GPL-3.0-or-later
#include "PreferencesFields.h"

#include "Controls.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QSignalBlocker>

#include <utility>

namespace chronomender {

PreferencesToolField::PreferencesToolField(const Preference &preference, UserDefaults &defaults,
                                           PreferenceSet isSet, QWidget *parent)
    : QWidget(parent),
      m_preference(preference),
      m_defaults(defaults),
      m_isSet(std::move(isSet)),
      m_path(named(new QLineEdit(this), "prefs_toolName")) {
    m_path->setPlaceholderText(qText("prefs_toolHint"));
    auto *button = named(new QPushButton(qText("prefs_toolBrowse"), this), "prefs_toolBrowse");
    button->setAutoDefault(false);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_path, 1);
    layout->addWidget(button);
    setFocusProxy(m_path);
    showPresent();
    connect(m_path, &QLineEdit::editingFinished, this, [this] {
        const std::string typed = m_path->text().trimmed().toStdString();
        if (typed != m_defaults.stringForKey(m_preference.key))
            m_isSet(m_defaults.set(m_preference.key, typed));
    });
    connect(button, &QPushButton::clicked, this, [this] { choose(); });
}

void PreferencesToolField::showPresent() {
    const QSignalBlocker quiet(m_path);
    m_path->setText(qString(m_defaults.stringForKey(m_preference.key)));
}

void PreferencesToolField::choose() {
    auto *dialog = new QFileDialog(this, qText("prefs_toolBrowseTitle"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &path) {
        m_isSet(m_defaults.set(m_preference.key, path.toStdString()));
    });
    dialog->open();
}

PreferencesColorsField::PreferencesColorsField(const Preference &preference, UserDefaults &defaults,
                                               PreferenceSet isSet, QWidget *parent)
    : QWidget(parent), m_preference(preference), m_defaults(defaults), m_isSet(std::move(isSet)) {
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(fontMetrics().averageCharWidth() / 2);
    const DefaultEntry *entry = findDefaultEntry(preference.key);
    const std::size_t count = colorValues(std::string(entry->registeredValue)).size();
    const int side = fontMetrics().height() * 3 / 2;
    for (std::size_t i = 0; i < count; ++i) {
        auto *button = new QPushButton(this);
        button->setAutoDefault(false);
        button->setFixedSize(2 * side, side + fontMetrics().height() / 2);
        button->setAccessibleName(qText("prefs_folderColor", {std::to_string(i + 1)}));
        connect(button, &QPushButton::clicked, this, [this, i] { choose(i); });
        layout->addWidget(button);
        m_buttons.push_back(button);
    }
    layout->addStretch(1);
    showPresent();
}

void PreferencesColorsField::showPresent() {
    const auto values = colorValues(m_defaults.stringForKey(m_preference.key));
    const int side = fontMetrics().height();
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        QPixmap swatch(side, side);
        swatch.fill(i < values.size() ? QColor(qString(values[i])) : QColor(Qt::transparent));
        m_buttons[i]->setIcon(swatch);
        m_buttons[i]->setIconSize({side, side});
    }
}

void PreferencesColorsField::choose(std::size_t index) {
    auto values = colorValues(m_defaults.stringForKey(m_preference.key));
    const DefaultEntry *entry = findDefaultEntry(m_preference.key);
    const auto factory = colorValues(std::string(entry->registeredValue));
    while (values.size() < factory.size())
        values.push_back(factory[values.size()]);
    auto *dialog = new QColorDialog(QColor(qString(values[index])), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QColorDialog::colorSelected, this, [this, values, index](const QColor &color) {
        auto chosen = values;
        chosen[index] = color.name().toStdString();
        m_isSet(m_defaults.set(m_preference.key, storedColors(chosen)));
    });
    dialog->open();
}

} // namespace chronomender
