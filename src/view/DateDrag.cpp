// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateDrag.h"

#include "TemporaryOrder.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace chronomender {
namespace {

/// An item that a drag can move by itself.
bool isDraggable(const MySinglePic &pic) {
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    return folder && folder->sfEditMode == EditMode::Single && isMovable(pic) && followsShift(pic);
}

} // namespace

struct DateDrag::State {
    State(MyTimelinesController &theTimelines, TimelineStrip &theStrip,
          const MySinglePicPtr &dragged, absl::Duration outwards)
        : timelines(theTimelines), strip(&theStrip), main(dragged), dragGapOuterEdges(outwards) {}

    MyTimelinesController &timelines;
    TimelineStrip *strip;
    MySinglePicPtr main;
    absl::Duration dragGapOuterEdges;
    MySingleFolderPtr folder; ///< that moves as a whole; null where items move by themselves
    PicSet items;             ///< these
    std::optional<TemporaryOrder> order;
    std::size_t mainIndex = 0; ///< among the order's moving items
    std::vector<Date> dates;   ///< of these, as dragged; empty at the start
    absl::Duration mainMove = absl::ZeroDuration();

    /// Null when the strip was taken away.
    TimelineStrip *shownStrip() const {
        const auto strips = timelines.visibleTimelines();
        return std::ranges::find(strips, strip) == strips.end() ? nullptr : strip;
    }

    bool movesWithFolder(const MySinglePic &pic) const {
        return pic.spSingleRealFolder() == folder && followsShift(pic);
    }

    bool moves(const MySinglePicPtr &pic) const {
        return folder ? movesWithFolder(*pic) : items.contains(pic);
    }

    /// Takes the strip's list, unless it is the one taken before. False without the main item.
    bool takeList(const std::vector<MySinglePicPtr> &list) {
        if (!order || order->list() != list) {
            order.emplace(list, [this](const MySinglePicPtr &pic) { return moves(pic); });
            const auto isMain = [this](std::size_t position) {
                return order->list()[position] == main;
            };
            mainIndex = static_cast<std::size_t>(std::ranges::find_if(order->moving(), isMain) -
                                                 order->moving().begin());
        }
        return mainIndex < order->moving().size();
    }

    std::vector<Date> datesAtStart() const {
        std::vector<Date> start;
        for (const std::size_t position : order->moving())
            start.push_back(order->date(position));
        return start;
    }

    void moveTo(const DragAim &aim, const TimelineStrip &shown) {
        const std::vector<Date> start = datesAtStart();
        dates = dragDates(aim, start, mainIndex, folder ? DragUnit::WholeFolder : DragUnit::Items);
        mainMove = dates[mainIndex] - start[mainIndex];
        order->arrange(dates);
        for (TimelineStrip *each : timelines.visibleTimelinesOfSameTypeLike(shown)) {
            if (!each->tempSource)
                each->tempSource.emplace();
            order->copyTo(*each->tempSource);
        }
    }

    void putBack() {
        dates.clear();
        mainMove = absl::ZeroDuration();
        for (TimelineStrip *each : timelines.visibleTimelines())
            each->tempSource.reset();
    }

    /// Place in the list without the drag. None as well while a list built anew waits to be taken.
    std::optional<std::size_t> position(const MySinglePic &pic) const {
        const TimelineStrip *shown = shownStrip();
        const auto index = shown ? shown->indexOf(pic) : std::nullopt;
        const auto position = static_cast<std::size_t>(index.value_or(-1));
        if (position >= order->list().size() || order->list()[position].get() != &pic)
            return std::nullopt;
        return position;
    }

    Date date(const MySinglePic &pic) const {
        const Date date = pic.spDateTimeModified_sort();
        if (folder)
            return movesWithFolder(pic) ? date + mainMove : date;
        const auto &moving = order->moving();
        const auto found = dates.empty() ? std::nullopt : position(pic);
        const auto index = found ? std::ranges::lower_bound(moving, *found) : moving.end();
        return index != moving.end() && *index == *found
                   ? dates[static_cast<std::size_t>(index - moving.begin())]
                   : date;
    }

