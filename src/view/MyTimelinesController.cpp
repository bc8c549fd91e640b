// SPDX-License-Identifier: GPL-3.0-or-later
#include "MyTimelinesController.h"

#include "SelectionModes.h"

namespace chronomender {
namespace {

void settleScroll(TimelineStrip &strip, bool withFullRefresh) {
    if (withFullRefresh) {
        strip.tempSource.reset();
        strip.scrollX = 0;
    }
    strip.chapterScrollXInProgress = -1;
    strip.scrollX = strip.geometry.clampedScrollX(strip.scrollX, strip.width, strip.count());
}

} // namespace

MyTimelinesController::MyTimelinesController(UndoManager &undo, std::function<void()> rebuild)
    : m_undo(undo), m_rebuild(std::move(rebuild)) {}

std::vector<TimelineStrip *> MyTimelinesController::visibleTimelines() {
    if (m_second)
        return {&m_main, m_second.get()};
    return {&m_main};
}

std::vector<TimelineStrip *>
MyTimelinesController::visibleTimelinesOfSameTypeLike(const TimelineStrip &strip) {
    std::vector<TimelineStrip *> alike = visibleTimelines();
    std::erase_if(alike, [isShelf = strip.isShelf()](const TimelineStrip *each) {
        return each->isShelf() != isShelf;
    });
    return alike;
}

void MyTimelinesController::setSource_filtered(std::vector<MySinglePicPtr> list,
                                               bool withFullRefresh) {
    m_main.theSource = std::move(list);
    settleScroll(m_main, withFullRefresh);
    if (!m_second)
        return;
    if (!m_second->isShelf())
        m_second->theSource = m_main.theSource;
    else if (m_shelf.empty())
        m_second->theSource.clear();
    settleScroll(*m_second, withFullRefresh);
}

void MyTimelinesController::refreshShelfsAfterSourceUpdate(
    std::vector<MySinglePicPtr> visible, const std::function<bool(const MySinglePic &)> &isListed) {
    std::erase_if(m_shelf, [&](const MySinglePicPtr &pic) { return !isListed(*pic); });
    if (hasShelf())
        m_second->theSource = std::move(visible);
}

void MyTimelinesController::setSelection(PicSelection selection, TimelineStrip &from) {
    from.selection = std::move(selection);
    from.hiddenSelection = {};
    m_mirrorFirstRespState = &from == m_second.get();
    enforceSelectionExclusivityFor(from, false);
}

void MyTimelinesController::simpleSelectThumb(const MySinglePicPtr &pic, TimelineStrip &from) {
    setSelection(selectionOf(from, {pic}, pic), from);
}

void MyTimelinesController::multiSelectionAdd(const MySinglePicPtr &pic, TimelineStrip &from) {
    setSelection(selectionWith(from, pic), from);
}

void MyTimelinesController::multiSelectionRemove(const MySinglePicPtr &pic, TimelineStrip &from) {
    setSelection(selectionWithout(from, pic), from);
}

void MyTimelinesController::multiSelectAllFrom(const MySinglePicPtr &target, TimelineStrip &from) {
    setSelection(selectionWithRunTo(from, target), from);
}

void MyTimelinesController::deselectAll(TimelineStrip &from) {
    setSelection({}, from);
}

void MyTimelinesController::changeMainSelectionTo(const MySinglePicPtr &pic, TimelineStrip &from) {
    if (!from.selection.contains(pic))
        return simpleSelectThumb(pic, from);
    setSelection(selectionOf(from, from.selection.pics(), pic), from);
}

void MyTimelinesController::selectAll(TimelineStrip &from) {
    setSelection(selectionOfAll(from, [](const MySinglePic &) { return true; }), from);
}

void MyTimelinesController::selectAllOfFolder(const MySingleFolderPtr &folder,
                                              TimelineStrip &from) {
    setSelection(
        selectionOfAll(from,
                       [&](const MySinglePic &pic) { return pic.spSingleRealFolder() == folder; }),
        from);
}

void MyTimelinesController::invertSelection(TimelineStrip &from) {
    setSelection(invertedSelection(from), from);
}

void MyTimelinesController::hideSelection(TimelineStrip &from) {
    if (from.selection.picSelection)
        from.hiddenSelection = std::exchange(from.selection, {});
}

void MyTimelinesController::showHiddenSelection(TimelineStrip &from) {
    if (from.hiddenSelection.picSelection)
        setSelection(remainingSelection(from, from.hiddenSelection), from);
}

void MyTimelinesController::enforceSelectionExclusivityFor(TimelineStrip &strip, bool always) {
    for (TimelineStrip *other :
         always ? visibleTimelines() : visibleTimelinesOfSameTypeLike(strip)) {
        if (other == &strip)
            continue;
        for (PicSelection *theirs : {&other->selection, &other->hiddenSelection}) {
            PicSet pics = theirs->pics();
            const std::size_t shared = std::erase_if(
                pics, [&](const MySinglePicPtr &pic) { return strip.selection.contains(pic); });
            if (shared > 0)
                *theirs = selectionNear(*other, std::move(pics), theirs->picSelection);
        }
    }
}

void MyTimelinesController::moveSelectionFromOrigin() {
    if (!m_second)
        return;
    TimelineStrip &origin = focusedTimeline();
    TimelineStrip &other = &origin == &m_main ? *m_second : m_main;
    if (hasShelf())
        return addSelectionFromToShelf(origin, &other == m_second.get());
    if (origin.selection.picSelection)
        setSelection(std::exchange(origin.selection, {}), other);
}

} // namespace chronomender
