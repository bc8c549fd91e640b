// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenamePlanner.h"

#include "AddOnMemory.h"
#include "CounterWalk.h"
#include "NameCheck.h"
#include "Parallel.h"
#include "Texts.h"
#include "UnchangedProof.h"

#include <sys/statvfs.h>

#include <algorithm>
#include <unordered_map>

namespace chronomender {
namespace {

std::string companionName(const MySinglePic &pic, const std::string &extension) {
    return pic.spBaseName() + '.' + extension;
}

std::size_t mostNameBytesIn(const MySingleFolder &folder, std::size_t otherwise) {
    const auto reference = folder.reference();
    struct statvfs found {};
    const bool isKnown = reference && fstatvfs(reference->descriptor(), &found) == 0;
    return isKnown && found.f_namemax > 0 ? found.f_namemax : otherwise;
}

/// The item's files as the model knows them, the main file first.
std::vector<FileMove> filesOf(const MySinglePicPtr &pic) {
    std::vector<FileMove> files;
    files.reserve(pic->spSidecarExtensions.size() + 2);
    const auto add = [&](const MySinglePicPtr &media, const std::string &extension,
                         std::string name) {
        FileMove &file = files.emplace_back();
        file.media = media;
        file.extension = file.finalExtension = extension;
        file.oldName = file.presentName = file.finalName = std::move(name);
    };
    add(pic, pic->extension(), pic->spName);
    const MySinglePicPtr &dependent = pic->group.bundleDependentImage;
    const std::string ofDependent = dependent ? dependent->extension() : std::string();
    if (dependent)
        add(dependent, ofDependent, dependent->spName);
    for (const std::string &extension : pic->spSidecarExtensions)
        if (!dependent || extension != ofDependent)
            add(nullptr, extension, companionName(*pic, extension));
    return files;
}

/// Where two files of an item would get one name, they keep their letter case.
void correctExtensions(ItemMoves &item, SuffixCase suffixChangeCase) {
    for (FileMove &file : item.files)
        file.finalExtension = correctedExtension(file.extension, suffixChangeCase);
    for (auto file = item.files.begin(); file != item.files.end(); ++file)
        if (std::any_of(item.files.begin(), file, [&](const FileMove &other) {
                return other.finalExtension == file->finalExtension;
            })) {
            for (FileMove &each : item.files)
                each.finalExtension = each.extension;
            return;
        }
}

/// Finds the item's main file or that of its dependent as it was read; else tells why not.
struct MediaProof {
    std::optional<SaveErrorId> error;
    std::string systemText;
    FileAttributes attributes;
};
MediaProof provedMedia(const MySinglePic &pic, const std::string &path, bool isCompanion,
                       FileLayer &files) {
    const SinglePicAttributes &recorded = pic.singlePicAttributes;
    if (pic.save.isVerifiedDuringSave && !isCompanion)
        if (const auto now = files.attributes(path);
            now && areTheFileAttributesUnchanged(recorded, *now))
            return {{}, {}, *now};
    FileError error;
    const auto file = files.open(path, isCompanion ? OpenMode::Update : OpenMode::Read, &error);
    if (!file && isAbsence(error))
        return {SaveErrorId::NotReachableChecking, {}, {}};
    const auto now = file ? file->attributes() : std::nullopt;
    if (!now)
        return {isCompanion ? SaveErrorId::CompanionNotWritable
                            : SaveErrorId::CannotBeOpenedChecking,
                file ? file->lastError().text() : error.text(),
                {}};
    const bool isVerified =
        pic.save.isVerifiedDuringSave && areTheFileAttributesUnchanged(recorded, *now);
    const bool isUnchanged =
        isVerified || (pic.save.fileUnchangedState != FileUnchangedState::MustBeReadAgain &&
                       stateOfOpenFile(pic, *file) == FileUnchangedState::Unchanged);
    if (!isUnchanged)
        return {SaveErrorId::ChangedSinceImportChecking, {}, {}};
    return {{}, {}, *now};
}

/// Gives the items of a folder their final names, each in turn.
class NameGiving {
public:
    explicit NameGiving(FolderMoves &folder) : m_folder(folder), m_names(*folder.names) {}

