// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"
#include "StampSyntax.h"

#include <cstdint>
#include <string>

namespace chronomender {

// Times in the words of people, in the loaded language.

/// "7 h", "5 h 30 min": the largest unit that the span has, and those below it, `parts` units in
/// all. The sign is left out.
std::string spanText(absl::Duration span, int parts = 2);
/// All units of a shift and its direction: "1 d 1 h 1 min 1 s later", "1 h earlier"; "" for less
/// than a second.
std::string shiftText(absl::Duration shift);
/// "27 Oct 2024"
std::string dayText(const CivilFields &fields);
/// "02:30"
std::string clockText(const CivilFields &fields);
/// "27 Oct 2024, 02:30:05"; "" for markers.
std::string dayAndTimeText(Date date, const absl::TimeZone &zone);
/// "+09:00"; with seconds where an old offset has them.
std::string offsetText(std::int64_t secondsEastOfUtc);

} // namespace chronomender
