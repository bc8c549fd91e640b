// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PicSet.h"
#include "TimelineStrip.h"
#include "UndoManager.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace chronomender {

/// Up to two strips over the visible list: the main one, and a second view of the same items (a
/// mirror, to compare two places in time) or a shelf with items of its own, which the main list
/// then lacks. Coordinates their selections. A second strip may be gone after every function that
/// moves items from or to a shelf, and after undo and redo. Main thread.
class MyTimelinesController {
public:
    /// `rebuild` builds the visible list anew after items went to a shelf or came back. The undo
    /// manager outlives the controller.
    MyTimelinesController(UndoManager &undo, std::function<void()> rebuild);
    MyTimelinesController(const MyTimelinesController &) = delete;
    MyTimelinesController &operator=(const MyTimelinesController &) = delete;

    TimelineStrip &mainTimeline() { return m_main; }
    const TimelineStrip &mainTimeline() const { return m_main; }
    /// Null with one strip only.
    TimelineStrip *secondTimeline() { return m_second.get(); }
    const TimelineStrip *secondTimeline() const { return m_second.get(); }
    std::vector<TimelineStrip *> visibleTimelines();
    /// The strips that show the same list as this one, with it.
    std::vector<TimelineStrip *> visibleTimelinesOfSameTypeLike(const TimelineStrip &strip);
    bool hasShelf() const { return m_second && m_second->isShelf(); }

    /// The second strip has the focus. Undoing a move to or from the shelf gives it back.
    bool mirrorFirstRespState() const { return m_second && m_mirrorFirstRespState; }
    void setMirrorFirstRespState(bool isSecond) { m_mirrorFirstRespState = isSecond; }
    TimelineStrip &focusedTimeline() { return mirrorFirstRespState() ? *m_second : m_main; }

    /// What filters and shelf leave over, in order: the list of the main strip.
    const std::vector<MySinglePicPtr> &source_filtered() const { return m_main.theSource; }
    /// All items on shelves, be they hidden by a filter or not.
    const PicSet &source_allShelfs() const { return m_shelf; }
    /// The new list of the main strip and its mirror, after the items were numbered. Selections are
    /// left to the caller. With a full refresh a live list is dropped and the strips start at their
    /// left edge.
    void setSource_filtered(std::vector<MySinglePicPtr> list, bool withFullRefresh);
    /// The shelf shows `visible`, its items in order without those that filters hide. Items that
    /// left the session (`isListed` says no) leave the shelf.
    void refreshShelfsAfterSourceUpdate(std::vector<MySinglePicPtr> visible,
                                        const std::function<bool(const MySinglePic &)> &isListed);

    /// Adds the second strip, of another kind than Main, in place of one of another kind.
    void addTimelineOfMode(TimelineKind kind, bool movingSelection);
    /// Takes it away; items of a shelf return to the main list, undoably.
    void removeSecondTimeline();
    /// Moves the selection of a strip to the shelf or back, undoably. A shelf comes to be where
    /// there is none, in place of a mirror, and goes with its last item. The items stay selected.
    void addSelectionFromToShelf(TimelineStrip &from, bool toShelf);
    /// The same for all items of a folder, those too that a filter hides.
    void addFolderToShelf(const MySingleFolderPtr &folder, bool toShelf);
    /// Removes a shelf without items.
    void cleanupShelfIfEmpty();

    // ---- selection: each ends what a hidden selection had put aside, and gives the strip focus
    void simpleSelectThumb(const MySinglePicPtr &pic, TimelineStrip &from);
    void multiSelectionAdd(const MySinglePicPtr &pic, TimelineStrip &from);
    void multiSelectionRemove(const MySinglePicPtr &pic, TimelineStrip &from);
    void multiSelectAllFrom(const MySinglePicPtr &target, TimelineStrip &from);
    void deselectAll(TimelineStrip &from);
    /// A selected item becomes the main one; any other item is selected alone.
    void changeMainSelectionTo(const MySinglePicPtr &pic, TimelineStrip &from);
    void selectAll(TimelineStrip &from);
    void selectAllOfFolder(const MySingleFolderPtr &folder, TimelineStrip &from);
    void invertSelection(TimelineStrip &from);
    /// What a rectangle, or another way of selecting, makes of the strip's selection.
    void setSelection(PicSelection selection, TimelineStrip &from);
    /// Puts the selection aside, so that the strip shows none, and brings it back.
    void hideSelection(TimelineStrip &from);
    void showHiddenSelection(TimelineStrip &from);
    void clearHiddenSelection(TimelineStrip &from) { from.hiddenSelection = {}; }
    /// The same item is never selected on both strips: the strip keeps its own. Without `always`
    /// only strips that show the same list are looked at.
    void enforceSelectionExclusivityFor(TimelineStrip &strip, bool always);

    /// The selection of the strip with the focus.
    const PicSelection &getSelectionFromOrigin() { return focusedTimeline().selection; }
    /// Moves it with its main item and the focus to the other strip, to a shelf and back undoably.
    /// Without a second strip nothing happens.
    void moveSelectionFromOrigin();

private:
    struct ShelfMove;
    struct UndoTarget {
        MyTimelinesController *controller;
    };

    void setSecondKind(std::optional<TimelineKind> kind);
    void closeShelf(std::optional<TimelineKind> second);
    ShelfMove shelfMove(PicSet pics, bool toShelf);
    PicSelection selectionAmong(const PicSet &moving);
    void addUndoForPicShelfMove(const ShelfMove &move, const char *actionName);
    void addUndoForFolderShelfMove(ShelfMove move, const MySingleFolderPtr &folder);
    void perform(const ShelfMove &move);
    void registerInverse(const ShelfMove &move, const PicSet &moving);

    UndoManager &m_undo;
    std::function<void()> m_rebuild;
    TimelineStrip m_main;
    std::unique_ptr<TimelineStrip> m_second;
    PicSet m_shelf;
    bool m_mirrorFirstRespState = false;
    /// Undo records find the controller by it, for as long as there is one.
    std::shared_ptr<UndoTarget> m_undoTarget = std::make_shared<UndoTarget>(UndoTarget{this});
};

} // namespace chronomender
