// SPDX-License-Identifier: GPL-3.0-or-later
#include "CounterWalk.h"

namespace chronomender {

void walkCounters(const RenameScope &, const RenameChoices &,
                  const std::function<void(const MySinglePicPtr &, std::int64_t)> &) {}

std::optional<std::int64_t> counterOfPic(const MySinglePic &, const RenameScope &,
                                         const RenameChoices &) {
    return std::nullopt;
}

} // namespace chronomender
