// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleItem.h"
#include "Marking.h"
#include "MyTimelinesController.h"
#include "RectangleSelection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace chronomender {
namespace {

using namespace little;

/// Ten items "a" to "j" in this order, in two folders by turns, and a list that is built of them in
/// the plainest way.
class Timelines : public testing::Test {
protected:
    Timelines() {
        for (std::int64_t index = 0; index < 10; ++index) {
            const std::string name(1, static_cast<char>('a' + index));
            all.push_back(addItem(index % 2 ? nikon : canon, SpTypeExifOriginal,
                                  utc(2024, 5, 1) + absl::Hours(index), name));
            all.back()->positions.indexInSource_full = index;
        }
        rebuild();
    }
    void rebuild() {
        std::vector<MySinglePicPtr> list, shelf;
        for (const MySinglePicPtr &pic : all)
            if (hidden.find(pic->spName) == std::string::npos)
                (timelines.source_allShelfs().contains(pic) ? shelf : list).push_back(pic);
        timelines.refreshShelfsAfterSourceUpdate(shelf, [this](const MySinglePic &pic) {
            return std::ranges::any_of(all, [&](const auto &each) { return each.get() == &pic; });
        });
        timelines.setSource_filtered(list, false);
    }
    MySinglePicPtr pic(char name) const {
        const auto found = std::ranges::find(all, std::string(1, name), &MySinglePic::spName);
        return found == all.end() ? nullptr : *found;
    }
    /// Each word is a sign and a name: "c" clicks, "+c" adds, "-c" removes, ">c" selects the run
    /// to it, "=c" makes it the main item. A sign alone: "!" inverts, "*" all, "0" none, "h" hides.
    void act(const std::string &words, TimelineStrip &strip) {
        std::istringstream stream(words);
        for (std::string word; stream >> word;)
            act(word.front(), pic(word.back()), strip);
    }
    void act(const std::string &words) { act(words, timelines.mainTimeline()); }

    /// The selected items in order, the main one in upper case.
    static std::string selected(const TimelineStrip &strip) {
        std::string names;
        for (const MySinglePicPtr &each : sortedThumbsArray(strip.selection.pics()))
            names += each == strip.selection.picSelection
                         ? static_cast<char>(std::toupper(each->spName[0]))
                         : each->spName[0];
        return names;
    }
    std::string selected() { return selected(timelines.mainTimeline()); }
    static std::string names(const std::vector<MySinglePicPtr> &list) {
        std::string names;
        for (const MySinglePicPtr &each : list)
            names += each->spName;
        return names;
    }
    /// "main list selection|second list selection", the strip with the focus in brackets.
    std::string state() {
        std::string text;
        for (TimelineStrip *strip : timelines.visibleTimelines()) {
            const bool hasFocus = strip == &timelines.focusedTimeline();
            const std::string kind = strip->kind == TimelineKind::Mirror ? "mirror " : "";
            text += (text.empty() ? "" : "|") + kind + names(strip->theSource) + ' ' +
                    (hasFocus ? '[' + selected(*strip) + ']' : selected(*strip));
        }
        return text;
    }

