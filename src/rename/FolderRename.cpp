// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderRename.h"

#include "SystemFiles.h"

#include <algorithm>
#include <cerrno>

namespace chronomender {
namespace {

/// A folder in which so many names in turn are taken answers so whatever the name.
constexpr int mostTries = 1000;

/// An inode number alone may have passed on from a file that was deleted to a new one.
bool isSameFile(const FileAttributes &planned, const FileAttributes &now) {
    return now.isSameFile(planned) && now.birthDate == planned.birthDate;
}

bool isAlike(const FileAttributes &planned, const FileAttributes &now) {
    return planned.size == now.size && planned.modificationDate == now.modificationDate;
}

bool isOnTheWay(const ItemMoves &item) {
    return !item.isRefused && std::ranges::any_of(item.files, &FileMove::isOnTheWay);
}

} // namespace

FolderRename::FolderRename(FolderMoves &folder, const RenameServices &services)
    : m_folder(folder), m_services(services), m_lastUnits(folder.items.size()) {}

void FolderRename::run(const std::function<void()> &itemDone) {
    m_folder.isReached = true;
    const bool isRecorded = record();
    for (ItemMoves &item : m_folder.items)
        if (isRecorded && item.isMoving())
            moveToTemporary(item);
    for (ItemMoves &item : m_folder.items) {
        if (isRecorded && item.isMoving())
            moveToFinal(item);
        itemDone();
    }
    if (m_recorded > 0)
        settle();
}

// ---- the journal

UnitIntent FolderRename::intentOf(const ItemMoves &item) const {
    UnitIntent unit;
    unit.moves.reserve(item.files.size());
    for (const FileMove &file : item.files)
        if (!file.isLeftBehind)
            unit.moves.push_back(
                {*m_folder.path, file.oldName, file.temporaryName, file.finalName, file.before});
    return unit;
}

bool FolderRename::record() {
    std::vector<UnitIntent> units;
    units.reserve(m_folder.items.size());
    for (std::size_t i = 0; i < m_folder.items.size(); ++i)
        if (m_folder.items[i].isMoving()) {
            m_lastUnits[i] = units.size();
            units.push_back(intentOf(m_folder.items[i]));
        }
    if (units.empty())
        return false;
    FileError error;
    if (m_services.journal.begin(units, &error)) {
        m_recorded = units.size();
        return true;
    }
    for (ItemMoves &item : m_folder.items)
        if (item.isMoving())
            item.refuse(SaveErrorId::IntentNotKept, m_folder.pathOf(item.mainFile().oldName),
                        error.text());
    return false;
}

bool FolderRename::recordAgain(ItemMoves &item, FileError &error) {
    const UnitIntent unit = intentOf(item);
    if (!m_services.journal.extend({&unit, 1}, &error))
        return false;
    m_lastUnits[static_cast<std::size_t>(&item - m_folder.items.data())] = m_recorded++;
    return true;
}

/// Names that are not on the disk yet may be lost with the system: until they are, all stay
/// recorded.
bool FolderRename::sync() const {
    if (m_services.journal.durability() != RunJournal::Durability::Synced)
        return true;
    const auto reference = m_folder.folder->reference();
    return reference && systemFiles::syncFolder(reference->descriptor());
}

void FolderRename::settle() {
    const bool isSynced = sync();
    std::vector<std::size_t> unsettled;
    for (std::size_t i = 0; i < m_folder.items.size(); ++i) {
        const ItemMoves &item = m_folder.items[i];
        if (isOnTheWay(item) || (!isSynced && item.isMoving()))
            unsettled.push_back(m_lastUnits[i]);
    }
    m_services.journal.settle(unsettled);
}

// ---- one file

/// The name holds the file that was proved. A file system that knows renamed files as others is
/// believed when the file is the same in size and date.
bool FolderRename::isStillPlanned(FileMove &file, FileError &error) const {
    const auto now = m_services.files.attributes(m_folder.pathOf(file.presentName));
    if (!now)
        error.code = ENOENT;
    if (!now || isSameFile(file.before, *now))
        return now.has_value();
    if (file.presentName == file.oldName || !isAlike(file.before, *now))
        return false;
    file.moved = now;
    return true;
}

FolderRename::Step FolderRename::move(FileMove &file, const std::string &name, FileError &error) {
    if (!isStillPlanned(file, error))
        return Step::Replaced;
    if (m_services.files.renameExclusively(m_folder.pathOf(file.presentName), m_folder.pathOf(name),
                                           &error)) {
        file.presentName = name;
        return Step::Done;
    }
    return error.code == EEXIST ? Step::Taken : Step::Failed;
}

void FolderRename::leaveBehind(ItemMoves &item, FileMove &file, SaveErrorId id,
                               const FileError &error) const {
    file.isLeftBehind = true;
    item.errors.push_back(
        {id, m_folder.pathOf(file.presentName), error.code != 0 ? error.text() : std::string()});
}

// ---- to temporary names

/// Where somebody has taken the temporary name meanwhile, to another one.
FolderRename::Step FolderRename::moveAway(FileMove &file, ItemMoves &item, FileError &error) {
    for (int tries = 0; tries < mostTries; ++tries) {
        const Step step = move(file, file.temporaryName, error);
        if (step != Step::Taken)
            return step;
        do
            file.temporaryName =
                joinedName('_' + std::to_string(++m_folder.shortNames), 0, file.finalExtension);
        while (m_folder.names->isKnown(file.temporaryName));
        m_folder.names->give(file.temporaryName);
        error = {};
        if (!recordAgain(item, error))
            return Step::Failed;
    }
    error.code = EEXIST;
    return Step::Failed;
}

void FolderRename::moveToTemporary(ItemMoves &item) {
    for (FileMove &file : item.files) {
        FileError error;
        const Step step = moveAway(file, item, error);
        if (step == Step::Done)
            continue;
        const std::string words = error.code != 0 ? error.text() : std::string();
        if (&file != &item.files.front())
            leaveBehind(item, file, SaveErrorId::CompanionNotRenamed, error);
        else
            return item.refuse(step == Step::Replaced ? SaveErrorId::ChangedSinceImportChecking
                                                      : SaveErrorId::NotRenamed,
                               m_folder.pathOf(file.oldName), words);
    }
}

// ---- to final names

void FolderRename::moveToFinal(ItemMoves &item) {
    for (int tries = 0; tries < mostTries; ++tries) {
        FileMove *taken = tryFinalNames(item);
        if (!taken)
            return lookAgain(item);
        if (!tryNextNumber(item, *taken))
            return;
    }
    leaveBehind(item, item.files.front(), SaveErrorId::NotRenamed, {EEXIST});
}

FileMove *FolderRename::tryFinalNames(ItemMoves &item) {
    for (FileMove &file : item.files) {
        if (file.isLeftBehind)
            continue;
        FileError error;
        const Step step = move(file, file.finalName, error);
        if (step == Step::Taken)
            return &file;
        if (step == Step::Done)
            continue;
        const bool isMain = &file == &item.files.front();
        leaveBehind(item, file, isMain ? SaveErrorId::NotRenamed : SaveErrorId::CompanionNotRenamed,
                    error);
        if (isMain)
            return nullptr;
    }
    return nullptr;
}

/// Nothing of the item may keep the name that another file of it cannot have.
bool FolderRename::tryNextNumber(ItemMoves &item, FileMove &taken) {
    FreeNames &names = *m_folder.names;
    names.addExisting(taken.finalName);
    const auto isAnyTaken = [&] {
        return std::ranges::any_of(item.files, [&](const FileMove &file) {
            return !file.isLeftBehind && names.isTaken(file.finalName);
        });
    };
    if (!moveBack(item))
        return false;
    do
        item.number(item.nextNumber);
    while (isAnyTaken());
    for (const FileMove &file : item.files)
        names.give(file.finalName);
    FileError error;
    if (recordAgain(item, error))
        return true;
    leaveBehind(item, item.files.front(), SaveErrorId::IntentNotKept, error);
    return false;
}

bool FolderRename::moveBack(ItemMoves &item) {
    for (FileMove &file : item.files) {
        if (file.isLeftBehind || file.presentName != file.finalName)
            continue;
        FileError error;
        if (move(file, file.temporaryName, error) == Step::Done)
            continue;
        // It has its name; what is still on the way stays there.
        for (FileMove &other : item.files)
            if (other.isOnTheWay())
                leaveBehind(item, other,
                            &other == &item.files.front() ? SaveErrorId::NotRenamed
                                                          : SaveErrorId::CompanionNotRenamed,
                            error);
        return false;
    }
    return true;
}

/// Of files that the file system knows as others since they were moved.
void FolderRename::lookAgain(ItemMoves &item) const {
    for (FileMove &file : item.files)
        if (file.moved && !file.isOnTheWay())
            file.moved = m_services.files.attributes(m_folder.pathOf(file.presentName));
}

} // namespace chronomender
