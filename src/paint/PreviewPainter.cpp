// SPDX-License-Identifier: GPL-3.0-or-later
#include "PreviewPainter.h"

#include <QFontMetricsF>

namespace chronomender {
namespace {

constexpr double sideShare = 0.25, belowShare = 0.34;
constexpr int captionLines = 3;

double paddingOf(const QFont &font) {
    return QFontMetricsF(font).height() * 0.5;
}

double captionHeight(const QFont &font) {
    return captionLines * QFontMetricsF(font).height() + paddingOf(font);
}

QRectF fitted(const QSizeF &image, const QRectF &place) {
    const QSizeF size = image.scaled(place.size(), Qt::KeepAspectRatio);
    return {place.center().x() - size.width() / 2, place.center().y() - size.height() / 2,
            size.width(), size.height()};
}

void drawPicture(QPainter &painter, const QRectF &place, const PreviewPicture &preview,
                 const PaintPalette &palette) {
    if (!preview.image.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(fitted(preview.image.size(), place), preview.image);
        return;
    }
    painter.fillRect(place, palette.cell);
    painter.setPen(palette.dimText);
    const double margin = QFontMetricsF(painter.font()).height();
    painter.drawText(place.adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, preview.placeholder);
}

void drawCaption(QPainter &painter, QRectF line, const PreviewPicture &preview, const QFont &font,
                 const PaintPalette &palette) {
    QFont bold = font;
    bold.setBold(true);
    const struct {
        const QString &words;
        const QFont &font;
        QColor color;
        Qt::TextElideMode elide;
    } lines[]{{preview.name, bold, palette.text, Qt::ElideMiddle},
              {preview.date, font, palette.text, Qt::ElideRight},
              {preview.distance, bold, palette.mainSelection, Qt::ElideRight}};
    for (const auto &each : lines) {
        painter.setFont(each.font);
        painter.setPen(each.color);
        painter.drawText(line, Qt::AlignHCenter | Qt::AlignVCenter,
                         QFontMetricsF(each.font).elidedText(each.words, each.elide, line.width()));
        line.translate(0, line.height());
    }
}

} // namespace

std::array<QRectF, 3> previewPlaces(const QSizeF &size, const QFont &font) {
    const double gap = paddingOf(font);
    if (size.height() > size.width()) {
        const double below = size.height() * belowShare, top = size.height() - below;
        const double half = size.width() / 2;
        return {QRectF(0, top, half, below), QRectF(0, 0, size.width(), top),
                QRectF(half, top, half, below)};
    }
    const double side = size.width() * sideShare - gap;
    // The two at the sides stand a little lower in the order of things, and so are less high.
    const double drop = size.height() * 0.18;
    return {QRectF(0, drop, side, size.height() - drop),
            QRectF(side + gap, 0, size.width() - 2 * (side + gap), size.height()),
            QRectF(size.width() - side, drop, side, size.height() - drop)};
}

QRectF previewImagePlace(const QRectF &cell, const QFont &font) {
    const double padding = paddingOf(font);
    return cell.adjusted(padding, padding, -padding, -captionHeight(font) - padding);
}

void paintPreview(QPainter &painter, const QRectF &cell, const PreviewPicture &preview,
                  const QFont &font, const PaintPalette &palette) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    const QRectF image = previewImagePlace(cell, font);
    if (image.width() > 0 && image.height() > 0)
        drawPicture(painter, image, preview, palette);
    if (preview.folder.isValid()) {
        const double line = QFontMetricsF(font).height(), bar = line / 4;
        painter.fillRect(QRectF(image.left(), image.bottom() + bar, image.width(), bar),
                         preview.folder);
        drawCaption(painter, {image.left(), image.bottom() + 2.5 * bar, image.width(), line},
                    preview, font, palette);
    }
    if (preview.hasCursor || preview.isHovered) {
        painter.setPen(QPen(palette.selection, preview.hasCursor ? 2 : 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(cell.adjusted(1, 1, -1, -1), 4, 4);
    }
    painter.restore();
}

} // namespace chronomender
