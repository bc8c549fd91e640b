// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateDrag.h"

#include "LittleItem.h"
#include "SourceBuilder.h"

#include <gmock/gmock.h>

#include <random>

namespace chronomender {
namespace {

using namespace little;
using enum DateChangeOutcome;
using enum DragType;

constexpr absl::Duration second = absl::Seconds(1), zero = absl::ZeroDuration();
const Date noon = utc(2024, 6, 1, 12);

/// Two cameras on one strip. Dates are seconds behind noon.
class DateDragTest : public testing::Test {
protected:
    DateDragTest() {
        nikon->folderSortGeneral = 1;
        m_folders.append(canon);
        m_folders.append(nikon);
    }

    MySinglePicPtr add(const MySingleFolderPtr &folder, double at, const std::string &name = "a",
                       SpType type = SpTypeExifOriginal) {
        return addItem(folder, type, noon + absl::Seconds(at), name);
    }
    TimelineStrip &strip() { return timelines.mainTimeline(); }
    const std::vector<MySinglePicPtr> &build() {
        m_builder.buildNewSource();
        return strip().theSource;
    }
    std::unique_ptr<DateDrag> begin(const MySinglePicPtr &pic) {
        build();
        return DateDrag::begin(pic, timelines, strip(), absl::Seconds(60));
    }
    std::unique_ptr<DateDrag> begin(const MySinglePicPtr &main,
                                    const std::vector<MySinglePicPtr> &others) {
        strip().selection = {main, PicSet(others.begin(), others.end())};
        strip().selection.multiSelectionNEW.insert(main);
        return begin(main);
    }
    static double at(Date date) { return absl::ToDoubleSeconds(date - noon); }
    static double at(const MySinglePicPtr &pic) { return at(pic->spDateTimeModified_sort()); }

