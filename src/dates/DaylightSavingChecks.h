// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "Zones.h"

namespace chronomender {

/// The wall-clock text of the date in the zone stood there one hour earlier as well.
bool isAmbiguousLocalTime(Date date, const absl::TimeZone &zone);
/// The date lies within two hours of a change of the zone's offset.
bool isDSTAmbiguityAtExportPossibleForDate(Date date, const absl::TimeZone &zone);

/// Which date an export test is about: the item's main date or one slot.
enum class ExportDate { Main, Original, Digitized, Modification };
enum class DSTPreFilter { On, Off };

/// The date cannot be written as that instant: its stamp, read again, gives another one (more than
/// 10 s off). A slot with a zone stamp of its own is never in danger.
bool hasDSTAmbiguityForDate(const MySinglePic &pic, Date date, ExportDate which,
                            const absl::TimeZone &zone, DSTPreFilter preFilter);

/// Divergence and ambiguity of the stamps as read, as bit sets over `StampSlot`.
struct DSTState {
    unsigned divergence = 0, ambiguity = 0;
};
DSTState checkDSTDivergence(const MySinglePic &pic, const absl::TimeZone &zone);
/// Stores both on the item; the ambiguity only while no alternative reading is in use.
void checkImportDivergencyAndAmbiguityUsingZone(MySinglePic &pic, const absl::TimeZone &zone);
/// The stamp that the main date comes from means two instants.
bool isDateSourceAmbiguousAtImport(const MySinglePic &pic);

/// Takes the other reading: moves each ambiguous OLD slot and the main date that follows from it.
void correctAmbiguousDatesBy(MySinglePic &pic, absl::Duration difference);
/// One hour back for an item whose alternative reading is in use; nothing for others.
void reapplyAmbiguityCorrection(MySinglePic &pic);

} // namespace chronomender
