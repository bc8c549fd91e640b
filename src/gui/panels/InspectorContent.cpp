// SPDX-License-Identifier: GPL-3.0-or-later
#include "InspectorContent.h"

#include "Controls.h"
#include "PanelColors.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace chronomender {
namespace {

/// Long names without blanks may break behind their joints, which a label alone does not do.
QString breakable(std::string_view words) {
    QString text = qString(words);
    for (const char16_t joint : {u'_', u'/', u'.', u'-'})
        text.replace(QChar(joint), QString(QChar(joint)) + QChar(0x200b));
    return text;
}

struct Look {
    QColor color;
    bool isBold = false;
    double scale = 1;
};

/// Builds the parts; all lengths are those of the font.
class Builder {
public:
    Builder(const PaintPalette &palette, int labelWidth)
        : m_palette(palette), m_labelWidth(labelWidth) {}

    QLabel *label(std::string_view words, const Look &look = {}) const {
        auto *label = new QLabel(breakable(words));
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setAccessibleName(qString(words));
        QFont font = label->font();
        font.setBold(look.isBold);
        font.setPointSizeF(font.pointSizeF() * look.scale);
        label->setFont(font);
        if (look.color.isValid())
            setTextColor(*label, look.color);
        return label;
    }

    QWidget *header(const InspectorFacts &facts) const {
        auto *box = new QWidget;
        auto *layout = new QVBoxLayout(box);
        layout->setContentsMargins({});
        layout->addWidget(label(facts.title, {{}, true, 1.15}));
        layout->addWidget(folderLine(facts));
        if (!facts.date.empty())
            layout->addWidget(label(facts.date, {{}, true}));
        for (const RowNote &note : facts.notes)
            layout->addWidget(label(note.words, {colorOf(note.tone, m_palette), true}));
        return box;
    }

    QWidget *alert(const AlertRow &row,
                   const std::function<void(const AlertRow &, AlertAction)> &act, int index) const {
        auto *box = new QFrame;
        const QColor color = colorOf(row.tone, m_palette);
        auto *columns = new QHBoxLayout(box);
        columns->setContentsMargins({});
        columns->addWidget(bar(color));
        auto *layout = new QVBoxLayout;
        columns->addLayout(layout, 1);
        layout->addWidget(label(row.words, {row.tone == RowTone::Plain ? QColor() : color}));
        for (const AlertAction action : row.actions) {
            auto *button = new QPushButton(qText(textKey(action)));
            button->setAccessibleName(
                qText("inspector_actionFor", {text(textKey(action)), row.words}));
            button->setObjectName(
                QStringLiteral("alert%1_%2").arg(index).arg(static_cast<int>(action)));
            QObject::connect(button, &QPushButton::clicked, button,
                             [row, action, act] { act(row, action); });
            layout->addWidget(button, 0, Qt::AlignLeft);
        }
        return box;
    }

    QWidget *slotRows(const std::vector<SlotRow> &rows) const {
        auto *box = new QWidget;
        auto *grid = gridOf(box);
        int line = 0;
        for (const SlotRow &row : rows) {
            QLabel *name = label(row.label, {m_palette.dimText, row.isSource});
            name->setWordWrap(false);
            if (row.isSource)
                name->setToolTip(qText("inspector_sourceSlot"));
            grid->addWidget(name, line, 0, Qt::AlignTop);
            grid->addWidget(label(row.oldText), line++, 1);
            if (!row.newText.empty())
                grid->addWidget(label("→ " + row.newText, {m_palette.unsaved, true}), line++, 1);
            if (!row.remark.empty())
                grid->addWidget(label(row.remark, {m_palette.dimText}), line++, 1);
        }
        return box;
    }

