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
std::optional<SkipReason> refusalOf(const FolderEntry &entry, FileFormatType promised) {
    if (!entry.isValidUtf8)
        return SkipReason::NameNotUtf8;
    if (entry.kind == Kind::SymbolicLink)
        return SkipReason::SymbolicLink;
    if (entry.kind == Kind::Directory || isNamePassedOver(entry.name) ||
        isCompanionName(entry.name))
        return SkipReason::NotAMedium;
    if (entry.kind == Kind::Other || entry.name.find('/') != std::string::npos)
        return SkipReason::Unreadable;
    // Formats told by the extension alone, whose readers are not part of this version.
    if (isMovieFormat(promised))
        return SkipReason::NotYetSupported;
    return std::nullopt;
}

bool isFolderInside(const FolderReference &folder, const FolderEntry &entry) {
    return entry.kind == Kind::Directory ||
           (entry.kind == Kind::SymbolicLink && leadsToFolder(folder, entry.name));
}

void sortNaturally(std::vector<BatchEntry> &entries) {
    struct Keyed {
        QCollatorSortKey key;
        BatchEntry entry;
    };
    const NaturalCompare order;
    std::vector<Keyed> keyed;
    keyed.reserve(entries.size());
    for (BatchEntry &entry : entries) {
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
    const auto refusal = refusalOf(entry, promised);
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

} // namespace

std::optional<std::vector<BatchEntry>> takeBatch(const MySingleFolder &folder,
                                                 const FolderReference &reference,
                                                 std::vector<std::string> names) {
    const bool isNamed = !names.empty();
    auto listed = isNamed ? entriesOfNames(reference, std::move(names)) : listFolder(reference);
    if (!listed)
        return std::nullopt;
    const auto held = heldNames(folder);
    std::vector<BatchEntry> entries;
    entries.reserve(listed->size());
    for (FolderEntry &entry : *listed) {
        const bool isLeftOut = isNamePassedOver(entry.name) || isFolderInside(reference, entry);
        if (!held.contains(entry.name) && (isNamed || !isLeftOut))
            entries.push_back(batchEntry(std::move(entry), isNamed));
    }
    sortNaturally(entries);
    return entries;
}

} // namespace chronomender
