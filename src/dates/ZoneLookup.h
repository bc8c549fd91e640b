// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ZoneSides.h"
#include "Zones.h"

namespace chronomender {

/// What an item or, failing that, its folder says about its zone; null when neither says anything.
/// The two sides of a group share one choice.
const ZoneChoice *choiceForPic(const MySinglePic &pic, ZoneSide side);
const ZoneChoice *choiceForPicIgnoringDefault(const MySinglePic &pic, ZoneSide side);
/// Gives the item (for a dependent: its master) a choice of its own, or takes it away.
void addPicWithZone(const MySinglePic &pic, ZoneChoice choice, ZoneAssignments &assignments);
void removePic(const MySinglePic &pic, ZoneAssignments &assignments);
void removePicFromAllZones(const MySinglePic &pic, MySingleFolder &folder);
/// Carries the choices of a new dependent over to its master, unless the master has its own. True
/// when one of the two has a source zone of its own, so that the other's stamps must be read again.
bool moveTimeZoneInfosFromDependentToMaster(const MySinglePic &dependent, const MySinglePic &master,
                                            MySingleFolder &folder);
/// Before an item goes to another folder: it keeps the zones that hold for it here, as choices of
/// its own where the other folder's differ. In a folder that ignores metadata it has none. A
/// dependent goes with its master.
void moveTimeZoneInfosForPic(const MySinglePic &pic, MySingleFolder &from, MySingleFolder &to);

// The look-ups go by a folder's choices or by those of a pending change. The zones below are
// references into these choices or into `zones`: good until either changes.

/// The zone in which an item's stamps were meant; the system's zone where nothing is assigned.
const Zone &sourceTimeZoneForPic(const MySinglePic &pic, const ZoneSides &sides,
                                 const Zones &zones);

/// The zone in which an item's stamps are to be written. For the target choice `_OWN` this is the
/// source zone: slots with a zone stamp then ask `targetZoneForSlot`.
const Zone &targetTimeZoneForPic(const MySinglePic &pic, const ZoneSides &sides,
                                 const Zones &zones);
const Zone &targetTimeZoneForPicWithKnownSourceZone(const MySinglePic &pic, const ZoneSides &sides,
                                                    const Zone &sourceZone, const Zones &zones);

/// The zone in which one slot was read: the fixed offset of its zone stamp or XMP stamp, else the
/// item's source zone.
Zone sourceZoneForSlot(const MySinglePic &pic, StampSlot slot, const ZoneSides &sides,
                       const Zones &zones);

/// The zone in which one slot is to be written: with `_OWN` and a zone stamp, that stamp's fixed
/// offset.
Zone targetZoneForSlot(const MySinglePic &pic, StampSlot slot, const ZoneSides &sides,
                       const Zones &zones);

/// The same for a movie's metadata date: UTC where its form says so by a letter.
Zone targetZoneForMetaDate(const MySinglePic &pic, const ZoneSides &sides, const Zones &zones);

/// A target was chosen for the item or its folder: a zone, the system's zone, the source or `_OWN`.
/// A target that merely follows the folder's source was chosen by nobody.
bool hasAssignedTargetZone(const MySinglePic &pic, const ZoneSides &sides);

/// Acts only while nothing is assigned: sets the folder's source zone; with `targetFollows` (the
/// alternative mode) the target follows it, so that saying what a clock meant changes no file.
void setTZDefaultsSource(MySingleFolder &folder, ZoneChoice source, bool targetFollows);

/// What a folder says for items without a choice of their own.
struct TimeZoneDefaults {
    Zone source, target;
};
/// The system's zone where nothing is chosen for the source; the source where the target follows it
/// or names no zone.
TimeZoneDefaults changedTimeZoneDefaults(const MySingleFolder &folder, const Zones &zones);
/// The folder's source zone; null for the system's.
const Zone *changedSourceTimeZoneForAllPics(const MySingleFolder &folder);
/// The item's source or target is another zone than the system's; with `defaults`, zones equal to
/// the entry of the same side are passed over.
bool hasAnyTimeZoneChangeForPic(const MySinglePic &pic, const ZoneSides &sides, const Zones &zones,
                                const TimeZoneDefaults *otherThanDefaults = nullptr);

/// Reads every stamp of the item again from its recorded bytes, in the item's source zone, and
/// moves types that depend on the file date. True when anything the user sees changed.
bool updateAllDatesAfterUpdatingTimezone(MySinglePic &pic, const MySingleFolder &folder,
                                         const Zones &zones, int dateComparisonThresold);
/// The same for items of one folder, each group once, on all processors while the caller waits.
/// The number of items where anything changed.
std::size_t updateAllDatesAfterUpdatingTimezone(const std::vector<MySinglePicPtr> &pics,
                                                const MySingleFolder &folder, const Zones &zones,
                                                int dateComparisonThresold);
/// The same in a given zone: after a save, while the folder's default has not moved yet.
bool updateAllDatesAfterUpdatingTimezoneUsingTimeZone(MySinglePic &pic, const Zone &sourceZone,
                                                      const MySingleFolder &folder,
                                                      const Zones &zones,
                                                      int dateComparisonThresold);
/// The same as a pending change would have it.
bool updateAllDatesAfterUpdatingTimezoneUsingZoneProvider(MySinglePic &pic,
                                                          const ZoneProvider &provider,
                                                          const MySingleFolder &folder,
                                                          const Zones &zones,
                                                          int dateComparisonThresold);

/// After a save: the assignment of a written item moves from target to source. True when the two
/// zones differed.
bool updateSourceTimeZoneFromTargetTimeZoneForPic(MySinglePic &pic, MySingleFolder &folder,
                                                  const Zones &zones);
/// After a save: the folder's source is what was written, and its target follows.
void cleanupTimeZones(MySingleFolder &folder);
/// Before cleanupTimeZones: items that were left out, and items whose save failed or was not
/// reached, keep the zones that held for them.
void updateSelectionZonesForUnchangedFiles(MySingleFolder &folder,
                                           const std::vector<MySinglePicPtr> &leftOut);
void updateSelectionZonesForTimeErrorFiles(MySingleFolder &folder,
                                           const std::vector<MySinglePicPtr> &failed);
/// Recomputes `isUnsavedDueToTZC` of the item and its dependent; of every item and of the folder.
void validateTZCUnsavedForPic(MySinglePic &pic, const ZoneSides &sides, const Zones &zones);
void validateTZCUnsaved(MySingleFolder &folder, const Zones &zones);
/// A zone other than the system's holds for an item of the folder, or would for one without a
/// choice of its own.
bool isFolderAffectedByTZC(const MySingleFolder &folder, const Zones &zones);

} // namespace chronomender
