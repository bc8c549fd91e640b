// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaylightSavingChecks.h"

#include "LittleItem.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;
using enum ExportDate;

const Date autumnChange = utc(2024, 10, 27, 1);
constexpr unsigned original = 1, digitized = 2, modification = 4;

class DaylightSaving : public testing::Test {
protected:
    absl::TimeZone berlin = zone("Europe/Berlin").rules;
    MySingleFolderPtr folder = makeFolder();
    MySinglePicPtr pic = addItem(folder, SpTypeExifOriginal, autumnChange);

    bool isInDanger(Date date, ExportDate which = Main, DSTPreFilter filter = DSTPreFilter::On) {
        return hasDSTAmbiguityForDate(*pic, date, which, berlin, filter);
    }
    void setAllSlots(Date date, const std::string &stamp) {
        pic->slots.exifDateTimeOriginalOLD = pic->slots.exifDateTimeDigitizedOLD =
            pic->slots.tiffDateTimeOLD = pic->spDateTimeOriginal = date;
        SinglePicAttributes &attributes = pic->singlePicAttributes;
        attributes.exifDateTimeOriginal = attributes.exifDateTimeDigitized =
            attributes.tiffDateTime = located(stamp);
    }
};

TEST_F(DaylightSaving, IsExactNextToAStepAndBehindTheTableOfStepsAndNeverNearAMarker) {
    const Date justBefore = autumnChange - absl::Nanoseconds(1);
    EXPECT_FALSE(isAmbiguousLocalTime(justBefore, berlin));
    EXPECT_TRUE(isInDanger(justBefore));
    EXPECT_TRUE(isDSTAmbiguityAtExportPossibleForDate(utc(2900, 10, 31, 1), berlin));
    for (const Date marker : {InfinitePast(), InfiniteFuture()}) {
        EXPECT_FALSE(isAmbiguousLocalTime(marker, berlin));
        EXPECT_FALSE(isInDanger(marker, Main, DSTPreFilter::Off));
        EXPECT_FALSE(isDSTAmbiguityAtExportPossibleForDate(marker, berlin));
    }
}

TEST_F(DaylightSaving, ASlotWithItsOwnZoneStampIsNeverInDanger) {
    pic->singlePicAttributes.exifOffsetTimeDigitized = located("+02:00");
    const struct {
        ExportDate which;
        SpType type;
        bool isInDanger;
    } rows[] = {
        {Original, SpTypeExifDigitized, true},
        {Digitized, SpTypeExifOriginal, false},
        {Modification, SpTypeExifDigitized, true},
        {Main, SpTypeExifOriginal, true},
        {Main, SpTypeExifDigitized, false},
        {Main, SpTypeTiffDateTime, true},
        {Main, SpTypeEmptyOriginalFixedDate, true},
        {Main, SpTypeEmptyDigitizedFileDate, false},
        {Main, SpTypeEmptyTiffFixedDate, true},
        {Main, SpTypeNoTagsFileDate, false},
        {Main, SpTypeMovieMdta, false},
    };
    for (const auto &row : rows) {
        pic->spType = row.type;
        EXPECT_EQ(isInDanger(autumnChange - absl::Minutes(30), row.which), row.isInDanger)
            << static_cast<int>(row.type);
    }
}

