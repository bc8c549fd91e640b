// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PictureFile.h"

namespace chronomender {

/// The picture of a JPEG file, or the thumbnail of its Exif data.
UprightPicture jpegPicture(PictureFile &file, const PictureWish &wish);

} // namespace chronomender
