// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "QuickTimeHeader.h"

#include <cstdint>
#include <optional>

namespace chronomender {

/// What a track tells of the movie.
struct MovieTrack {
    std::uint32_t handler = 0;           ///< the kind of its media, for example kHandlerVideo
    std::int32_t width = 0, height = 0;  ///< video: as shown, in whole pixels
    bool hasLivePhotoInfo = false;       ///< timed metadata that mark a live photo
    bool isStillImageTime = false;       ///< timed metadata whose one sample is the still's moment
    std::optional<double> firstEditTime; ///< then: seconds of the movie at which the sample begins
};

/// Reads the body of a `trak`. `timeScale` is the movie's, above 0.
MovieTrack readMovieTrack(const ByteRange &track, std::uint32_t timeScale,
                          const ReadBudget &budget);

} // namespace chronomender
