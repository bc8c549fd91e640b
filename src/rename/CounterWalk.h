// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RenameChoices.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <unordered_map>

namespace chronomender {

/// Walks the counting order and tells each item that is to be renamed with its counter, which is
/// final, and each once. The number rises for every item in the order, also for those that are not
/// renamed: the numbers are those of the full sequence, unless only the selection is counted.
/// Items that left the session, and the dependent half of a group, are never told.
void walkCounters(const RenameScope &scope, const RenameChoices &choices,
                  const std::function<void(const MySinglePicPtr &pic, std::int64_t counter)> &each);

/// The counters as live rows show them: what a run would give each item. Also known for counted
/// items that are not renamed themselves. Made once for what a sheet lists; good until the order,
/// the scope or the choices change. Main thread.
class LiveCounters {
public:
    LiveCounters(const RenameScope &scope, const RenameChoices &choices);
    /// None for an item that is not counted.
    std::optional<std::int64_t> counterOfPic(const MySinglePic &pic) const;

private:
    std::unordered_map<const MySinglePic *, std::int64_t> m_counters;
};

} // namespace chronomender
