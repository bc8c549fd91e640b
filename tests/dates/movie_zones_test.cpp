// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaylightSavingChecks.h"
#include "MovieClock.h"
#include "MovieStampConversions.h"
#include "ZoneSteps.h"

namespace chronomender {
namespace {

using namespace little;

/// A movie whose header was written at noon of a wall clock.
class MovieZones : public ZonesTest {
protected:
    void SetUp() override {
        pic->spType = SpTypeMovieMvhdCreation;
        setTime(pic->singlePicAttributes.qtMvhdCreaDate, utc(2024, 6, 1, 12));
        setTime(pic->singlePicAttributes.qtMvhdModDate, utc(2024, 6, 1, 13));
        pic->slots.fileCreationDateOLD = utc(2024, 6, 1, 12, 30);
    }
    static void setTime(std::optional<LocatedBytes> &value, Date date) {
        value =
            LocatedBytes{100, 4, *mvhdDataFromDate(date, MvhdCorrection::Off, absl::UTCTimeZone())};
    }
    bool update() { return updateAllDatesAfterUpdatingTimezone(*pic, *folder, zones, 3); }
};

TEST_F(MovieZones, headerTimesMoveWithTheZoneOnlyWhereTheyAreLocal) {
    assign("Asia/Tokyo", "");
    update();
    EXPECT_EQ(pic->slots.exifDateTimeOriginalOLD, utc(2024, 6, 1, 12));
    EXPECT_EQ(setQuicktimeMVHDTimezoneCorrection(*folder, true, zones, 3), 1U);
    EXPECT_EQ(pic->slots.exifDateTimeOriginalOLD, utc(2024, 6, 1, 3));
    EXPECT_EQ(pic->slots.tiffDateTimeOLD, utc(2024, 6, 1, 4));
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 3));
    EXPECT_EQ(setQuicktimeMVHDTimezoneCorrection(*folder, true, zones, 3), 0U);
}

TEST_F(MovieZones, aLoneModificationTimeGivesWayToAnOlderFile) {
    pic->singlePicAttributes.qtMvhdCreaDate.reset();
    pic->spType = SpTypeMovieMvhdModification;
    update();
    EXPECT_EQ(pic->spType, SpTypeMovieMvhdYoungerThanFile);
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 12, 30));
    EXPECT_EQ(pic->slots.tiffDateTimeOLD, utc(2024, 6, 1, 13));
    // Read in Tokyo the time lies before the file's, and counts again.
    assign("Asia/Tokyo", "");
    folder->isQuicktimeMVHDTimezoneCorrectionEnabled = true;
    update();
    EXPECT_EQ(pic->spType, SpTypeMovieMvhdModification);
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 4));
}

TEST_F(MovieZones, metadataDatesAndEmptyTimesDoNotMove) {
    folder->isQuicktimeMVHDTimezoneCorrectionEnabled = true;
    assign("Asia/Tokyo", "");
    for (const SpType type : {SpTypeMovieMdta, SpTypeMovieEmptyFileDate, SpTypeMovieEmptyFixedDate,
                              SpTypeMovieFileDate}) {
        pic->spType = type;
        pic->slots.exifDateTimeOriginalOLD = pic->spDateTimeOriginal = utc(2024, 6, 1, 10);
        update();
        EXPECT_EQ(pic->slots.exifDateTimeOriginalOLD, utc(2024, 6, 1, 10)) << int(type);
    }
}

TEST_F(MovieZones, aWallClockThatOccursTwiceIsAmbiguousWhereItIsLocal) {
    // 02:30 in Berlin, read as the later of its two instants.
    setTime(pic->singlePicAttributes.qtMvhdCreaDate, utc(2024, 10, 27, 2, 30));
    pic->singlePicAttributes.riffCreaDate = located("Sun Oct 27 02:30:00 2024\n");
    const auto isAmbiguous = [&](SpType type, bool correction) {
        pic->spType = type;
        folder->isQuicktimeMVHDTimezoneCorrectionEnabled = correction;
        update();
        const bool isAtExport =
            hasDSTAmbiguityForDate(*pic, utc(2024, 10, 27, 0, 30), ExportDate::Main,
                                   zone("Europe/Berlin").rules, DSTPreFilter::On);
        EXPECT_EQ(isDateSourceAmbiguousAtImport(*pic), isAtExport) << int(type);
        EXPECT_EQ(pic->zones.dstDivergenceState, 0U) << int(type);
        return isAtExport;
    };
    EXPECT_TRUE(isAmbiguous(SpTypeMovieRiff, false));
    EXPECT_TRUE(isAmbiguous(SpTypeMovieMvhdCreation, true));
    EXPECT_FALSE(isAmbiguous(SpTypeMovieMvhdCreation, false));
    EXPECT_FALSE(isAmbiguous(SpTypeMovieMdta, true));
    // The earlier instant, once chosen, stays.
    pic->zones.usesAltTimeAtAmbiguityReason = 1;
    isAmbiguous(SpTypeMovieRiff, false);
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 10, 27, 0, 30));
}

} // namespace
} // namespace chronomender
