// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NameBuilder.h"
#include "SaveDriver.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace chronomender {

enum class CounterType : int { PerFolder = 0, Running = 1 };

/// What the user chose for a rename; read once when a run begins.
struct RenameChoices {
    NameSettings names;
    AddOnTexts additionalTexts;
    /// The add-on that an item or its folder has already is kept.
    std::array<bool, 3> keepsAddOn{};
    CounterType counterType = CounterType::Running;
    bool wantsCompoundAltCounter = false; ///< folders selected together are counted as one
    std::int64_t firstCounter = 1;
    bool rename_restrictCounter = false; ///< of a selection only its own items are counted
    bool useNameAtImportAsSourceName = true;
};
/// As the preferences say. Only what the template places is in use: add-ons are kept, and the names
/// of folder and file are modified, where it has their elements.
RenameChoices renameChoices(const UserDefaults &defaults, RenameTemplate renameTemplate);
/// With the selected template; none without one.
std::optional<RenameChoices> renameChoices(const UserDefaults &defaults);

/// What of the session a rename is for. Made on the main thread.
struct RenameScope {
    std::vector<MySingleFolderPtr> folders;  ///< of the session: `droppedFoldersTempFixRename`
    std::vector<MySinglePicPtr> source_full; ///< the visible order
    /// The folders that are selected together, when a rename is for them; empty: all, or one.
    std::vector<MySingleFolderPtr> onlyFolders;
    std::optional<std::vector<MySinglePicPtr>> onlyPics; ///< the restricted list

    /// The folders whose items may be renamed, in order.
    std::vector<MySingleFolderPtr> workList() const;
};
/// For process types with a rename. All folders for SaveThenRenameAll, whatever the request says.
RenameScope renameScope(const SaveRequest &request, const std::vector<MySingleFolderPtr> &folders,
                        const std::vector<MySinglePicPtr> &source_full);

} // namespace chronomender
