// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySinglePic.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace chronomender {

/// A list in display order of which some items take other dates for a while: it tells the list as
/// it would be sorted then. The items that stay are in order already and are not sorted again, so
/// that one step over tens of thousands of items takes a millisecond or two. No item is changed.
/// Main thread.
class TemporaryOrder {
public:
    using Asks = std::function<bool(const MySinglePicPtr &)>;
    /// `list` is in display order and shows the dates that the items have.
    TemporaryOrder(std::vector<MySinglePicPtr> list, const Asks &isMoving);
    ~TemporaryOrder();

    const std::vector<MySinglePicPtr> &list() const { return m_list; }
    /// Positions in the list of the items that move and of those that stay, ascending.
    const std::vector<std::size_t> &moving() const { return m_moving; }
    const std::vector<std::size_t> &staying() const { return m_staying; }
    /// The date that the item of this position has, by which it stands in the list.
    Date date(std::size_t position) const { return m_dates[position]; }

    /// Puts the moving items at `dates`, one for each of `moving`.
    void arrange(const std::vector<Date> &dates);
    /// Makes `list` the one arranged last. Of what it holds, only what differs is written.
    void copyTo(std::vector<MySinglePicPtr> &list) const;
    /// Where the item of this position of the list stands in what was arranged last.
    std::int64_t arrangedIndex(std::size_t position) const;

private:
    struct Names;
    struct Moved {
        Date date;
        std::size_t position;
    };

    bool isBefore(const Moved &a, const Moved &b) const;
    bool isBeforeAtSameDate(std::size_t a, std::size_t b) const;
    std::vector<Moved> inOrder(const std::vector<Date> &dates) const;

    std::vector<MySinglePicPtr> m_list;
    std::vector<Date> m_dates;                    ///< by position in the list
    std::vector<std::size_t> m_moving, m_staying; ///< positions
    std::vector<std::size_t> m_arranged;          ///< positions, in the arranged order
    std::vector<std::int64_t> m_arrangedIndex;    ///< by position
    std::unique_ptr<Names> m_names;
};

} // namespace chronomender
