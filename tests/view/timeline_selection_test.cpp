// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleTimelines.h"
#include "Marking.h"
#include "RectangleSelection.h"

#include <gtest/gtest.h>

#include <sstream>

namespace chronomender {
namespace {

using namespace little;

class TimelineSelection : public testing::Test, protected Timelines {};

// A run joins what is selected; of two neighbours of a main item that goes the later one is next.
TEST_F(TimelineSelection, EachWayOfSelectingBuildsOnTheLast) {
    std::istringstream rows(
        "c: C;c z: ;c +f +d: cDf;+f: F;c >f: cdeF;f >c: Cdef;c >e >c: Cde;"
        "b +e >g: befG;>d: D;b >h =d -d: bcEfgh;b +c +h =h -h: bC;b +c -c: B;"
        "b +c -b: C;b -b: ;b -c: B;b +d =e: E;b >d !: aEfghij;* !: ;0 !: Abcdefghij;"
        "d * >b: aBcdefghij;d * 0: ;");
    for (std::string row; std::getline(rows, row, ';');) {
        const std::size_t colon = row.find(':');
        act("0 " + row.substr(0, colon));
        EXPECT_EQ(selected(), row.substr(colon + 2)) << row;
        EXPECT_NE(timelines.mainTimeline().selection.multiSelectionNEW.size(), 1U);
    }
    act("c");
    timelines.selectAllOfFolder(canon, timelines.mainTimeline());
    EXPECT_EQ(selected(), "aCegi");
}

TEST_F(TimelineSelection, AHiddenSelectionComesBackWithoutWhatLeftUnlessSomethingElseIsSelected) {
    TimelineStrip &strip = timelines.mainTimeline();
    act("b >e");
    timelines.hideSelection(strip);
    EXPECT_EQ(selected(), "");
    hide("e");
    timelines.showHiddenSelection(strip);
    EXPECT_EQ(selected(), "bcD");
    timelines.hideSelection(strip);
    act("i");
    timelines.showHiddenSelection(strip);
    EXPECT_EQ(selected(), "I");
}

TEST_F(TimelineSelection, RunsNeighboursAndMarkedItemsAreFoundOnTheStripAsItIs) {
    TimelineStrip &strip = timelines.mainTimeline();
    hide("d");
    act("c >f"); // c e f, side by side while d is hidden
    EXPECT_TRUE(isDragAdjacentInMulti(strip));
    EXPECT_TRUE(isPicAdjacentToPic(strip, *pic('e'), *pic('c')));
    EXPECT_FALSE(isPicAdjacentToPic(strip, *pic('c'), *pic('d')));
    EXPECT_FALSE(isPicAdjacentToPic(strip, *pic('c'), *pic('f')));
    EXPECT_EQ(nextNotSelectedVisibleAfter(strip, pic('c')), pic('g'));
    EXPECT_EQ(nextNotSelectedVisibleAfter(strip, pic('j')), nullptr);
    EXPECT_EQ(nextMainAfterMultiDeselecting(strip, pic('d'), {pic('c'), pic('f')}), pic('c'));
    EXPECT_EQ(nextMainAfterMultiDeselecting(strip, pic('d'), {pic('b'), pic('f')}), pic('f'));
    act("+j +i +a");
    EXPECT_FALSE(isDragAdjacentInMulti(strip));
    const PicSet chosen = strip.selection.pics();
    using Runs = std::vector<IndexRange>;
    EXPECT_EQ(populateStartRangesFor(strip, chosen), (Runs{{0, 1}, {2, 5}, {7, 9}}));
    EXPECT_EQ(populateStartRangesFor(strip, chosen, pic('e')), (Runs{{2, 5}}));
    EXPECT_EQ(populateStartRangesFor(strip, chosen, pic('g')), Runs{});

    for (const char name : {'b', 'd', 'g'})
        pic(name)->marks.isKeeper = true;
    const struct {
        char main, next, previous;
    } rows[] = {
        {'a', 'b', 'g'}, {'b', 'g', 'g'}, {'e', 'g', 'b'}, {'g', 'b', 'b'}, {'z', 'b', 'g'}};
    for (const auto &row : rows) {
        act(std::string(1, row.main));
        EXPECT_EQ(selectNextMarked(strip, Rating::Keeper, WalkDirection::Forward), pic(row.next));
        EXPECT_EQ(selectNextMarked(strip, Rating::Keeper, WalkDirection::Backward),
                  pic(row.previous));
    }
    EXPECT_EQ(selectNextMarked(strip, Rating::Rejected, WalkDirection::Forward), nullptr);
}

TEST_F(TimelineSelection, ARectangleIsHeldAgainstTheSelectionOfItsStart) {
    using enum RectangleMode;
    TimelineStrip &strip = timelines.mainTimeline(); // frames from 20 to 156, every 144
    const struct {
        RectangleMode mode;
        StripPoint start;
        std::vector<StripPoint> moves;
        const char *expected;
    } rows[] = {{Replace, {500, 100}, {{700, 100}}, "dE"},
                {Replace, {500, 100}, {{10, 10}}, "abCd"},
                {Replace, {500, 100}, {{1400, 100}, {500, 100}}, "D"},
                {Replace, {0, 0}, {{1400, 19}}, ""},
                {Replace, {160, 100}, {{162, 150}}, ""},
                {Extend, {10, 10}, {{1400, 100}, {30, 30}}, "aCf"},
                {Extend, {10, 10}, {{15, 15}}, "Cf"},
                {Toggle, {10, 10}, {{500, 100}}, "abDf"},
                {Toggle, {10, 10}, {{500, 100}, {11, 11}}, "Cf"}};
    for (const auto &row : rows) {
        act("f +c");
        RectangleSelection rectangle(strip, row.start, row.mode);
        for (const StripPoint &pointer : row.moves) {
            rectangle.updateSelectionRectIsPointSet(pointer);
            timelines.setSelection(rectangle.updateSelectionInRect(strip), strip);
        }
        EXPECT_EQ(selected(), row.expected) << row.start.x;
    }
    strip.theDrawerSelection = pic('b')->spCategory();
    strip.drawerOffset = 60;
    RectangleSelection high(strip, {0, 30}, Replace);
    high.updateSelectionRectIsPointSet({1400, 50});
    timelines.setSelection(high.updateSelectionInRect(strip), strip);
    EXPECT_EQ(selected(), "aCegi") << "the others stand lower";
}

TEST_F(TimelineSelection, AMirrorShowsTheSameListAndNeverSelectsTheSameItem) {
    act("b >d");
    timelines.addTimelineOfMode(TimelineKind::Mirror, true);
    EXPECT_EQ(state(), "abcdefghij |mirror abcdefghij [bcD]");
    act("d +e");
    EXPECT_EQ(state(), "abcdefghij [dE]|mirror abcdefghij bC") << "the click takes d over";
    timelines.moveSelectionFromOrigin();
    EXPECT_EQ(state(), "abcdefghij |mirror abcdefghij [dE]");
    hide("e");
    EXPECT_EQ(state(), "abcdfghij |mirror abcdfghij [D]");
    timelines.removeSecondTimeline();
    EXPECT_EQ(state(), "abcdfghij [D]");
    EXPECT_FALSE(undo.canUndo());
}

TEST_F(TimelineSelection, ItemsMoveToTheShelfAndBackAndEveryStepIsTakenBackInTurn) {
    std::vector<std::string> states;
    const auto expectState = [&](const std::string &expected, const char *actionName) {
        EXPECT_EQ(state(), expected);
        EXPECT_EQ(undo.undoActionName(), actionName);
        states.push_back(state());
    };
    const auto shelf = [&]() -> TimelineStrip & { return *timelines.secondTimeline(); };
    hide("g");
    act("c >e");
    states.push_back(state());
    timelines.addSelectionFromToShelf(timelines.mainTimeline(), true);
    expectState("abfhij |cde [cdE]", "shelfMove_toShelf");
    act("c >d", shelf());
    states.back() = state();
    timelines.addFolderToShelf(canon, true);
    expectState("bfhj |acdei [cD]", "shelfMove_folderToShelf");
    EXPECT_TRUE(timelines.source_allShelfs().contains(pic('g'))) << "a hidden item goes along";
    timelines.addSelectionFromToShelf(shelf(), false);
    expectState("bcdfhj [cD]|aei ", "shelfMove_fromShelf");
    timelines.removeSecondTimeline();
    expectState("abcdefhij [cD]", "shelfMove_closeShelf");

    constexpr std::size_t onShelf[] = {0, 3, 6, 4, 0};
    for (int round = 0; round < 2; ++round) {
        for (std::size_t step = states.size() - 1; step-- > 0;) {
            undo.undo();
            EXPECT_EQ(state(), states[step]) << "undo to " << step;
        }
        EXPECT_FALSE(undo.canUndo());
        for (std::size_t step = 1; step < states.size(); ++step) {
            undo.redo();
            EXPECT_EQ(timelines.source_allShelfs().size(), onShelf[step]);
        }
        EXPECT_EQ(state(), states.back());
    }
}

TEST_F(TimelineSelection, AShelfThatWasEmptiedClosedOrBecameAMirrorComesBackByUndo) {
    timelines.addTimelineOfMode(TimelineKind::Shelf, false);
    EXPECT_EQ(state(), "abcdefghij []| ");
    timelines.addSelectionFromToShelf(timelines.mainTimeline(), true);
    EXPECT_FALSE(undo.canUndo()) << "nothing is selected";
    act("h");
    timelines.moveSelectionFromOrigin();
    EXPECT_EQ(state(), "abcdefgij |h [H]");
    timelines.moveSelectionFromOrigin(); // the last item takes the shelf with it
    EXPECT_EQ(state(), "abcdefghij [H]");
    timelines.addTimelineOfMode(TimelineKind::Mirror, false);
    undo.undo();
    EXPECT_EQ(state(), "abcdefgij |h [H]");
    undo.undo();
    EXPECT_EQ(state(), "abcdefghij [H]| ") << "the empty shelf that was there";
    undo.redo();
    timelines.addTimelineOfMode(TimelineKind::Mirror, false);
    EXPECT_EQ(undo.undoActionName(), "shelfMove_closeShelf");
    EXPECT_EQ(state(), "abcdefghij [H]|mirror abcdefghij ");
    undo.undo();
    EXPECT_EQ(state(), "abcdefgij |h [H]");
}

TEST_F(TimelineSelection, WhatLeavesTheSessionLeavesTheShelfAndNoUndoBringsItBack) {
    act("b >d");
    timelines.addTimelineOfMode(TimelineKind::Shelf, true);
    EXPECT_EQ(state(), "aefghij |bcd [bcD]");
    remove('d');
    EXPECT_EQ(state(), "aefghij |bc [bC]");
    timelines.removeSecondTimeline();
    undo.undo();
    undo.undo();
    EXPECT_EQ(state(), "abcefghij [Bc]");
    undo.redo();
    EXPECT_EQ(timelines.source_allShelfs().size(), 2U);
    remove('b');
    remove('c');
    EXPECT_TRUE(timelines.hasShelf());
    timelines.cleanupShelfIfEmpty();
    EXPECT_FALSE(timelines.hasShelf());
}

TEST_F(TimelineSelection, AMarkExcludesTheOtherAndOneUndoGivesEveryItemItsOwnBack) {
    int changes = 0;
    Marking marking(undo, [&](std::string_view key) { changes += key == "filter_rating"; });
    const auto marks = [&] {
        std::string text;
        for (const char name : {'a', 'b', 'c'})
            text += std::string(pic(name)->marks.isKeeper ? "k" : "") +
                    (pic(name)->marks.isRejected ? "r" : "") + '.';
        return text;
    };
    const auto jpeg = addItem(canon, SpTypeExifOriginal, utc(2024, 5, 1), "a.jpg");
    makeDependent(jpeg, pic('a'));
    EXPECT_EQ(marking.setRating({pic('b')}, Rating::Keeper), 1U);
    EXPECT_EQ(marking.setRating({jpeg, pic('a'), pic('b'), pic('c')}, Rating::Rejected), 3U);
    EXPECT_EQ(marks(), "r.r.r.") << "the master carries the mark of its group";
    EXPECT_EQ(undo.undoActionName(), "mark_rejected");
    EXPECT_EQ(marking.setRating({pic('b')}, Rating::Rejected), 0U);
    EXPECT_EQ(changes, 2);
    undo.undo();
    EXPECT_EQ(marks(), ".k..");
    undo.undo();
    EXPECT_EQ(marks(), "...");
    EXPECT_FALSE(undo.canUndo());
    undo.redo();
    undo.redo();
    EXPECT_EQ(marks(), "r.r.r.");
    EXPECT_EQ(changes, 6);
    marking.setRating({pic('a')}, Rating::None);
    EXPECT_EQ(marks(), ".r.r.");
}

} // namespace
} // namespace chronomender
