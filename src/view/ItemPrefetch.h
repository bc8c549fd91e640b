// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySinglePic.h"

#include <cstddef>
#include <span>

namespace chronomender {

// Walking all items is waiting for memory: they are large, and what is asked of each is a few words
// here and there. So the words of an item are asked for while those before it are at work.

/// How far ahead of the item at hand.
inline constexpr std::size_t kPrefetchDistance = 16;

template<class... Parts>
void prefetch(const Parts *...parts) {
    (__builtin_prefetch(parts), ...);
}

/// What a date, a state or a short name is told from, of an item behind the one at `index`. More
/// would be less: a processor asks for about a dozen things at once, and then it waits.
inline void prefetchAhead(std::span<const MySinglePicPtr> pics, std::size_t index) {
    if (pics.size() - index <= kPrefetchDistance)
        return;
    const MySinglePic &pic = *pics[index + kPrefetchDistance];
    // The folder is the item's last member.
    const std::byte *folder = reinterpret_cast<const std::byte *>(&pic + 1) - 1;
    prefetch(&pic.spName, &pic.spDateTimeOriginal, &pic.shift, &pic.zones, &pic.group, &pic.save,
             &pic.importState, &pic.positions, folder);
}

} // namespace chronomender