    const MySingleFolderPtr canon = makeFolder(), nikon = makeFolder();
    std::vector<MySinglePicPtr> all;
    std::string hidden;
    UndoManager undo;
    MyTimelinesController timelines{undo, [this] { rebuild(); }};

private:
    void act(char sign, const MySinglePicPtr &pic, TimelineStrip &strip) {
        switch (sign) {
        case '+':
            return timelines.multiSelectionAdd(pic, strip);
        case '-':
            return timelines.multiSelectionRemove(pic, strip);
        case '>':
            return timelines.multiSelectAllFrom(pic, strip);
        case '=':
            return timelines.changeMainSelectionTo(pic, strip);
        case '!':
            return timelines.invertSelection(strip);
        case '*':
            return timelines.selectAll(strip);
        case '0':
            return timelines.deselectAll(strip);
        default:
            timelines.simpleSelectThumb(pic, strip);
        }
    }
};

TEST_F(Timelines, EachWayOfSelectingBuildsOnTheLast) {
    const struct {
        const char *actions, *expected;
    } rows[] = {
        {"c", "C"},
        {"c z", ""}, // a place without an item
        {"c +f +d", "cDf"},
        {"+f", "F"},
        {"c >f", "cdeF"},
        {"f >c", "Cdef"},
        {"c >e >c", "Cde"},
        {"b +e >g", "befG"}, // a run joins what is selected, from the main item
        {">d", "D"},
        {"b >h =d -d", "bcEfgh"}, // of two neighbours the later one is next
        {"b +c +h =h -h", "bC"},
        {"b +c -c", "B"},
        {"b +c -b", "C"},
        {"b -b", ""},
        {"b -c", "B"},
        {"b +d =e", "E"},
        {"b >d !", "aEfghij"},
        {"* !", ""},
        {"0 !", "Abcdefghij"},
        {"d * >b", "aBcdefghij"},
        {"d * 0", ""},
    };
    for (const auto &row : rows) {
        act("0");
        act(row.actions);
        EXPECT_EQ(selected(), row.expected) << row.actions;
        EXPECT_NE(timelines.mainTimeline().selection.multiSelectionNEW.size(), 1U);
    }
    act("c");
    timelines.selectAllOfFolder(canon, timelines.mainTimeline());
    EXPECT_EQ(selected(), "aCegi");
}

TEST_F(Timelines, AHiddenSelectionComesBackWithoutWhatLeftUnlessSomethingElseIsSelected) {
    TimelineStrip &strip = timelines.mainTimeline();
    act("b >e");
    timelines.hideSelection(strip);
    EXPECT_EQ(selected(), "");
    hidden = "e";
    rebuild();
    timelines.showHiddenSelection(strip);
    EXPECT_EQ(selected(), "bcD");
    timelines.hideSelection(strip);
    act("i");
    timelines.showHiddenSelection(strip);
    EXPECT_EQ(selected(), "I");
}

TEST_F(Timelines, RunsNeighboursAndMarkedItemsAreFoundOnTheStripAsItIs) {
    TimelineStrip &strip = timelines.mainTimeline();
    hidden = "d";
    rebuild();
    act("c >f"); // c e f, side by side while d is hidden
    EXPECT_TRUE(isDragAdjacentInMulti(strip));
    EXPECT_TRUE(isPicAdjacentToPic(strip, *pic('e'), *pic('c')));
    EXPECT_FALSE(isPicAdjacentToPic(strip, *pic('c'), *pic('d')));
    EXPECT_FALSE(isPicAdjacentToPic(strip, *pic('c'), *pic('f')));
    EXPECT_EQ(nextNotSelectedVisibleAfter(strip, pic('c')), pic('g'));
    EXPECT_EQ(nextNotSelectedVisibleAfter(strip, pic('j')), nullptr);
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
        EXPECT_EQ(selectNextMarked(strip, Mark::Keeper, WalkDirection::Forward), pic(row.next));
        EXPECT_EQ(selectNextMarked(strip, Mark::Keeper, WalkDirection::Backward),
                  pic(row.previous));
    }
    EXPECT_EQ(selectNextMarked(strip, Mark::Rejected, WalkDirection::Forward), nullptr);
}

