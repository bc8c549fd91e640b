// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileFormatType.h"
#include "LittleHeif.h"
#include "LittlePng.h"
#include "LittleWebp.h"

namespace chronomender::little {

/// A structure with nothing but an original stamp.
inline std::string littleExif() {
    return Tiff().text(Directory::Exif, 36867, "2024:05:06 07:08:09").build().bytes;
}

/// A photo of this format; all hold the same values.
inline BuiltPhoto photoOf(FileFormatType format, const PhotoFields &fields) {
    switch (format) {
    case FileFormatHeif:
        return heifPhoto(fields);
    case FileFormatAvif:
        return heifPhoto(fields, {.brand = "avif"});
    case FileFormatRaw:
        return cr3Photo(fields);
    case FileFormatPng:
        return pngPhoto(fields);
    case FileFormatWebp:
        return webpPhoto(fields);
    case FileFormatTiff:
        return tiffPhoto(fields);
    default:
        return jpegPhoto(fields);
    }
}

} // namespace chronomender::little
