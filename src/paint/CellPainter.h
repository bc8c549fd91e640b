// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CellMarks.h"
#include "MySingleFolder.h"
#include "StripMetrics.h"

#include <QImage>
#include <QString>

namespace chronomender {

enum class CellPicture : std::uint8_t {
    Ready,
    Pending,     ///< it is being made; `image` may hold a smaller one meanwhile
    Unsupported, ///< there will be none
};
enum class CellSelection : std::uint8_t { None, Member, Main };

/// All that is drawn of one item.
struct CellData {
    QImage image; ///< upright; null where there is none
    CellPicture picture = CellPicture::Pending;
    bool isOwnSize = false; ///< the picture is that small, and is not drawn larger
    QString caption;        ///< in place of a picture: what kind of file it is ("JPG")
    std::uint16_t colorIndex = noColorIndex;
    bool isInDrawer = false; ///< it is of the selected folder
    CellSelection selection = CellSelection::None;
    bool hasCursor = false; ///< keys go from here
    bool isMoving = false;  ///< a drag moves it
    CellMarks marks = 0;
    QString label; ///< its time
};

/// Draws the cell, and nothing outside of it.
void paintCell(QPainter &painter, const CellPlaces &places, const CellData &cell,
               const StripMetrics &metrics, const PaintPalette &palette);
/// Where a picture of this size stands in a thumbnail.
QRectF picturePlace(const QRectF &thumb, const QSizeF &image, bool isOwnSize);

} // namespace chronomender
