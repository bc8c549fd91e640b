// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "EmptyTagAnswers.h"
#include "FileRecord.h"
#include "SpType.h"

#include <optional>

namespace chronomender {

/// The main date of a photo, and where it comes from.
struct DateDecision {
    SpType type{};
    Date date;
    bool hasEmptyTags = false; ///< the folder's empty-tag answer was asked for
    bool isLeftAlone = false;  ///< and it says to leave such files as they are
};

/// Decides a photo's main date: the first readable stamp of original, digitized and modification;
/// for tags that are all empty what the folder's answer says; without any tag the file's date. None
/// when there is no date at all: such a file is not imported. Stamps without a zone are read in
/// `systemZone`. Import thread, file after file, since a sequence of fixed dates follows the order.
std::optional<DateDecision> decideDate(const FileRecord &record, EmbeddedData embedded,
                                       EmptyTagAnswers &answers, const absl::TimeZone &systemZone);

} // namespace chronomender
