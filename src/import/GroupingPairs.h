// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"

namespace chronomender {

// Which two files of one base name are one shot. Nothing is changed here.

/// `other` is the JPEG of `raw`: the same camera, as far as both name one. Dates are not compared.
/// In a folder whose embedded data are ignored any JPEG is.
bool isRawToPic(const MySinglePic &raw, const MySinglePic &other, const MySingleFolder &folder);

/// `movie` is the moving half of `still`: they carry the same content identifier, or the same
/// camera with clocks that agree. In a folder whose embedded data are ignored any movie is.
bool isLiveMovieToPic(const MySinglePic &movie, const MySinglePic &still,
                      const MySingleFolder &folder);

/// The wall clocks of a still and of a movie, both read as UTC, tell the same moment: at most 300 s
/// apart, or up to 3900 s on the two sides of a daylight-saving step.
bool isBundlingAllowedForUtcDates(Date still, Date movie);
/// The two lie around a full hour of the night as the clock is put forward or back: the still not
/// later than 05:59, minutes 59 and 0, hours equal or two apart.
bool isDstExceptionForUtcDate(Date still, Date movie);

} // namespace chronomender