    const MySingleFolderPtr canon = makeFolder(EditMode::Single), nikon = makeFolder();
    UndoManager undo;
    MyTimelinesController timelines{undo, [] {}};

private:
    SourceViews m_views;
    MyDroppedFolders m_folders;
    SourceBuilder m_builder{m_folders, timelines, m_views, [] { return SourceRestrictions(); }};
};

TEST_F(DateDragTest, EachTargetGivesItsDateAndWhatHasNoDateGivesNone) {
    const auto marker = addItem(nikon, SpTypeUnsupported, InfinitePast());
    const auto left = add(nikon, 0.5), dragged = add(canon, 5.25), right = add(nikon, 11);
    // The strip: marker, left, dragged, right.
    const struct {
        DragTarget target;
        double expected;
    } cases[] = {
        {{OuterEdge, 0}, -59.5},   {{OuterEdge, 4}, 71},      {{SecondBefore, 3}, 10.25},
        {{SecondAfter, 3}, 12.25}, {{SecondBefore, 1}, -.75}, {{SecondAfter, 1}, 1.25},
        {{Between, 2}, 5.75},      {{Between, 3}, 5.75},      {{Onto, 1}, 0.5},
        {{Onto, 3}, 11},           {{Onto, 0}, 5.25},         {{SecondAfter, 0}, 5.25}, // no date
        {{Between, 1}, 5.25},      {{Between, 0}, 5.25},      {{Between, 4}, 5.25},
        {{OuterEdge, 2}, 5.25},                               // no gap and no edge
        {{Onto, 2}, 5.25},         {{SecondBefore, 2}, 5.25}, // itself
        {{Onto, 4}, 5.25},         {{Onto, -1}, 5.25},        {{None, 1}, 5.25},
        {{Between, 5}, 5.25},
    };
    for (const auto &[target, expected] : cases) {
        SCOPED_TRACE(std::to_string(static_cast<int>(target.dragType)) + " at " +
                     std::to_string(target.index));
        const auto drag = begin(dragged);
        drag->moveTo({Between, 2}); // what was before does not matter
        drag->moveTo(target);
        EXPECT_EQ(at(drag->tempTimeDuringLiveMod(*dragged)), expected);
        EXPECT_EQ(drag->tempMoveDateByDuringLiveMod(), absl::Seconds(expected - 5.25));
        EXPECT_EQ(at(dragged), 5.25) << "nothing changes before the drop";
        EXPECT_EQ(drag->commit(undo), expected == 5.25 ? NothingChanged : Done);
        EXPECT_EQ(at(dragged), expected);
        EXPECT_EQ(undo.canUndo(), expected != 5.25);
        EXPECT_FALSE(strip().tempSource);
        undo.undo();
        EXPECT_EQ(dragged->shift.singlePicModification, zero);
    }
}

TEST_F(DateDragTest, ARunSpreadsInAWideGapAndSharesTheMiddleOfANarrowOne) {
    const struct {
        double gap;
        double first, second, third;
    } cases[] = {{2, 1, 1, 1}, {2.5, .625, 1.25, 1.875}, {100, 25, 50, 75}};
    for (const auto &each : cases) {
        canon->sfPicDetails_fullArray.clear();
        nikon->sfPicDetails_fullArray.clear();
        add(nikon, 0);
        add(nikon, each.gap);
        const auto a = add(canon, 1000), b = add(canon, 1050), c = add(canon, 2000);
        const auto drag = begin(b, {a, c});
        drag->moveTo({Between, 1});
        EXPECT_EQ(drag->commit(undo), Done);
        EXPECT_EQ(undo.undoActionName(), "dragInSingleMode");
        EXPECT_THAT((std::vector{at(a), at(b), at(c)}),
                    testing::ElementsAre(each.first, each.second, each.third));
        undo.undo();
        EXPECT_EQ(at(c), 2000);
        EXPECT_FALSE(undo.canUndo()) << "one step";
    }
}

TEST_F(DateDragTest, OnlyWhatCanMoveByItselfMovesAndItsOffsetsStayOutsideOfGaps) {
    const auto target = add(nikon, 0), main = add(canon, 100), other = add(canon, 130);
    const auto together = add(nikon, 140), trashed = add(canon, 150), notSelected = add(canon, 160);
    const auto still = add(canon, 170, "live.heic");
    makeDependent(addItem(canon, SpTypeMovieMdta, noon + 171.5 * second, "live.mov"), still);
    canon->sortFolderLPsByMov = true; // the pair stands where its movie does
    trashed->isMovedToTrash = true;
    const auto drag = begin(main, {other, together, trashed, still});
    drag->moveTo({Onto, 4}); // what cannot move is a target
    EXPECT_EQ(drag->tempMoveDateByDuringLiveMod(), 50 * second);
    drag->moveTo({Onto, 0});
    EXPECT_EQ(drag->commit(undo), Done);
    const std::vector positions{at(main), at(other), at(together), at(trashed), at(notSelected)};
    EXPECT_THAT(positions, testing::ElementsAre(0, 30, 140, 150, 160));
    EXPECT_EQ(at(still), 71.5);
    EXPECT_EQ(still->shift.singlePicModification, -100 * second);
    EXPECT_EQ(begin(trashed), nullptr);
    EXPECT_EQ(begin(nullptr), nullptr);
}

TEST_F(DateDragTest, AFolderMovesAsAWholeByItsNewTotalShift) {
    const auto before = add(canon, 0), after = add(canon, 100);
    const auto main = add(nikon, 10), other = add(nikon, 20);
    nikon->sfDateModificationsTimeInterval = 5 * second;
    // The strip: before, main (15), other (25), after.
    auto drag = begin(main, {before, after}); // what else is selected has no say
    drag->moveTo({Between, 2});
    EXPECT_EQ(at(drag->tempTimeDuringLiveMod(*other)), 60);
    EXPECT_EQ(at(drag->tempTimeDuringLiveMod(*after)), 100);
    EXPECT_EQ(drag->commit(undo), Done);
    EXPECT_EQ(nikon->sfDateModificationsTimeInterval, 40 * second);
    EXPECT_EQ(undo.undoActionName(), "undoDateChangeText");
    EXPECT_EQ(at(before), 0);
    undo.undo();
    EXPECT_EQ(nikon->sfDateModificationsTimeInterval, 5 * second);

    drag = begin(main);
    drag->moveTo({SecondAfter, 0});
    drag->moveTo({Onto, 3});
    drag->moveTo({None, 0});
    drag->commit(undo);
    EXPECT_FALSE(undo.canUndo()) << "it ends where it began";
    drag = begin(add(nikon, 100, "on"));
    drag->moveTo({Onto, 3});
    EXPECT_EQ(drag->commit(undo), Done);
    EXPECT_EQ(undo.undoActionName(), "resetAllInFolderMode");
}

TEST_F(DateDragTest, ADropOutOfBoundsIsRefusedAsAWhole) {
    addItem(canon, SpTypeExifOriginal, minDate() + 5 * second);
    for (const auto &folder : {canon, nikon}) {
        const auto main = add(folder, 0), other = add(folder, -10);
        const auto drag = begin(main, {other});
        drag->moveTo({Onto, 0}); // the other would come to stand five seconds too early
        EXPECT_EQ(drag->commit(undo), RefusedOutOfBounds);
        EXPECT_EQ(at(main), 0);
        EXPECT_FALSE(undo.canUndo());
        EXPECT_FALSE(strip().tempSource);
    }
}

TEST_F(DateDragTest, TheTemporaryListIsTheOneThatIsBuiltAfterTheDrop) {
    std::mt19937 random(6);
    const auto upTo = [&](std::size_t end) { return random() % end; };
    const char *const names[] = {"IMG_9", "IMG_10", "img_9", "IMG_010", "b", "IMG_9"};
    std::vector<MySinglePicPtr> all{addItem(nikon, SpTypeUnsupported, InfinitePast())};
    for (int i = 0; i < 60; ++i)
        all.push_back(add(upTo(2) ? canon : nikon, static_cast<double>(upTo(12)) / 2,
                          names[upTo(std::size(names))]));
    int done = 0;
    for (int step = 0; step < 400; ++step) {
        const auto main = all[upTo(all.size())];
        const auto drag = begin(main, {all[upTo(all.size())], all[upTo(all.size())]});
        if (!drag)
            continue;
        for (int move = 0; move < 3; ++move)
            drag->moveTo({static_cast<DragType>(upTo(6)), static_cast<std::int64_t>(upTo(62))});
        const auto shown = strip().shown();
        for (std::size_t i = 0; i < shown.size(); ++i)
            ASSERT_EQ(drag->tempIdxFullDuringLiveMod(*shown[i]), static_cast<std::int64_t>(i));
        std::vector<Date> dates;
        for (const auto &pic : shown)
            dates.push_back(drag->tempTimeDuringLiveMod(*pic));
        done += drag->commit(undo) == Done;
        ASSERT_EQ(build(), shown);
        for (std::size_t i = 0; i < shown.size(); ++i)
            ASSERT_EQ(shown[i]->spDateTimeModified_sort(), dates[i]);
    }
    EXPECT_GT(done, 150);
}

TEST_F(DateDragTest, ACancelledDragLeavesNothingAndAListBuiltMeanwhileIsTaken) {
    const auto main = add(canon, 0), last = add(nikon, 100);
    timelines.addTimelineOfMode(TimelineKind::Mirror, false);
    const auto &mirror = *timelines.secondTimeline();
    auto drag = begin(main);
    drag->moveTo({OuterEdge, 2});
    EXPECT_THAT(strip().shown(), testing::ElementsAre(last, main));
    const auto between = add(nikon, 150);
    build();
    drag->moveTo({Between, 2}); // of the new list
    EXPECT_THAT(strip().shown(), testing::ElementsAre(last, main, between));
    EXPECT_EQ(mirror.shown(), strip().shown());
    drag.reset();
    EXPECT_THAT(mirror.shown(), testing::ElementsAre(main, last, between));
    drag = begin(main);
    drag->moveTo({Onto, 1});
    canon->sfPicDetails_fullArray.clear();
    build();
    drag->moveTo({Onto, 1}); // the item is gone
    EXPECT_EQ(drag->commit(undo), NothingChanged);
    EXPECT_FALSE(undo.canUndo());
}

} // namespace
} // namespace chronomender
