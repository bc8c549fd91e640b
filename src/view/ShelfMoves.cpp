// SPDX-License-Identifier: GPL-3.0-or-later
//
// Items on their way to the shelf and back. Every change of what lies on it is one move, and its
// inverse is another move: a row of undos leads back to exactly what was.
#include "MySingleFolder.h"
#include "MyTimelinesController.h"
#include "SelectionModes.h"

#include <algorithm>

namespace chronomender {
namespace {

constexpr const char *toShelfName = "shelfMove_toShelf";
constexpr const char *fromShelfName = "shelfMove_fromShelf";
constexpr const char *folderToShelfName = "shelfMove_folderToShelf";
constexpr const char *folderFromShelfName = "shelfMove_folderFromShelf";
constexpr const char *closeShelfName = "shelfMove_closeShelf";

using WeakPics = std::vector<std::weak_ptr<MySinglePic>>;

PicSet alive(const WeakPics &pics) {
    PicSet set;
    for (const auto &weak : pics)
        if (const MySinglePicPtr pic = weak.lock())
            set.insert(pic);
    return set;
}

/// A selection of items that a list is about to show; none of them stands in it yet.
PicSelection selectionOfArriving(PicSet pics, const MySinglePicPtr &main) {
    if (pics.empty())
        return {};
    PicSelection selection{pics.contains(main) ? main : sortedThumbsArray(pics).front(), {}};
    if (pics.size() > 1)
        selection.multiSelectionNEW = std::move(pics);
    return selection;
}

} // namespace

/// Items that change sides, and the state to be found when they have.
struct MyTimelinesController::ShelfMove {
    WeakPics pics;
    bool toShelf = false;
    std::optional<TimelineKind> second; ///< the second strip; none for no such strip
    bool mirrorFirstRespState = false;
    /// Those of them that are selected where they arrive; the selection there stays without any.
    WeakPics selected;
    std::weak_ptr<MySinglePic> picSelection;
    std::weak_ptr<MySingleFolder> folder; ///< of a move of a folder

