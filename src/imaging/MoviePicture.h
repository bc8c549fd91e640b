// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PictureFile.h"

namespace chronomender {

/// A frame near the beginning of a movie; `wish.choice` does not matter.
UprightPicture moviePicture(const PictureFile &file, const PictureWish &wish);

} // namespace chronomender
