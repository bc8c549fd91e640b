// SPDX-License-Identifier: GPL-3.0-or-later
#include "CellPainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace chronomender {
namespace {

constexpr double corner = 3;
constexpr double memberWidth = 2;
constexpr double rejectedOpacity = 0.4, movingOpacity = 0.75;

void fill(QPainter &painter, const QRectF &rect, const QColor &color, double radius = corner) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(rect, radius, radius);
}

void paintSelection(QPainter &painter, const CellPlaces &places, const CellData &cell,
                    const PaintPalette &palette) {
    if (cell.selection == CellSelection::Main) {
        fill(painter, places.frame, palette.mainSelection, 2 * corner);
    } else if (cell.selection == CellSelection::Member) {
        const double border = memberWidth;
        fill(painter, places.thumb.adjusted(-border, -border, border, border), palette.selection);
    }
    if (cell.hasCursor) {
        painter.setPen(QPen(palette.text, 1, Qt::DotLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(places.frame.adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

/// A sheet with a folded corner; crossed out where there will never be a picture.
void paintSheet(QPainter &painter, const QRectF &thumb, bool isCrossedOut, const QColor &color) {
    const double height = thumb.height() * 0.36, width = height * 0.78, fold = width * 0.3;
    const QRectF sheet(thumb.center().x() - width / 2, thumb.top() + thumb.height() * 0.2, width,
                       height);
    QPainterPath path(sheet.topLeft());
    path.lineTo(sheet.right() - fold, sheet.top());
    path.lineTo(sheet.right(), sheet.top() + fold);
    path.lineTo(sheet.bottomRight());
    path.lineTo(sheet.bottomLeft());
    path.closeSubpath();
    if (isCrossedOut) {
        path.moveTo(sheet.topLeft() + QPointF(-fold / 2, fold / 2));
        path.lineTo(sheet.bottomRight() + QPointF(fold / 2, -fold / 2));
    }
    painter.setPen(
        QPen(color, std::max(1.0, thumb.width() / 64), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
}

void paintNoPicture(QPainter &painter, const QRectF &thumb, const CellData &cell,
                    const StripMetrics &metrics, const PaintPalette &palette) {
    paintSheet(painter, thumb, cell.picture == CellPicture::Unsupported, palette.dimText);
    const QRectF below(thumb.left() + 2, thumb.top() + thumb.height() * 0.6, thumb.width() - 4,
                       thumb.height() * 0.36);
    painter.setFont(metrics.labelFont);
    painter.setPen(palette.dimText);
    painter.drawText(
        below, Qt::AlignHCenter | Qt::AlignTop,
        QFontMetricsF(metrics.labelFont).elidedText(cell.caption, Qt::ElideRight, below.width()));
}

void paintPicture(QPainter &painter, const QRectF &thumb, const CellData &cell,
                  const StripMetrics &metrics, const PaintPalette &palette) {
    fill(painter, thumb, palette.cell);
    if (cell.image.isNull()) {
        paintNoPicture(painter, thumb, cell, metrics, palette);
        return;
    }
    const QRectF place = picturePlace(thumb, cell.image.size(), cell.isOwnSize);
    if (cell.marks & MarkRejected)
        painter.setOpacity(rejectedOpacity);
    // Pixel by pixel where it fits, which is much faster, and sharper.
    const double pixels = place.width() * painter.device()->devicePixelRatioF();
    const bool isExact = std::abs(pixels - cell.image.width()) < 0.5;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !isExact);
    painter.drawImage(place, cell.image);
    painter.setOpacity(1);
}

void paintLabel(QPainter &painter, const QRectF &place, const CellData &cell,
                const StripMetrics &metrics, const PaintPalette &palette) {
    if (cell.label.isEmpty() || place.height() <= 0)
        return;
    painter.setFont(metrics.labelFont);
    painter.setPen(cell.selection == CellSelection::Main ? palette.text : palette.dimText);
    const QFontMetricsF font(metrics.labelFont);
    painter.drawText(place, Qt::AlignCenter,
                     font.elidedText(cell.label, Qt::ElideRight, place.width()));
}

} // namespace

QRectF picturePlace(const QRectF &thumb, const QSizeF &image, bool isOwnSize) {
    // A pixel of the empty cell stays around it, so that white pictures keep an edge.
    const QRectF room = thumb.adjusted(1, 1, -1, -1);
    QSizeF size = image;
    if (!isOwnSize || image.width() > room.width() || image.height() > room.height())
        size = image.scaled(room.size(), Qt::KeepAspectRatio);
    size = {std::max(1.0, std::round(size.width())), std::max(1.0, std::round(size.height()))};
    return {room.left() + std::floor((room.width() - size.width()) / 2),
            room.top() + std::floor((room.height() - size.height()) / 2), size.width(),
            size.height()};
}

void paintCell(QPainter &painter, const CellPlaces &places, const CellData &cell,
               const StripMetrics &metrics, const PaintPalette &palette) {
    painter.save();
    painter.setClipRect(places.cell, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing, true);
    paintSelection(painter, places, cell, palette);
    paintPicture(painter, places.thumb, cell, metrics, palette);
    if (cell.isMoving) {
        QColor veil = palette.dropTarget;
        veil.setAlphaF(static_cast<float>(1 - movingOpacity));
        fill(painter, places.thumb, veil);
    }
    paintMarks(painter, places.thumb, cell.marks, palette);
    fill(painter, places.bar, palette.folderColor(cell.colorIndex), places.bar.height() / 2);
    paintLabel(painter, places.label, cell, metrics, palette);
    painter.restore();
}

} // namespace chronomender
