// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySinglePic.h"

namespace chronomender {

/// Takes the main date again from the OLD slot that the item's type names, else from the file's
/// creation date. Without a date there it stays.
void updateMainDate(MySinglePic &pic);

/// A modification stamp lies after the file's creation date by more than the threshold (seconds),
/// and the item's type lets the file date win then.
bool isSourceMetaModAndYoungerThanFileCrea(const MySinglePic &pic, Date date,
                                           int dateComparisonThresold);

/// The picture's GPS instant from its recorded GPS stamps; a missing half is taken from the given
/// creation date. None without a base or with a time out of range.
OptionalDate updatedGpsDateWithCreationDate(const MySinglePic &pic,
                                            const OptionalDate &creationDate);
void updateGpsDateWithCreationDate(MySinglePic &pic, const OptionalDate &creationDate);

/// Whole seconds between the GPS instant and a date; 0 when at most 300, and without a GPS instant.
std::int64_t differenceFromGPSDateToDate(const MySinglePic &pic, Date date);

} // namespace chronomender
