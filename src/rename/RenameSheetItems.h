// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SaveDriver.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace chronomender {

/// What a rename sheet is opened for; the numbers are those of the commands.
enum class RenameSheetRequest : int {
    RenameCurrent = 1,
    RenameAll = 2,
    SaveCurrent = 3,
    SaveAll = 4,
    SaveCurrentWithoutChanges = 5, ///< items without date changes are written, too
    SaveAllWithoutChanges = 6,
};
enum class RenameSheetType : int { Current = 1, All = 2, SaveCurrent = 3, SaveAll = 4 };
RenameSheetType renameSheetTypeOf(RenameSheetRequest request);
bool savesItemsWithoutChanges(RenameSheetRequest request);

/// "renameAtSave": what a save renames. `CurrentCompound` is the compound entry of the menu: all
/// of the folders that are selected together, not only those with changes.
enum class RenameAtSave : int { Nothing = 0, Current = 1, All = 2, CurrentCompound = 3 };

/// What the strip has selected.
struct StripSelection {
    MySinglePicPtr picSelection;                              ///< none: nothing is selected
    std::vector<MySinglePicPtr> sortedAllSelectedThumbsArray; ///< in display order
};

/// What of the window a sheet goes by. It stays as it is while the sheet is open.
struct RenameSheetViews {
    std::vector<MySingleFolderPtr> folders;  ///< of the session
    std::vector<MySinglePicPtr> source_full; ///< the visible order
    /// More than one: folders selected together, a compound.
    std::vector<MySingleFolderPtr> selectedFolders;
    std::array<StripSelection, 2> timelines;

    bool isCompound() const { return selectedFolders.size() > 1; }
};

/// Those with changes that wait for a save.
std::vector<MySingleFolderPtr> unsavedOf(const std::vector<MySingleFolderPtr> &folders);

/// Which items a rename sheet shows, and what the run does that it starts: for one opening of the
/// sheet. Main thread.
class RenameSheetItems {
public:
    RenameSheetItems(RenameSheetRequest request, RenameSheetViews views,
                     const UserDefaults &defaults);

    RenameSheetType renameSheetType() const { return m_type; }
    const RenameSheetViews &views() const { return m_views; }
    /// As the preference says; the compound entry counts only where it shows.
    RenameAtSave renameAtSave() const;
    /// The menu of "renameAtSave" has its compound entry.
    bool isCompoundEntryVisible() const;
    /// The run is for folders that are selected together.
    bool isForCompound() const;

    /// The restriction to a strip's selection can be chosen.
    bool shouldShowRestrictionOptions() const;
    /// The strip (1 or 2) has selected some items of the selected folder, but not all.
    bool hasValidSelection(int strip) const;
    /// The strip whose selection alone is renamed, 0 for no restriction.
    int restrictRenameType() const;
    /// A strip without a valid selection is refused: false, and nothing changes.
    bool setRestrictRenameType(int type);

    /// The items of a restriction, in order; made once for an opening.
    const std::vector<MySinglePicPtr> &currentPicsToSampleWithRestrictType(int type);
    /// What the rows show: the restricted items, or where the user wants them all, those without
    /// the restriction.
    const std::vector<MySinglePicPtr> &currentPicsToSample();

    /// What is to be run; none when there is nothing to do. A rename never runs over changes that
    /// are not saved: then it is a save as well.
    std::optional<SaveRequest> saveRequest();

private:
    using Pics = std::vector<MySinglePicPtr>;
    enum class List : std::uint8_t {
        Everything,
        Current,
        CurrentJustChanged, ///< of the selected folders those with changes
        JustChanged,        ///< of all folders those with changes
        Restricted1,
        Restricted2,
    };
    List unrestrictedList() const;
    std::vector<MySingleFolderPtr> foldersOf(List list) const;
    SaveProcessType processType(bool isForAll) const;
    bool computeValidSelection(const StripSelection &selection) const;

    RenameSheetType m_type;
    bool m_savesWithoutChanges;
    RenameSheetViews m_views;
    const UserDefaults &m_defaults;
    std::array<bool, 2> m_hasValidSelection{};
    int m_restrictRenameType = 0;
    std::map<List, Pics> m_lists;
};

} // namespace chronomender