    /// An item that is refused keeps its names. Where another one was counting on them, all is
    /// given anew.
    void run() {
        do {
            m_names.takeAllBack();
            m_counter = 0;
            m_cachedCompareName.clear();
            m_open.clear();
            m_mustGiveAnew = false;
            for (ItemMoves &item : m_folder.items)
                if (!item.isRefused)
                    give(item);
        } while (m_mustGiveAnew);
    }

private:
    void give(ItemMoves &item) {
        if (item.wantedName != m_cachedCompareName)
            m_counter = 0;
        m_cachedCompareName = item.wantedName;
        std::int64_t &open = m_open[m_names.key(item.wantedName)];
        std::int64_t number = std::max(m_counter, open);
        for (;; number = numberBehind(number)) {
            item.number(number);
            if (const auto problem = problemOf(item); !problem.empty())
                return refuse(item, problem);
            const bool isMainTaken = m_names.isTaken(item.mainFile().finalName);
            if (!isMainTaken && areCompanionsFree(item))
                break;
            // A name that is taken stays so: nobody with the same wish need try it again.
            if (isMainTaken && open == number)
                open = numberBehind(number);
        }
        m_counter = item.nextNumber;
        for (const FileMove &file : item.files)
            m_names.give(file.finalName);
    }

    std::string_view problemOf(const ItemMoves &item) const {
        for (const FileMove &file : item.files) {
            if (file.finalName == file.oldName)
                continue;
            const auto problem = nameProblem(file.finalName, file.oldName, m_folder.mostNameBytes);
            if (!problem.empty())
                return problem;
        }
        return {};
    }
    bool areCompanionsFree(const ItemMoves &item) const {
        return std::all_of(item.files.begin() + 1, item.files.end(),
                           [&](const FileMove &file) { return !m_names.isTaken(file.finalName); });
    }
    void refuse(ItemMoves &item, std::string_view problem) {
        item.refuse(SaveErrorId::NotRenamed, m_folder.pathOf(item.mainFile().oldName),
                    text(problem));
        for (FileMove &file : item.files) {
            file.finalName = file.oldName;
            m_mustGiveAnew = m_mustGiveAnew || m_names.isGiven(file.oldName);
            m_names.keep(file.oldName);
        }
    }

