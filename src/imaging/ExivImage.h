// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exiv2/exiv2.hpp>

namespace chronomender {

/// Containers whose parser in this library writes beyond its buffers when they are damaged. The
/// library goes by content, so a photo's name does not keep them away.
inline bool isMovie(const Exiv2::Image &image) {
    return image.mimeType().starts_with("video/");
}

} // namespace chronomender
