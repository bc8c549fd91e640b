// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TimelineStrip.h"

#include <functional>

namespace chronomender {

// What a selection on one strip becomes. Pure functions over the strip's list; items that do not
// stand in it are passed over. None changes an item. Main thread.

/// A selection of these items. Without `main` among them the main item is the first one in the
/// strip's order; one item alone leaves the multi-selection empty.
PicSelection selectionOf(const TimelineStrip &strip, PicSet pics, const MySinglePicPtr &main);
/// The same; a main item that is not among them passes to its nearest neighbour.
PicSelection selectionNear(const TimelineStrip &strip, PicSet pics, const MySinglePicPtr &oldMain);
/// The same selection without the items that no longer stand on the strip, the main item passing
/// to its nearest neighbour.
PicSelection remainingSelection(const TimelineStrip &strip, const PicSelection &selection);

/// The selected item nearest to `deselected` by place on the strip, of two the later one; null when
/// no other is selected.
MySinglePicPtr nextMainAfterMultiDeselecting(const TimelineStrip &strip,
                                             const MySinglePicPtr &deselected,
                                             const PicSet &inSelection);
/// The first unselected item behind this one; null at the end.
MySinglePicPtr nextNotSelectedVisibleAfter(const TimelineStrip &strip, const MySinglePicPtr &pic);

/// Adds the item and makes it the main one.
PicSelection selectionWith(const TimelineStrip &strip, const MySinglePicPtr &pic);
PicSelection selectionWithout(const TimelineStrip &strip, const MySinglePicPtr &pic);
/// Adds the run from the old main item to the target in source order; the target is the new main
/// item. Without an old one the target alone is selected.
PicSelection selectionWithRunTo(const TimelineStrip &strip, const MySinglePicPtr &target);
/// What was not selected is, and the other way round. The main item is the nearest to the old one.
PicSelection invertedSelection(const TimelineStrip &strip);
/// All items of the strip for which the question is answered with yes; the main item stays if it
/// is among them.
PicSelection selectionOfAll(const TimelineStrip &strip,
                            const std::function<bool(const MySinglePic &)> &isWanted);

/// The two stand side by side on the strip.
bool isPicAdjacentToPic(const TimelineStrip &strip, const MySinglePic &a, const MySinglePic &b);
/// Runs of items that stand side by side, in order. With `startPic` only the run that holds it.
std::vector<IndexRange> populateStartRangesFor(const TimelineStrip &strip, const PicSet &pics,
                                               const MySinglePicPtr &limitedToStartPic = nullptr);
/// Several items are selected and stand side by side, so that they are dragged as one.
bool isDragAdjacentInMulti(const TimelineStrip &strip);

enum class Rating : std::uint8_t { None, Keeper, Rejected };
enum class WalkDirection : bool { Forward, Backward };
Rating ratingOf(const MySinglePic &pic);
/// The next item with this mark from the main item on, over the end to the start again; null
/// without another one.
MySinglePicPtr selectNextMarked(const TimelineStrip &strip, Rating rating, WalkDirection direction);
/// The same among targets, which are sorted in source order.
MySinglePicPtr selectNextThumbFromSortedTargetArray(const TimelineStrip &strip,
                                                    const std::vector<MySinglePicPtr> &targets,
                                                    WalkDirection direction);

} // namespace chronomender
