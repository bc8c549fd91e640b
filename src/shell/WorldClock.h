// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MyCompoundFolder.h"
#include "ZoneChange.h"

#include <string>
#include <vector>

namespace chronomender {

/// What zones are chosen for: whole folders, or single items as exceptions from theirs.
struct ZoneSubject {
    std::vector<MySingleFolderPtr> folders;
    std::vector<MySinglePicPtr> items; ///< not empty: these alone
    MySinglePicPtr mainPic;            ///< of the strip; null for none

    bool isOfItems() const { return !items.empty(); }
    /// All items that it is about; folder after folder.
    std::vector<MySinglePicPtr> allPics() const;
};

/// The target that follows whatever the source is: nothing is written for its sake.
ZoneChoice sameAsCamera(const ZoneSubject &subject);
/// What holds now, and whether it is mixed; all kinds of "same as the source" are `sameAsCamera`,
/// and so is a target that nobody chose while the source is the system's zone as well.
Combined<ZoneChoice> presentSource(const ZoneSubject &subject);
Combined<ZoneChoice> presentTarget(const ZoneSubject &subject);

/// The items whose times show what a choice does: the first, the main and the last one, each once.
struct ClockItems {
    std::vector<MySinglePicPtr> pics;
    std::vector<const char *> titleKeys; ///< "zones_firstItem"…, one for each

    /// Where the list of zones takes its offsets from: the first item's date; none without items.
    OptionalDate date() const;
};
ClockItems clockItems(const ZoneSubject &subject);

struct ClockCell {
    std::string words;    ///< "2024-10-27 12:00:00 +02:00"
    bool isOther = false; ///< the choice tells it otherwise than what holds now
};
struct ClockRow {
    std::string title;            ///< of the clock
    std::string zoneName;         ///< where it is; "" where the items have several
    std::vector<ClockCell> cells; ///< one for each item
};
/// The items' times as they would be after a choice of zones, told by four clocks: the camera's,
/// the one that the files would be written by, this computer's, and UTC. The items stay as they
/// are: copies get the choice in the way that a change would give it. Main thread.
std::vector<ClockRow> worldClock(const ClockItems &items, const ZoneSubject &subject,
                                 const ZoneWish &wish, const Zones &zones,
                                 int dateComparisonThresold);

} // namespace chronomender