    DateChangeOutcome commit(UndoManager &undo) const {
        if (folder)
            return mainMove == absl::ZeroDuration()
                       ? DateChangeOutcome::NothingChanged
                       : dragChangedDates(folder->sfDateModificationsTimeInterval + mainMove,
                                          *folder, undo);
        std::vector<ShiftRecord> records;
        for (std::size_t i = 0; i < dates.size(); ++i) {
            const MySinglePicPtr &pic = order->list()[order->moving()[i]];
            records.push_back({pic, differenceToDate(*pic, dates[i])});
        }
        return dragMovesValuesBy(std::move(records), undo, main);
    }
};

std::unique_ptr<DateDrag> DateDrag::begin(const MySinglePicPtr &dragged,
                                          MyTimelinesController &timelines, TimelineStrip &strip,
                                          absl::Duration dragGapOuterEdges) {
    const MySingleFolderPtr folder = dragged ? dragged->spSingleRealFolder() : nullptr;
    if (!folder || !followsShift(*dragged))
        return nullptr;
    auto state = std::make_unique<State>(timelines, strip, dragged, dragGapOuterEdges);
    if (folder->sfEditMode == EditMode::Together)
        state->folder = folder;
    else if (!isDraggable(*dragged))
        return nullptr;
    else if (strip.selection.contains(dragged))
        std::ranges::copy_if(strip.selection.multiSelectionNEW,
                             std::inserter(state->items, state->items.end()),
                             [](const MySinglePicPtr &pic) { return isDraggable(*pic); });
    state->items.insert(dragged);
    if (!state->takeList(strip.theSource))
        return nullptr;
    return std::unique_ptr<DateDrag>(new DateDrag(std::move(state)));
}

DateDrag::DateDrag(std::unique_ptr<State> state) : m_state(std::move(state)) {}

DateDrag::~DateDrag() {
    cancel();
}

void DateDrag::moveTo(DragTarget target) {
    TimelineStrip *shown = m_state ? m_state->shownStrip() : nullptr;
    if (!shown)
        return;
    DragAim aim;
    if (m_state->takeList(shown->theSource))
        aim = aimAt(target, *m_state->order, m_state->dragGapOuterEdges);
    if (aim.dragType == DragType::None)
        m_state->putBack();
    else
        m_state->moveTo(aim, *shown);
}

Date DateDrag::tempTimeDuringLiveMod(const MySinglePic &pic) const {
    if (!m_state)
        return pic.spDateTimeModified_sort();
    const MySinglePicPtr master = pic.bundleMasterImage();
    return m_state->date(master ? *master : pic);
}

LiveDrag DateDrag::liveDragOf(const MySinglePic &pic) const {
    const Date date = tempTimeDuringLiveMod(pic);
    return {date, isMarker(date) ? absl::ZeroDuration() : date - pic.spDateTimeModified_sort()};
}

MySingleFolderPtr DateDrag::folder() const {
    return m_state ? m_state->folder : nullptr;
}

bool DateDrag::isMoving(const MySinglePicPtr &pic) const {
    return m_state && m_state->moves(pic);
}

absl::Duration DateDrag::tempMoveDateByDuringLiveMod() const {
    return m_state ? m_state->mainMove : absl::ZeroDuration();
}

std::optional<std::int64_t> DateDrag::tempIdxFullDuringLiveMod(const MySinglePic &pic) const {
    const auto position = m_state ? m_state->position(pic) : std::nullopt;
    if (!position)
        return std::nullopt;
    return m_state->dates.empty() ? static_cast<std::int64_t>(*position)
                                  : m_state->order->arrangedIndex(*position);
}

DateChangeOutcome DateDrag::commit(UndoManager &undo) {
    if (!m_state)
        return DateChangeOutcome::NothingChanged;
    const DateChangeOutcome outcome = m_state->commit(undo);
    cancel();
    return outcome;
}

void DateDrag::cancel() {
    if (m_state)
        m_state->putBack();
    m_state.reset();
}

} // namespace chronomender
