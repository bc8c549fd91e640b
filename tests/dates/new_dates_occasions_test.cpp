// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDateSteps.h"

namespace chronomender {
namespace {

using namespace little;
using O = DateChangeOptions;

/// A digitised date that a calculation with this option moves even without a shift: it tells
/// whether one was made.
constexpr Moments telltale{0, 50, 60, 70, 80};
const Options moveDigitized{{&O::dateChangeEXIFEXIFDigiDate, 0}};

class NewDateOccasions : public testing::Test {
protected:
    MySingleFolderPtr folder = makeFolder();
    MySinglePicPtr pic = addItem(folder, SpTypeExifOriginal, telltale);
    NewDateContext live = context(Live, moveDigitized), save = context(Save, moveDigitized);

    static bool isCalculated(const MySinglePic &item) {
        return newMoment(item, Digitized) != oldMoment(item, Digitized);
    }
    void expectUntouched(const MySinglePic &item) {
        for (const SlotDescription &slot : slotDescriptions)
            EXPECT_EQ(item.slots.*slot.newDate, item.slots.*slot.oldDate) << slot.name;
    }
};

TEST_F(NewDateOccasions, AnUnchangedItemKeepsEveryDate) {
    pic->save.isAffectedBySave = true;
    calculateNewDates(*pic, live);
    expectUntouched(*pic);
    EXPECT_TRUE(pic->save.isAffectedBySave); // a display does not decide about a save
    calculateNewDates(*pic, save);
    expectUntouched(*pic);
    EXPECT_FALSE(pic->save.isAffectedBySave);
}

TEST_F(NewDateOccasions, SavingAllCountsInASaveOnly) {
    live.options.isSavingPhotosWithoutDateChangesEnabled = true;
    calculateNewDates(*pic, live);
    expectUntouched(*pic);
    save.options.isSavingPhotosWithoutDateChangesEnabled = true;
    calculateNewDates(*pic, save);
    EXPECT_EQ(newMoment(*pic, Digitized), 0);
    EXPECT_TRUE(pic->save.isAffectedBySave);
}

TEST_F(NewDateOccasions, ForceAndADragCalculateAnUnchangedItem) {
    live.force = true;
    calculateNewDates(*pic, live);
    EXPECT_TRUE(isCalculated(*pic));
    live.force = false;
    live.dragDate = at(-500.0);
    calculateNewDates(*pic, live);
    EXPECT_EQ(newMoment(*pic, Original), -500);
    EXPECT_EQ(moment(pic->spDateTimeModified_tempFIX), -500);
    live.dragDate = InfinitePast();
    calculateNewDates(*pic, live);
    expectUntouched(*pic);
}

TEST_F(NewDateOccasions, AChangeOfLocationAloneTakesPartAsTheSettingSays) {
    const struct {
        int setting, choice;
        Moment digitized;
        bool isAffected;
    } rows[] = {
        {0, 0, 0, true},  {1, 0, 50, false}, {2, 0, 0, true},
        {3, 0, 50, true}, {3, 2, 50, true}, // keeps the date rather than leaving the slot alone
    };
    pic->location.hasLocationChange = true;
    for (const auto &row : rows) {
        pic->slots.exifDateTimeDigitizedNEW = at(held);
        save.dateChangeTypeAtLocationOnlyChanges = row.setting;
        save.options.dateChangeEXIFEXIFDigiDate = row.choice;
        calculateNewDates(*pic, save);
        EXPECT_EQ(newMoment(*pic, Digitized), row.digitized) << row.setting;
        EXPECT_EQ(pic->save.isAffectedBySave, row.isAffected) << row.setting;
    }
    // The location goes into the sidecar: the file's dates have no part in it.
    pic->spSidecarExtensions = {"xmp"};
    calculateNewDates(*pic, save);
    expectUntouched(*pic);
    // A change of the date as well makes it a date change.
    folder->sfDateModificationsTimeInterval = absl::Seconds(-10);
    save.options.dateChangeEXIFEXIFDigiDate = 0;
    calculateNewDates(*pic, save);
    EXPECT_EQ(newMoment(*pic, Digitized), -10);
}

TEST_F(NewDateOccasions, ALocationOnlyDigitizedDateDoesNotFollowWhenUnchanged) {
    pic = addItem(folder, SpTypeExifOriginal, {0, 2, none, 0, 0});
    pic->location.hasLocationChange = true;
    save.dateChangeTypeAtLocationOnlyChanges = 3;
    calculateNewDates(*pic, save);
    EXPECT_EQ(newMoment(*pic, Digitized), 2);
}

TEST_F(NewDateOccasions, ItemsThatTakeNoPartStayAsTheyAre) {
    folder->sfDateModificationsTimeInterval = absl::Hours(1);
    save.options.isSavingPhotosWithoutDateChangesEnabled = true;
    pic->importState.isLeftAlone = true;
    const auto unsupported = addItem(folder, SpTypeUnsupported, {none, none, none, 0, 0});
    unsupported->spDateTimeOriginal = InfinitePast();
    for (const auto &item : {pic, unsupported}) {
        calculateNewDates(*item, save);
        expectUntouched(*item);
        EXPECT_FALSE(item->save.isAffectedBySave);
    }
}

TEST_F(NewDateOccasions, ASaveReachesForTheDependentAndADisplayDoesNot) {
    folder->sfDateModificationsTimeInterval = absl::Seconds(-10);
    // Of every path, also of items whose own date is the file's: a raw file of type 4 has a JPEG.
    for (const SpType type :
         {SpTypeExifOriginal, SpTypeTiffYoungerThanFile, SpTypeEmptyOriginalFileDate,
          SpTypeNoTagsFileDate, SpTypeNoTagsFixedDate, SpTypeMovieMvhdYoungerThanFile}) {
        const auto master = addItem(folder, type, telltale);
        const auto dependent = addItem(folder, SpTypeExifOriginal, telltale);
        makeDependent(dependent, master);
        calculateNewDates(*master, live);
        EXPECT_EQ(newMoment(*dependent, Original), held);
        calculateNewDates(*master, save);
        EXPECT_EQ(newMoment(*dependent, Original), -10) << static_cast<int>(type);
    }
}

TEST_F(NewDateOccasions, AnUnchangedMasterStillReachesForItsHarmonisedDependent) {
    folder->harmonizingRawJpgsType = 1;
    const auto jpeg = addItem(folder, SpTypeExifOriginal, {3600, 3600, none, 3600, 3600});
    makeDependent(jpeg, pic);
    calculateNewDates(*pic, save);
    expectUntouched(*pic);
    EXPECT_FALSE(pic->save.isAffectedBySave);
    EXPECT_EQ(newMoment(*jpeg, Original), 0);
    EXPECT_TRUE(jpeg->save.isAffectedBySave);
}

TEST_F(NewDateOccasions, TheThresholdIsTheUsers) {
    pic = addItem(folder, SpTypeExifOriginal, {0, 60, none, 0, 0});
    folder->sfDateModificationsTimeInterval = absl::Seconds(-1000);
    for (const auto &[threshold, digitized] : {std::pair(59, 60), std::pair(60, -1000)}) {
        NewDateContext defaults = context(Save);
        defaults.dateComparisonThresold = threshold;
        calculateNewDates(*pic, defaults);
        EXPECT_EQ(newMoment(*pic, Digitized), digitized);
    }
}

} // namespace
} // namespace chronomender
