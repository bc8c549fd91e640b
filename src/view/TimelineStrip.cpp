// SPDX-License-Identifier: GPL-3.0-or-later
#include "TimelineStrip.h"

#include <algorithm>

namespace chronomender {

std::optional<std::int64_t> TimelineStrip::indexOf(const MySinglePic &pic) const {
    const auto index = static_cast<std::size_t>(pic.positions.indexInSource_filtered);
    if (index < theSource.size() && theSource[index].get() == &pic)
        return pic.positions.indexInSource_filtered;
    // On a shelf, and while a build is still to come.
    const auto found = std::ranges::lower_bound(
        theSource, pic.positions.indexInSource_full, {},
        [](const MySinglePicPtr &each) { return each->positions.indexInSource_full; });
    if (found == theSource.end() || found->get() != &pic)
        return std::nullopt;
    return found - theSource.begin();
}

StripRect TimelineStrip::thumbRectAtIndex(std::int64_t index) const {
    if (index < 0 || index >= count())
        return {};
    const MySinglePic &pic = *shown()[static_cast<std::size_t>(index)];
    const bool isEnlarged = theDrawerSelection >= 0 && pic.spCategory() == theDrawerSelection;
    return geometry.thumbRectCalculatedAtIndex(index, count(), isEnlarged ? drawerOffset : 0);
}

} // namespace chronomender
