// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PictureFile.h"

namespace chronomender {

/// The smallest JPEG inside a raw file that reaches the wanted side, else the largest; NoPicture
/// without any. Found by the file's directories, without reading the rest of it.
UprightPicture rawPreview(const PictureFile &file, const PictureWish &wish);

} // namespace chronomender
