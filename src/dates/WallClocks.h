// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"
#include "LocatedBytes.h"

namespace chronomender {

// Whether the clocks of a still and of its movie agree. Pure functions, safe on all threads.

/// The wall clocks of a still and of a movie, both read as UTC, tell the same moment: at most 300 s
/// apart, or up to 3900 s on the two sides of a daylight-saving step.
bool isBundlingAllowedForUtcDates(Date still, Date movie);
/// The two lie around a full hour of the night as the clock is put forward or back: the still not
/// later than 05:59, minutes 59 and 0, hours equal or two apart.
bool isDstExceptionForUtcDate(Date still, Date movie);

/// The same of the recorded bytes: the still's stamp and the movie's metadata date. Zones are left
/// out of it, as a movie says its own and a still may not.
bool areStampsOfOneMoment(const Bytes &stillStamp, const Bytes &movieStamp);

} // namespace chronomender
