// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "Zones.h"

namespace chronomender {

/// The zone in which an item's stamps were meant; the system's zone where nothing is assigned.
Zone sourceTimeZoneForPic(const MySinglePic &pic, const MySingleFolder &folder, const Zones &zones);

/// The zone in which an item's stamps are to be written. For the target choice `_OWN` this is the
/// source zone: slots with a zone stamp then ask `targetZoneForSlot`.
Zone targetTimeZoneForPic(const MySinglePic &pic, const MySingleFolder &folder, const Zones &zones);

/// The zone in which one slot is to be written: with `_OWN` and a zone stamp, that stamp's fixed
/// offset.
Zone targetZoneForSlot(const MySinglePic &pic, StampSlot slot, const MySingleFolder &folder,
                       const Zones &zones);

/// A target was chosen for the item or its folder, by name or by marker.
bool hasAssignedTargetZone(const MySinglePic &pic, const MySingleFolder &folder);

/// Acts only while nothing is assigned: sets the folder's source zone; with `targetFollows` (the
/// alternative mode) the target follows it, so that saying what a clock meant changes no file.
void setTZDefaultsSource(MySingleFolder &folder, ZoneChoice source, bool targetFollows);

/// Reads every stamp of the item again from its recorded bytes, in the item's source zone, and
/// moves types that depend on the file date. True when anything the user sees changed.
bool updateAllDatesAfterUpdatingTimezone(MySinglePic &pic, const MySingleFolder &folder,
                                         const Zones &zones, int dateComparisonThresold);

/// After a save: the assignment of a written item moves from target to source.
bool updateSourceTimeZoneFromTargetTimeZoneForPic(MySinglePic &pic, MySingleFolder &folder,
                                                  const Zones &zones);
/// After a save: the folder's source is what was written, and its target follows.
void cleanupTimeZones(MySingleFolder &folder);
void updateSelectionZonesForUnchangedFiles(MySingleFolder &folder,
                                           const std::vector<MySinglePicPtr> &leftOut);
void updateSelectionZonesForTimeErrorFiles(MySingleFolder &folder,
                                           const std::vector<MySinglePicPtr> &failed);
/// Recomputes `isUnsavedDueToTZC` of every item and of the folder.
void validateTZCUnsaved(MySingleFolder &folder, const Zones &zones);
bool hasAnyTimeZoneChangeForPic(const MySinglePic &pic, const MySingleFolder &folder,
                                const Zones &zones);

} // namespace chronomender
