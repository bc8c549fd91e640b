// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleItem.h"

#include <gtest/gtest.h>

#include <functional>

namespace chronomender {
namespace {

using namespace little;

const Date noon = utc(2024, 6, 1, 12);
const absl::Duration hour = absl::Hours(1);

class ItemDates : public testing::Test {
protected:
    MySingleFolderPtr folder = makeFolder();
    MySinglePicPtr raw = addItem(folder, SpTypeExifOriginal, noon, "IMG_1.CR2");

    MySinglePicPtr addJpeg(absl::Duration later, SpType type = SpTypeExifOriginal) {
        const auto jpeg = addItem(folder, type, noon + later, "IMG_1.JPG");
        makeDependent(jpeg, raw);
        return jpeg;
    }
};

TEST_F(ItemDates, TogetherModeShowsTheFoldersShiftAndSingleModeTheItemsOwn) {
    folder->sfDateModificationsTimeInterval = hour;
    raw->shift.singlePicModification = absl::Milliseconds(-1500);
    EXPECT_EQ(raw->spDateTimeModified(), noon + hour);
    folder->sfEditMode = EditMode::Single;
    EXPECT_EQ(raw->spDateTimeModified(), noon - absl::Milliseconds(1500));
    raw->shift.singlePicModification = absl::ZeroDuration();
    EXPECT_EQ(raw->spDateTimeModified(), noon);
    EXPECT_FALSE(raw->singlePicModeDate());
}

TEST_F(ItemDates, MarkersAndItemsWithoutACorrectableDateNeverShift) {
    folder->sfDateModificationsTimeInterval = hour;
    for (SpType type : {SpTypeUnsupported, SpTypeMovieIgnored}) {
        const auto pic = addItem(folder, type, noon);
        EXPECT_EQ(pic->spDateTimeModified(), noon);
        EXPECT_FALSE(pic->isThisTimeUnsaved());
    }
    EXPECT_EQ(addItem(folder, SpTypeExifOriginal, InfinitePast())->spDateTimeModified(),
              InfinitePast());
}

TEST_F(ItemDates, HarmonisingBeginsBehindItsTolerance) {
    const std::tuple<int, absl::Duration, bool> rows[] = {
        {-1, hour, false},
        {0, hour, false},
        {1, absl::Seconds(300), false},
        {1, absl::Seconds(301), true},
        {1, absl::Seconds(-301), true},
        {2, absl::Seconds(1), false},
        {2, absl::Milliseconds(1001), true},
    };
    for (const auto &[type, apart, isHarmonized] : rows) {
        folder->harmonizingRawJpgsType = type;
        const auto jpeg = addJpeg(apart);
        EXPECT_EQ(raw->isGroupHarmonized(), isHarmonized) << type << ' ' << apart;
        EXPECT_EQ(jpeg->isThisHarmonizationChanged(), isHarmonized);
        EXPECT_EQ(jpeg->spDateTimeModified() == noon, isHarmonized);
        EXPECT_EQ(raw->isUnsavedOrGroupHarmonized(), isHarmonized);
        EXPECT_FALSE(raw->isUnsavedIgnoringSaveError() || raw->isThisTimeUnsaved());
    }
}

TEST_F(ItemDates, AHarmonisedDependentAnswersWithItsMasterWhateverItsOwnShift) {
    folder->sfEditMode = EditMode::Single;
    folder->harmonizingRawJpgsType = 1;
    const auto jpeg = addJpeg(hour);
    raw->shift.singlePicModification = absl::Seconds(10);
    jpeg->shift.singlePicModification = absl::Seconds(99);
    EXPECT_EQ(jpeg->spDateTimeModified(), noon + absl::Seconds(10));

    const auto movie = addJpeg(hour, SpTypeMovieMdta);
    movie->shift.singlePicModification = absl::Seconds(99);
    EXPECT_EQ(movie->spDateTimeModified(), noon + hour + absl::Seconds(99));
    EXPECT_FALSE(raw->isGroupHarmonized());
}

/// What makes an item wait for a save, and in which of the questions it counts.
struct UnsavedRow {
    const char *what;
    std::function<void(MySinglePic &)> change;
    bool isTimeUnsaved, isPureTimeUnsaved, isUnsaved, isUnsavedIgnoringError;
};

const UnsavedRow unsavedRows[] = {
    {"nothing", [](MySinglePic &) {}, false, false, false, false},
    {"shift", [](auto &pic) { pic.spSingleRealFolder()->sfDateModificationsTimeInterval = hour; },
     true, true, true, true},
    {"a single shift in together mode", [](auto &pic) { pic.shift.singlePicModification = hour; },
     false, false, false, false},
    {"zone", [](auto &pic) { pic.zones.isUnsavedDueToTZC = true; }, true, true, true, true},
    {"empty tag", [](auto &pic) { pic.spType = SpTypeEmptyTiffFileDate; }, true, true, true, true},
    {"tags to add", [](auto &pic) { pic.save.shouldAddExifDateTimeTags = true; }, true, false, true,
     true},
    {"tags added", [](auto &pic) { pic.save.didAddExifDateTimeTags = true; }, true, false, true,
     true},
    {"date error", [](auto &pic) { pic.save.saveErrorType = 4; }, true, false, true, false},
    {"tag error", [](auto &pic) { pic.save.saveErrorType = 2; }, true, false, true, false},
    {"location error", [](auto &pic) { pic.save.saveErrorType = 1; }, false, false, true, false},
    {"location", [](auto &pic) { pic.location.hasLocationChange = true; }, false, false, true,
     true},
};

TEST_F(ItemDates, WhatWaitsForASave) {
    for (const UnsavedRow &row : unsavedRows) {
        SCOPED_TRACE(row.what);
        folder = makeFolder();
        const auto pic = addItem(folder, SpTypeExifOriginal, noon);
        row.change(*pic);
        EXPECT_EQ(pic->isThisTimeUnsaved(), row.isTimeUnsaved);
        EXPECT_EQ(pic->isThisPureTimeUnsaved(), row.isPureTimeUnsaved);
        EXPECT_EQ(pic->isUnsavedOrGroupHarmonized(), row.isUnsaved);
        EXPECT_EQ(pic->isUnsavedIgnoringSaveError(), row.isUnsavedIgnoringError);
        EXPECT_EQ(folder->isUnsavedFolder(), row.isUnsaved);
        EXPECT_EQ(folder->unsavedImagesCount(), row.isUnsaved ? 1 : 0);

        pic->importState.isLeftAlone = true;
        EXPECT_FALSE(pic->isThisTimeUnsaved() || pic->isThisPureTimeUnsaved() ||
                     pic->isUnsavedOrGroupHarmonized() || pic->isUnsavedIgnoringSaveError());
    }
}

TEST_F(ItemDates, AWishOnEitherSideOfAGroupCountsForBoth) {
    const auto jpeg = addJpeg(absl::ZeroDuration());
    jpeg->location.hasLocationChange = true;
    EXPECT_TRUE(raw->isUnsavedOrGroupHarmonized());
    EXPECT_FALSE(raw->isUnsavedIgnoringSaveError());
    jpeg->location.hasLocationChange = false;
    raw->location.hasLocationChange = true;
    EXPECT_TRUE(jpeg->isUnsavedOrGroupHarmonized());
}

TEST_F(ItemDates, TheFirstFilledSlotTellsWhetherTheSourceIsLocal) {
    EXPECT_FALSE(raw->isDataSourceLocal()); // no slot at all
    raw->slots.exifDateTimeDigitizedOLD = raw->slots.tiffDateTimeOLD = noon;
    raw->singlePicAttributes.tiffOffsetTime = located("+02:00");
    EXPECT_TRUE(raw->isDataSourceLocal());
    raw->singlePicAttributes.exifOffsetTimeDigitized = located("+02:00");
    EXPECT_FALSE(raw->isDataSourceLocal());
    raw->slots.exifDateTimeOriginalOLD = noon;
    EXPECT_TRUE(raw->isDataSourceLocal());
    raw->spType = SpTypeTiffYoungerThanFile;
    EXPECT_FALSE(raw->isDataSourceLocal());
}

TEST_F(ItemDates, AMoviesHeaderIsLocalWhereTheFolderSaysSo) {
    for (int type = 14; type <= 22; ++type) {
        raw->spType = static_cast<SpType>(type);
        folder->isQuicktimeMVHDTimezoneCorrectionEnabled = false;
        EXPECT_FALSE(raw->isDataSourceLocal());
        folder->isQuicktimeMVHDTimezoneCorrectionEnabled = true;
        EXPECT_EQ(raw->isDataSourceLocal(), type == 16 || type == 17 || type == 19 || type == 20);
    }
}

} // namespace
} // namespace chronomender
