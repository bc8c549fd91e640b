// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>

namespace chronomender {

/// Runs `work(index)` for 0 ≤ index < count on as many threads as the machine has processors, the
/// caller's thread among them, in blocks of neighbours, and returns when all are done. `work` must
/// not throw. Indices are taken in rising order; after `shouldStop` answers true no new index is
/// taken, so the indices that ran form a prefix of the range. Returns the length of that prefix.
std::size_t parallelFor(std::size_t count, const std::function<void(std::size_t)> &work,
                        const std::function<bool()> &shouldStop = {});

} // namespace chronomender
