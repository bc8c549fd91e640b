// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleJpeg.h"

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <string>

// Real pictures whose corners tell which way up they are.
namespace chronomender::little {

/// Its quarters are red, green, blue and white: top left, top right, bottom left, bottom right.
inline QImage fourQuarters(int width, int height, int alpha = 255) {
    QImage image(width, height, QImage::Format_ARGB32);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const QColor colours[]{Qt::red, Qt::green, Qt::blue, Qt::white};
    for (int i = 0; i < 4; ++i) {
        QColor colour = colours[i];
        colour.setAlpha(alpha);
        painter.fillRect(i % 2 * width / 2, i / 2 * height / 2, width, height, colour);
    }
    return image;
}

/// "rgbw" for a picture that stands upright: the colours in the middle of its quarters, "?" for
/// others; "none" for no picture.
inline std::string quarters(const QImage &image) {
    if (image.isNull())
        return "none";
    std::string colours;
    for (int i = 0; i < 4; ++i) {
        const QColor colour = image.pixelColor(image.width() * (1 + i % 2 * 2) / 4,
                                               image.height() * (1 + i / 2 * 2) / 4);
        const auto is = [&](int r, int g, int b) {
            return std::max({std::abs(colour.red() - r), std::abs(colour.green() - g),
                             std::abs(colour.blue() - b)}) < 40;
        };
        colours += is(255, 0, 0)       ? 'r'
                   : is(0, 255, 0)     ? 'g'
                   : is(0, 0, 255)     ? 'b'
                   : is(255, 255, 255) ? 'w'
                                       : '?';
    }
    return colours;
}

/// The picture as a file of a format that Qt writes.
inline std::string pictureFile(const QImage &image, const char *format, int quality = 90) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format, quality);
    return bytes.toStdString();
}

/// A TIFF structure with an orientation, and a thumbnail in a second directory.
inline std::string pictureExif(unsigned orientation, const std::string &thumbnail = "") {
    constexpr std::size_t nextAt = 8 + 2 + 12;
    std::string tiff = Tiff().field(Directory::First, 274, 3, 1, orientation).build().bytes;
    if (thumbnail.empty())
        return tiff;
    const std::size_t second = tiff.size(), jpegAt = second + 2 + 2 * 12 + 4;
    tiff.replace(nextAt, 4, number(second, 4, Endian::Intel));
    const auto entry = [&](std::size_t tag, std::size_t value) {
        tiff += number(tag, 2, Endian::Intel) + number(4, 2, Endian::Intel) +
                number(1, 4, Endian::Intel) + number(value, 4, Endian::Intel);
    };
    tiff += number(2, 2, Endian::Intel);
    entry(513, jpegAt);
    entry(514, thumbnail.size());
    return tiff + number(0, 4, Endian::Intel) + thumbnail;
}

/// A camera's JPEG: `picture` as it is stored, with Exif data.
inline std::string cameraJpeg(const QImage &picture, unsigned orientation = 1,
                              const QImage &thumbnail = {}) {
    const std::string small = thumbnail.isNull() ? "" : pictureFile(thumbnail, "jpeg");
    return Jpeg().exif(pictureExif(orientation, small)).bytes() +
           pictureFile(picture, "jpeg").substr(2);
}

} // namespace chronomender::little
