// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripPainter.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace chronomender {
namespace {

constexpr double padding = 8, dropWidth = 4, rounding = 4;

void paintChapter(QPainter &painter, const StripChapter &chapter, const StripPicture &picture,
                  const PaintPalette &palette) {
    const StripMetrics &metrics = picture.metrics;
    if (chapter.beginsHere && chapter.left > 0) {
        painter.setPen(QPen(palette.dimText, 1));
        painter.drawLine(QPointF(chapter.left, 0), QPointF(chapter.left, metrics.height));
    }
    // The title of the day that scrolls out stays in sight, until the next one pushes it away.
    const double left = std::max(chapter.left, 0.0) + padding;
    const double room = chapter.right - left - padding;
    const QFontMetricsF font(metrics.titleFont);
    const double needed = font.horizontalAdvance(chapter.title);
    const double shortest = font.averageCharWidth() * 3;
    if (room < shortest && chapter.beginsHere)
        return;
    const double start =
        room < needed && !chapter.beginsHere ? chapter.right - padding - needed : left;
    const QString title =
        chapter.beginsHere ? font.elidedText(chapter.title, Qt::ElideRight, room) : chapter.title;
    painter.setPen(palette.text);
    painter.drawText(QRectF(start, 0, needed + 1, metrics.titleHeight),
                     Qt::AlignVCenter | Qt::AlignLeft, title);
}

void paintChapters(QPainter &painter, const StripPicture &picture, const PaintPalette &palette) {
    for (const StripChapter &chapter : picture.chapters) {
        painter.save();
        painter.setClipRect(QRectF(std::max(chapter.left, 0.0), 0, chapter.right - chapter.left,
                                   picture.metrics.height),
                            Qt::IntersectClip);
        painter.setFont(picture.metrics.titleFont);
        paintChapter(painter, chapter, picture, palette);
        painter.restore();
    }
}

/// A bar in the gap, beside the item it is to come before or behind, or a frame around the item
/// whose date it is to share.
void paintDrop(QPainter &painter, const DropMark &drop, const StripPicture &picture,
               const PaintPalette &palette) {
    const StripMetrics &metrics = picture.metrics;
    const CellPlaces places(metrics, drop.left, false);
    painter.setRenderHint(QPainter::Antialiasing, true);
    if (drop.type == DragType::Onto) {
        painter.setPen(QPen(palette.dropTarget, dropWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(places.frame.adjusted(1, 1, -1, -1), rounding, rounding);
        return;
    }
    const double x = drop.type == DragType::SecondBefore  ? places.frame.left()
                     : drop.type == DragType::SecondAfter ? places.frame.right()
                                                          : drop.left;
    const double bottom = metrics.height - metrics.labelHeight;
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.dropTarget);
    painter.drawRoundedRect(QRectF(x - dropWidth / 2, metrics.titleHeight / 2, dropWidth,
                                   bottom - metrics.titleHeight / 2),
                            dropWidth / 2, dropWidth / 2);
    painter.drawEllipse(QPointF(x, metrics.titleHeight / 2), dropWidth, dropWidth);
}

void paintRectangle(QPainter &painter, const QRectF &rectangle, const PaintPalette &palette) {
    constexpr float fillOpacity = 0.2F;
    QColor inner = palette.selection;
    inner.setAlphaF(fillOpacity);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(palette.selection, 1));
    painter.setBrush(inner);
    painter.drawRect(rectangle);
}

void paintCallOut(QPainter &painter, const CallOut &callOut, const StripPicture &picture,
                  const PaintPalette &palette) {
    const QFontMetricsF date(picture.metrics.titleFont), shift(picture.metrics.labelFont);
    const double width =
        std::max(date.horizontalAdvance(callOut.date), shift.horizontalAdvance(callOut.shift)) +
        2 * padding;
    const double height = date.height() + shift.height() + padding;
    const double mostLeft = std::max(picture.width - width - 1, 1.0);
    const double mostTop = std::max(picture.metrics.height - height - 1, 1.0);
    const QRectF box(std::clamp(callOut.pointer.x() + padding, 1.0, mostLeft),
                     std::clamp(callOut.pointer.y() - height - padding, 1.0, mostTop), width,
                     height);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(palette.dropTarget, 1.5));
    painter.setBrush(palette.window);
    painter.drawRoundedRect(box, rounding, rounding);
    const QRectF inner = box.adjusted(padding, padding / 2, -padding, -padding / 2);
    painter.setPen(palette.text);
    painter.setFont(picture.metrics.titleFont);
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignTop, callOut.date);
    painter.setFont(picture.metrics.labelFont);
    painter.setPen(palette.dimText);
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignBottom, callOut.shift);
}

} // namespace

void paintStrip(QPainter &painter, const StripPicture &picture, const PaintPalette &palette) {
    const QRectF all(0, 0, picture.width, picture.metrics.height);
    painter.save();
    painter.setClipRect(all, Qt::IntersectClip);
    painter.fillRect(all, palette.strip);
    if (picture.cells.empty()) {
        painter.setFont(picture.metrics.titleFont);
        painter.setPen(palette.dimText);
        painter.drawText(all.adjusted(padding, 0, -padding, 0), Qt::AlignCenter | Qt::TextWordWrap,
                         picture.emptyText);
    }
    for (const StripCell &cell : picture.cells)
        paintCell(painter, CellPlaces(picture.metrics, cell.left, cell.data.isInDrawer), cell.data,
                  picture.metrics, palette);
    paintChapters(painter, picture, palette);
    if (picture.hasFocus) {
        constexpr double line = 2;
        painter.fillRect(QRectF(0, 0, picture.width, line), palette.selection);
    }
    if (picture.drop)
        paintDrop(painter, *picture.drop, picture, palette);
    if (picture.rectangle)
        paintRectangle(painter, *picture.rectangle, palette);
    if (picture.callOut)
        paintCallOut(painter, *picture.callOut, picture, palette);
    painter.restore();
}

} // namespace chronomender
