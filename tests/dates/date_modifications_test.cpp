// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateModifications.h"

#include "LittleItem.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;
using Fields = DateModificationFields;

const Date noon = utc(2024, 6, 1, 12);
const absl::Duration zero = absl::ZeroDuration(), hour = absl::Hours(1);

TEST(ShiftFields, ShowAShiftInWholeUnits) {
    const struct {
        absl::Duration shift;
        bool isNegative;
        Fields fields;
    } rows[] = {
        {absl::Seconds(-90061), false, {"-", "1", "1", "1", "1"}},
        {absl::Seconds(90061), true, {"+", "1", "1", "1", "1"}},
        {zero, true, {"-", "0", "0", "0", "0"}},
        {zero, false, {"+", "0", "0", "0", "0"}},
        {absl::Milliseconds(500), false, {"+", "0", "0", "0", "0"}},
        {absl::Milliseconds(-59999), false, {"-", "0", "0", "0", "59"}},
        {hour * 24 * 36525 - absl::Seconds(1), false, {"+", "36524", "23", "59", "59"}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(fieldsFromTimeInterval(row.shift, row.isNegative), row.fields) << row.shift;
}

TEST(ShiftFields, AreReadAsNumbersAndNeverAsGarbage) {
    const std::pair<Fields, absl::Duration> rows[] = {
        {{"+", "1", "2", "3", "4"}, absl::Seconds(93784)},
        {{"-", "1", "2", "3", "4"}, absl::Seconds(-93784)},
        {{"+", "1.5", "0", "0", "0"}, 36 * hour},
        {{"+", "-2", "1", "0", "0"}, -47 * hour},
        {{"+", " 7", "+1", "", "5s"}, 169 * hour + absl::Seconds(5)},
        {{"+", "nan", "inf", "x", "-"}, zero},
        {{"+", "1e300", "99999999999999999999", "0", "1"}, absl::Seconds(1)},
    };
    for (const auto &[fields, shift] : rows)
        EXPECT_EQ(timeIntervalFromFields(fields), shift) << fields.dmDays;
}

TEST(FolderShift, BothDirectionFlagsFollowTheShownSignInEverySetter) {
    const auto folder = makeFolder();
    const auto expectDirection = [&](bool isNegative) {
        EXPECT_EQ(folder->hasChangedDirection, isNegative);
        EXPECT_EQ(folder->tempHasChangedDirection, isNegative);
        EXPECT_EQ(folder->sfDateModifications.dmDirection, isNegative ? "-" : "+");
    };
    setSfDateModificationsFromTimeInterval(*folder, absl::Seconds(-90061), false);
    expectDirection(true);
    folder->hasDSTJumperType = 3;
    setSfDateModificationsFromTimeInterval(*folder, absl::Milliseconds(500), true);
    expectDirection(false);
    EXPECT_EQ(folder->sfDateModificationsTimeInterval, absl::Milliseconds(500)); // not as shown
    EXPECT_EQ(folder->hasDSTJumperType, 0);
    setSfDateModificationsFromTimeInterval(*folder, zero, true);
    expectDirection(true);
    setDirection(*folder, {"+", "0", "0", "0", "1"});
    expectDirection(false);
    setDirection(*folder, {"-", "01", "0", "0", "0"});
    expectDirection(true);
    EXPECT_EQ(folder->sfDateModifications.dmDays, "01"); // as it was typed
    EXPECT_EQ(folder->sfDateModificationsTimeInterval, -24 * hour);
}

TEST(FolderShift, SeveralFoldersKeepTheirOwnPartsWhereNothingWasChosen) {
    const auto folder = makeFolder(), other = makeFolder();
    setDirection(*folder, {"-", "1", "2", "3", "4"});
    EXPECT_EQ(keepingOwnParts(*folder, {{}, {}, {}, "0", {}}), (Fields{"-", "1", "2", "0", "4"}));
    EXPECT_EQ(keepingOwnParts(*folder, {"+", "0", {}, {}, {}}), (Fields{"+", "0", "2", "3", "4"}));
    setDirection(MyCompoundFolder({folder, other}), {"+", "0", "0", "0", "7"});
    EXPECT_EQ(folder->sfDateModificationsTimeInterval, absl::Seconds(7));
    EXPECT_EQ(other->sfDateModificationsTimeInterval, absl::Seconds(7));
}

class DateModifications : public testing::Test {
protected:
    MySingleFolderPtr folder = makeFolder(EditMode::Single);
    MySinglePicPtr first = addItem(folder, SpTypeExifOriginal, noon);
    MySinglePicPtr second = addItem(folder, SpTypeExifOriginal, noon + hour);
    UndoManager undo;

    /// The two items' own shifts, and how many items the folder counts as shifted.
    void expectShifts(absl::Duration ofFirst, absl::Duration ofSecond, int count) const {
        EXPECT_EQ(first->shift.singlePicModification, ofFirst);
        EXPECT_EQ(second->shift.singlePicModification, ofSecond);
        EXPECT_EQ(folder->singlePicModeImages, count);
    }
};

TEST_F(DateModifications, SingleShiftsAddUpExactlyAndAreCountedOnce) {
    const absl::Duration odd = absl::Seconds(0.1);
    for (absl::Duration difference : {odd, odd, zero})
        updateSinglePicModificationBy(*first, difference);
    expectShifts(2 * odd, zero, 1);
    EXPECT_EQ(first->spDateTimeModified(), noon + 2 * odd);
    updateSinglePicModificationBy(*first, -2 * odd);
    expectShifts(zero, zero, 0);
    for (SpType type : {SpTypeUnsupported, SpTypeMovieIgnored}) {
        first->spType = type;
        updateSinglePicModificationBy(*first, hour);
    }
    expectShifts(zero, zero, 0); // no correctable date
}

TEST_F(DateModifications, ADependentTakesTheSameShiftAndNotASecondStep) {
    makeDependent(second, first);
    second->shift.singlePicModification = 9 * hour;
    updateSinglePicModificationBy(*first, hour);
    updateSinglePicModificationBy(*first, hour);
    expectShifts(2 * hour, 2 * hour, 1);
}

TEST_F(DateModifications, UndoAndRedoOfSingleShiftsBringValuesAndRangeBack) {
    const auto trashed = addItem(folder, SpTypeExifOriginal, noon);
    trashed->isMovedToTrash = true;
    const absl::Duration odd = absl::Seconds(-86400.3);
    updateThumbValues({{first, odd}, {second, 3 * hour}, {trashed, 3 * hour}}, undo);
    for (int round = 0; round < 2; ++round) {
        expectShifts(odd, 3 * hour, 2);
        EXPECT_EQ(folder->sfFrom, noon + odd);
        EXPECT_EQ(folder->sfTill, noon + 4 * hour);
        undo.undo();
        expectShifts(zero, zero, 0);
        EXPECT_EQ(folder->sfFrom, noon);
        EXPECT_EQ(folder->sfTill, noon + hour);
        EXPECT_EQ(trashed->shift.singlePicModification, zero);
        EXPECT_EQ(undo.lastAffectedObject<MySinglePic>(), first) << "no main item: the first";
        EXPECT_FALSE(undo.canUndo());
        undo.redo();
    }
}

TEST_F(DateModifications, ResettingSingleModeIsOneStepWithAName) {
    updateSinglePicModificationBy(*first, hour);
    updateSinglePicModificationBy(*second, -2 * hour);
    dateValuesResetSingleMode(*folder, undo);
    expectShifts(zero, zero, 0);
    EXPECT_EQ(undo.undoActionName(), "resetAllInSingleMode");
    undo.undo();
    expectShifts(hour, -2 * hour, 2);
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
    EXPECT_EQ(undo.lastAffectedObject<MySingleFolder>(), folder);
    undo.redo();
    EXPECT_EQ(folder->sfDateModificationsTimeInterval, absl::Milliseconds(1500));
    EXPECT_FALSE(folder->hasChangedDirection);
}

TEST_F(DateModifications, ChangingTheModeKeepsDatesOnTheWayToSingleAndDropsThemBack) {
    folder->sfEditMode = EditMode::Together;
    const auto unsupported = addItem(folder, SpTypeUnsupported, InfinitePast());
    setSfDateModificationsFromTimeInterval(*folder, hour, false);
    for (int round = 0; round < 2; ++round) { // again is no change
        changeEditMode(*folder, EditMode::Single);
        expectShifts(hour, hour, 2);
        EXPECT_EQ(unsupported->shift.singlePicModification, zero);
        EXPECT_EQ(folder->sfDateModificationsTimeInterval, zero);
    }
    // After a save only items that kept their shift count.
    second->shift = {};
    clearSinglePicModeImages(*folder);
    expectShifts(hour, zero, 1);
    changeEditMode(*folder, EditMode::Together);
    expectShifts(zero, zero, 0);
}

TEST_F(DateModifications, ASwitchOfTheModeIsTakenBackExactlyAlsoForItemsThatCameLater) {
    folder->sfEditMode = EditMode::Together;
    const auto dependent = addItem(folder, SpTypeExifOriginal, noon);
    makeDependent(dependent, first);
    dependent->shift.singlePicModification = -hour; // as a group merged late may have it
    setDirection(*folder, {"-", "01", "0", "0", "0"});
    changeEditMode(*folder, EditMode::Together, undo);
    EXPECT_FALSE(undo.canUndo());
    changeEditMode(*folder, EditMode::Single, undo);
    EXPECT_EQ(undo.undoActionName(), "changeEditMode");
    undo.undo();
    EXPECT_EQ(folder->sfDateModifications.dmDays, "01");
    EXPECT_EQ(folder->sfFrom, noon - 24 * hour);
    EXPECT_EQ(dependent->shift.singlePicModification, -hour);
    EXPECT_EQ(undo.lastAffectedObject<MySingleFolder>(), folder);
    expectShifts(zero, zero, 0);
    const auto later = addItem(folder, SpTypeExifOriginal, noon);
    undo.redo();
    EXPECT_EQ(later->spDateTimeModified(), noon - 24 * hour);
    expectShifts(-24 * hour, -24 * hour, 3);
    EXPECT_EQ(dependent->shift.singlePicModification, -24 * hour);
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
        undoRedoUpdateFolderModeDateModifications(*folder, -hour, false, steps);
        folder->sfPicDetails_fullArray.clear();
        sfUpdatePicsFromAndTill(*folder, &steps, row.refresh);
        EXPECT_EQ(folder->sfPics, 0);
        EXPECT_EQ(!folder->sfFrom && !folder->sfTill, row.isRangeCleared);
        EXPECT_EQ(folder->sfDateModificationsTimeInterval == zero, row.isShiftCleared);
        EXPECT_EQ(folder->sfDateModifications == Fields(), row.isShiftCleared);
        EXPECT_EQ(steps.canUndo(), !row.isShiftCleared);
    }
}

} // namespace
} // namespace chronomender
