// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneChange.h"

#include "DateModifications.h"
#include "MovieClock.h"
#include "ZoneLookup.h"

#include <algorithm>
#include <set>
#include <utility>

namespace chronomender {
namespace {

using Kind = ZoneChoice::Kind;

bool isSourceAlone(const ZoneWish &wish) {
    return wish.source && !wish.target;
}

/// A target that is there only because the folder's source moved it along, or not at all.
bool isTargetChosen(const MySingleFolder &folder) {
    const auto &target = folder.targetTimeZones.folderDefault;
    return target && !target->is(Kind::UnchangedLeftFolder);
}

void applyToFolder(const ZoneWish &wish, MySingleFolder &folder) {
    if (wish.target)
        folder.targetTimeZones.folderDefault = wish.target;
    else if (isSourceAlone(wish) && !isTargetChosen(folder))
        folder.targetTimeZones.folderDefault = ZoneChoice::marker(Kind::UnchangedLeftFolder);
    if (wish.source)
        folder.sourceTimeZones.folderDefault = wish.source;
}

void applyToItem(const ZoneWish &wish, const MySinglePic &pic, MySingleFolder &folder) {
    if (wish.target)
        addPicWithZone(pic, *wish.target, folder.targetTimeZones);
    else if (isSourceAlone(wish) && !hasAssignedTargetZone(pic, folder))
        addPicWithZone(pic, ZoneChoice::marker(Kind::UnchangedLeft), folder.targetTimeZones);
    if (wish.source)
        addPicWithZone(pic, *wish.source, folder.sourceTimeZones);
}

/// Makes a change, and reads those items again whose source zone is another one afterwards.
template<class Change>
std::size_t changeAndReadAgain(MySingleFolder &folder, const std::vector<MySinglePicPtr> &masters,
                               const Zones &zones, int dateComparisonThresold, Change change) {
    std::vector<std::string> before;
    before.reserve(masters.size());
    for (const MySinglePicPtr &pic : masters)
        before.push_back(sourceTimeZoneForPic(*pic, folder, zones).name);
    change();
    std::vector<MySinglePicPtr> moved;
    for (std::size_t i = 0; i < masters.size(); ++i)
        if (sourceTimeZoneForPic(*masters[i], folder, zones).name != before[i])
            moved.push_back(masters[i]);
    const std::size_t changed =
        updateAllDatesAfterUpdatingTimezone(moved, folder, zones, dateComparisonThresold);
    validateTZCUnsaved(folder, zones);
    return changed;
}

/// The items a wish is about, each group once, by their folder.
using ItemsOfFolders = std::vector<std::pair<MySingleFolderPtr, std::vector<MySinglePicPtr>>>;

ItemsOfFolders mastersByFolder(const std::vector<MySinglePicPtr> &pics) {
    ItemsOfFolders result;
    std::set<const MySinglePic *> known;
    for (const MySinglePicPtr &pic : pics) {
        const MySinglePicPtr master = pic->bundleMasterImage();
        const MySinglePicPtr &item = master ? master : pic;
        const MySingleFolderPtr folder = item->spSingleRealFolder();
        if (!folder || !known.insert(item.get()).second)
            continue;
        auto found = std::ranges::find(result, folder, &ItemsOfFolders::value_type::first);
        if (found == result.end())
            found = result.insert(result.end(), {folder, {}});
        found->second.push_back(item);
    }
    return result;
}

} // namespace

std::size_t assignZones(MySingleFolder &folder, const ZoneWish &wish, const Zones &zones,
                        int dateComparisonThresold) {
    return changeAndReadAgain(folder, folder.sfPicDetails_fullArray, zones, dateComparisonThresold,
                              [&] { applyToFolder(wish, folder); });
}

std::size_t assignZones(const std::vector<MySinglePicPtr> &pics, const ZoneWish &wish,
                        const Zones &zones, int dateComparisonThresold) {
    std::size_t changed = 0;
    for (const auto &[folder, items] : mastersByFolder(pics))
        changed += changeAndReadAgain(*folder, items, zones, dateComparisonThresold,
                                      [&, &inFolder = *folder, &wanted = items] {
                                          for (const MySinglePicPtr &pic : wanted)
                                              applyToItem(wish, *pic, inFolder);
                                      });
    return changed;
}

namespace {

struct ZoneState {
    ZoneAssignments source, target;
};
bool isSame(const ZoneAssignments &a, const ZoneAssignments &b) {
    return a.folderDefault == b.folderDefault && a.ofItems == b.ofItems;
}

ZoneState zoneStateOf(const MySingleFolder &folder) {
    return {folder.sourceTimeZones, folder.targetTimeZones};
}

void registerUndo(MySingleFolder &folder, const ZoneState &before, const ZoneUndo &undo);

/// An undo's step, or a redo's: what was assigned before is assigned again, and every stamp that it
/// concerns is read again.
void restore(MySingleFolder &folder, const ZoneState &state, const ZoneUndo &undo) {
    const ZoneState before = zoneStateOf(folder);
    const auto put = [&] {
        folder.sourceTimeZones = state.source;
        folder.targetTimeZones = state.target;
    };
    changeAndReadAgain(folder, folder.sfPicDetails_fullArray, undo.zones,
                       undo.dateComparisonThresold, put);
    sfUpdatePicsFromAndTill(folder);
    registerUndo(folder, before, undo);
    undo.undo.recordAffected(folder.shared_from_this());
}

void registerUndo(MySingleFolder &folder, const ZoneState &before, const ZoneUndo &undo) {
    if (isSame(before.source, folder.sourceTimeZones) &&
        isSame(before.target, folder.targetTimeZones))
        return;
    undo.undo.registerUndo(folder.shared_from_this(), [before, undo](MySingleFolder &itself) {
        restore(itself, before, undo);
    });
    undo.undo.setActionName("assignZones_undoRedo");
}

/// Makes a change of zones in some folders, as one step.
template<class Change>
std::size_t changeUndoably(const std::vector<MySingleFolderPtr> &folders, const ZoneUndo &undo,
                           Change change) {
    const UndoGroup group(undo.undo);
    std::vector<ZoneState> before;
    before.reserve(folders.size());
    for (const MySingleFolderPtr &folder : folders)
        before.push_back(zoneStateOf(*folder));
    const std::size_t changed = change();
    for (std::size_t i = 0; i < folders.size(); ++i)
        registerUndo(*folders[i], before[i], undo);
    return changed;
}

} // namespace

std::size_t assignZones(const std::vector<MySingleFolderPtr> &folders, const ZoneWish &wish,
                        const ZoneUndo &undo) {
    return changeUndoably(folders, undo, [&] {
        std::size_t changed = 0;
        for (const MySingleFolderPtr &folder : folders) {
            changed += assignZones(*folder, wish, undo.zones, undo.dateComparisonThresold);
            sfUpdatePicsFromAndTill(*folder);
        }
        return changed;
    });
}

std::size_t assignZones(const std::vector<MySinglePicPtr> &pics, const ZoneWish &wish,
                        const ZoneUndo &undo) {
    return changeUndoably(foldersOf(pics), undo, [&] {
        const std::size_t changed =
            assignZones(pics, wish, undo.zones, undo.dateComparisonThresold);
        updateFolderRanges(pics);
        return changed;
    });
}

std::size_t changeMovieClock(MySingleFolder &folder, bool isLocal, const ZoneUndo &undo) {
    const bool wasLocal = folder.isQuicktimeMVHDTimezoneCorrectionEnabled;
    const std::size_t changed = setQuicktimeMVHDTimezoneCorrection(folder, isLocal, undo.zones,
                                                                   undo.dateComparisonThresold);
    sfUpdatePicsFromAndTill(folder);
    if (wasLocal == isLocal)
        return changed;
    undo.undo.registerUndo(folder.shared_from_this(), [wasLocal, undo](MySingleFolder &itself) {
        changeMovieClock(itself, wasLocal, undo);
        undo.undo.recordAffected(itself.shared_from_this());
    });
    undo.undo.setActionName("movieClock_undoRedo");
    return changed;
}

} // namespace chronomender
