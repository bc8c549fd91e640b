// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleMovie.h"

namespace chronomender::little {

/// The movie of a live photo, taken at 07:08:07 UTC on 2024-05-06 by the camera of little photos,
/// with its still image 1.5 s from its beginning.
inline std::string liveMovie() {
    MovieFields half;
    half.date = "2024-05-06T07:08:07+0000";
    half.make = "Little";
    half.model = "Little One";
    half.contentIdentifier = "shot";
    half.tracks = {metadataTrack("com.apple.quicktime.still-image-time", {{900, -1}, {100, 0}})};
    return movie(half).bytes;
}

} // namespace chronomender::little