TEST_F(Timelines, ARectangleIsHeldAgainstTheSelectionOfItsStart) {
    using enum RectangleMode;
    TimelineStrip &strip = timelines.mainTimeline(); // frames from 20 to 156, every 144
    const struct {
        RectangleMode mode;
        StripPoint start;
        std::vector<StripPoint> moves;
        const char *expected;
    } rows[] = {
        {Replace, {500, 100}, {{700, 100}}, "dE"},
        {Replace, {500, 100}, {{10, 10}}, "abCd"}, // the old main item stays it
        {Replace, {500, 100}, {{1400, 100}, {500, 100}}, "D"},
        {Replace, {0, 0}, {{1400, 19}}, ""},     // above the thumbnails
        {Replace, {160, 100}, {{162, 150}}, ""}, // in a gap
        {Extend, {10, 10}, {{1400, 100}, {30, 30}}, "aCf"},
        {Extend, {10, 10}, {{15, 15}}, "Cf"},
        {Toggle, {10, 10}, {{500, 100}}, "abDf"},
        {Toggle, {10, 10}, {{500, 100}, {11, 11}}, "Cf"},
    };
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
    EXPECT_EQ(high.updateSelectionInRect(strip).count(), 0U) << "all are of the enlarged category";
}

TEST_F(Timelines, AMirrorShowsTheSameListAndNeverSelectsTheSameItem) {
    act("b >d");
    timelines.addTimelineOfMode(TimelineKind::Mirror, true);
    EXPECT_EQ(state(), "abcdefghij |mirror abcdefghij [bcD]");
    act("d +e");
    EXPECT_EQ(state(), "abcdefghij [dE]|mirror abcdefghij bC") << "the click takes d over";
    timelines.moveSelectionFromOrigin();
    EXPECT_EQ(state(), "abcdefghij |mirror abcdefghij [dE]");
    hidden = "e";
    rebuild();
    EXPECT_EQ(state(), "abcdfghij |mirror abcdfghij [D]");
    timelines.removeSecondTimeline();
    EXPECT_EQ(state(), "abcdfghij [D]");
    EXPECT_FALSE(undo.canUndo());
}

TEST_F(Timelines, ItemsMoveToTheShelfAndBackAndEveryStepIsTakenBackInTurn) {
    std::vector<std::string> states;
    const auto expectState = [&](const std::string &expected, const char *actionName) {
        EXPECT_EQ(state(), expected);
        EXPECT_EQ(undo.undoActionName(), actionName);
        states.push_back(state());
    };
    const auto shelf = [&]() -> TimelineStrip & { return *timelines.secondTimeline(); };
    hidden = "g";
    rebuild();
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

TEST_F(Timelines, AShelfThatWasEmptiedClosedOrBecameAMirrorComesBackByUndo) {
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

TEST_F(Timelines, WhatLeavesTheSessionLeavesTheShelfAndNoUndoBringsItBack) {
    act("b >d");
    timelines.addTimelineOfMode(TimelineKind::Shelf, true);
    EXPECT_EQ(state(), "aefghij |bcd [bcD]");
    const auto gone = pic('d');
    std::erase(all, gone);
    rebuild();
    EXPECT_EQ(state(), "aefghij |bc [bC]");
    timelines.removeSecondTimeline();
    undo.undo();
    undo.undo();
    EXPECT_EQ(state(), "abcefghij [Bc]");
    undo.redo();
    EXPECT_EQ(timelines.source_allShelfs().size(), 2U);
    all.clear();
    rebuild();
    EXPECT_TRUE(timelines.hasShelf());
    timelines.cleanupShelfIfEmpty();
    EXPECT_FALSE(timelines.hasShelf());
}

TEST_F(Timelines, AMarkExcludesTheOtherAndOneUndoGivesEveryItemItsOwnBack) {
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
    EXPECT_EQ(marking.setMark({pic('b')}, Mark::Keeper), 1U);
    EXPECT_EQ(marking.setMark({jpeg, pic('a'), pic('b'), pic('c')}, Mark::Rejected), 3U);
    EXPECT_EQ(marks(), "r.r.r.") << "the master carries the mark of its group";
    EXPECT_EQ(undo.undoActionName(), "mark_rejected");
    EXPECT_EQ(marking.setMark({pic('b')}, Mark::Rejected), 0U);
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
    marking.setMark({pic('a')}, Mark::None);
    EXPECT_EQ(marks(), ".r.r.");
}

} // namespace
} // namespace chronomender
