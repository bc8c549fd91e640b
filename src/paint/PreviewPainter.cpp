// SPDX-License-Identifier: GPL-3.0-or-later
#include "PreviewPainter.h"

#include <QFontMetricsF>

namespace chronomender {
namespace {

constexpr double sideShare = 0.25, sideDrop = 0.18, belowShare = 0.36;
constexpr QSizeF usualShape(3, 2); ///< of a photo
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

std::array<QRectF, 3> stackedPlaces(const QSizeF &size) {
    const double below = size.height() * belowShare, top = size.height() - below;
    const double half = size.width() / 2;
    return {QRectF(0, top, half, below), QRectF(0, 0, size.width(), top),
            QRectF(half, top, half, below)};
}

/// The two at the sides are less high: what counts is in the middle.
std::array<QRectF, 3> sideBySide(const QSizeF &size, const QFont &font) {
    const double gap = paddingOf(font), side = size.width() * sideShare - gap;
    const double drop = size.height() * sideDrop, height = size.height() - drop;
    return {QRectF(0, drop, side, height),
            QRectF(side + gap, 0, size.width() - 2 * (side + gap), size.height()),
            QRectF(size.width() - side, drop, side, height)};
}

void drawPicture(QPainter &painter, const QRectF &place, const PreviewPicture &preview,
                 const PaintPalette &palette) {
    if (!preview.image.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(fitted(preview.image.size(), place), preview.image);
        return;
    }
    if (preview.folder.isValid())
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
    const std::array<QRectF, 3> beside = sideBySide(size, font), stacked = stackedPlaces(size);
    const auto mainWidth = [&](const std::array<QRectF, 3> &places) {
        return fitted(usualShape, previewImagePlace(places[1], font)).width();
    };
    return mainWidth(stacked) > mainWidth(beside) ? stacked : beside;
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
        const QRectF drawn = preview.image.isNull() ? image : fitted(preview.image.size(), image);
        painter.fillRect(QRectF(drawn.left(), image.bottom() + bar, drawn.width(), bar),
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
