// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RenamePlan.h"

#include <cstddef>
#include <vector>

namespace chronomender {

/// Moves the files of one folder by its plan: all to temporary names, then each item to its final
/// names. What is about to be done stands in the journal first. Once begun a folder is finished.
/// Worker thread.
class FolderRename {
public:
    FolderRename(FolderMoves &folder, const RenameServices &services);

    /// Tells `itemDone` each item, also those that are not moved. What happened is left in the
    /// plan.
    void run(const std::function<void()> &itemDone);

private:
    enum class Step : std::uint8_t {
        Done,
        Taken,    ///< somebody else has the name
        Replaced, ///< the file is not the one that was proved
        Failed,
    };

    bool record();
    bool recordAgain(ItemMoves &item, FileError &error);
    UnitIntent intentOf(const ItemMoves &item) const;

    void moveToTemporary(ItemMoves &item);
    Step moveAway(FileMove &file, ItemMoves &item, FileError &error);
    void moveToFinal(ItemMoves &item);
    /// The file whose name is taken; null when the item has come as far as it can.
    FileMove *tryFinalNames(ItemMoves &item);
    bool tryNextNumber(ItemMoves &item, FileMove &taken);
    bool moveBack(ItemMoves &item);

    Step move(FileMove &file, const std::string &name, FileError &error);
    void leaveBehind(ItemMoves &item, FileMove &file, SaveErrorId id, const FileError &error) const;
    bool isStillPlanned(FileMove &file, FileError &error) const;
    void lookAgain(ItemMoves &item) const;
    bool sync() const;
    void settle();

    FolderMoves &m_folder;
    const RenameServices &m_services;
    std::size_t m_recorded = 0;           ///< units in the journal's batch
    std::vector<std::size_t> m_lastUnits; ///< by item, the last of its units
};

} // namespace chronomender
