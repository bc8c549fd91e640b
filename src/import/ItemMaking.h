// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DateDecision.h"
#include "Zones.h"

namespace chronomender {

/// Makes the item of a photo or movie whose date is decided. Import thread: items are numbered in
/// the order in which they are made.
MySinglePicPtr makeItem(std::string name, const MySingleFolderPtr &folder, const FileRecord &record,
                        const DateDecision &decision);

/// What filling an item needs besides the item; constant while a run lasts.
struct FillContext {
    const MySingleFolder &folder;
    const Zones &zones;
    int dateComparisonThresold = 0; ///< seconds
};

/// Fills a new item from what its file gave: recorded values, slots, file dates, camera, location,
/// zone checks. Touches nothing but the item; different items may be filled at the same time.
void fillItem(MySinglePic &pic, FileRecord record, const FillContext &context);

} // namespace chronomender
