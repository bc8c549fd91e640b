// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateModifications.h"

#include "LittleItem.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;

const Date noon = utc(2024, 6, 1, 12);
const absl::Duration zero = absl::ZeroDuration();

class DateModifications : public testing::Test {
protected:
    MySingleFolderPtr folder = makeFolder(EditMode::Single);
    MySinglePicPtr first = addItem(folder, SpTypeExifOriginal, noon);
    MySinglePicPtr second = addItem(folder, SpTypeExifOriginal, noon + absl::Hours(1));
    UndoManager undo;

    absl::Duration shiftOf(const MySinglePicPtr &pic) const {
        return pic->shift.singlePicModification;
    }
};

TEST_F(DateModifications, TheBoundsAreThoseOfAllDates) {
    EXPECT_EQ(utcText(minDate()), "0001-01-02 00:00:00");
    EXPECT_EQ(utcText(maxDate()), "4999-12-31 23:59:59");
}

TEST_F(DateModifications, SingleShiftsAddUpAndAreCountedOnce) {
    const absl::Duration odd = absl::Seconds(0.1);
    updateSinglePicModificationBy(*first, odd);
    updateSinglePicModificationBy(*first, odd);
    updateSinglePicModificationBy(*first, zero);
    EXPECT_EQ(folder->singlePicModeImages, 1);
    EXPECT_EQ(first->spDateTimeModified(), noon + 2 * odd);
    updateSinglePicModificationBy(*first, -2 * odd); // exactly its negation
    EXPECT_EQ(folder->singlePicModeImages, 0);
    EXPECT_FALSE(first->singlePicModeDate());
}

TEST_F(DateModifications, ADependentTakesTheSameShiftAndNotASecondStep) {
    makeDependent(second, first);
    second->shift.singlePicModification = absl::Hours(9);
    updateSinglePicModificationBy(*first, absl::Hours(1));
    updateSinglePicModificationBy(*first, absl::Hours(1));
    EXPECT_EQ(shiftOf(second), absl::Hours(2));
    EXPECT_EQ(folder->singlePicModeImages, 1);
}

TEST_F(DateModifications, ItemsWithoutACorrectableDateNeverShift) {
    for (SpType type : {SpTypeUnsupported, SpTypeMovieIgnored}) {
        first->spType = type;
        updateSinglePicModificationBy(*first, absl::Hours(1));
        EXPECT_EQ(shiftOf(first), zero);
    }
    EXPECT_EQ(folder->singlePicModeImages, 0);
}

TEST_F(DateModifications, UndoAndRedoOfSingleShiftsBringValuesAndRangeBack) {
    const auto trashed = addItem(folder, SpTypeExifOriginal, noon);
    trashed->isMovedToTrash = true;
    const absl::Duration odd = absl::Seconds(-86400.3);
    updateThumbValues({{first, odd}, {second, absl::Hours(3)}, {trashed, absl::Hours(3)}}, undo);
    const auto expectShifted = [&](bool isShifted) {
        EXPECT_EQ(shiftOf(first), isShifted ? odd : zero);
        EXPECT_EQ(shiftOf(second), isShifted ? absl::Hours(3) : zero);
        EXPECT_EQ(folder->singlePicModeImages, isShifted ? 2 : 0);
        EXPECT_EQ(folder->sfFrom, isShifted ? noon + odd : noon);
        EXPECT_EQ(folder->sfTill, noon + absl::Hours(isShifted ? 4 : 1));
        EXPECT_EQ(shiftOf(trashed), zero);
    };
    expectShifted(true);
    for (int round = 0; round < 2; ++round) {
        undo.undo();
        expectShifted(false);
        EXPECT_FALSE(undo.canUndo());
        undo.redo();
        expectShifted(true);
    }
}

TEST_F(DateModifications, ResettingSingleModeIsOneStepWithAName) {
    updateSinglePicModificationBy(*first, absl::Hours(1));
    updateSinglePicModificationBy(*second, absl::Hours(-2));
    dateValuesResetSingleMode(*folder, undo);
    EXPECT_EQ(folder->singlePicModeImages, 0);
    EXPECT_EQ(undo.undoActionName(), "resetAllInSingleMode");
    undo.undo();
    EXPECT_EQ(shiftOf(first), absl::Hours(1));
    EXPECT_EQ(shiftOf(second), absl::Hours(-2));
}