    QWidget *factRows(const std::vector<FactRow> &rows) const {
        auto *box = new QWidget;
        auto *grid = gridOf(box);
        int line = 0;
        for (const FactRow &row : rows) {
            QLabel *name = label(row.label, {m_palette.dimText});
            name->setWordWrap(false);
            grid->addWidget(name, line, 0, Qt::AlignTop);
            grid->addWidget(label(row.value, {row.isMixed ? m_palette.dimText : QColor()}), line++,
                            1);
        }
        return box;
    }

private:
    QWidget *folderLine(const InspectorFacts &facts) const {
        auto *box = new QWidget;
        auto *layout = new QHBoxLayout(box);
        layout->setContentsMargins({});
        QWidget *swatch = bar(m_palette.folderColor(facts.colorIndex));
        layout->addWidget(swatch);
        layout->addWidget(label(facts.folder, {m_palette.dimText}), 1);
        return box;
    }

    static QWidget *bar(const QColor &color) {
        auto *bar = new QWidget;
        bar->setAutoFillBackground(true);
        QPalette palette = bar->palette();
        palette.setColor(QPalette::Window, color);
        bar->setPalette(palette);
        bar->setFixedWidth(std::max(3, bar->fontMetrics().height() / 4));
        return bar;
    }

    QGridLayout *gridOf(QWidget *box) const {
        auto *grid = new QGridLayout(box);
        grid->setContentsMargins({});
        grid->setColumnStretch(1, 1);
        grid->setColumnMinimumWidth(0, m_labelWidth);
        grid->setVerticalSpacing(box->fontMetrics().height() / 5);
        return grid;
    }

    const PaintPalette &m_palette;
    int m_labelWidth; ///< of the first column of all tables
};

int widestLabel(const InspectorFacts &facts, QFont font) {
    font.setBold(true);
    const QFontMetrics metrics(font);
    int widest = 0;
    for (const FileFacts &file : facts.files) {
        for (const SlotRow &row : file.slots)
            widest = std::max(widest, metrics.horizontalAdvance(qString(row.label)));
        for (const FactRow &row : file.facts)
            widest = std::max(widest, metrics.horizontalAdvance(qString(row.label)));
    }
    return widest;
}

} // namespace

QWidget *makeInspectorContent(const InspectorFacts &facts, const PaintPalette &palette,
                              const std::function<void(const AlertRow &, AlertAction)> &act) {
    auto *content = new QWidget;
    const Builder builder(palette, widestLabel(facts, content->font()));
    auto *layout = new QVBoxLayout(content);
    layout->setSpacing(content->fontMetrics().height() * 3 / 4);
    if (facts.title.empty()) {
        layout->addWidget(builder.label(text("inspector_nothing"), {palette.dimText}));
        layout->addStretch();
        return content;
    }
    layout->addWidget(builder.header(facts));
    int index = 0;
    for (const AlertRow &row : facts.alerts)
        layout->addWidget(builder.alert(row, act, index++));
    for (const FileFacts &file : facts.files) {
        if (!file.title.empty())
            layout->addWidget(builder.label(file.title, {{}, true}));
        if (!file.slots.empty())
            layout->addWidget(builder.slotRows(file.slots));
        layout->addWidget(builder.factRows(file.facts));
    }
    layout->addStretch();
    return content;
}

QString wordsOf(const InspectorFacts &facts) {
    if (facts.title.empty())
        return qText("inspector_nothing");
    QStringList words{qString(facts.title), qString(facts.folder), qString(facts.date),
                      qString(joinedWords(facts.notes))};
    for (const AlertRow &row : facts.alerts)
        words << qString(row.words);
    for (const FileFacts &file : facts.files) {
        words << qString(file.title);
        for (const SlotRow &slot : file.slots)
            words << qString(slot.label + ": " + slot.oldText +
                             (slot.newText.empty() ? "" : " → " + slot.newText) +
                             (slot.remark.empty() ? "" : ", " + slot.remark));
        for (const FactRow &fact : file.facts)
            words << qString(fact.label + ": " + fact.value);
    }
    words.removeAll(QString());
    return words.join(QStringLiteral("\n"));
}

} // namespace chronomender
