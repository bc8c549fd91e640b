// SPDX-License-Identifier: GPL-3.0-or-later
#include "PreferencesSheet.h"

#include "Appearance.h"
#include "Controls.h"
#include "PaintPalette.h"
#include "PreferencesFields.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace chronomender {
namespace {

enum GridColumn { LabelColumn, ControlColumn, ResetColumn, columnCount };

QString withoutMnemonic(QString words) {
    return words.remove(QLatin1Char('&'));
}

/// A control that hangs on another one stands in a little.
int indentOf(const Preference &preference, const QWidget &widget) {
    constexpr int characters = 3;
    return preference.onlyWhenKey ? characters * widget.fontMetrics().averageCharWidth() : 0;
}

} // namespace

PreferencesSheet::PreferencesSheet(WindowSession &session, QWidget *parent)
    : QDialog(parent), m_session(session) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(qText("prefs_title"));
    auto *list = named(new QListWidget(this), "prefs_pages");
    auto *pages = new QStackedWidget(this);
    for (const PreferencePageTitle &page : preferencePages()) {
        list->addItem(qText(page.titleKey));
        pages->addWidget(makePage(page.page));
    }
    list->setFixedWidth(list->sizeHintForColumn(0) + 6 * fontMetrics().averageCharWidth());
    connect(list, &QListWidget::currentRowChanged, pages, &QStackedWidget::setCurrentIndex);
    list->setCurrentRow(0);
    m_problem = new QLabel(qText("prefs_notStored"), this);
    m_problem->hide();
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *close = buttons->addButton(qText("prefs_close"), QDialogButtonBox::AcceptRole);
    close->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    auto *middle = new QHBoxLayout;
    middle->addWidget(list);
    middle->addWidget(pages, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(middle, 1);
    layout->addWidget(m_problem);
    layout->addWidget(buttons);
    constexpr int lines = 34;
    resize(sizeHint().width(), lines * fontMetrics().lineSpacing());
    refresh();
    checkTool();
    list->setFocus();
}

QWidget *PreferencesSheet::makePage(PreferencePage page) {
    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    auto *content = new QWidget(area);
    auto *grid = new QGridLayout(content);
    grid->setColumnStretch(ControlColumn, 1);
    for (const Preference &preference : preferenceTable())
        if (preference.page == page)
            addRow(preference, *grid);
    grid->setRowStretch(grid->rowCount(), 1);
    area->setWidget(content);
    area->setMinimumWidth(content->minimumSizeHint().width() + 3 * fontMetrics().height());
    return area;
}

void PreferencesSheet::addRow(const Preference &preference, QGridLayout &grid) {
    QWidget *content = grid.parentWidget();
    int row = grid.rowCount();
    if (preference.groupKey) {
        auto *heading = new QLabel(qText(preference.groupKey), content);
        QFont font = heading->font();
        font.setBold(true);
        heading->setFont(font);
        if (grid.count() > 0)
            grid.setRowMinimumHeight(row++, fontMetrics().height() / 2);
        grid.addWidget(heading, row++, LabelColumn, 1, columnCount);
    }
    Row added{&preference, makeControl(preference, content), nullptr,
              makeReset(preference, content)};
    const int indent = indentOf(preference, *content);
    if (preference.kind == PreferenceKind::Switch) {
        auto *line = new QHBoxLayout;
        line->addSpacing(indent);
        line->addWidget(added.control, 1);
        grid.addLayout(line, row, LabelColumn, 1, 2);
    } else {
        auto *label = new QLabel(qText(preference.textKey), content);
        label->setBuddy(added.control);
        label->setIndent(indent);
        added.label = label;
        grid.addWidget(label, row, LabelColumn);
        const bool isNumber = preference.kind == PreferenceKind::Number;
        grid.addWidget(added.control, row, ControlColumn,
                       isNumber ? Qt::AlignLeft : Qt::Alignment());
    }
    grid.addWidget(added.reset, row, ResetColumn);
    if (preference.kind == PreferenceKind::Tool) {
        m_toolAnswer = new QLabel(content);
        m_toolAnswer->setTextFormat(Qt::PlainText);
        m_toolAnswer->setWordWrap(true);
        grid.addWidget(m_toolAnswer, row + 1, ControlColumn);
    }
    m_rows.push_back(added);
}

QWidget *PreferencesSheet::makeControl(const Preference &preference, QWidget *parent) {
    const PreferenceSet isSet = [this, &preference](UserDefaults::Outcome outcome) {
        wasSet(preference, outcome);
    };
    UserDefaults &defaults = m_session.defaults();
    if (preference.kind == PreferenceKind::Tool)
        return new PreferencesToolField(preference, defaults, isSet, parent);
    if (preference.kind == PreferenceKind::Colors)
        return new PreferencesColorsField(preference, defaults, isSet, parent);
    return makePreferenceControl(preference, defaults, isSet, parent);
}

QToolButton *PreferencesSheet::makeReset(const Preference &preference, QWidget *parent) {
    auto *button = new QToolButton(parent);
    button->setText(qText("prefs_reset"));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(
        qText("prefs_resetOf", {withoutMnemonic(qText(preference.textKey)).toStdString()}));
    QSizePolicy policy = button->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    button->setSizePolicy(policy);
    connect(button, &QToolButton::clicked, this, [this, &preference] {
        wasSet(preference, resetToDefault(preference, m_session.defaults()));
    });
    return button;
}

void PreferencesSheet::wasSet(const Preference &preference, UserDefaults::Outcome outcome) {
    m_problem->setText(outcome == UserDefaults::Outcome::NotStored ? qText("prefs_notStored")
                                                                   : QString());
    refresh();
    if (preference.kind == PreferenceKind::Tool)
        checkTool();
    if (std::string_view(preference.key) == "appearance")
        applyAppearance(
            static_cast<Appearance>(m_session.defaults().integerForKey(preference.key)));
    // What is drawn goes by preferences: colours, labels, and dates as a save would write them.
    Q_EMIT m_session.foldersChanged();
    Q_EMIT m_session.listChanged();
    Q_EMIT preferenceChanged(QString::fromLatin1(preference.key));
}

void PreferencesSheet::refresh() {
    const UserDefaults &defaults = m_session.defaults();
    for (const Row &row : m_rows) {
        if (auto *tool = qobject_cast<PreferencesToolField *>(row.control))
            tool->showPresent();
        else if (auto *colors = qobject_cast<PreferencesColorsField *>(row.control))
            colors->showPresent();
        else
            showPreference(*row.control, *row.preference, defaults);
        if (row.label)
            row.label->setEnabled(row.control->isEnabled());
        const bool isOther = isChanged(*row.preference, defaults);
        // A button that goes away under the focus would throw it to the next one.
        if (!isOther && row.reset->hasFocus())
            row.control->setFocus();
        row.reset->setVisible(isOther);
    }
}

void PreferencesSheet::checkTool() {
    m_toolAnswer->setText(qText("prefs_toolChecking"));
    m_tool.check(
        m_session.defaults().stringForKey("exifToolPath"), [this](const ToolCheckResult &result) {
            m_toolAnswer->setText(qString(result.words));
            QPalette colors = palette();
            const PaintPalette paints = paintPalette(colors, {});
            colors.setColor(QPalette::WindowText,
                            result.runs ? colors.color(QPalette::WindowText) : paints.danger);
            m_toolAnswer->setPalette(colors);
        });
}

} // namespace chronomender
