// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextModificationRow.h"

#include "Controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include <algorithm>
#include <vector>

namespace chronomender {
namespace {

constexpr int mostCharacters = 255, fewestCharacters = 14;

/// Adds controls from left to right, each bound to a field of the row.
class RowBuilder {
public:
    RowBuilder(QWidget *widget, const std::function<void()> &changed)
        : m_widget(widget), m_layout(new QHBoxLayout(widget)), m_changed(changed) {
        m_layout->setContentsMargins({});
    }
    void toggle(bool &value, const char *key) {
        auto *box = new QCheckBox(qText(key), m_widget);
        named(box, key);
        box->setChecked(value);
        m_layout->addWidget(box);
        bind(box, &QCheckBox::toggled, [&value](bool isOn) { value = isOn; });
        m_name = box->text();
    }
    void menu(int &value, std::initializer_list<const char *> keys) {
        auto *menu = new QComboBox(m_widget);
        for (const char *key : keys)
            menu->addItem(qText(key));
        menu->setCurrentIndex(std::clamp(value, 0, static_cast<int>(keys.size()) - 1));
        menu->setAccessibleName(m_name + QStringLiteral(": ") + menu->currentText());
        m_layout->addWidget(menu);
        bind(menu, &QComboBox::currentIndexChanged, [&value](int index) { value = index; });
    }
    void number(int &value, int least, const char *nameKey, const char *leastKey = nullptr) {
        auto *field = new QSpinBox(m_widget);
        field->setRange(least, mostCharacters);
        if (leastKey)
            field->setSpecialValueText(qText(leastKey));
        field->setValue(value);
        field->setAccessibleName(m_name + QStringLiteral(": ") + qText(nameKey));
        m_layout->addWidget(field);
        bind(field, &QSpinBox::valueChanged, [&value](int chosen) { value = chosen; });
    }
    void words(std::string &value, const char *nameKey) {
        auto *field = new QLineEdit(qString(value), m_widget);
        field->setPlaceholderText(qText(nameKey));
        field->setMinimumWidth(fewestCharacters * field->fontMetrics().averageCharWidth());
        field->setAccessibleName(m_name + QStringLiteral(": ") + qText(nameKey));
        m_layout->addWidget(field, 1);
        bind(field, &QLineEdit::textChanged,
             [&value](const QString &text) { value = text.toStdString(); });
    }
    void label(const char *key) { m_layout->addWidget(new QLabel(qText(key), m_widget)); }
    void stretch() { m_layout->addStretch(1); }

private:
    template<class Control, class Signal, class Set>
    void bind(Control *control, Signal signal, Set set) {
        QObject::connect(control, signal, control, [set, changed = m_changed](auto value) {
            set(value);
            changed();
        });
    }

    QWidget *m_widget;
    QHBoxLayout *m_layout;
    std::function<void()> m_changed;
    QString m_name; ///< of the row, in front of the names of its controls
};

constexpr const char *front = "rename_rowFront", *end = "rename_rowEnd";

void build(CharCount &row, RowBuilder &builder) {
    builder.toggle(row.isEnabled, textModificationNames[0]);
    builder.menu(row.type, {"rename_rowRemove", "rename_rowKeep"});
    builder.number(row.value, 1, "rename_rowHowMany");
    builder.label("rename_rowCharacters");
    builder.menu(row.direction, {front, end});
    builder.stretch();
}

void build(UpToString &row, RowBuilder &builder) {
    builder.toggle(row.isEnabled, textModificationNames[1]);
    builder.menu(row.type, {"rename_rowRemove", "rename_rowKeep"});
    builder.menu(row.direction, {"rename_rowBefore", "rename_rowBehind"});
    builder.number(row.value, 1, "rename_rowWhich");
    builder.words(row.value2, "rename_rowText");
}

void build(ReplaceWith &row, RowBuilder &builder) {
    builder.toggle(row.isEnabled, textModificationNames[2]);
    builder.words(row.value, "rename_rowText");
    builder.label("rename_rowBy");
    builder.words(row.value2, "rename_rowReplacement");
    builder.number(row.value3, 0, "rename_rowWhich", "rename_rowAll");
    builder.menu(row.direction, {"rename_rowFromFront", "rename_rowFromEnd"});
}

void build(ChangeCase &row, RowBuilder &builder) {
    builder.toggle(row.isEnabled, textModificationNames[3]);
    builder.menu(row.value, {"rename_rowCapitalised", "rename_rowLower", "rename_rowUpper"});
    builder.stretch();
}

} // namespace

QWidget *makeTextModificationRow(TextModification &row, const std::function<void()> &changed,
                                 QWidget *parent) {
    auto *widget = new QWidget(parent);
    RowBuilder builder(widget, changed);
    std::visit([&](auto &kind) { build(kind, builder); }, row);
    return widget;
}

} // namespace chronomender
