// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

#include <cstddef>
#include <optional>

namespace chronomender {

/// The sizes of a thumbnail: its longer side in pixels. Nothing is ever enlarged to one.
enum class ThumbSide : int { Mini = 50, Normal = 126, Maxi = 252 };

/// One item's thumbnail in the sizes that there are, and the bytes that they can be made from
/// again. A size is null where the picture does not reach it; the mini size is always there, but
/// for an entry whose decoded pictures were dropped.
struct ThumbEntry {
    QImage maxiThumb, prevThumb, miniThumb;
    QByteArray compressedData;
    QSize largestThumbSize; ///< of the picture in `compressedData`

    bool isDecoded() const { return !miniThumb.isNull(); }
    std::size_t decodedBytes() const;
};

/// Whether the largest size, which costs four times the memory, is kept.
enum class KeepMaxi : bool { No, Yes };

/// All sizes of an upright picture, and its bytes in the largest of them; a picture that is smaller
/// than the normal size is kept whole. None for an empty image. Any thread.
std::optional<ThumbEntry> setSpThumb(const QImage &image, KeepMaxi keepMaxi);
/// The same from bytes that were kept; none when they cannot be read.
std::optional<ThumbEntry> setSpThumbFromCompressedData(const QByteArray &compressedData,
                                                       KeepMaxi keepMaxi);

/// A JPEG, or without loss (TIFF with LZW) where the picture is transparent anywhere.
QByteArray compressedDataFromImage(const QImage &image);

} // namespace chronomender
