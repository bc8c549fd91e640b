// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameOutcome.h"

#include <absl/time/clock.h>

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

/// An item with one of these shows the name that it should have got.
constexpr std::array renameErrors{
    SaveErrorId::NotRenamed,
    SaveErrorId::NumberAdded,
    SaveErrorId::CompanionNotWritable,
    SaveErrorId::CannotBeOpenedChecking,
    SaveErrorId::ChangedSinceImportChecking,
    SaveErrorId::NotReachableChecking,
    SaveErrorId::IntentNotKept,
};

enum class Tense : bool { Planned, Done };

RenameResult resultOf(const ItemMoves &item, const FolderMoves &folder, Tense tense) {
    if (item.isRefused)
        return RenameResult::Refused;
    if (tense == Tense::Done && !folder.isReached)
        return RenameResult::NotReached;
    if (!item.isMoving())
        return RenameResult::Unchanged;
    return item.mainFile().isOnTheWay() ? RenameResult::LeftOnTheWay : RenameResult::Renamed;
}

ItemRename outcomeOf(const ItemMoves &item, const FolderMoves &folder, const RenameChoices &choices,
                     Tense tense) {
    ItemRename outcome;
    outcome.pic = item.pic;
    outcome.result = resultOf(item, folder, tense);
    outcome.folderPath = folder.path ? *folder.path : folder.folder->sfFolderPath();
    outcome.wantedName = item.wantedName;
    outcome.errors = item.errors;
    const bool isWhereItShould =
        outcome.result == RenameResult::Renamed || outcome.result == RenameResult::Unchanged;
    const bool isForeseen = tense == Tense::Planned && isWhereItShould;
    outcome.files.reserve(item.files.size());
    for (const FileMove &file : item.files)
        outcome.files.push_back({file.oldName, isForeseen ? file.finalName : file.presentName});
    if (!isWhereItShould)
        return outcome;
    const std::string &name = outcome.files.front().newName;
    const std::string path = outcome.folderPath + '/' + name;
    outcome.addedNumber = item.addedNumber;
    if (item.addedNumber != 0)
        outcome.errors.push_back({SaveErrorId::NumberAdded, path, {}});
    if (choices.names.frontDotHandlingMode == FrontDotMode::Report && name.starts_with('.'))
        outcome.errors.push_back({SaveErrorId::NameBeginsWithDot, path, {}});
    return outcome;
}

std::vector<ItemRename> outcomesOf(const FolderMoves &folder, const RenameChoices &choices,
                                   Tense tense) {
    std::vector<ItemRename> outcomes;
    outcomes.reserve(folder.items.size());
    for (const ItemMoves &item : folder.items)
        outcomes.push_back(outcomeOf(item, folder, choices, tense));
    return outcomes;
}

/// Companions are found by the item's base name: those that stand elsewhere are not the item's any
/// more.
void takeExtensions(MySinglePic &pic, const ItemMoves &item) {
    const std::string base = pic.spBaseName() + '.';
    std::erase_if(pic.spSidecarExtensions, [&](std::string &extension) {
        const auto file = std::ranges::find_if(item.files, [&](const FileMove &each) {
            return each.media.get() != &pic && each.extension == extension;
        });
        if (file == item.files.end() || !file->presentName.starts_with(base))
            return true;
        extension = file->presentName.substr(base.size());
        return false;
    });
}

/// Some file systems know a renamed file as another one. What else may have changed is left for the
/// next proof to find.
void takeIdentity(const FileMove &file) {
    if (!file.moved)
        return;
    SinglePicAttributes &recorded = file.media->singlePicAttributes;
    recorded.fileDevice = file.moved->device;
    recorded.fileInode = file.moved->inode;
    recorded.fileBirthDate = file.moved->birthDate;
}

void takeNames(const ItemMoves &item) {
    for (const FileMove &file : item.files)
        if (file.media && file.presentName != file.oldName) {
            file.media->spName = file.presentName;
            takeIdentity(file);
        }
    takeExtensions(*item.pic, item);
    const MySinglePicPtr &dependent = item.pic->group.bundleDependentImage;
    if (!dependent)
        return;
    takeExtensions(*dependent, item);
    if (dependent->spBaseName() == item.pic->spBaseName())
        addSidecarExtension(*item.pic, dependent->extension());
}

bool isRenameError(const SaveError &error) {
    return std::ranges::find(renameErrors, error.id) != renameErrors.end();
}

void applyItem(const ItemMoves &item, const ItemRename &outcome, const RenameChoices &choices) {
    MySinglePic &pic = *item.pic;
    RenameState &state = pic.rename;
    // What an interrupted save keeps from being renamed has told its error already.
    const bool hasError = outcome.result == RenameResult::Refused ||
                          std::ranges::any_of(outcome.errors, isRenameError);
    state.hasRenameError = hasError ? 1 : 0;
    state.wantedName.reset();
    state.addonCounter.reset();
    if (hasError)
        state.wantedName = item.wantedName;
    if (outcome.addedNumber != 0)
        state.addonCounter = item.nextNumber;
    if (outcome.result == RenameResult::Renamed || outcome.result == RenameResult::LeftOnTheWay)
        takeNames(item);
    const SuffixVisibility visibility = choices.names.suffixVisibility;
    const bool hasEnded =
        outcome.result == RenameResult::Renamed || outcome.result == RenameResult::Unchanged;
    if (hasEnded && visibility != SuffixVisibility::Leave)
        pic.isExtensionHidden = visibility != SuffixVisibility::Show;
}

} // namespace

std::vector<ItemRename> outcomesOf(const RenamePlan &plan, const RenameChoices &choices) {
    std::vector<ItemRename> outcomes;
    for (const FolderMoves &folder : plan.folders) {
        auto each = outcomesOf(folder, choices, plan.wasCancelled ? Tense::Done : Tense::Planned);
        std::ranges::move(each, std::back_inserter(outcomes));
    }
    return outcomes;
}

std::vector<ItemRename> outcomesOfRun(const FolderMoves &folder, const RenameChoices &choices) {
    return outcomesOf(folder, choices, Tense::Done);
}

void applyToModel(FolderMoves &folder, const std::vector<ItemRename> &outcomes,
                  const RenameChoices &choices, bool isOfSelection) {
    int &count = folder.folder->renameErrors;
    if (!isOfSelection)
        count = 0;
    for (std::size_t i = 0; i < folder.items.size(); ++i) {
        const ItemMoves &item = folder.items[i];
        const int &error = item.pic->rename.hasRenameError;
        if (isOfSelection && error != 0)
            --count;
        applyItem(item, outcomes[i], choices);
        if (error != 0)
            ++count;
    }
    folder.folder->lastLocalChange = absl::Now();
}

} // namespace chronomender
