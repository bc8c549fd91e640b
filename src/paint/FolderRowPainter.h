// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PaintPalette.h"

#include <QFont>
#include <QPainter>
#include <QString>

#include <vector>

namespace chronomender {

/// A line of a row, of one or more parts that are drawn with a dot between them.
struct PaintedPart {
    QString words;
    QColor color;
};
using PaintedLine = std::vector<PaintedPart>;

/// All that is drawn of one folder in a list.
struct FolderRowPicture {
    QColor swatch;
    QString name, count; ///< the first line, at its two ends
    std::vector<PaintedLine> lines;
    bool isUnsaved = false, isDimmed = false, isSelected = false, hasCursor = false;
};

/// Height of a row; its lines are cut at its width and never break.
int folderRowHeight(const FolderRowPicture &row, const QFont &font);
void paintFolderRow(QPainter &painter, const QRectF &place, const FolderRowPicture &row,
                    const QFont &font, const PaintPalette &palette);

} // namespace chronomender
