// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "KeyStates.h"

#include <functional>
#include <memory>
#include <vector>

namespace chronomender {

/// Holds back the items of several folders that were dropped together, until the last of them is
/// imported, and gives them one sequence of dates. Main thread.
///
///     DelayedImports imports;
///     imports.addDrop(sequence, {canon, phone});
///     imports.hold(*phone, phoneItems);      // as each import ends
///     imports.removeDelayer(*phone);         // nothing yet
///     imports.hold(*canon, canonItems);
///     imports.removeDelayer(*canon);         // all have their dates and join their folders
class DelayedImports {
public:
    /// Makes items part of their folder, and refreshes it.
    using Publish = std::function<void(const MySingleFolderPtr &folder,
                                       const std::vector<MySinglePicPtr> &items)>;
    explicit DelayedImports(Publish publish) : m_publish(std::move(publish)) {}

    /// Folders whose items are to get one sequence. A folder that waits for another drop stays
    /// there.
    void addDrop(const DateSequence &sequence, const std::vector<MySingleFolderPtr> &folders);
    /// A folder that was found inside `present` waits with it.
    void addDelayer(const MySingleFolderPtr &folder, const MySingleFolder &present);
    bool isDelayed(const MySingleFolder &folder) const { return find(folder) != m_drops.end(); }
    /// Keeps the items of a delayed folder.
    void hold(const MySingleFolder &folder, const std::vector<MySinglePicPtr> &items);
    /// The folder's import has ended; with the last folder of its drop the sequence is given.
    void removeDelayer(const MySingleFolder &folder);
    /// Gives what is held its dates, whatever has not been imported: after an interruption.
    void finishAll();

private:
    struct Drop {
        DateSequence sequence;
        std::vector<MySingleFolderPtr> folders, waiting;
        std::vector<MySinglePicPtr> items;
    };
    std::vector<Drop>::iterator find(const MySingleFolder &folder);
    std::vector<Drop>::const_iterator find(const MySingleFolder &folder) const;
    void finishDelayedImport(Drop drop);

    Publish m_publish;
    std::vector<Drop> m_drops;
};

} // namespace chronomender
