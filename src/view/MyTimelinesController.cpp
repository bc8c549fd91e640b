// SPDX-License-Identifier: GPL-3.0-or-later
#include "MyTimelinesController.h"

namespace chronomender {

MyTimelinesController::MyTimelinesController(UndoManager &undo, std::function<void()> rebuild)
    : m_undo(undo), m_rebuild(std::move(rebuild)) {}

std::vector<TimelineStrip *> MyTimelinesController::visibleTimelines() {
    return {&m_main};
}

void MyTimelinesController::setSource_filtered(std::vector<MySinglePicPtr> list, bool) {
    m_main.theSource = std::move(list);
}

void MyTimelinesController::refreshShelfsAfterSourceUpdate(
    std::vector<MySinglePicPtr>, const std::function<bool(const MySinglePic &)> &) {}
void MyTimelinesController::addTimelineOfMode(TimelineKind, bool) {}
void MyTimelinesController::removeSecondTimeline() {}
void MyTimelinesController::addSelectionFromToShelf(TimelineStrip &, bool) {}
void MyTimelinesController::addFolderToShelf(const MySingleFolderPtr &, bool) {}
void MyTimelinesController::cleanupShelfIfEmpty() {}
void MyTimelinesController::simpleSelectThumb(const MySinglePicPtr &, TimelineStrip &) {}
void MyTimelinesController::multiSelectionAdd(const MySinglePicPtr &, TimelineStrip &) {}
void MyTimelinesController::multiSelectionRemove(const MySinglePicPtr &, TimelineStrip &) {}
void MyTimelinesController::multiSelectAllFrom(const MySinglePicPtr &, TimelineStrip &) {}
void MyTimelinesController::deselectAll(TimelineStrip &) {}
void MyTimelinesController::changeMainSelectionTo(const MySinglePicPtr &, TimelineStrip &) {}
void MyTimelinesController::enforceSelectionExclusivityFor(TimelineStrip &, bool) {}

} // namespace chronomender