    FolderMoves &m_folder;
    FreeNames &m_names;
    std::string m_cachedCompareName;
    std::int64_t m_counter = 0;
    /// By wanted name, the lowest number that may still be free.
    std::unordered_map<std::string, std::int64_t> m_open;
    bool m_mustGiveAnew = false;
};

} // namespace

std::size_t itemCount(const RenamePlan &plan) {
    std::size_t count = 0;
    for (const FolderMoves &folder : plan.folders)
        count += folder.items.size();
    return count;
}

RenamePlan RenamePlanner::wantedNames() const {
    RenamePlan plan;
    std::unordered_map<const MySingleFolder *, std::size_t> places;
    for (const MySingleFolderPtr &folder : m_scope.workList())
        if (places.try_emplace(folder.get(), plan.folders.size()).second)
            plan.folders.emplace_back().folder = folder;
    KnownFolderNames folderNames;
    walkCounters(m_scope, m_choices, [&](const MySinglePicPtr &pic, std::int64_t counter) {
        const auto place = places.find(pic->spSingleRealFolder().get());
        if (place != places.end() && pic->positions.indexInSource_full >= 0)
            plan.folders[place->second].items.push_back(wishOf(pic, counter, folderNames));
    });
    for (FolderMoves &folder : plan.folders)
        std::ranges::stable_sort(folder.items, {}, [](const ItemMoves &item) {
            return item.pic->positions.indexInSource_full;
        });
    return plan;
}

/// The builder takes the extension from the present name; without one it answers the base, which
/// the companions share.
ItemMoves RenamePlanner::wishOf(const MySinglePicPtr &pic, std::int64_t counter,
                                KnownFolderNames &folderNames) const {
    ItemMoves item;
    item.pic = pic;
    item.files = filesOf(pic);
    if (auto facts = nameFactsOf(*pic, m_choices.useNameAtImportAsSourceName, m_services.zones,
                                 folderNames)) {
        facts->spName.clear();
        item.wantedBase =
            nameString(*facts, counter, addOnsOfPic(*pic, m_choices), m_choices.names);
    }
    correctExtensions(item, m_choices.names.suffixChangeCase);
    item.wantedName = joinedName(item.wantedBase, 0, item.mainFile().finalExtension);
    item.isRefused = isKeptOut(*pic) || item.wantedBase.empty();
    return item;
}

bool RenamePlanner::isKeptOut(const MySinglePic &pic) const {
    const MySinglePic *dependent = pic.group.bundleDependentImage.get();
    return pic.save.isInvalidDueToChangesAfterImport || m_keptOut.contains(&pic) ||
           (dependent &&
            (dependent->save.isInvalidDueToChangesAfterImport || m_keptOut.contains(dependent)));
}

void RenamePlanner::prove(RenamePlan &plan, ProgressCounter &progress) const {
    for (FolderMoves &folder : plan.folders) {
        folder.path = folder.folder->unlockedSecUrl();
        collectFiles(folder);
        const std::size_t done = parallelFor(
            folder.items.size(),
            [&](std::size_t i) {
                if (!folder.items[i].isRefused)
                    proveItem(folder.items[i], folder);
                progress.oneDone();
            },
            [&] { return m_services.cancellation.isRequested(); });
        plan.wasCancelled = done < folder.items.size();
        if (plan.wasCancelled)
            return;
    }
}

void RenamePlanner::collectFiles(FolderMoves &folder) const {
    const auto reference = folder.folder->reference();
    const auto entries = folder.path && reference ? listFolder(*reference) : std::nullopt;
    if (!entries)
        return refuseUnreachable(folder);
    folder.mostNameBytes = mostNameBytesIn(*folder.folder, folder.mostNameBytes);
    folder.names =
        std::make_shared<FreeNames>(caseRuleOf(*folder.path, *entries, m_services.files));
    for (const FolderEntry &entry : *entries)
        folder.names->addExisting(entry.name);
    std::unordered_set<std::string> owned;
    for (const ItemMoves &item : folder.items)
        for (const FileMove &file : item.files)
            if (file.media)
                owned.insert(folder.names->key(file.oldName));
    for (ItemMoves &item : folder.items)
        std::erase_if(item.files, [&](const FileMove &file) {
            return !file.media && !owned.insert(folder.names->key(file.oldName)).second;
        });
}

void RenamePlanner::refuseUnreachable(FolderMoves &folder) const {
    folder.path.reset();
    for (ItemMoves &item : folder.items)
        if (!item.isRefused)
            item.refuse(SaveErrorId::NotRenamed, folder.pathOf(item.mainFile().oldName));
}

void RenamePlanner::proveItem(ItemMoves &item, const FolderMoves &folder) const {
    for (FileMove &file : item.files) {
        if (!file.media)
            continue;
        const std::string path = folder.pathOf(file.oldName);
        MediaProof proof =
            provedMedia(*file.media, path, &file != &item.files.front(), m_services.files);
        if (proof.error)
            return item.refuse(*proof.error, path, std::move(proof.systemText));
        file.before = proof.attributes;
    }
    // A companion that is missing is left out, one that cannot be opened keeps all in their places.
    for (FileMove &file : item.files) {
        if (file.media)
            continue;
        const std::string path = folder.pathOf(file.oldName);
        FileError error;
        const auto opened = m_services.files.open(path, OpenMode::Update, &error);
        const auto attributes = opened ? opened->attributes() : std::nullopt;
        if (attributes)
            file.before = *attributes;
        else if (!isAbsence(error))
            return item.refuse(SaveErrorId::CompanionNotWritable, path,
                               opened ? opened->lastError().text() : error.text());
        else {
            file.isLeftBehind = true;
            item.errors.push_back({SaveErrorId::CompanionNotRenamed, path, error.text()});
        }
    }
    std::erase_if(item.files, [](const FileMove &file) { return file.isLeftBehind; });
}

void RenamePlanner::giveNames(RenamePlan &plan) const {
    if (!plan.wasCancelled)
        for (FolderMoves &folder : plan.folders)
            if (folder.names)
                giveNamesIn(folder);
}

void RenamePlanner::giveNamesIn(FolderMoves &folder) const {
    for (const ItemMoves &item : folder.items)
        if (!item.isRefused)
            for (const FileMove &file : item.files)
                folder.names->giveUp(file.oldName);
    NameGiving(folder).run();
    // Only now is it known what names must stay free for the others.
    for (ItemMoves &item : folder.items)
        if (item.isMoving())
            giveTemporaryNames(item, folder);
}

} // namespace chronomender
