// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderDrag.h"

#include "LittleItem.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;
using enum DateChangeOutcome;

const absl::Duration hour = absl::Hours(1), second = absl::Seconds(1), zero = absl::ZeroDuration();
const Date newYear = utc(2020, 1, 1), lastDay = utc(4999, 12, 31);

class FolderDrag : public testing::Test {
protected:
    MySinglePicPtr add(Date date, SpType type = SpTypeExifOriginal) {
        return addItem(folder, type, date);
    }
    DateChangeOutcome drag(absl::Duration total) { return dragChangedDates(total, *folder, undo); }
    DateChangeOutcome drag(absl::Duration difference, const std::vector<MySinglePicPtr> &items) {
        return dragMovesValuesBy(difference, items, undo);
    }
    absl::Duration shift() const { return folder->sfDateModificationsTimeInterval; }

    UndoManager undo;
    MySingleFolderPtr folder = makeFolder();
};

TEST_F(FolderDrag, TheEndsStayInsideTheBoundsAndARefusedDragLeavesNoTrace) {
    const struct {
        const char *what;
        Date first, last;
        absl::Duration shift;
        DateChangeOutcome expected;
    } cases[] = {
        {"first just inside", utc(1, 1, 2, 1, 0, 1), newYear, -hour, Done},
        {"first on the bound", utc(1, 1, 2, 1), newYear, -hour, RefusedOutOfBounds},
        {"last just inside", newYear, lastDay + 23 * hour - 2 * second, hour, Done},
        {"last on the bound", newYear, lastDay + 23 * hour - second, hour, RefusedOutOfBounds},
        {"ages away", newYear, newYear, absl::InfiniteDuration(), RefusedOutOfBounds},
    };
    for (const auto &each : cases) {
        SCOPED_TRACE(each.what);
        folder = makeFolder();
        add(InfinitePast(), SpTypeUnsupported); // these two do not count
        add(utc(1, 1, 2, 0, 30), SpTypeMovieIgnored);
        add(each.last);
        add(each.first);
        undo.removeAllActions();
        EXPECT_EQ(drag(each.shift), each.expected);
        EXPECT_EQ(shift(), each.expected == Done ? each.shift : zero);
        EXPECT_EQ(undo.canUndo(), each.expected == Done);
    }
}

TEST_F(FolderDrag, GivesTheNewTotalAndEveryStepCanBeTakenBack) {
    add(newYear);
    EXPECT_EQ(drag(hour), Done);
    EXPECT_EQ(drag(-hour), Done);
    EXPECT_EQ(shift(), -hour);
    EXPECT_EQ(drag(-hour), NothingChanged);
    EXPECT_EQ(undo.undoActionName(), "undoDateChangeText");
    undo.undo();
    EXPECT_EQ(shift(), hour);
    undo.undo();
    EXPECT_EQ(shift(), zero);
    EXPECT_FALSE(undo.canUndo());
    undo.redo();
    undo.redo();
    EXPECT_EQ(shift(), -hour);
    EXPECT_EQ(folder->sfDateModifications.dmDirection, "-");
    // Back to zero is a reset and clears the shown direction.
    EXPECT_EQ(drag(zero), Done);
    EXPECT_EQ(undo.undoActionName(), "resetAllInFolderMode");
    EXPECT_FALSE(folder->isTogetherDateUIModified());
}

TEST_F(FolderDrag, OfItemsAddsToEachShiftAsOneStepAndIsRefusedAsAWhole) {
    folder->sfEditMode = EditMode::Single;
    const auto a = add(newYear), b = add(lastDay), unread = add(InfinitePast(), SpTypeUnsupported);
    const auto trashed = add(newYear);
    trashed->isMovedToTrash = true;
    const auto expectShifts = [&](absl::Duration ofA, absl::Duration ofB) {
        EXPECT_EQ(a->shift.singlePicModification, ofA);
        EXPECT_EQ(b->shift.singlePicModification, ofB);
        for (const auto &still : {unread, trashed})
            EXPECT_EQ(still->shift.singlePicModification, zero);
    };
    EXPECT_EQ(drag(hour, {unread, trashed}), NothingChanged);
    EXPECT_EQ(drag(hour, {}), NothingChanged);
    EXPECT_EQ(drag(zero, {a}), NothingChanged);
    EXPECT_EQ(drag(hour, {a, trashed}), Done);
    EXPECT_EQ(drag(second, {a, b, unread}), Done);
    EXPECT_EQ(undo.undoActionName(), "dragInSingleMode");
    expectShifts(hour + second, second);
    EXPECT_EQ(folder->sfTill, lastDay + second);
    EXPECT_EQ(drag(24 * hour - 2 * second, {a, b}), RefusedOutOfBounds);
    expectShifts(hour + second, second);
    undo.undo();
    expectShifts(hour, zero);
    EXPECT_EQ(folder->sfTill, lastDay) << "the range goes back with the items";
    undo.redo();
    expectShifts(hour + second, second);
}

} // namespace
} // namespace chronomender