    void select(const PicSelection &selection) {
        const PicSet all = selection.pics();
        selected.assign(all.begin(), all.end());
        picSelection = selection.picSelection;
    }
};

void MyTimelinesController::setSecondKind(std::optional<TimelineKind> kind) {
    if (!kind) {
        m_second.reset();
        m_mirrorFirstRespState = false;
        return;
    }
    if (m_second && m_second->kind == *kind)
        return;
    if (!m_second) {
        m_second = std::make_unique<TimelineStrip>();
        m_second->geometry = m_main.geometry;
        m_second->width = m_main.width;
    }
    m_second->kind = *kind;
    m_second->tempSource.reset();
    m_second->selection = m_second->hiddenSelection = {};
    m_second->theSource = m_second->isShelf() ? sortedThumbsArray(m_shelf) : m_main.theSource;
}

PicSelection MyTimelinesController::selectionAmong(const PicSet &moving) {
    PicSet among;
    MySinglePicPtr main;
    for (TimelineStrip *strip : visibleTimelines()) {
        for (const MySinglePicPtr &pic : strip->selection.pics())
            if (moving.contains(pic))
                among.insert(pic);
        if (!main || strip == &focusedTimeline())
            main = strip->selection.picSelection;
    }
    return selectionOfArriving(std::move(among), main);
}

void MyTimelinesController::registerInverse(const ShelfMove &move, const PicSet &moving) {
    ShelfMove inverse = move;
    inverse.pics.assign(moving.begin(), moving.end());
    inverse.toShelf = !move.toShelf;
    inverse.second = m_second ? std::optional(m_second->kind) : std::nullopt;
    inverse.mirrorFirstRespState = mirrorFirstRespState();
    m_undo.registerUndo(m_undoTarget, [inverse = std::move(inverse)](const UndoTarget &target) {
        target.controller->perform(inverse);
    });
    if (const MySinglePicPtr main = move.picSelection.lock())
        m_undo.recordAffected(main);
    if (const MySingleFolderPtr folder = move.folder.lock())
        m_undo.recordAffected(folder);
}

// The lists themselves are left to the rebuild, which knows what filters hide.
void MyTimelinesController::perform(const ShelfMove &move) {
    PicSet moving = alive(move.pics);
    std::erase_if(moving, [&](const auto &pic) { return m_shelf.contains(pic) == move.toShelf; });
    registerInverse(move, moving);
    for (TimelineStrip *strip : visibleTimelines()) {
        PicSet staying = strip->selection.pics();
        std::erase_if(staying, [&](const auto &pic) { return moving.contains(pic); });
        strip->selection = selectionNear(*strip, std::move(staying), strip->selection.picSelection);
    }
    if (move.toShelf)
        m_shelf.insert(moving.begin(), moving.end());
    else
        std::erase_if(m_shelf, [&](const auto &pic) { return moving.contains(pic); });
    setSecondKind(m_shelf.empty() ? move.second : TimelineKind::Shelf);
    m_mirrorFirstRespState = move.mirrorFirstRespState;
    PicSet selected = alive(move.selected);
    std::erase_if(selected, [&](const auto &pic) { return !moving.contains(pic); });
    if (!selected.empty())
        (move.toShelf ? *m_second : m_main).selection =
            selectionOfArriving(std::move(selected), move.picSelection.lock());
    if (hasShelf() && m_shelf.empty())
        m_second->theSource.clear();
    m_rebuild();
}

void MyTimelinesController::addUndoForPicShelfMove(const ShelfMove &move, const char *actionName) {
    const UndoGroup group(m_undo);
    perform(move);
    m_undo.setActionName(actionName);
}

void MyTimelinesController::addUndoForFolderShelfMove(ShelfMove move,
                                                      const MySingleFolderPtr &folder) {
    const char *actionName = move.toShelf ? folderToShelfName : folderFromShelfName;
    move.folder = folder;
    addUndoForPicShelfMove(move, actionName);
}

MyTimelinesController::ShelfMove MyTimelinesController::shelfMove(PicSet pics, bool toShelf) {
    std::erase_if(pics, [&](const auto &pic) { return m_shelf.contains(pic) == toShelf; });
    ShelfMove move{{pics.begin(), pics.end()}, toShelf, {}, false, {}, {}, {}};
    if (toShelf)
        move.second = TimelineKind::Shelf;
    move.select(selectionAmong(pics));
    move.mirrorFirstRespState = move.selected.empty() ? mirrorFirstRespState() : toShelf;
    return move;
}

void MyTimelinesController::addSelectionFromToShelf(TimelineStrip &from, bool toShelf) {
    PicSet pics = from.selection.pics();
    std::erase_if(pics, [&](const auto &pic) { return !from.indexOf(*pic); }); // hidden meanwhile
    const ShelfMove move = shelfMove(std::move(pics), toShelf);
    if (!move.pics.empty())
        addUndoForPicShelfMove(move, toShelf ? toShelfName : fromShelfName);
}

void MyTimelinesController::addFolderToShelf(const MySingleFolderPtr &folder, bool toShelf) {
    const auto &pics = folder->sfPicDetails_fullArray;
    const ShelfMove move = shelfMove({pics.begin(), pics.end()}, toShelf);
    if (!move.pics.empty())
        addUndoForFolderShelfMove(move, folder);
}

void MyTimelinesController::closeShelf(std::optional<TimelineKind> second) {
    if (m_shelf.empty())
        return setSecondKind(second);
    ShelfMove move = shelfMove(m_shelf, false);
    move.second = second;
    move.mirrorFirstRespState = false;
    if (m_main.selection.picSelection)
        move.selected.clear();
    addUndoForPicShelfMove(move, closeShelfName);
}

void MyTimelinesController::addTimelineOfMode(TimelineKind kind, bool movingSelection) {
    if (kind == TimelineKind::Main)
        return;
    const bool isMoving = movingSelection && m_main.selection.picSelection;
    if (isMoving && kind == TimelineKind::Shelf)
        return addSelectionFromToShelf(m_main, true); // brings the shelf, as one step
    if (hasShelf() && kind == TimelineKind::Mirror)
        closeShelf(kind);
    else
        setSecondKind(kind);
    if (isMoving)
        setSelection(std::exchange(m_main.selection, {}), *m_second);
}

void MyTimelinesController::removeSecondTimeline() {
    if (!m_second)
        return;
    if (hasShelf())
        return closeShelf(std::nullopt);
    if (!m_main.selection.picSelection)
        m_main.selection = m_second->selection;
    setSecondKind(std::nullopt);
}

void MyTimelinesController::cleanupShelfIfEmpty() {
    if (hasShelf() && m_shelf.empty())
        setSecondKind(std::nullopt);
}

} // namespace chronomender
