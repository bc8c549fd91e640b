// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"
#include "StampSyntax.h"
#include "XmpData.h"

#include <cstdint>
#include <optional>
#include <string>

namespace chronomender {

// XMP stamps to instants and back. Pure functions, safe on all threads.

/// The instant of a stamp, in whole seconds; a stamp with a zone of its own does not ask `zone`.
/// None without a stamp (null), and for one that is no date.
OptionalDate xmpDateFromStampInfos(const XmpStamp *stamp, const absl::TimeZone &zone);

/// The wall clock that a stamp tells, in its own zone if it has one; second 0 without seconds.
std::optional<CivilFields> wallClockOfXmpStamp(const XmpStamp *stamp);
/// The offset that a stamp tells; none for a wall clock and for null.
std::optional<std::int32_t> secondsFromXmpStamp(const XmpStamp *stamp);

/// A stamp as the packet writes it: a local one as the wall clock of `zone`, any other with the
/// offset of `zone` behind it; by the bits of `subtype` without seconds or without the colon. None
/// for markers and for what the form cannot say.
///
///     subtype 0                        "2024-05-06T07:08:09+02:00"
///     kXmpWithoutSeconds, local        "2024-05-06T07:08"
std::optional<std::string> xmpTimeStampFromDate(Date date, const absl::TimeZone &zone,
                                                bool isLocalStamp, unsigned subtype);
/// The reverse: a text of exactly that form, in `zone` where it is local.
OptionalDate dateFromXmpTimeStamp(std::string_view text, const absl::TimeZone &zone,
                                  bool isLocalStamp, unsigned subtype);

} // namespace chronomender
