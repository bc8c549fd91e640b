// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveBeforeRename.h"

#include "CompoundMenuTag.h"
#include "Texts.h"

namespace chronomender {

std::optional<std::string> confirmSaveBeforeRename(RenameSheetRequest request,
                                                   const RenameSheetViews &views) {
    const bool isForCurrent = request == RenameSheetRequest::RenameCurrent;
    const auto count = unsavedOf(isForCurrent ? views.selectedFolders : views.folders).size();
    if (count == 0)
        return std::nullopt;
    std::string key = "confirmSaveBeforeRenameMessageText";
    key += isForCurrent ? "Current" : "All";
    return text(key + (count == 1 ? "_single" : "_multi"), {std::to_string(count)});
}

RenameSheetRequest saveInPlaceOfRename(RenameSheetRequest request, const RenameSheetViews &views,
                                       UserDefaults &defaults) {
    const bool isForCurrent = request == RenameSheetRequest::RenameCurrent;
    const auto compound =
        views.isCompound() ? RenameAtSave::CurrentCompound : RenameAtSave::Current;
    const RenameAtSave chosen = isForCurrent ? compound : RenameAtSave::All;
    chooseMenuTag(renameAtSaveMenu, {static_cast<int>(chosen)}, isForCurrent, defaults);
    return isForCurrent ? RenameSheetRequest::SaveCurrent : RenameSheetRequest::SaveAll;
}

} // namespace chronomender
