// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColorSpace>
#include <QImage>
#include <QSize>

namespace chronomender {

/// The size whose longer side has at most `side` pixels, with the proportions of `size`; never
/// larger than `size`, never empty where that is not.
QSize sizeWithSide(QSize size, int side);

/// The image in that size, in a format that is drawn without conversion.
QImage scaledToSide(const QImage &image, int side);

/// The image turned and mirrored as the Exif orientation 1 to 8 says; other numbers leave it.
QImage turnedUpright(const QImage &image, int orientation);

/// The colours as a screen without a profile shows them: sRGB. A profile that cannot be used is
/// dropped.
QImage inScreenColours(QImage image, const QColorSpace &space);

/// A thumbnail cut to the proportions of its picture: many cameras put theirs between black bars.
/// Null where that would leave far less of it than bars do, so that it shows something else.
QImage withoutBars(const QImage &thumbnail, QSize picture);

} // namespace chronomender
