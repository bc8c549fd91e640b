// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderRowPainter.h"

#include <QFontMetricsF>

namespace chronomender {
namespace {

constexpr double dimmedOpacity = 0.55;
constexpr float selectedOpacity = 0.16F;
constexpr char16_t separator[] = u" · ";

/// Lengths in a row, all from its font.
struct RowMetrics {
    explicit RowMetrics(const QFont &font)
        : bold(font), line(QFontMetricsF(font).height()), padding(line * 0.4) {
        bold.setBold(true);
    }
    QFont bold;
    double line, padding;
    double swatch() const { return line * 0.7; }
};

void drawBackground(QPainter &painter, const QRectF &place, const FolderRowPicture &row,
                    const PaintPalette &palette) {
    QColor fill = palette.selection;
    fill.setAlphaF(selectedOpacity);
    if (row.isSelected)
        painter.fillRect(place, fill);
    if (!row.hasCursor)
        return;
    painter.setPen(QPen(palette.selection, 1));
    painter.drawRect(place.adjusted(0.5, 0.5, -0.5, -0.5));
}

/// The folder's colour; with a dot of its own where changes wait for a save.
void drawSwatch(QPainter &painter, const QRectF &place, const FolderRowPicture &row,
                const PaintPalette &palette) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(row.swatch);
    painter.drawRoundedRect(place, place.width() / 4, place.width() / 4);
    if (!row.isUnsaved)
        return;
    const double dot = place.width() * 0.6;
    const QRectF mark(place.right() - dot / 2, place.top() - dot / 2, dot, dot);
    painter.setPen(QPen(palette.window, dot / 6));
    painter.setBrush(palette.unsaved);
    painter.drawEllipse(mark);
}

/// Draws what fits, and gives back where it ends.
double drawPart(QPainter &painter, const QRectF &place, const PaintedPart &part) {
    const QFontMetricsF metrics(painter.font());
    const QString words = metrics.elidedText(part.words, Qt::ElideRight, place.width());
    painter.setPen(part.color);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, words);
    return place.left() + metrics.horizontalAdvance(words);
}

void drawLine(QPainter &painter, QRectF place, const PaintedLine &line,
              const PaintPalette &palette) {
    for (const PaintedPart &part : line) {
        if (&part != &line.front())
            place.setLeft(
                drawPart(painter, place, {QString::fromUtf16(separator), palette.dimText}));
        if (place.width() <= 0)
            return;
        place.setLeft(drawPart(painter, place, part));
    }
}

void drawFirstLine(QPainter &painter, const QRectF &place, const FolderRowPicture &row,
                   const QFont &font, const RowMetrics &metrics, const PaintPalette &palette) {
    painter.setFont(font);
    const double countWidth = QFontMetricsF(font).horizontalAdvance(row.count);
    painter.setPen(palette.dimText);
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, row.count);
    painter.setFont(metrics.bold);
    drawPart(painter, place.adjusted(0, 0, -countWidth - metrics.padding, 0),
             {row.name, palette.text});
    painter.setFont(font);
}

} // namespace

int folderRowHeight(const FolderRowPicture &row, const QFont &font) {
    const RowMetrics metrics(font);
    const auto lines = static_cast<double>(1 + row.lines.size());
    return qCeil(lines * metrics.line + 2 * metrics.padding);
}

void paintFolderRow(QPainter &painter, const QRectF &place, const FolderRowPicture &row,
                    const QFont &font, const PaintPalette &palette) {
    const RowMetrics metrics(font);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(place);
    drawBackground(painter, place, row, palette);
    if (row.isDimmed)
        painter.setOpacity(dimmedOpacity);
    const QRectF inner =
        place.adjusted(metrics.padding, metrics.padding, -metrics.padding, -metrics.padding);
    const double side = metrics.swatch(), drop = (metrics.line - side) / 2;
    drawSwatch(painter, {inner.left(), inner.top() + drop, side, side}, row, palette);
    QRectF line(inner.left() + side + metrics.padding, inner.top(),
                inner.width() - side - metrics.padding, metrics.line);
    drawFirstLine(painter, line, row, font, metrics, palette);
    for (const PaintedLine &each : row.lines) {
        line.translate(0, metrics.line);
        drawLine(painter, line, each, palette);
    }
    painter.restore();
}

} // namespace chronomender
