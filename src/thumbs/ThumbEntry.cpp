// SPDX-License-Identifier: GPL-3.0-or-later
#include "ThumbEntry.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>

#include <algorithm>

namespace chronomender {

namespace {

constexpr int kJpegQuality = 75;
constexpr int kTiffLzw = 1; // as the plugin counts its compressions
/// Formats that thumbnails were ever kept in.
constexpr const char *kKeptFormats[]{"jpeg", "tiff", "png"};

int sideOf(ThumbSide side) {
    return static_cast<int>(side);
}

QImage scaledTo(const QImage &image, ThumbSide side) {
    if (std::max(image.width(), image.height()) <= sideOf(side))
        return image;
    return image.scaled(sideOf(side), sideOf(side), Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

bool isOpaque(const QImage &image) {
    for (int y = 0; image.hasAlphaChannel() && y < image.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        if (std::any_of(row, row + image.width(), [](QRgb pixel) { return qAlpha(pixel) < 255; }))
            return false;
    }
    return true;
}

/// In the format that is drawn fastest, without an alpha channel that says nothing.
QImage forDrawing(const QImage &image) {
    const QImage mixed = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return isOpaque(mixed) ? mixed.convertToFormat(QImage::Format_RGB32) : mixed;
}

QByteArray written(const QImage &image, const char *format, int compression, int quality) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, format);
    writer.setCompression(compression);
    writer.setQuality(quality);
    return writer.write(image) ? bytes : QByteArray();
}

ThumbEntry sizesOf(const QImage &image, KeepMaxi keepMaxi) {
    ThumbEntry entry;
    const int side = std::max(image.width(), image.height());
    QImage from = image;
    if (keepMaxi == KeepMaxi::Yes && side >= sideOf(ThumbSide::Maxi))
        from = entry.maxiThumb = scaledTo(from, ThumbSide::Maxi);
    if (side >= sideOf(ThumbSide::Normal))
        from = entry.prevThumb = scaledTo(from, ThumbSide::Normal);
    entry.largestThumbSize = entry.maxiThumb.isNull() ? from.size() : entry.maxiThumb.size();
    entry.miniThumb = scaledTo(from, ThumbSide::Mini);
    return entry;
}

} // namespace

std::size_t ThumbEntry::decodedBytes() const {
    return static_cast<std::size_t>(maxiThumb.sizeInBytes() + prevThumb.sizeInBytes() +
                                    miniThumb.sizeInBytes());
}

QByteArray compressedDataFromImage(const QImage &image) {
    if (!image.hasAlphaChannel())
        return written(image, "jpeg", -1, kJpegQuality);
    const QByteArray tiff = written(image, "tiff", kTiffLzw, -1);
    return tiff.isEmpty() ? written(image, "png", -1, -1) : tiff;
}

std::optional<ThumbEntry> setSpThumb(const QImage &image, KeepMaxi keepMaxi) {
    if (image.isNull())
        return std::nullopt;
    const QImage drawn = forDrawing(image);
    ThumbEntry entry = sizesOf(drawn, keepMaxi);
    const QImage &largest = entry.maxiThumb.isNull() ? entry.prevThumb : entry.maxiThumb;
    entry.compressedData = compressedDataFromImage(largest.isNull() ? drawn : largest);
    return entry;
}

std::optional<ThumbEntry> setSpThumbFromCompressedData(const QByteArray &compressedData,
                                                       KeepMaxi keepMaxi) {
    QBuffer buffer;
    buffer.setData(compressedData);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    if (std::ranges::none_of(kKeptFormats, [&](const char *kept) { return format == kept; }))
        return std::nullopt;
    const QImage image = reader.read();
    if (image.isNull())
        return std::nullopt;
    ThumbEntry entry = sizesOf(forDrawing(image), keepMaxi);
    entry.compressedData = compressedData;
    return entry;
}

} // namespace chronomender
