// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PaintPalette.h"
#include "Texts.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <functional>

namespace chronomender {

/// Fonts need an application; there is no screen.
inline void needApplication() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "paint_tests";
    static char *arguments[] = {name, nullptr};
    static const QGuiApplication application(count, arguments);
    loadTexts("en");
}

inline PaintPalette paletteOf(bool isDark) {
    QPalette palette;
    palette.setColor(QPalette::Window, isDark ? QColor(32, 34, 38) : QColor(240, 240, 240));
    palette.setColor(QPalette::WindowText, isDark ? Qt::white : Qt::black);
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    return paintPalette(palette, "#ff0000 #00c000");
}

/// A picture that something is drawn on, and questions about its pixels by logical places.
struct Canvas {
    QImage image;
    double scale;

    Canvas(QSizeF size, const QColor &ground, const std::function<void(QPainter &)> &draw,
           double pixelRatio = 1)
        : image((size * pixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied),
          scale(pixelRatio) {
        image.setDevicePixelRatio(scale);
        image.fill(ground);
        QPainter painter(&image);
        draw(painter);
    }
    QColor at(QPointF place) const { return image.pixelColor((place * scale).toPoint()); }
    /// The share of a place's pixels that satisfy something.
    double share(const QRectF &place, const std::function<bool(const QColor &)> &isWanted) const {
        const QRect pixels =
            QRectF(place.topLeft() * scale, place.size() * scale).toRect() & image.rect();
        int count = 0;
        for (int y = pixels.top(); y <= pixels.bottom(); ++y)
            for (int x = pixels.left(); x <= pixels.right(); ++x)
                count += isWanted(image.pixelColor(x, y));
        return pixels.isEmpty() ? 0 : double(count) / (pixels.width() * pixels.height());
    }
    double share(const QRectF &place, const QColor &color) const {
        return share(place, [&](const QColor &each) { return isNear(each, color); });
    }
    static bool isNear(const QColor &a, const QColor &b) {
        return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
                   std::abs(a.blue() - b.blue()) <
               24;
    }
};

inline double luminance(const QColor &color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}
/// As the Web Content Accessibility Guidelines measure it, 1 to 21.
inline double contrast(const QColor &a, const QColor &b) {
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace chronomender
