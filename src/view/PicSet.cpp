// SPDX-License-Identifier: GPL-3.0-or-later
#include "PicSet.h"

#include <algorithm>

namespace chronomender {

std::vector<MySinglePicPtr> sortedThumbsArray(const PicSet &pics) {
    std::vector<MySinglePicPtr> sorted(pics.begin(), pics.end());
    std::ranges::sort(sorted, {},
                      [](const MySinglePicPtr &pic) { return pic->positions.indexInSource_full; });
    return sorted;
}

} // namespace chronomender
