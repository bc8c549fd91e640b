// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"

namespace chronomender {

// When a live photo was taken, to the millisecond, and when its movie begins. All are asked of the
// master, the still; items that are no live photo answer for themselves. Main thread.

/// The fraction of a second of the still's date. The field counts milliseconds, whatever its number
/// of digits.
absl::Duration subSeconds(const MySinglePic &pic);
/// The still tells a fraction; with embedded data ignored it must have its stamp, too.
bool hasSubSeconds(const MySinglePic &pic);

/// The movie's date is exact enough and stands for the still's: cameras of the thirteenth
/// generation on ("iPhone 13"), in folders that sort live photos by movie.
bool usesSimplerLPExactTime(MySinglePic &pic);

/// The stamp of the file with its fraction of a second, in UTC where it says no zone: good for the
/// order of shots of one camera, not for display. Kept in the item until it is read or saved again.
/// None for an item whose embedded data are ignored.
OptionalDate livePhotoExactTime(MySinglePic &pic);
/// The first moment of the movie; none while the place of the still in it is unknown.
OptionalDate livePhotoStartTime(MySinglePic &pic);

/// Still and movie carry the same content identifier. Both are read at import.
bool lateValidateLivePhoto(const MySinglePic &pic);

} // namespace chronomender
