// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PicSet.h"

#include <cstdint>

namespace chronomender {

/// Where an item shows, by its places of the last build.
enum class Shown : std::uint8_t { OnMainStrip, OnShelf, OnEither };
bool isShown(const MySinglePic &pic, Shown where);

// `source_full` is the whole list in display order, numbered. Main thread.

/// The first item behind this one that shows there; with `useLooping` from the start again. For an
/// item that is not listed, as if it stood in front of all. Null without one.
MySinglePicPtr nextShownAfter(const std::vector<MySinglePicPtr> &source_full,
                              const MySinglePicPtr &pic, bool useLooping, Shown where);

/// The member of the set that is nearest to the item, by the number of items shown between; of two
/// alike the later. The only member of a set is the nearest, shown or not. An item that is not
/// listed stands at the end. Null for no item and for a set without a member that shows there.
MySinglePicPtr nearestShownTo(const std::vector<MySinglePicPtr> &source_full,
                              const MySinglePicPtr &pic, const PicSet &candidates, Shown where);

} // namespace chronomender
