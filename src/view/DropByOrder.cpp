// SPDX-License-Identifier: GPL-3.0-or-later
#include "DropByOrder.h"

#include <algorithm>

namespace chronomender {
namespace {

DragAim aimOf(const DropByOrder &drop) {
    const auto [first, last] = std::ranges::minmax(
        drop.targets, {}, [](const MySinglePicPtr &pic) { return pic->spDateTimeModified_sort(); });
    return {drop.dragType, first->spDateTimeModified_sort(), last->spDateTimeModified_sort()};
}

std::vector<ShiftRecord> recordsOf(const DropByOrder &drop) {
    std::vector<Date> dates;
    for (const MySinglePicPtr &pic : drop.pics)
        dates.push_back(pic->spDateTimeModified_sort());
    dates = dragDates(aimOf(drop), dates, 0, DragUnit::Items);
    std::vector<ShiftRecord> records;
    for (std::size_t i = 0; i < dates.size(); ++i)
        if (const auto difference = differenceToDate(*drop.pics[i], dates[i]);
            difference != absl::ZeroDuration())
            records.push_back({drop.pics[i], difference});
    return records;
}

} // namespace

DateChangeOutcome dropByOrder(const DropByOrder &drop, UndoManager &undo) {
    const std::vector<ShiftRecord> records = recordsOf(drop);
    if (records.empty())
        return DateChangeOutcome::NothingChanged;
    for (const auto &[pic, difference] : records)
        if (!staysInsideBounds(*pic, pic->presentShift() + difference))
            return DateChangeOutcome::RefusedOutOfBounds;
    const UndoGroup group(undo);
    for (const MySingleFolderPtr &folder : foldersOf(drop.pics))
        changeEditMode(*folder, EditMode::Single, undo);
    return dragMovesValuesBy(records, undo, drop.pics.front());
}

} // namespace chronomender