TEST_F(DateModifications, UndoAndRedoOfAFolderShiftBringShiftAndDirectionBack) {
    folder->sfEditMode = EditMode::Together;
    setSfDateModificationsFromTimeInterval(*folder, zero, true);
    undoRedoUpdateFolderModeDateModifications(*folder, absl::Milliseconds(1500), false, undo);
    EXPECT_EQ(folder->sfFrom, noon + absl::Milliseconds(1500));
    undo.undo();
    EXPECT_EQ(folder->sfDateModificationsTimeInterval, zero);
    EXPECT_EQ(folder->sfDateModifications.dmDirection, "-");
    EXPECT_EQ(folder->sfFrom, noon);
    undo.redo();
    EXPECT_EQ(folder->sfDateModificationsTimeInterval, absl::Milliseconds(1500));
    EXPECT_FALSE(folder->hasChangedDirection);
}

TEST_F(DateModifications, ChangingTheModeKeepsDatesOnTheWayToSingleAndDropsThemBack) {
    folder->sfEditMode = EditMode::Together;
    const auto unsupported = addItem(folder, SpTypeUnsupported, InfinitePast());
    setSfDateModificationsFromTimeInterval(*folder, absl::Hours(1), false);
    changeEditMode(*folder, EditMode::Single);
    EXPECT_EQ(first->spDateTimeModified(), noon + absl::Hours(1));
    EXPECT_EQ(shiftOf(unsupported), zero);
    EXPECT_EQ(folder->singlePicModeImages, 2);
    EXPECT_EQ(folder->sfDateModificationsTimeInterval, zero);
    changeEditMode(*folder, EditMode::Single);
    EXPECT_EQ(folder->singlePicModeImages, 2);
    changeEditMode(*folder, EditMode::Together);
    EXPECT_EQ(first->spDateTimeModified(), noon);
    EXPECT_EQ(folder->singlePicModeImages, 0);
}

TEST_F(DateModifications, AfterASaveOnlyItemsThatKeptTheirShiftCount) {
    updateSinglePicModificationBy(*first, absl::Hours(1));
    updateSinglePicModificationBy(*second, absl::Hours(1));
    first->shift = {};
    clearSinglePicModeImages(*folder);
    EXPECT_EQ(folder->singlePicModeImages, 1);
    EXPECT_EQ(shiftOf(second), absl::Hours(1));
}

TEST_F(DateModifications, TheLastItemLeavingTakesRangeShiftAndUndoStepsWithIt) {
    const struct {
        EditMode mode;
        FolderRefresh refresh;
        bool isRangeCleared, isShiftCleared;
    } rows[] = {{EditMode::Together, FolderRefresh::Normal, true, true},
                {EditMode::Single, FolderRefresh::Normal, true, false},
                {EditMode::Together, FolderRefresh::DuringReimport, false, false}};
    for (const auto &row : rows) {
        folder = makeFolder(row.mode);
        UndoManager steps;
        addItem(folder, SpTypeExifOriginal, noon);
        undoRedoUpdateFolderModeDateModifications(*folder, absl::Hours(-1), false, steps);
        EXPECT_EQ(folder->sfPics, 1);
        folder->sfPicDetails_fullArray.clear();
        sfUpdatePicsFromAndTill(*folder, &steps, row.refresh);
        EXPECT_EQ(folder->sfPics, 0);
        EXPECT_EQ(!folder->sfFrom && !folder->sfTill, row.isRangeCleared);
        EXPECT_EQ(folder->sfDateModificationsTimeInterval == zero, row.isShiftCleared);
        EXPECT_EQ(folder->sfDateModifications == DateModificationFields(), row.isShiftCleared);
        EXPECT_EQ(steps.canUndo(), !row.isShiftCleared);
    }
}

} // namespace
} // namespace chronomender
