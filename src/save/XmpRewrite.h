// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"
#include "XmpData.h"

#include <optional>
#include <string>

namespace chronomender {

/// An XMP stamp as it would tell another date, and what the reader would make of that.
struct RewrittenStamp {
    std::string text;         ///< the whole stamp
    OptionalDate readBack;    ///< none where it would be another form, or no stamp at all
    bool isWanted = false;    ///< it reads back as the date, cut to what the form can say
    bool isAmbiguous = false; ///< a wall clock that means two instants, and is read as the other
    std::string zoneChange;   ///< "+02:00 → +00:00"; "" when the offset stays
};

/// Builds the stamp in its own form: one in UTC stays in UTC, one with an offset tells that of
/// `zone` in the old width, a local one the wall clock of `zone`. `subtype` is the stamp's, or the
/// same with seconds. What stands between date and offset stays. Read back by the reader's own
/// parser; none where the form cannot say the date.
///
///     "2024-05-06T07:08:09.5+0200" to 2024-05-06 06:00 UTC in Asia/Kolkata:
///     "2024-05-06T11:30:00.5+0530"
std::optional<RewrittenStamp> rewrittenStamp(const XmpStamp &stamp, Date date,
                                             const absl::TimeZone &zone, unsigned subtype);

/// What a stamp with an offset of its own is to tell beside a tag that has a wall clock only: that
/// clock, with the stamp's offset. The tag's date was read in `tagZone`, which nobody may have
/// named.
Date dateBesideWallClock(Date date, const absl::TimeZone &tagZone, const absl::TimeZone &own);

/// The stamp's own offset as a zone; none for a stamp in UTC or without one.
std::optional<absl::TimeZone> ownZone(const XmpStamp &stamp);

/// Characters of the offset at the stamp's end; 0 for a stamp without one.
std::size_t xmpOffsetLength(const XmpStamp &stamp);

} // namespace chronomender
