// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DatesData.h"
#include "TiffBlock.h"

namespace chronomender {

/// The marks of a live photo's still, from the Exif directory of an Apple camera and the maker note
/// that it points to.
LivePhotoMarks readLivePhotoMarks(const TiffBlock &block, std::uint32_t exifDirectory);

} // namespace chronomender
