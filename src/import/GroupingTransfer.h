// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "UserDefaults.h"
#include "Zones.h"

namespace chronomender {

// What becoming a group changes in its two items. Main thread.

/// Links the two and makes the dependent's files companions of the master: its sidecars and the
/// dependent itself count as sidecars of the master. The dependent keeps its XMP sidecar only.
void makeTheDependentImageTo(const MySinglePicPtr &dependent, const MySinglePicPtr &master);

/// Hands what a person did to the dependent to the master: marks, colour, and the shift of its own;
/// where both are shifted the master's holds. A movie becomes the moving half of a live photo.
void moveInfosFromDependentToMaster(MySinglePic &dependent, MySinglePic &master,
                                    MySingleFolder &folder);

/// One zone for both sides: the dependent's choices go to the master where it has none. Stamps are
/// read again where their zone changed.
void changeDependentAndMaster(MySinglePic &dependent, MySinglePic &master, MySingleFolder &folder,
                              const Zones &zones, int dateComparisonThresold);

} // namespace chronomender
