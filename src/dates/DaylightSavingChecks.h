// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "StampSyntax.h"
#include "Zones.h"

#include <optional>

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

/// The main date of an item that waits for a save cannot be written as that instant in the item's
/// target zone. Asked anew each time, as every shift, undo and change of zone moves the answer.
bool hasDSTAmbiguityAtExportDatesource(const MySinglePic &pic, const MySingleFolder &folder,
                                       const Zones &zones);
/// The same as a bit set over `StampSlot`: the slot in which the type's date is written, or 0.
unsigned dstAmbiguityAtExportState(const MySinglePic &pic, const MySingleFolder &folder,
                                   const Zones &zones);

/// Divergence and ambiguity of the stamps as read, as bit sets over `StampSlot`. A slot diverges
/// whose date no longer turns back into the wall clock in the file.
struct DSTState {
    unsigned divergence = 0, ambiguity = 0;
};
DSTState checkDSTDivergence(const MySinglePic &pic, const absl::TimeZone &zone);
/// The same with the OLD dates of `slots` in place of the item's.
DSTState checkDSTDivergence(const MySinglePic &pic, const absl::TimeZone &zone,
                            const DateSlots &slots);
/// Stores both on the item; the ambiguity only while no alternative reading is in use.
void checkImportDivergencyAndAmbiguityUsingZone(MySinglePic &pic, const absl::TimeZone &zone);

/// The stamp that the main date comes from means two instants.
bool isDateSourceAmbiguousAtImport(const MySinglePic &pic);
/// Some stamp of the item does.
bool hasImportAmbiguityForMainDate(const MySinglePic &pic);
/// The date would be ambiguous as one of the item's stamps; false for items whose stamps are not
/// looked at, and without a date.
bool hasImportAmbiguityForDate(const MySinglePic &pic, const OptionalDate &date,
                               const absl::TimeZone &zone);

// The item or its dependent.
bool hasBundleDstDivergence(const MySinglePic &pic);
bool hasBundleDstAmbiguityAtImport(const MySinglePic &pic);
bool hasBundleDstAmbiguityAtExport(const MySinglePic &pic, const MySingleFolder &folder,
                                   const Zones &zones);

/// The first slot that holds a date; a tag that is to be added holds none.
std::optional<StampSlot> firstDatedSlot(const MySinglePic &pic);
/// The wall clock that the file tells for a slot; none where it tells none.
std::optional<CivilFields> wallClockInFile(const MySinglePic &pic, StampSlot slot);

/// From the later instant of a text that happens twice to the earlier.
inline constexpr absl::Duration kEarlierReading = -absl::Hours(1);
/// Takes the other reading: moves each ambiguous OLD slot and the main date that follows from it.
void correctAmbiguousDatesBy(MySinglePic &pic, absl::Duration difference);
/// One hour back for an item whose alternative reading is in use; nothing for others.
void reapplyAmbiguityCorrection(MySinglePic &pic);

} // namespace chronomender
