// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "EmptyTagAnswers.h"
#include "FileRecord.h"
#include "SpType.h"

#include <optional>

namespace chronomender {

/// The main date of a photo or a movie, and where it comes from.
struct DateDecision {
    SpType type{};
    Date date;
    bool hasEmptyTags = false; ///< the folder's empty-tag answer was asked for
    bool isLeftAlone = false;  ///< and it says to leave such files as they are
};

/// Decides a photo's main date. None when there is no date at all: such a file is not imported.
/// Stamps without a zone are read in `systemZone`. Import thread, file after file, since a sequence
/// of fixed dates follows the order.
///
/// The sixteen rules of a photo's way into a folder, and the functions that they are:
///
///      1  what is read from which format                    readFileRecord
///      2  the three stamps of the tags                      takeStamps
///      3  XMP in place of missing stamps                    readFileRecord
///      4  a readable original stamp is the date             takeOriginalStamp
///      5  else the digitized, else the modification stamp   takeOtherStamps
///      6  stamps that are all empty ask the folder          askAboutEmptyTags
///      7  without a stamp the date stays open               (as it is)
///      8  dates from XMP take over                          takeXmpDate
///      9  embedded data ignored: no date at all             ignoreEmbeddedDates
///     10  an open date is the file's                        takeFileDate
///     11  or the next of the folder's fixed dates           takeFixedDate
///     12  still open: not imported                          result
///     13  the item and what the file gave it                makeItem, fillItem
///     14  zones and ambiguous hours                         fillItem
///     15  finished items join the folder                    ImportOutcome::items
///     16  camera and size are completed late                completeItem
std::optional<DateDecision> decideDate(const FileRecord &record, EmbeddedData embedded,
                                       EmptyTagAnswers &answers, const absl::TimeZone &systemZone);

} // namespace chronomender
