// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripLayout.h"

#include "StripDates.h"

#include <cmath>

namespace chronomender {
namespace {

Date shownDate(const StripContents &contents, const MySinglePic &pic) {
    return contents.drag ? contents.drag->date(pic) : pic.spDateTimeModified_sort();
}

std::optional<absl::CivilDay> shownDay(const StripContents &contents, const MySinglePic &pic) {
    const Date date = shownDate(contents, pic);
    if (isMarker(date))
        return std::nullopt;
    return absl::ToCivilDay(date, contents.zone);
}

/// Of the cell, in the view. Whole pixels, so that pictures stay sharp while they scroll.
double cellLeft(const TimelineStrip &strip, std::int64_t index) {
    return strip.geometry.centerOf(index) - 0.5 * strip.geometry.cellWidth() -
           std::round(strip.scrollX);
}

CellSelection selectionOf(const TimelineStrip &strip, const MySinglePicPtr &pic) {
    if (pic == strip.selection.picSelection)
        return CellSelection::Main;
    return strip.selection.contains(pic) ? CellSelection::Member : CellSelection::None;
}

CellData cellData(const StripContents &contents, const MySinglePicPtr &pic) {
    const TimelineStrip &strip = contents.strip;
    CellData cell;
    contents.picture(pic, cell);
    if (const MySingleFolderPtr folder = pic->spSingleRealFolder()) {
        cell.colorIndex = folder->colorIndex;
        cell.isInDrawer = folder->folderSortGeneral == strip.theDrawerSelection;
    }
    cell.selection = selectionOf(strip, pic);
    cell.hasCursor = pic == contents.cursor;
    cell.isMoving = contents.drag && contents.drag->isMoving(pic);
    cell.marks = cellMarks(*pic, contents.filters);
    if (contents.metrics.labelHeight > 0)
        cell.label = timeLabel(shownDate(contents, *pic), contents.zone);
    return cell;
}

void addChapters(StripPicture &picture, const StripContents &contents, IndexRange range) {
    const auto &items = contents.strip.shown();
    const auto dayAt = [&](std::int64_t index) {
        return shownDay(contents, *items[static_cast<std::size_t>(index)]);
    };
    std::optional<absl::CivilDay> present;
    for (std::int64_t index = range.begin; index < range.end; ++index) {
        const auto day = dayAt(index);
        const bool isFirst = index == range.begin;
        if (!isFirst && day == present)
            continue;
        const double left = cellLeft(contents.strip, index);
        if (!isFirst)
            picture.chapters.back().right = left;
        const bool beginsHere = !isFirst || index == 0 || dayAt(index - 1) != day;
        picture.chapters.push_back(
            {left, picture.width, beginsHere, day ? dayTitle(*day) : QString()});
        present = day;
    }
}

} // namespace

StripPicture layOutStrip(const StripContents &contents) {
    const TimelineStrip &strip = contents.strip;
    StripPicture picture;
    picture.metrics = contents.metrics;
    picture.width = strip.width;
    const auto &items = strip.shown();
    const IndexRange wanted = strip.geometry.visibleThumbsRangeExtendedBy(
        contents.extendedBy, 0, strip.scrollX, strip.width, strip.count());
    for (std::int64_t index = wanted.begin; index < wanted.end; ++index)
        picture.cells.push_back({index, cellLeft(strip, index),
                                 cellData(contents, items[static_cast<std::size_t>(index)])});
    addChapters(picture, contents,
                strip.geometry.trueVisibleThumbsRange(strip.scrollX, strip.width, strip.count()));
    if (contents.drag && contents.drag->target.dragType != DragType::None)
        picture.drop = {contents.drag->target.dragType,
                        cellLeft(strip, contents.drag->target.index)};
    return picture;
}

} // namespace chronomender
