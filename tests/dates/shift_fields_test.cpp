// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleItem.h"

#include "DateModifications.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;
using Fields = DateModificationFields;

TEST(ShiftFields, ShowAShiftInWholeUnits) {
    const struct {
        absl::Duration shift;
        bool isNegative;
        Fields fields;
    } rows[] = {
        {absl::Seconds(-90061), false, {"-", "1", "1", "1", "1"}},
        {absl::Seconds(90061), true, {"+", "1", "1", "1", "1"}},
        {absl::ZeroDuration(), true, {"-", "0", "0", "0", "0"}},
        {absl::ZeroDuration(), false, {"+", "0", "0", "0", "0"}},
        {absl::Milliseconds(500), false, {"+", "0", "0", "0", "0"}},
        {absl::Milliseconds(-59999), false, {"-", "0", "0", "0", "59"}},
        {absl::Hours(24) * 36525 - absl::Seconds(1), false, {"+", "36524", "23", "59", "59"}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(fieldsFromTimeInterval(row.shift, row.isNegative), row.fields) << row.shift;
}

TEST(ShiftFields, AreReadAsNumbersAndNeverAsGarbage) {
    const struct {
        Fields fields;
        absl::Duration shift;
    } rows[] = {
        {{"+", "1", "2", "3", "4"}, absl::Seconds(93784)},
        {{"-", "1", "2", "3", "4"}, absl::Seconds(-93784)},
        {{"+", "1.5", "0", "0", "0"}, absl::Hours(36)},
        {{"+", "-2", "1", "0", "0"}, absl::Hours(-47)},
        {{"+", " 7", "+1", "", "5s"}, absl::Hours(24 * 7 + 1) + absl::Seconds(5)},
        {{"+", "nan", "inf", "x", "-"}, absl::ZeroDuration()},
        {{"+", "1e300", "99999999999999999999", "0", "1"}, absl::Seconds(1)},
    };
    for (const auto &row : rows)
        EXPECT_EQ(timeIntervalFromFields(row.fields), row.shift) << row.fields.dmDays;
}

class FolderShift : public testing::Test {
protected:
    MySingleFolderPtr folder = makeFolder();

    void expectDirection(bool isNegative) {
        EXPECT_EQ(folder->hasChangedDirection, isNegative);
        EXPECT_EQ(folder->tempHasChangedDirection, isNegative);
        EXPECT_EQ(folder->sfDateModifications.dmDirection, isNegative ? "-" : "+");
    }
};

TEST_F(FolderShift, BothDirectionFlagsFollowTheShownSignInEverySetter) {
    setSfDateModificationsFromTimeInterval(*folder, absl::Seconds(-90061), false);
    expectDirection(true);
    setSfDateModificationsFromTimeInterval(*folder, absl::Seconds(5), true);
    expectDirection(false);
    setSfDateModificationsFromTimeInterval(*folder, absl::ZeroDuration(), true);
    expectDirection(true);
    EXPECT_TRUE(folder->isTogetherDateUIModified());
    EXPECT_FALSE(folder->isDateModified());
    setDirection(*folder, {"+", "0", "0", "0", "1"});
    expectDirection(false);
    setDirection(*folder, {"-", "01", "0", "0", "0"});
    expectDirection(true);
    EXPECT_EQ(folder->sfDateModifications.dmDays, "01"); // as it was typed
    EXPECT_EQ(folder->sfDateModificationsTimeInterval, absl::Hours(-24));
}

TEST_F(FolderShift, AFractionOfASecondStaysInTheShift) {
    folder->hasDSTJumperType = 3;
    setSfDateModificationsFromTimeInterval(*folder, absl::Milliseconds(500), false);
    EXPECT_EQ(folder->sfDateModifications, (Fields{"+", "0", "0", "0", "0"}));
    EXPECT_TRUE(folder->isDateModified());
    EXPECT_EQ(folder->hasDSTJumperType, 0);
}

TEST_F(FolderShift, SeveralFoldersKeepTheirOwnPartsWhereNothingWasChosen) {
    const auto other = makeFolder();
    setDirection(*folder, {"-", "1", "2", "3", "4"});
    setDirection(*other, {"+", "5", "0", "0", "30"});
    const CompoundFields noMinutes{{}, {}, {}, "0", {}};
    EXPECT_EQ(keepingOwnParts(*folder, noMinutes), (Fields{"-", "1", "2", "0", "4"}));
    EXPECT_EQ(keepingOwnParts(*other, noMinutes), (Fields{"+", "5", "0", "0", "30"}));
    EXPECT_EQ(keepingOwnParts(*folder, {"+", "0", {}, {}, {}}), (Fields{"+", "0", "2", "3", "4"}));

    setDirection(MyCompoundFolder({folder, other}), {"+", "0", "0", "0", "7"});
    EXPECT_EQ(folder->sfDateModificationsTimeInterval, absl::Seconds(7));
    EXPECT_EQ(other->sfDateModificationsTimeInterval, absl::Seconds(7));
}

} // namespace
} // namespace chronomender
