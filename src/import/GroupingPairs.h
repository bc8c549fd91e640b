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

} // namespace chronomender
