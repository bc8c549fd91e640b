// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PictureFile.h"

#include <QSize>

#include <string_view>

namespace chronomender {

/// Decodes a JPEG in memory at the smallest of its full, half, quarter and eighth sizes that
/// reaches `side`, and scales the rest of the way. As stored, not turned upright. A picture that
/// is cut off is shown as far as it goes.
UprightPicture decodeJpeg(std::string_view bytes, int side, const PicturePatience &patience);

} // namespace chronomender
