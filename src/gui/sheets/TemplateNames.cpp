// SPDX-License-Identifier: GPL-3.0-or-later
#include "TemplateNames.h"

#include "Controls.h"
#include "PaintPalette.h"

#include <QApplication>
#include <QPainter>

#include <array>

namespace chronomender {
namespace {

using Kind = StyledRun::Kind;

constexpr double strongTint = 0.42, weakTint = 0.22;

/// Hues of the twelve slots, in degrees: dates warm to cold, then counter, names and texts.
constexpr std::array<int, 12> slotHues{28, 48, 75, 150, 175, 195, 215, 265, 300, 330, 320, 345};

QColor blended(const QColor &top, const QColor &base, double share) {
    const auto part = [share](double a, double b) { return a * share + b * (1 - share); };
    return QColor::fromRgbF(static_cast<float>(part(top.redF(), base.redF())),
                            static_cast<float>(part(top.greenF(), base.greenF())),
                            static_cast<float>(part(top.blueF(), base.blueF())));
}

QColor tint(int slot, const QPalette &palette, double share) {
    constexpr int saturation = 200, value = 220;
    const auto hue = slotHues[static_cast<std::size_t>(slot) % slotHues.size()];
    return blended(QColor::fromHsv(hue, saturation, value), palette.color(QPalette::Base), share);
}

} // namespace

QColor tintOfSlot(int slot, const QPalette &palette) {
    return tint(slot, palette, strongTint);
}

NameColors colorsOf(const StyledRun &run, const QPalette &palette, bool hasTints) {
    const QColor ink = palette.color(QPalette::Text),
                 dim = palette.color(QPalette::PlaceholderText);
    switch (run.kind) {
    case Kind::Value:
        if (hasTints && run.slot >= 0)
            return {ink, tint(run.slot, palette, run.isReduced ? weakTint : strongTint)};
        return {ink, {}};
    case Kind::Marker:
    case Kind::FrontDot:
        return {paintPalette(palette, {}).danger, {}};
    case Kind::HiddenExtension:
    case Kind::Companions:
        return {dim, {}};
    case Kind::Text:
    case Kind::Extension:
        break;
    }
    return {ink, {}};
}

void paintStyledName(QPainter &painter, const QRect &area, const StyledName &name,
                     const QPalette &palette, bool hasTints) {
    const QFontMetrics metrics = painter.fontMetrics();
    const int top = area.top() + (area.height() - metrics.height()) / 2;
    int left = area.left();
    for (const StyledRun &run : name) {
        const int space = area.right() - left + 1;
        if (space <= 0)
            return;
        const QString words = qString(run.text);
        const QString shown = metrics.elidedText(words, Qt::ElideRight, space);
        const int width = metrics.horizontalAdvance(shown);
        const QRect place(left, top, width, metrics.height());
        const NameColors colors = colorsOf(run, palette, hasTints);
        if (colors.tint.isValid())
            painter.fillRect(place, colors.tint);
        painter.setPen(colors.ink);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
        if (shown != words)
            return;
        left += width;
    }
}

QString richTextOf(const StyledName &name, const QPalette &palette) {
    QString html = QStringLiteral("<span style='white-space:pre'>");
    for (const StyledRun &run : name) {
        const NameColors colors = colorsOf(run, palette, true);
        QString style = QStringLiteral("color:") + colors.ink.name();
        if (colors.tint.isValid())
            style += QStringLiteral(";background-color:") + colors.tint.name();
        QString words = qString(run.text).toHtmlEscaped();
        words.replace(QLatin1Char('\r'), QLatin1String("<br/>"));
        html += QStringLiteral("<span style='") + style + QStringLiteral("'>") + words +
                QStringLiteral("</span>");
    }
    return html + QStringLiteral("</span>");
}

void StyledNameDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const {
    const QVariant name = index.data(role);
    if (!name.canConvert<StyledName>()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem whole = option;
    initStyleOption(&whole, index);
    whole.text.clear();
    const QWidget *widget = option.widget;
    const QStyle *style = widget ? widget->style() : QApplication::style();
    const QRect area = style->subElementRect(QStyle::SE_ItemViewItemText, &whole, widget);
    style->drawControl(QStyle::CE_ItemViewItem, &whole, painter, widget);
    // On the colour of a selection the tints would hide what is selected.
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    QPalette palette = option.palette;
    if (isSelected)
        for (const auto each : {QPalette::Text, QPalette::PlaceholderText})
            palette.setColor(each, palette.color(QPalette::HighlightedText));
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, widget) + 1;
    painter->save();
    painter->setFont(whole.font);
    paintStyledName(*painter, area.adjusted(margin, 0, -margin, 0), name.value<StyledName>(),
                    palette, m_hasTints && isEnabled && !isSelected);
    painter->restore();
}

} // namespace chronomender
