// SPDX-License-Identifier: GPL-3.0-or-later
#include "UprightImage.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace chronomender {

QSize sizeWithSide(QSize size, int side) {
    if (std::max(size.width(), size.height()) <= side)
        return size;
    return size.scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QImage scaledToSide(const QImage &image, int side) {
    const QSize size = sizeWithSide(image.size(), side);
    const auto format =
        image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    return image.convertToFormat(format).scaled(size, Qt::IgnoreAspectRatio,
                                                Qt::SmoothTransformation);
}

QImage turnedUpright(const QImage &image, int orientation) {
    struct Turn {
        bool isMirrored; ///< left for right, before turning
        int degrees;     ///< clockwise
    };
    // CIPA DC-008, 4.6.4, tag 274.
    constexpr Turn turns[]{{false, 0},  {true, 0},   {false, 180}, {true, 180},
                           {true, 270}, {false, 90}, {true, 90},   {false, 270}};
    if (orientation < 2 || orientation > 8 || image.isNull())
        return image;
    const Turn turn = turns[orientation - 1];
    const QImage seen = turn.isMirrored ? image.mirrored(true, false) : image;
    return turn.degrees == 0 ? seen : seen.transformed(QTransform().rotate(turn.degrees));
}

QImage inScreenColours(QImage image, const QColorSpace &space) {
    const QColorSpace screen(QColorSpace::SRgb);
    if (!image.isNull() && space.isValid() && space != screen) {
        image.setColorSpace(space);
        image.convertToColorSpace(screen);
    }
    image.setColorSpace({});
    return image;
}

QImage withoutBars(const QImage &thumbnail, QSize picture) {
    constexpr double alike = 0.02, least = 0.6;
    if (thumbnail.isNull() || picture.isEmpty())
        return thumbnail;
    const double wanted = double(picture.width()) / picture.height();
    const double present = double(thumbnail.width()) / thumbnail.height();
    const double kept = std::min(wanted / present, present / wanted);
    if (kept > 1 - alike)
        return thumbnail;
    if (kept < least)
        return {};
    const QSize size =
        wanted > present ? QSize(thumbnail.width(), int(std::lround(thumbnail.width() / wanted)))
                         : QSize(int(std::lround(thumbnail.height() * wanted)), thumbnail.height());
    return thumbnail.copy((thumbnail.width() - size.width()) / 2,
                          (thumbnail.height() - size.height()) / 2, size.width(), size.height());
}

} // namespace chronomender
