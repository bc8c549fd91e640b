// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PictureFile.h"

namespace chronomender {

/// The preview inside a raw file, or its sensor's picture at half the size, roughly developed.
UprightPicture rawPicture(const PictureFile &file, const PictureWish &wish);

} // namespace chronomender
