// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenamePlan.h"

#include "RenamePlanner.h"

#include <algorithm>

namespace chronomender {
namespace {

/// Stands at the end of a temporary name's base.
constexpr char temporaryMarker = '_';

enum class Fit : std::uint8_t { Good, Known, TooLong };

Fit fitOfTemporaryNames(const ItemMoves &item, const FolderMoves &folder) {
    for (const FileMove &file : item.files) {
        if (file.temporaryName.size() > folder.mostNameBytes)
            return Fit::TooLong;
        if (folder.names->isKnown(file.temporaryName))
            return Fit::Known;
    }
    return Fit::Good;
}

} // namespace

bool ItemMoves::isMoving() const {
    return !isRefused && std::ranges::any_of(files, [](const FileMove &file) {
        return file.oldName != file.finalName;
    });
}

void ItemMoves::refuse(SaveErrorId id, std::string path, std::string systemText) {
    isRefused = true;
    errors.push_back({id, std::move(path), std::move(systemText)});
}

void ItemMoves::number(std::int64_t added) {
    addedNumber = added;
    nextNumber = numberBehind(added);
    for (FileMove &file : files)
        if (!file.isLeftBehind)
            file.finalName = joinedName(wantedBase, added, file.finalExtension);
}

std::string FolderMoves::pathOf(const std::string &name) const {
    return (path ? *path : folder->sfFolderPath()) + '/' + name;
}

// All files of an item have different extensions, also when only their letter case differs on a
// folder that tells it: their temporary names differ as their final names do.
void giveTemporaryNames(ItemMoves &item, FolderMoves &folder) {
    std::string base = joinedName(item.wantedBase, item.addedNumber, {}) + temporaryMarker;
    std::int64_t number = 0;
    bool isShort = false;
    for (;; number = numberBehind(number)) {
        for (FileMove &file : item.files)
            file.temporaryName = joinedName(base, number, file.finalExtension);
        const Fit fit = fitOfTemporaryNames(item, folder);
        if (fit == Fit::Good)
            break;
        if (fit == Fit::TooLong && !isShort) {
            // Counted on from the last one: a folder may be full of long names.
            base = temporaryMarker;
            number = folder.shortNames;
            isShort = true;
        }
    }
    if (isShort)
        folder.shortNames = number;
    for (const FileMove &file : item.files)
        folder.names->give(file.temporaryName);
}

RenamePlan planRename(const RenameScope &scope, const RenameChoices &choices,
                      const RenameServices &services) {
    const RenamePlanner planner(scope, choices, services, {});
    RenamePlan plan = planner.wantedNames();
    const std::size_t count = itemCount(plan);
    ProgressCounter progress(services.progress, count, SaveDriver::piValueForCount(count));
    planner.prove(plan, progress);
    planner.giveNames(plan);
    return plan;
}

} // namespace chronomender
