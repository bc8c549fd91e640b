// SPDX-License-Identifier: GPL-3.0-or-later
#include "SelectionModes.h"

#include <algorithm>

namespace chronomender {
namespace {

const MySinglePicPtr &at(const TimelineStrip &strip, std::int64_t index) {
    return strip.theSource[static_cast<std::size_t>(index)];
}

std::optional<std::int64_t> indexOf(const TimelineStrip &strip, const MySinglePicPtr &pic) {
    return pic ? strip.indexOf(*pic) : std::nullopt;
}

/// Places of the items on the strip, ascending. A small set does not cost a walk of the strip.
std::vector<std::int64_t> placesOf(const TimelineStrip &strip, const PicSet &pics) {
    std::vector<std::int64_t> places;
    places.reserve(pics.size());
    for (const MySinglePicPtr &pic : pics)
        if (const auto index = indexOf(strip, pic))
            places.push_back(*index);
    std::ranges::sort(places);
    return places;
}

/// Where the item stands, or would stand by its place in `source_full`.
std::int64_t placeNear(const TimelineStrip &strip, const MySinglePicPtr &pic) {
    if (!pic)
        return 0;
    return std::ranges::lower_bound(
               strip.theSource, pic->positions.indexInSource_full, {},
               [](const MySinglePicPtr &each) { return each->positions.indexInSource_full; }) -
           strip.theSource.begin();
}

/// The wanted item nearest to this place, of two the later one; null without one on the strip.
/// The unwanted item stands there, or would stand between this place and the one before.
MySinglePicPtr nearest(const TimelineStrip &strip, std::int64_t from, const PicSet &wanted,
                       const MySinglePicPtr &unwanted) {
    const std::int64_t count = std::ssize(strip.theSource);
    const std::int64_t before = from < count && at(strip, from) == unwanted ? from : from - 1;
    for (std::int64_t step = 0; step < count; ++step)
        for (const std::int64_t place : {from + step, before - step}) {
            if (place < 0 || place >= count)
                continue;
            const MySinglePicPtr &pic = at(strip, place);
            if (pic != unwanted && wanted.contains(pic))
                return pic;
        }
    return nullptr;
}

} // namespace

PicSelection selectionOf(const TimelineStrip &strip, PicSet pics, const MySinglePicPtr &main) {
    std::erase_if(pics, [&](const MySinglePicPtr &pic) { return !indexOf(strip, pic); });
    if (pics.empty())
        return {};
    const bool hasMain = pics.contains(main);
    PicSelection selection{hasMain ? main : nearest(strip, 0, pics, nullptr), {}};
    if (pics.size() > 1)
        selection.multiSelectionNEW = std::move(pics);
    return selection;
}

PicSelection selectionNear(const TimelineStrip &strip, PicSet pics, const MySinglePicPtr &oldMain) {
    MySinglePicPtr main = oldMain;
    if (!pics.contains(main))
        main = nextMainAfterMultiDeselecting(strip, oldMain, pics);
    return selectionOf(strip, std::move(pics), main);
}

PicSelection remainingSelection(const TimelineStrip &strip, const PicSelection &selection) {
    PicSet pics = selection.pics();
    std::erase_if(pics, [&](const MySinglePicPtr &pic) { return !indexOf(strip, pic); });
    return selectionNear(strip, std::move(pics), selection.picSelection);
}

MySinglePicPtr nextMainAfterMultiDeselecting(const TimelineStrip &strip,
                                             const MySinglePicPtr &deselected,
                                             const PicSet &inSelection) {
    return nearest(strip, placeNear(strip, deselected), inSelection, deselected);
}

MySinglePicPtr nextNotSelectedVisibleAfter(const TimelineStrip &strip, const MySinglePicPtr &pic) {
    const auto from = indexOf(strip, pic);
    if (!from)
        return nullptr;
    const auto next =
        std::find_if(strip.theSource.begin() + *from + 1, strip.theSource.end(),
                     [&](const MySinglePicPtr &each) { return !strip.selection.contains(each); });
    return next == strip.theSource.end() ? nullptr : *next;
}

PicSelection selectionWith(const TimelineStrip &strip, const MySinglePicPtr &pic) {
    PicSet pics = strip.selection.pics();
    pics.insert(pic);
    return selectionOf(strip, std::move(pics),
                       indexOf(strip, pic) ? pic : strip.selection.picSelection);
}

PicSelection selectionWithout(const TimelineStrip &strip, const MySinglePicPtr &pic) {
    PicSet pics = strip.selection.pics();
    pics.erase(pic);
    return selectionNear(strip, std::move(pics), strip.selection.picSelection);
}

PicSelection selectionWithRunTo(const TimelineStrip &strip, const MySinglePicPtr &target) {
    const auto end = indexOf(strip, target);
    if (!end)
        return strip.selection;
    const std::int64_t start = indexOf(strip, strip.selection.picSelection).value_or(*end);
    PicSet pics = strip.selection.pics();
    pics.insert(strip.theSource.begin() + std::min(start, *end),
                strip.theSource.begin() + std::max(start, *end) + 1);
    return selectionOf(strip, std::move(pics), target);
}

PicSelection invertedSelection(const TimelineStrip &strip) {
    PicSet pics;
    for (const MySinglePicPtr &pic : strip.theSource)
        if (!strip.selection.contains(pic))
            pics.insert(pic);
    return selectionNear(strip, std::move(pics), strip.selection.picSelection);
}

PicSelection selectionOfAll(const TimelineStrip &strip,
                            const std::function<bool(const MySinglePic &)> &isWanted) {
    PicSet pics;
    for (const MySinglePicPtr &pic : strip.theSource)
        if (isWanted(*pic))
            pics.insert(pic);
    return selectionOf(strip, std::move(pics), strip.selection.picSelection);
}

bool isPicAdjacentToPic(const TimelineStrip &strip, const MySinglePic &a, const MySinglePic &b) {
    const auto first = strip.indexOf(a), second = strip.indexOf(b);
    return first && second && (*first - *second == 1 || *second - *first == 1);
}

std::vector<IndexRange> populateStartRangesFor(const TimelineStrip &strip, const PicSet &pics,
                                               const MySinglePicPtr &limitedToStartPic) {
    std::vector<IndexRange> runs;
    for (const std::int64_t place : placesOf(strip, pics)) {
        if (runs.empty() || runs.back().end != place)
            runs.push_back({place, place});
        runs.back().end = place + 1;
    }
    if (limitedToStartPic) {
        const std::int64_t start = indexOf(strip, limitedToStartPic).value_or(-1);
        std::erase_if(
            runs, [start](const IndexRange &run) { return start < run.begin || start >= run.end; });
    }
    return runs;
}

bool isDragAdjacentInMulti(const TimelineStrip &strip) {
    return strip.selection.count() > 1 &&
           populateStartRangesFor(strip, strip.selection.multiSelectionNEW).size() == 1;
}

Rating ratingOf(const MySinglePic &pic) {
    return pic.marks.isRejected ? Rating::Rejected
           : pic.marks.isKeeper ? Rating::Keeper
                                : Rating::None;
}

MySinglePicPtr selectNextMarked(const TimelineStrip &strip, Rating rating,
                                WalkDirection direction) {
    std::vector<MySinglePicPtr> marked;
    std::ranges::copy_if(strip.theSource, std::back_inserter(marked),
                         [rating](const MySinglePicPtr &pic) { return ratingOf(*pic) == rating; });
    return selectNextThumbFromSortedTargetArray(strip, marked, direction);
}

MySinglePicPtr selectNextThumbFromSortedTargetArray(const TimelineStrip &strip,
                                                    const std::vector<MySinglePicPtr> &targets,
                                                    WalkDirection direction) {
    const MySinglePicPtr &main = strip.selection.picSelection;
    if (targets.empty() || (targets.size() == 1 && targets.front() == main))
        return nullptr;
    if (!main)
        return direction == WalkDirection::Forward ? targets.front() : targets.back();
    const auto place = [](const MySinglePicPtr &pic) { return pic->positions.indexInSource_full; };
    const std::int64_t from = place(main);
    if (direction == WalkDirection::Forward) {
        const auto next = std::ranges::upper_bound(targets, from, {}, place);
        return next == targets.end() ? targets.front() : *next;
    }
    const auto own = std::ranges::lower_bound(targets, from, {}, place);
    return own == targets.begin() ? targets.back() : *std::prev(own);
}

} // namespace chronomender
