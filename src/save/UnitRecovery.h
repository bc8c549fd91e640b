// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "IntentRecord.h"

#include <functional>
#include <span>
#include <vector>

namespace chronomender {

/// Brings the files of one unit to a whole state, all new or all old, and tells of each. Nothing is
/// written before every value of the unit is proved to be old, new or torn between the two at one
/// place; each is proved again right before it is written. It may be interrupted anywhere and done
/// again. A unit that cannot be worked on tells the same of all its files. With TakeBack all is old
/// again, unless the tool has put a file in the place of another already.
///
/// `resumed`: when each recovery of this record began so far. `beforeWriting` is called before
/// anything is written.
std::vector<RecoveredFile> recoverUnit(const RecordedUnit &recorded, std::span<const Date> resumed,
                                       FileLayer &files, RecoveryDirection direction,
                                       const std::function<void()> &beforeWriting);

/// The number of a file is the same after its medium was taken out or the system started again;
/// false where the file system of the open descriptor makes numbers up when it looks at a file.
bool hasLastingInodes(int descriptor);

} // namespace chronomender
