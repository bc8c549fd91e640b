// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CameraExif.h"

#include <optional>
#include <string>
#include <string_view>

namespace chronomender::tools {

// Files of other containers around what a camera records. They hold everything that a program reads
// for dates, places and camera; HEIC, WebP and the movies have filler instead of a picture.

/// A Canon CR3: `CMT1`, `CMT2` and `CMT4` in the Canon box, and `body` as media data.
std::string cr3Of(const CameraRecord &record, std::string_view body);

/// A HEIC file with one Exif item.
std::string heicOf(const CameraRecord &record, std::string_view body);

/// A PNG with an `eXIf` chunk before the image data, which comes in chunks of 8 KiB.
std::string pngOf(const CameraRecord &record, std::string_view body);

/// A WebP with an `EXIF` chunk behind the image data.
std::string webpOf(const CameraRecord &record, std::string_view body);

/// A movie whose `moov` stands behind the media data. The header times are UTC; with a zone stamp
/// in the record, the metadata keys hold its date, make and model.
std::string movieOf(const CameraRecord &record, std::string_view majorBrand, std::string_view body);

/// An AVI of one picture, a JPEG stream, with `IDIT` and `ISFT`.
std::string aviOf(const CameraRecord &record, std::string_view jpeg);

} // namespace chronomender::tools
