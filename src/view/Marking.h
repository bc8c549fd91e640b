// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SelectionModes.h"
#include "UndoManager.h"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace chronomender {

/// Sets the user's marks. An item is a keeper, rejected or neither; in a group the master carries
/// the mark. Main thread.
class Marking {
public:
    /// `filterRelevantChangeWasMade` is told once for every change, undo and redo, with the key
    /// "filter_rating". The undo manager outlives this.
    Marking(UndoManager &undo,
            std::function<void(std::string_view key)> filterRelevantChangeWasMade);
    Marking(const Marking &) = delete;
    Marking &operator=(const Marking &) = delete;

    /// One undoable step for all of them; none where nothing changes. Returns how many changed.
    std::size_t setRating(const std::vector<MySinglePicPtr> &pics, Rating rating);

private:
    struct MarkedPic {
        std::weak_ptr<MySinglePic> pic;
        bool isKeeper = false, isRejected = false;
    };
    struct UndoTarget {
        Marking *marking;
    };

    void apply(const std::vector<MarkedPic> &wanted);

    UndoManager &m_undo;
    std::function<void(std::string_view)> m_filterRelevantChangeWasMade;
    std::shared_ptr<UndoTarget> m_undoTarget = std::make_shared<UndoTarget>(UndoTarget{this});
};

} // namespace chronomender
