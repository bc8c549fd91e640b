// SPDX-License-Identifier: GPL-3.0-or-later
#include "DelayedImports.h"

#include "DateModifications.h"
#include "NaturalCompare.h"

#include <QCollator>

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

namespace chronomender {

namespace {

bool waits(const std::vector<MySingleFolderPtr> &folders, const MySingleFolder &folder) {
    return std::ranges::find(folders, &folder, &MySingleFolderPtr::get) != folders.end();
}

/// By name, and equal names by the path of their folder.
void sortAsShown(std::vector<MySinglePicPtr> &items) {
    struct Keyed {
        QCollatorSortKey name, folder;
        MySinglePicPtr pic;
    };
    const NaturalCompare order;
    std::map<const MySingleFolder *, QCollatorSortKey> folderKeys;
    std::vector<Keyed> keyed;
    keyed.reserve(items.size());
    for (MySinglePicPtr &pic : items) {
        const MySingleFolderPtr folder = pic->spSingleRealFolder();
        auto folderKey = folderKeys.find(folder.get());
        if (folderKey == folderKeys.end())
            folderKey =
                folderKeys
                    .emplace(folder.get(), order.sortKey(folder ? folder->sfFolderPath() : ""))
                    .first;
        const QCollatorSortKey name = order.sortKey(pic->spName);
        keyed.push_back({name, folderKey->second, std::move(pic)});
    }
    std::ranges::stable_sort(keyed, [](const Keyed &a, const Keyed &b) {
        const int compared = a.name.compare(b.name);
        return compared != 0 ? compared < 0 : a.folder.compare(b.folder) < 0;
    });
    std::ranges::transform(keyed, items.begin(), [](Keyed &each) { return std::move(each.pic); });
}

bool hasFixedDate(SpType type) {
    return isInRange(type, SpTypeEmptyOriginalFixedDate, SpTypeEmptyTiffFixedDate) ||
           type == SpTypeMovieEmptyFixedDate;
}

/// Items whose tags are empty but for the modification date, and movies with empty header times,
/// take a date of the sequence as the one that they came with.
bool takesDateDirectly(SpType type) {
    return type == SpTypeEmptyTiffFixedDate || type == SpTypeMovieEmptyFixedDate;
}

/// A folder with one shift for all can only take part while nothing else was changed in it.
bool isTakingDates(const MySinglePic &pic, const MySingleFolder &folder, bool wasUnsaved) {
    const bool mayChange =
        folder.sfEditMode == EditMode::Single || hasFixedDate(pic.spType) || !wasUnsaved;
    return mayChange && !folder.isEXIFIgnored && !pic.importState.isLeftAlone &&
           pic.hasCorrectableDate();
}

void takeDate(MySinglePic &pic, MySingleFolder &folder, Date date) {
    if (takesDateDirectly(pic.spType)) {
        pic.spDateTimeOriginal = date;
        return;
    }
    if (folder.sfEditMode == EditMode::Together)
        changeEditMode(folder, EditMode::Single);
    updateSinglePicModificationBy(pic, date - pic.spDateTimeModified());
}

} // namespace

std::vector<DelayedImports::Drop>::iterator DelayedImports::find(const MySingleFolder &folder) {
    return std::ranges::find_if(m_drops,
                                [&](const Drop &drop) { return waits(drop.waiting, folder); });
}

std::vector<DelayedImports::Drop>::const_iterator
DelayedImports::find(const MySingleFolder &folder) const {
    return std::ranges::find_if(m_drops,
                                [&](const Drop &drop) { return waits(drop.waiting, folder); });
}

void DelayedImports::addDrop(const DateSequence &sequence,
                             const std::vector<MySingleFolderPtr> &folders) {
    Drop drop{sequence, {}, {}, {}};
    for (const MySingleFolderPtr &folder : folders)
        if (!isDelayed(*folder))
            drop.folders.push_back(folder);
    drop.waiting = drop.folders;
    if (!drop.folders.empty())
        m_drops.push_back(std::move(drop));
}

void DelayedImports::addDelayer(const MySingleFolderPtr &folder, const MySingleFolder &present) {
    const auto drop = find(present);
    if (drop == m_drops.end() || isDelayed(*folder))
        return;
    drop->folders.push_back(folder);
    drop->waiting.push_back(folder);
}

void DelayedImports::hold(const MySingleFolder &folder, const std::vector<MySinglePicPtr> &items) {
    if (const auto drop = find(folder); drop != m_drops.end())
        drop->items.insert(drop->items.end(), items.begin(), items.end());
}

void DelayedImports::removeDelayer(const MySingleFolder &folder) {
    const auto drop = find(folder);
    if (drop == m_drops.end())
        return;
    std::erase_if(drop->waiting, [&](const auto &each) { return each.get() == &folder; });
    if (!drop->waiting.empty())
        return;
    Drop complete = std::move(*drop);
    m_drops.erase(drop);
    finishDelayedImport(std::move(complete));
}

void DelayedImports::finishAll() {
    std::vector<Drop> drops;
    drops.swap(m_drops);
    for (Drop &drop : drops)
        finishDelayedImport(std::move(drop));
}

void DelayedImports::finishDelayedImport(Drop drop) {
    sortAsShown(drop.items);
    std::set<const MySingleFolder *> unsaved;
    for (const MySingleFolderPtr &folder : drop.folders) {
        if (folder->isUnsavedFolder())
            unsaved.insert(folder.get());
        std::vector<MySinglePicPtr> own;
        std::ranges::copy_if(drop.items, std::back_inserter(own), [&](const MySinglePicPtr &pic) {
            return pic->spSingleRealFolder() == folder;
        });
        m_publish(folder, own);
    }
    Date next = drop.sequence.date;
    for (const MySinglePicPtr &pic : drop.items) {
        const MySingleFolderPtr folder = pic->spSingleRealFolder();
        if (!folder || !isTakingDates(*pic, *folder, unsaved.contains(folder.get())))
            continue;
        takeDate(*pic, *folder, next);
        next = shifted(next, drop.sequence.step());
    }
    for (const MySingleFolderPtr &folder : drop.folders)
        sfUpdatePicsFromAndTill(*folder);
}

} // namespace chronomender
