// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FilterKeys.h"
#include "PaintPalette.h"

#include <QRectF>

#include <cstdint>

class QPainter;

namespace chronomender {

/// What the small signs on a thumbnail tell of its item and the other half of its group.
enum CellMark : std::uint16_t {
    MarkKeeper = 1U << 0U,
    MarkRejected = 1U << 1U,
    MarkClockDanger = 1U << 2U, ///< the clocks' going forward or back makes its date doubtful
    MarkAlert = 1U << 3U,       ///< something else about its date deserves a second look
    MarkError = 1U << 4U,       ///< a save or a rename failed, or the file is another one now
    MarkMissing = 1U << 5U,     ///< the file was not found
    MarkUnsaved = 1U << 6U,
    MarkRawAndJpeg = 1U << 7U,
    MarkLivePhoto = 1U << 8U,
    MarkMovie = 1U << 9U,
};
using CellMarks = std::uint16_t;

CellMarks cellMarks(const MySinglePic &pic, const FilterContext &context);

/// The signs in the corners of a thumbnail: ratings, what is wrong, what it is, what is unsaved.
void paintMarks(QPainter &painter, const QRectF &thumb, CellMarks marks,
                const PaintPalette &palette);
/// Where a sign stands when it is the only one.
QRectF markPlace(const QRectF &thumb, CellMark mark);

} // namespace chronomender
