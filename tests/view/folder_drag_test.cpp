// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderDrag.h"
#include "ViewSteps.h"

namespace chronomender {
namespace {

using enum DateChangeOutcome;

const absl::Duration hour = absl::Hours(1), second = absl::Seconds(1);

class FolderDragTest : public testing::Test {
protected:
    DateChangeOutcome drag(absl::Duration totalShift) {
        return dragChangedDates(totalShift, *folder, undo);
    }
    absl::Duration shift() const { return folder->sfDateModificationsTimeInterval; }

    UndoManager undo;
    const MySingleFolderPtr folder = folderOfRank(0);
};

TEST_F(FolderDragTest, TheFoldersEndsStayInsideTheBounds) {
    struct Case {
        const char *what, *first, *last;
        absl::Duration shift;
        DateChangeOutcome expected;
    };
    // Dates lie behind 0001-01-02 00:00:00 and before 4999-12-31 23:59:59.
    const Case cases[]{
        {"inside", "2020-01-01 00:00:00", "2024-01-01 00:00:00", hour, Done},
        {"first just inside", "0001-01-02 01:00:01", "2024-01-01 00:00:00", -hour, Done},
        {"first on the bound", "0001-01-02 01:00:00", "2024-01-01 00:00:00", -hour,
         RefusedOutOfBounds},
        {"last just inside", "2020-01-01 00:00:00", "4999-12-31 22:59:58", hour, Done},
        {"last on the bound", "2020-01-01 00:00:00", "4999-12-31 22:59:59", hour,
         RefusedOutOfBounds},
        {"ages away", "2020-01-01 00:00:00", "2024-01-01 00:00:00", absl::InfiniteDuration(),
         RefusedOutOfBounds},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        const MySingleFolderPtr tested = folderOfRank(0);
        add(tested, "b.jpg", at(c.last));
        add(tested, "a.jpg", at(c.first));
        EXPECT_EQ(dragChangedDates(c.shift, *tested, undo), c.expected);
        EXPECT_EQ(tested->sfDateModificationsTimeInterval,
                  c.expected == Done ? c.shift : absl::ZeroDuration());
    }
}

TEST_F(FolderDragTest, ItemsWithoutACorrectableDateDoNotCount) {
    add(folder, "unread.jpg", InfinitePast(), SpTypeUnsupported);
    add(folder, "early.jpg", at("0001-01-02 00:30:00"), SpTypeMovieIgnored);
    add(folder, "a.jpg", at("2020-01-01 00:00:00"));
    EXPECT_EQ(drag(-hour), Done);
}

TEST_F(FolderDragTest, ADragGivesTheNewTotal) {
    add(folder, "a.jpg", at("2020-01-01 00:00:00"));
    EXPECT_EQ(drag(hour), Done);
    EXPECT_EQ(drag(2 * hour), Done);
    EXPECT_EQ(shift(), 2 * hour);
    EXPECT_EQ(drag(2 * hour), NothingChanged);
    EXPECT_EQ(undo.undoActionName(), "undoDateChangeText");
}

TEST_F(FolderDragTest, UndoAndRedoBringEveryStepBack) {
    add(folder, "a.jpg", at("2020-01-01 00:00:00"));
    drag(hour);
    drag(-hour);
    undo.undo();
    EXPECT_EQ(shift(), hour);
    undo.undo();
    EXPECT_EQ(shift(), absl::ZeroDuration());
    EXPECT_FALSE(undo.canUndo());
    undo.redo();
    undo.redo();
    EXPECT_EQ(shift(), -hour);
    EXPECT_EQ(folder->sfDateModifications.dmDirection, "-");
}

TEST_F(FolderDragTest, BackToZeroIsAResetAndClearsTheShownDirection) {
    add(folder, "a.jpg", at("2020-01-01 00:00:00"));
    drag(-hour);
    EXPECT_EQ(drag(absl::ZeroDuration()), Done);
    EXPECT_EQ(undo.undoActionName(), "resetAllInFolderMode");
    EXPECT_EQ(folder->sfDateModifications.dmDirection, "+");
    EXPECT_FALSE(folder->isTogetherDateUIModified());
}

TEST_F(FolderDragTest, ARefusedDragLeavesNoTrace) {
    add(folder, "a.jpg", at("4999-12-31 23:00:00"));
    drag(-hour);
    EXPECT_EQ(drag(hour), RefusedOutOfBounds);
    EXPECT_EQ(shift(), -hour);
    undo.undo();
    EXPECT_FALSE(undo.canUndo());
}

class ItemDragTest : public FolderDragTest {
protected:
    ItemDragTest() { folder->sfEditMode = EditMode::Single; }
    DateChangeOutcome drag(absl::Duration difference, const std::vector<MySinglePicPtr> &items) {
        return dragMovesValuesBy(difference, items, undo);
    }
};

TEST_F(ItemDragTest, AddsToEachShiftAsOneUndoableStep) {
    const auto a = add(folder, "a.jpg", at("2020-01-01 00:00:00"));
    const auto b = add(folder, "b.jpg", at("2020-01-02 00:00:00"));
    EXPECT_EQ(drag(hour, {a}), Done);
    EXPECT_EQ(drag(second, {a, b}), Done);
    EXPECT_EQ(a->shift.singlePicModification, hour + second);
    EXPECT_EQ(folder->singlePicModeImages, 2);
    EXPECT_EQ(folder->sfTill, at("2020-01-02 00:00:01"));
    EXPECT_EQ(undo.undoActionName(), "dragInSingleMode");

    undo.undo();
    EXPECT_EQ(a->shift.singlePicModification, hour);
    EXPECT_EQ(b->shift.singlePicModification, absl::ZeroDuration());
    EXPECT_EQ(folder->singlePicModeImages, 1);
    undo.redo();
    EXPECT_EQ(a->shift.singlePicModification, hour + second);
}

TEST_F(ItemDragTest, IsRefusedAsAWholeOutsideTheBounds) {
    const auto inside = add(folder, "a.jpg", at("2020-01-01 00:00:00"));
    const auto edge = add(folder, "b.jpg", at("4999-12-31 22:59:58"));
    EXPECT_EQ(drag(hour, {inside, edge}), Done);
    EXPECT_EQ(drag(second, {inside, edge}), RefusedOutOfBounds);
    EXPECT_EQ(inside->shift.singlePicModification, hour);
}

TEST_F(ItemDragTest, PassesOverWhatCannotMove) {
    const auto unread = add(folder, "a.jpg", InfinitePast(), SpTypeUnsupported);
    const auto trashed = add(folder, "b.jpg", at("2020-01-01 00:00:00"));
    trashed->isMovedToTrash = true;
    EXPECT_EQ(drag(hour, {unread, trashed}), NothingChanged);
    EXPECT_EQ(drag(hour, {}), NothingChanged);
    const auto good = add(folder, "c.jpg", at("2020-01-01 00:00:00"));
    EXPECT_EQ(drag(absl::ZeroDuration(), {good}), NothingChanged);
    EXPECT_EQ(drag(hour, {unread, trashed, good}), Done);
    EXPECT_EQ(unread->shift.singlePicModification, absl::ZeroDuration());
    EXPECT_EQ(trashed->shift.singlePicModification, absl::ZeroDuration());
}

} // namespace
} // namespace chronomender
