// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PicSet.h"
#include "TimelineStrip.h"
#include "UndoManager.h"

#include <memory>
#include <vector>

namespace chronomender {

/// Up to two strips over the visible list: the main one, and a second view of the same items (a
/// mirror, to compare two places in time) or a shelf with items of its own, which the main list
/// then lacks. Coordinates their selections. Main thread.
class MyTimelinesController {
public:
    /// `rebuild` builds the visible list anew after items went to a shelf or came back.
    MyTimelinesController(UndoManager &undo, std::function<void()> rebuild);

    TimelineStrip &mainTimeline() { return m_main; }
    const TimelineStrip &mainTimeline() const { return m_main; }
    /// Null with one strip only.
    TimelineStrip *secondTimeline() { return m_second.get(); }
    const TimelineStrip *secondTimeline() const { return m_second.get(); }
    std::vector<TimelineStrip *> visibleTimelines();
    bool hasShelf() const { return m_second && m_second->kind == TimelineKind::Shelf; }

    /// What filters and shelf leave over, in order: the list of the main strip.
    const std::vector<MySinglePicPtr> &source_filtered() const { return m_main.theSource; }
    /// All items on shelves, be they hidden by a filter or not.
    const PicSet &source_allShelfs() const { return m_shelf; }
    void setSource_filtered(std::vector<MySinglePicPtr> list, bool withFullRefresh);
    /// The shelf shows `visible`, its items in order without those that filters hide. Items that
    /// left the session (`isListed` says no) leave the shelf.
    void refreshShelfsAfterSourceUpdate(std::vector<MySinglePicPtr> visible,
                                        const std::function<bool(const MySinglePic &)> &isListed);

    /// Adds the second strip, of another kind than Main.
    void addTimelineOfMode(TimelineKind kind, bool movingSelection);
    /// Takes it away; items of a shelf return to the main list.
    void removeSecondTimeline();
    /// Moves the selection of a strip to the shelf or back, undoably.
    void addSelectionFromToShelf(TimelineStrip &from, bool toShelf);
    /// The same for all items of a folder.
    void addFolderToShelf(const MySingleFolderPtr &folder, bool toShelf);
    /// Removes a shelf without items.
    void cleanupShelfIfEmpty();

    // ---- selection
    void simpleSelectThumb(const MySinglePicPtr &pic, TimelineStrip &from);
    void multiSelectionAdd(const MySinglePicPtr &pic, TimelineStrip &from);
    void multiSelectionRemove(const MySinglePicPtr &pic, TimelineStrip &from);
    void multiSelectAllFrom(const MySinglePicPtr &target, TimelineStrip &from);
    void deselectAll(TimelineStrip &from);
    void changeMainSelectionTo(const MySinglePicPtr &pic, TimelineStrip &from);
    /// The same item is never selected on both strips.
    void enforceSelectionExclusivityFor(TimelineStrip &strip, bool always);

private:
    UndoManager &m_undo;
    std::function<void()> m_rebuild;
    TimelineStrip m_main;
    std::unique_ptr<TimelineStrip> m_second;
    PicSet m_shelf;
};

} // namespace chronomender
