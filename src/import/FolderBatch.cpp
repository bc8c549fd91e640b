// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderBatch.h"

#include "FolderNames.h"
#include "NaturalCompare.h"
#include "SystemFiles.h"

#include <QCollator>

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <unordered_set>

namespace chronomender {

namespace {

using Kind = FileAttributes::Kind;

std::unordered_set<std::string_view> heldNames(const MySingleFolder &folder) {
    std::unordered_set<std::string_view> names;
    for (const auto *list :
         {&folder.sfPicDetails_fullArray, &folder.bundleDependentsRawAndJPG,
          &folder.bundleDependentsLivePhotos, &folder.picsImportedAndTempStoredUntilAllReady})
        for (const MySinglePicPtr &pic : *list)
            names.insert(pic->spName);
    return names;
}

bool leadsToFolder(const FolderReference &folder, const std::string &name) {
    struct stat status {};
    return ::fstatat(folder.descriptor(), name.c_str(), &status, 0) == 0 && S_ISDIR(status.st_mode);
}

/// A name given by a person, looked up in the folder; a name that is not there stays an entry, and
/// so fails to open later, where that is told.
FolderEntry entryOfName(const FolderReference &folder, const std::string &name) {
    const auto found = systemFiles::attributesOf(folder.descriptor(), name.c_str());
    return {name, found ? found->kind : Kind::Regular, isValidUtf8(name)};
}

/// Why an entry can be refused by its listing alone.
std::optional<SkipReason> refusalOf(const FolderEntry &entry) {
    if (!entry.isValidUtf8)
        return SkipReason::NameNotUtf8;
    if (entry.kind == Kind::SymbolicLink)
        return SkipReason::SymbolicLink;
    if (entry.kind == Kind::Directory || isNamePassedOver(entry.name) ||
        isCompanionName(entry.name))
        return SkipReason::NotAMedium;
    if (entry.kind == Kind::Other || entry.name.find('/') != std::string::npos)
        return SkipReason::Unreadable;
    return std::nullopt;
}

/// Links to folders are folders from here on: they are followed, unlike links to files.
std::optional<std::vector<FolderEntry>> listResolvingFolders(const FolderReference &folder) {
    auto listed = listFolder(folder);
    if (listed)
        for (FolderEntry &entry : *listed)
            if (entry.kind == Kind::SymbolicLink && leadsToFolder(folder, entry.name))
                entry.kind = Kind::Directory;
    return listed;
}

bool isSidecar(const FolderEntry &entry) {
    return entry.kind == Kind::Regular && entry.isValidUtf8 && !isNamePassedOver(entry.name) &&
           entry.name.find('/') == std::string::npos && sidecarKindOfName(entry.name);
}

void sortNaturally(std::vector<FolderEntry> &entries) {
    struct Keyed {
        QCollatorSortKey key;
        FolderEntry entry;
    };
    const NaturalCompare order;
    std::vector<Keyed> keyed;
    keyed.reserve(entries.size());
    for (FolderEntry &entry : entries) {
        const QCollatorSortKey key = order.sortKey(entry.name);
        keyed.push_back({key, std::move(entry)});
    }
    std::ranges::sort(keyed, [](const Keyed &a, const Keyed &b) {
        const int compared = a.key.compare(b.key);
        return compared != 0 ? compared < 0 : a.entry.name < b.entry.name;
    });
    std::ranges::transform(keyed, entries.begin(),
                           [](Keyed &each) { return std::move(each.entry); });
}

BatchEntry batchEntry(FolderEntry entry, bool isNamed) {
    const FileFormatType promised = fileFormatTypeForExtension(extensionOfName(entry.name));
    const auto refusal = refusalOf(entry);
    return {std::move(entry.name), promised, isNamed, refusal};
}

std::vector<FolderEntry> entriesOfNames(const FolderReference &folder,
                                        std::vector<std::string> names) {
    std::ranges::sort(names);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    std::vector<FolderEntry> entries;
    entries.reserve(names.size());
    for (const std::string &name : names)
        entries.push_back(entryOfName(folder, name));
    return entries;
}

/// Single files bring their sidecars along, whether those were named or not.
void addSidecarsOfFolder(const FolderReference &folder, FolderBatch &batch) {
    auto listed = listFolder(folder);
    if (!listed)
        return;
    std::erase_if(*listed, [&](const FolderEntry &entry) {
        return !isSidecar(entry) || std::ranges::find(batch.sidecars, entry.name,
                                                      &SidecarFile::name) != batch.sidecars.end();
    });
    sortNaturally(*listed);
    for (FolderEntry &entry : *listed)
        batch.sidecars.push_back({std::move(entry.name), true});
}

FolderBatch batchOfNames(const FolderReference &folder, std::vector<FolderEntry> entries) {
    FolderBatch batch;
    for (FolderEntry &entry : entries) {
        if (isSidecar(entry))
            batch.sidecars.push_back({std::move(entry.name), false});
        else
            batch.entries.push_back(batchEntry(std::move(entry), true));
    }
    addSidecarsOfFolder(folder, batch);
    return batch;
}

FolderBatch batchOfFolder(const MySingleFolder &folder, std::vector<FolderEntry> entries) {
    const bool isFirstImport = folder.sfPics < 0;
    FolderBatch batch;
    for (FolderEntry &entry : entries) {
        if (isNamePassedOver(entry.name))
            continue;
        if (entry.kind != Kind::Directory) {
            if (isSidecar(entry))
                batch.sidecars.push_back({std::move(entry.name), false});
            else
                batch.entries.push_back(batchEntry(std::move(entry), false));
        } else if (isFirstImport && !isFolderNotEntered(entry.name)) {
            batch.subfolders.push_back(std::move(entry.name));
        }
    }
    return batch;
}

} // namespace

std::optional<FolderBatch> takeBatch(const MySingleFolder &folder, const FolderReference &reference,
                                     ImportBatch batch) {
    const bool isNamed = !batch.names.empty();
    auto listed = isNamed ? entriesOfNames(reference, std::move(batch.names))
                          : listResolvingFolders(reference);
    if (!listed)
        return std::nullopt;
    if (batch.keyStates.filter)
        listed = filteredPaths(std::move(*listed), *batch.keyStates.filter);
    const auto held = heldNames(folder);
    std::erase_if(*listed, [&](const FolderEntry &entry) { return held.contains(entry.name); });
    sortNaturally(*listed);
    return isNamed ? batchOfNames(reference, std::move(*listed))
                   : batchOfFolder(folder, std::move(*listed));
}

} // namespace chronomender