TEST_F(DaylightSaving, TheDangerOfASaveFollowsShiftModeAndTargetZone) {
    Zones zones;
    zones.setSystemZone(zone("Europe/Berlin"));
    const auto isSeen = [&] { return hasBundleDstAmbiguityAtExport(*pic, *folder, zones); };
    const Date dangerous = autumnChange - absl::Minutes(30);
    pic->spDateTimeOriginal = dangerous - absl::Hours(24);
    const auto jpeg = addItem(folder, SpTypeExifOriginal, pic->spDateTimeOriginal);
    makeDependent(jpeg, pic);
    jpeg->singlePicAttributes.exifOffsetTimeOriginal = located("+02:00");
    EXPECT_FALSE(isSeen());
    folder->sfDateModificationsTimeInterval = absl::Hours(24);
    EXPECT_TRUE(isSeen());
    folder->targetTimeZones.folderDefault = ZoneChoice::named(zone("Asia/Tokyo"));
    EXPECT_FALSE(isSeen());
    folder->targetTimeZones.folderDefault.reset();
    folder->sfEditMode = EditMode::Single;
    EXPECT_FALSE(isSeen());
    pic->shift.singlePicModification = absl::Hours(24);
    EXPECT_TRUE(isSeen());
    EXPECT_EQ(dstAmbiguityAtExportState(*jpeg, *folder, zones), 0U);
    pic->save.saveErrorType = 4; // asked anew each time
    pic->shift.singlePicModification = absl::ZeroDuration();
    EXPECT_FALSE(isSeen());

    pic->save.saveErrorType = 0;
    pic->spDateTimeOriginal = dangerous; // nothing would be written
    EXPECT_FALSE(isSeen());
    pic->zones.isUnsavedDueToTZC = true;
    EXPECT_TRUE(isSeen());
    folder->isQuicktimeMVHDTimezoneCorrectionEnabled = true;
    const std::pair<SpType, unsigned> rows[] = {{SpTypeExifOriginal, original},
                                                {SpTypeExifDigitized, digitized},
                                                {SpTypeTiffDateTime, modification},
                                                {SpTypeEmptyOriginalFileDate, modification},
                                                {SpTypeMovieRiff, original},
                                                {SpTypeMovieMvhdCreation, original},
                                                {SpTypeMovieMvhdModification, modification},
                                                {SpTypeMovieMdta, 0},
                                                {SpTypeNoTagsFileDate, 0}};
    for (const auto &[type, state] : rows) {
        pic->spType = type;
        EXPECT_EQ(dstAmbiguityAtExportState(*pic, *folder, zones), state) << static_cast<int>(type);
    }
    // A header cannot say 2044 at all, which is an error of another kind.
    const Date far = utc(2044, 10, 30, 0, 30);
    pic->spType = SpTypeMovieMvhdCreation;
    EXPECT_FALSE(isInDanger(far));
    pic->spType = SpTypeMovieRiff;
    EXPECT_TRUE(isInDanger(far));
}

TEST_F(DaylightSaving, ATagToBeAddedIsNoDate) {
    const Date later = autumnChange + absl::Minutes(30);
    setAllSlots(later, "2024:10:27 02:30:00");
    pic->spType = SpTypeTiffDateTime;
    pic->slots.exifDateTimeOriginalOLD = pic->slots.exifDateTimeDigitizedOLD = InfinitePast();
    checkImportDivergencyAndAmbiguityUsingZone(*pic, berlin);
    EXPECT_TRUE(isDateSourceAmbiguousAtImport(*pic));
    correctAmbiguousDatesBy(*pic, kEarlierReading);
    EXPECT_EQ(pic->spDateTimeOriginal, later - absl::Hours(1));
    pic->singlePicAttributes.tiffOffsetTime = located("+01:00");
    EXPECT_FALSE(pic->isDataSourceLocal());
}

TEST_F(DaylightSaving, ImportFlagsEachSlotByItself) {
    setAllSlots(autumnChange + absl::Minutes(30), "2024:10:27 02:30:00");
    pic->singlePicAttributes.exifOffsetTimeDigitized = located("+01:00");
    pic->slots.tiffDateTimeOLD = autumnChange + absl::Hours(5);
    checkImportDivergencyAndAmbiguityUsingZone(*pic, berlin);
    EXPECT_EQ(pic->zones.dstAmbiguityAtImportState, original);
    EXPECT_EQ(pic->zones.dstDivergenceState, modification);
    EXPECT_TRUE(isDateSourceAmbiguousAtImport(*pic));

    pic->spType = SpTypeEmptyTiffFileDate;
    checkImportDivergencyAndAmbiguityUsingZone(*pic, berlin);
    EXPECT_EQ(pic->zones.dstAmbiguityAtImportState, 0U);
}

TEST_F(DaylightSaving, AnOddlyWrittenStampDoesNotDiverge) {
    setAllSlots(utc(2024, 6, 1, 7, 5), "2024: 6: 1: 9: 5: 0");
    EXPECT_EQ(checkDSTDivergence(*pic, berlin).divergence, 0U);
}

} // namespace
} // namespace chronomender
