// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"

#include <absl/time/time.h>

#include <optional>
#include <string_view>

namespace chronomender {

/// A shift as typed: seconds ("90", "-0.5"), or days and a clock ("+1d", "-2d3:00", "+1:02:03",
/// "-0:30"). None for anything else.
std::optional<absl::Duration> parseShift(std::string_view text);

/// What the user says about empty date tags: "leave", "file", or a date with a step.
struct EmptyTagsSpec {
    PerFolderImportOptions::EmptyTags choice = PerFolderImportOptions::EmptyTags::LeaveAlone;
    absl::CivilSecond date;               ///< wall clock of the first file
    std::optional<absl::Duration> offset; ///< east of UTC, where one was given with the date
    absl::Duration step = absl::ZeroDuration();
};

/// "leave", "file", or "YYYY-MM-DDTHH:MM[:SS]" with "Z" or "±HH:MM" behind it where the date does
/// not mean the folder's own zone, and then "+STEP" in seconds or H:MM:SS. None for anything else.
std::optional<EmptyTagsSpec> parseEmptyTags(std::string_view text);

/// The import's answer for a folder whose stamps are meant in `zone`.
PerFolderImportOptions importOptions(const EmptyTagsSpec &spec, const absl::TimeZone &zone);

} // namespace chronomender
