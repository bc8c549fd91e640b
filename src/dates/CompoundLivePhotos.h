// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "UserDefaults.h"

#include <vector>

namespace chronomender {

// Live photos taken so quickly that the movie of one runs into the next; views join their movies.
// Main thread.

enum class LivePhotoOverlap : std::uint8_t {
    None,
    Overlap,
    HdrBreaker, ///< only one of the two is an HDR picture: the shot behind it may be the neighbour
};
/// Whether the movie of `second` goes on with that of `first`: same camera, same sizes, and times
/// that meet within hundredths of a second.
LivePhotoOverlap doLivePhotosOverlap(MySinglePic &first, MySinglePic &second);

/// Chains the folder's overlapping neighbours through `compoundLivePhotoPrev` and
/// `compoundLivePhotoNext`, and cuts the chains that do not hold any more. Does nothing unless the
/// preference "shouldVisualizeOverlappingLivePhotos" is on.
void refreshCompoundLivePhotosStates(MySingleFolder &folder, const UserDefaults &defaults);
/// The same around one item of the main list. The items whose chain is another one now.
std::vector<MySinglePicPtr> refreshCompoundLivePhotosStatesFor(MySinglePic &pic,
                                                               const UserDefaults &defaults);

} // namespace chronomender
