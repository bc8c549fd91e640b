// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PaintPalette.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QString>

#include <array>

namespace chronomender {

/// All that is drawn of one shot: its picture, and below it what it is and when it was taken.
struct PreviewPicture {
    QImage image;        ///< null where there is none (yet)
    QString placeholder; ///< in place of a picture: that it is being made, or why there is none
    QColor folder;       ///< of the bar above the words; invalid: there is no shot
    QString name, date, distance;
    bool isMain = false;
    bool isHovered = false, hasCursor = false;
};

/// Where the shots before, in the middle and after stand: side by side, or the two below the main
/// one, whichever shows that one larger.
std::array<QRectF, 3> previewPlaces(const QSizeF &size, const QFont &font);
/// Where the picture itself stands in its cell.
QRectF previewImagePlace(const QRectF &cell, const QFont &font);
void paintPreview(QPainter &painter, const QRectF &cell, const PreviewPicture &preview,
                  const QFont &font, const PaintPalette &palette);

} // namespace chronomender
