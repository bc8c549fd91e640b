// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PictureFile.h"

namespace chronomender {

/// The primary picture of a HEIF or AVIF file, or its thumbnail.
UprightPicture heifPicture(const PictureFile &file, const PictureWish &wish);

} // namespace chronomender
