// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileFormatType.h"
#include "PictureFile.h"

namespace chronomender {

/// The picture of a PNG, GIF, WebP or TIFF file, of which only the first one is looked at.
UprightPicture qtPicture(PictureFile &file, FileFormatType format, const PictureWish &wish);

} // namespace chronomender
