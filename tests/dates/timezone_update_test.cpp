// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaylightSavingChecks.h"
#include "MovieClock.h"
#include "MovieStampConversions.h"
#include "StampConversions.h"
#include "ZoneChange.h"
#include "ZoneSteps.h"

namespace chronomender {
namespace {

using namespace little;

const Date morning = utc(2024, 6, 1, 10), noon = utc(2024, 6, 1, 12);

/// A photo of noon, read in Berlin, two hours ahead of UTC.
class TimezoneUpdate : public ZonesTest {
protected:
    void SetUp() override {
        attributes.exifDateTimeOriginal = attributes.exifDateTimeDigitized =
            attributes.tiffDateTime = located("2024:06:01 12:00:00");
        attributes.tiffOffsetTime = located("+05:30");
        slots.exifDateTimeOriginalOLD = slots.exifDateTimeDigitizedOLD = slots.fileCreationDateOLD =
            pic->spDateTimeOriginal = morning;
        slots.tiffDateTimeOLD = utc(2024, 6, 1, 6, 30);
    }
    bool update(int threshold = 3) {
        return updateAllDatesAfterUpdatingTimezone(*pic, *folder, zones, threshold);
    }
    bool updateFrom(const char *source) {
        assign(std::string(source) + " - - -");
        return update();
    }
    SinglePicAttributes &attributes = pic->singlePicAttributes;
    DateSlots &slots = pic->slots;
};

TEST_F(TimezoneUpdate, StampsMoveWithTheSourceZoneAndThoseWithAZoneStampStay) {
    EXPECT_FALSE(update());
    EXPECT_TRUE(updateFrom("Tokyo"));
    EXPECT_EQ(slots.exifDateTimeOriginalOLD, utc(2024, 6, 1, 3));
    EXPECT_EQ(slots.exifDateTimeDigitizedOLD, utc(2024, 6, 1, 3));
    EXPECT_EQ(slots.tiffDateTimeOLD, utc(2024, 6, 1, 6, 30));
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 3));
    EXPECT_TRUE(pic->zones.isUnsavedDueToTZC);
    EXPECT_FALSE(update()); // from the recorded bytes, never from dates already moved
    // The main date follows the slot of its type.
    pic->spType = SpTypeExifDigitized;
    attributes.exifDateTimeDigitized = located("2024:06:01 13:00:00");
    EXPECT_TRUE(update());
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 4));
}

TEST_F(TimezoneUpdate, EveryKindOfZoneGivesTheStampBackUnlessItsClockSkippedIt) {
    const struct {
        const char *zone, *stamp, *inUtc, *writtenBack;
    } rows[] = {
        {"Etc/GMT+12", "2024:06:01 12:00:00", "2024-06-02 00:00:00", ""},
        {"+05:45", "2024:06:01 12:00:00", "2024-06-01 06:15:00", ""},
        {"Asia/Kolkata", "2024:06:01 12:00:00", "2024-06-01 06:30:00", ""},
        {"Pacific/Apia", "2011:12:29 23:59:59", "2011-12-30 09:59:59", ""},
        {"Pacific/Apia", "2011:12:30 12:00:00", "2011-12-30 22:00:00", "2011:12:31 12:00:00"},
        {"Asia/Beirut", "2017:03:26 00:30:00", "2017-03-25 22:30:00", "2017:03:26 01:30:00"},
        {"Asia/Beirut", "2017:10:28 23:30:00", "2017-10-28 21:30:00", ""},
        {"America/Sao_Paulo", "2017:10:15 00:00:00", "2017-10-15 03:00:00", "2017:10:15 01:00:00"},
        {"America/Sao_Paulo", "2017:02:18 23:59:59", "2017-02-19 02:59:59", ""},
        {"Australia/Lord_Howe", "2024:10:06 02:15:00", "2024-10-05 15:45:00",
         "2024:10:06 02:45:00"},
        {"Europe/Paris", "1850:06:01 12:00:00", "1850-06-01 11:50:39", ""},
        {"America/New_York", "2150:07:01 12:00:00", "2150-07-01 16:00:00", ""},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.zone) + ' ' + row.stamp);
        attributes.exifDateTimeOriginal = located(row.stamp);
        const auto zone = zones.zoneWithName(row.zone);
        ASSERT_TRUE(zone);
        assignZones({pic}, {ZoneChoice::named(*zone), {}}, zones, 3);
        update();
        EXPECT_EQ(utcText(*slots.exifDateTimeOriginalOLD), row.inUtc);
        EXPECT_EQ(pic->spDateTimeOriginal, *slots.exifDateTimeOriginalOLD);
        const Zone &target = targetTimeZoneForPic(*pic, *folder, zones);
        EXPECT_EQ(*exifDataFromDate(pic->spDateTimeOriginal, target.rules),
                  located(*row.writtenBack ? row.writtenBack : row.stamp).data);
    }
}

TEST_F(TimezoneUpdate, APendingChangeIsShownAndTakenBack) {
    const ZoneProvider pending = provider("Tokyo mixed - -");
    EXPECT_TRUE(
        updateAllDatesAfterUpdatingTimezoneUsingZoneProvider(*pic, pending, *folder, zones, 3));
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 3));
    EXPECT_TRUE(pic->zones.isUnsavedDueToTZC);
    EXPECT_TRUE(update());
    EXPECT_EQ(pic->spDateTimeOriginal, morning);
    EXPECT_FALSE(pic->zones.isUnsavedDueToTZC);
}

TEST_F(TimezoneUpdate, WhatHasNoStampDoesNotMove) {
    for (SpType type : {SpTypeEmptyOriginalFileDate, SpTypeNoTagsFileDate, SpTypeUnsupported}) {
        pic->spType = type;
        EXPECT_FALSE(updateFrom("Tokyo"));
    }
    slots.exifDateTimeOriginalOLD = std::nullopt;
    slots.exifDateTimeDigitizedOLD = InfinitePast(); // a tag to be added
    pic->spType = SpTypeTiffDateTime;
    update();
    EXPECT_EQ(slots.exifDateTimeOriginalOLD, std::nullopt);
    EXPECT_EQ(slots.exifDateTimeDigitizedOLD, InfinitePast());
}

TEST_F(TimezoneUpdate, AStampAndItsFileDateExchangeRoles) {
    attributes.tiffOffsetTime.reset();
    slots.exifDateTimeOriginalOLD = slots.exifDateTimeDigitizedOLD = std::nullopt;
    slots.fileCreationDateOLD = utc(2024, 6, 1, 15, 59, 57);
    pic->spType = SpTypeTiffDateTime;
    const struct {
        const char *source;
        int threshold;
        SpType type;
        Date mainDate;
    } rows[] = {
        {"Lima", 3603, SpTypeTiffDateTime, utc(2024, 6, 1, 17)},
        {"Lima", 3602, SpTypeTiffYoungerThanFile, *slots.fileCreationDateOLD},
        {"-", 3602, SpTypeTiffDateTime, morning},
    };
    for (const auto &row : rows) {
        assign(std::string(row.source) + " - - -");
        EXPECT_TRUE(update(row.threshold));
        EXPECT_EQ(pic->spType, row.type) << row.source << row.threshold;
        EXPECT_EQ(pic->spDateTimeOriginal, row.mainDate) << row.source << row.threshold;
        EXPECT_EQ(slots.tiffDateTimeOLD, row.mainDate == morning ? morning : utc(2024, 6, 1, 17));
    }
}

TEST_F(TimezoneUpdate, TheDependentIsReadInTheSameZone) {
    const auto jpeg = addItem(folder, SpTypeExifOriginal, morning);
    jpeg->singlePicAttributes = attributes;
    jpeg->slots = slots;
    makeDependent(jpeg, pic);
    assign("- - Tokyo -");
    EXPECT_TRUE(update());
    EXPECT_EQ(jpeg->spDateTimeOriginal, utc(2024, 6, 1, 3));
    const Zone lima = zone("America/Lima");
    EXPECT_TRUE(updateAllDatesAfterUpdatingTimezoneUsingTimeZone(*pic, lima, *folder, zones, 3));
    EXPECT_EQ(jpeg->spDateTimeOriginal, utc(2024, 6, 1, 17));
}

TEST_F(TimezoneUpdate, AnAlternativeReadingStaysOnlyWhereTheStampIsAmbiguous) {
    const Date summer = utc(2024, 10, 27, 0, 30);
    attributes.exifDateTimeOriginal = attributes.exifDateTimeDigitized =
        located("2024:10:27 02:30:00");
    pic->zones.usesAltTimeAtAmbiguityReason = 1;
    update();
    EXPECT_EQ(pic->spDateTimeOriginal, summer); // as chosen
    EXPECT_EQ(slots.exifDateTimeDigitizedOLD, summer);
    updateFrom("Tokyo");
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 10, 26, 17, 30));
    EXPECT_EQ(pic->zones.dstAmbiguityAtImportState, 0U);
    EXPECT_EQ(pic->zones.usesAltTimeAtAmbiguityReason, 1);
    updateFrom("-");
    EXPECT_EQ(pic->spDateTimeOriginal, summer);
    // The main date's own stamp decides, not one of the others.
    attributes.exifOffsetTimeOriginal = located("+02:00");
    update();
    EXPECT_EQ(slots.exifDateTimeDigitizedOLD, summer + absl::Hours(1));
}

TEST_F(TimezoneUpdate, AWishMovesDatesByItsSourceAndLeavesTargetsThatSomebodyChose) {
    const struct {
        const char *choices, *source, *target;
        bool ofItem;
        const char *after;
        std::size_t changed;
        bool isUnsaved;
    } rows[] = {
        {"- - - -", "Tokyo", "-", false, "Tokyo folder - -", 1, false},
        {"- UTC - -", "Tokyo", "-", false, "Tokyo UTC - -", 1, true},
        {"Tokyo folder - -", "Lima", "-", false, "Lima folder - -", 1, false},
        {"- - - -", "Tokyo", "UTC", false, "Tokyo UTC - -", 1, true},
        {"- - - -", "-", "UTC", false, "- UTC - -", 0, true},
        {"- - - -", "system", "-", false, "system folder - -", 0, false},
        {"- - - -", "Berlin", "-", false, "Berlin folder - -", 0, false},
        {"- - Lima left", "Tokyo", "-", false, "Tokyo folder Lima left", 0, false},
        {"- - - -", "Tokyo", "-", true, "- - Tokyo left", 1, false},
        {"Tokyo folder - -", "Lima", "-", true, "Tokyo folder Lima left", 1, false},
        {"Tokyo folder - -", "Tokyo", "-", true, "Tokyo folder Tokyo left", 0, false},
        {"- UTC - -", "Tokyo", "-", true, "- UTC Tokyo -", 1, true},
        {"- - - Lima", "Tokyo", "-", true, "- - Tokyo Lima", 1, true},
        {"- UTC - left", "Tokyo", "-", true, "- UTC Tokyo left", 1, false},
        {"- - Tokyo left", "-", "UTC", true, "- - Tokyo UTC", 0, true},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.choices) + " + " + row.source + (row.ofItem ? " (item)" : ""));
        assign(row.choices);
        update();
        const ZoneWish wish{choice(row.source), choice(row.target)};
        EXPECT_EQ(row.ofItem ? assignZones({pic, pic}, wish, zones, 3)
                             : assignZones(*folder, wish, zones, 3),
                  row.changed);
        EXPECT_EQ(choices(), row.after);
        EXPECT_EQ(pic->zones.isUnsavedDueToTZC, row.isUnsaved);
        EXPECT_EQ(folder->isUnsavedDueToTZC, row.isUnsaved);
        EXPECT_FALSE(update());
    }
}

TEST_F(TimezoneUpdate, AWishReachesItemsOfSeveralFoldersAndMastersOfDependents) {
    const MySingleFolderPtr other = makeFolder();
    const auto likeThePhoto = [&](const MySingleFolderPtr &in) {
        const auto added = addItem(in, SpTypeExifOriginal, morning);
        added->singlePicAttributes = attributes;
        added->slots = slots;
        return added;
    };
    const auto distant = likeThePhoto(other), untouched = likeThePhoto(folder),
               jpeg = likeThePhoto(folder);
    makeDependent(jpeg, pic);
    EXPECT_EQ(assignZones({jpeg, distant, pic}, {choice("Tokyo"), {}}, zones, 3), 2U);
    for (const MySinglePicPtr &item : {pic, jpeg, distant})
        EXPECT_EQ(item->spDateTimeOriginal, utc(2024, 6, 1, 3));
    EXPECT_EQ(untouched->spDateTimeOriginal, morning);
    EXPECT_EQ(choices(), "- - Tokyo left");
    // The folder's own zone moves only what has none of its own.
    EXPECT_EQ(assignZones(*folder, {choice("Lima"), {}}, zones, 3), 1U);
    EXPECT_EQ(untouched->spDateTimeOriginal, utc(2024, 6, 1, 17));
    EXPECT_EQ(jpeg->spDateTimeOriginal, utc(2024, 6, 1, 3));
}

/// A photo whose dates come from XMP: a wall clock and a stamp with a zone.
class XmpItem : public TimezoneUpdate {
protected:
    void SetUp() override {
        take("2024-06-01T12:00:00");
        pic->xmp = {.isCreaXmp = true, .isDigiXmp = true};
        slots.exifDateTimeOriginalOLD = pic->spDateTimeOriginal = morning;
        slots.exifDateTimeDigitizedOLD = utc(2024, 6, 1, 6, 30);
    }
    void take(const std::string &creation) {
        attributes.xmpDateInfos.stamps = {
            {XmpProperty::PhotoshopDateCreated, located(creation), XmpStampType::Local, 0},
            {XmpProperty::XmpCreateDate, located("2024-06-01T12:00:00+0530"), XmpStampType::Zoned,
             kXmpZoneWithoutColon}};
        for (XmpStamp &stamp : attributes.xmpDateInfos.stamps)
            stamp.value.data.pop_back(); // text of XMP ends without a zero byte
    }
};

TEST_F(XmpItem, AWallClockMovesWithTheSourceZoneAndAStampWithAZoneStays) {
    EXPECT_FALSE(update());
    EXPECT_TRUE(updateFrom("Tokyo"));
    EXPECT_EQ(slots.exifDateTimeOriginalOLD, utc(2024, 6, 1, 3));
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 3));
    EXPECT_EQ(slots.exifDateTimeDigitizedOLD, utc(2024, 6, 1, 6, 30));
    EXPECT_EQ(sourceZoneForSlot(*pic, StampSlot::Digitized, *folder, zones).name, "+05:30");
}

TEST_F(XmpItem, AWallClockInTheRepeatedOrSkippedHourIsSeen) {
    const unsigned original = bit(StampSlot::Original);
    const std::tuple<const char *, unsigned, unsigned> rows[] = {
        {"2024-10-27T02:30:00", original, 0U},
        {"2024-03-31T02:30:00", 0U, original},
        {"2024-06-01T12:00:00", 0U, 0U}};
    for (const auto &[creation, ambiguity, divergence] : rows) {
        take(creation);
        update();
        EXPECT_EQ(pic->zones.dstAmbiguityAtImportState, ambiguity) << creation;
        EXPECT_EQ(pic->zones.dstDivergenceState, divergence) << creation;
    }
}

/// A movie whose header was written at noon of a wall clock.
class MovieZones : public TimezoneUpdate {
protected:
    void SetUp() override {
        pic->spType = SpTypeMovieMvhdCreation;
        setTime(attributes.qtMvhdCreaDate, noon);
        setTime(attributes.qtMvhdModDate, utc(2024, 6, 1, 13));
        slots.fileCreationDateOLD = utc(2024, 6, 1, 12, 30);
    }
    static void setTime(std::optional<LocatedBytes> &value, Date date) {
        value =
            LocatedBytes{100, 4, *mvhdDataFromDate(date, MvhdCorrection::Off, absl::UTCTimeZone())};
    }
};

TEST_F(MovieZones, headerTimesMoveWithTheZoneOnlyWhereTheyAreLocal) {
    updateFrom("Tokyo");
    EXPECT_EQ(slots.exifDateTimeOriginalOLD, noon);
    EXPECT_EQ(setQuicktimeMVHDTimezoneCorrection(*folder, true, zones, 3), 1U);
    EXPECT_EQ(slots.exifDateTimeOriginalOLD, utc(2024, 6, 1, 3));
    EXPECT_EQ(slots.tiffDateTimeOLD, utc(2024, 6, 1, 4));
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 3));
    EXPECT_EQ(setQuicktimeMVHDTimezoneCorrection(*folder, true, zones, 3), 0U);
    for (const SpType type : {SpTypeMovieMdta, SpTypeMovieEmptyFileDate, SpTypeMovieEmptyFixedDate,
                              SpTypeMovieFileDate}) { // nor metadata dates and empty times
        pic->spType = type;
        slots.exifDateTimeOriginalOLD = pic->spDateTimeOriginal = morning;
        update();
        EXPECT_EQ(slots.exifDateTimeOriginalOLD, morning) << int(type);
    }
}

TEST_F(MovieZones, aLoneModificationTimeGivesWayToAnOlderFile) {
    attributes.qtMvhdCreaDate.reset();
    pic->spType = SpTypeMovieMvhdModification;
    update();
    EXPECT_EQ(pic->spType, SpTypeMovieMvhdYoungerThanFile);
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 12, 30));
    EXPECT_EQ(slots.tiffDateTimeOLD, utc(2024, 6, 1, 13));
    // Read in Tokyo the time lies before the file's, and counts again.
    folder->isQuicktimeMVHDTimezoneCorrectionEnabled = true;
    updateFrom("Tokyo");
    EXPECT_EQ(pic->spType, SpTypeMovieMvhdModification);
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2024, 6, 1, 4));
}

TEST_F(MovieZones, aWallClockThatOccursTwiceIsAmbiguousWhereItIsLocal) {
    // 02:30 in Berlin, read as the later of its two instants.
    const Date earlier = utc(2024, 10, 27, 0, 30);
    setTime(attributes.qtMvhdCreaDate, utc(2024, 10, 27, 2, 30));
    attributes.riffCreaDate = located("Sun Oct 27 02:30:00 2024\n");
    const std::tuple<SpType, bool, bool> rows[] = {{SpTypeMovieMvhdCreation, true, true},
                                                   {SpTypeMovieMvhdCreation, false, false},
                                                   {SpTypeMovieMdta, true, false},
                                                   {SpTypeMovieRiff, false, true}};
    for (const auto &[type, correction, isAmbiguous] : rows) {
        pic->spType = type;
        folder->isQuicktimeMVHDTimezoneCorrectionEnabled = correction;
        update();
        EXPECT_EQ(hasDSTAmbiguityForDate(*pic, earlier, ExportDate::Main,
                                         zone("Europe/Berlin").rules, DSTPreFilter::On),
                  isAmbiguous);
        EXPECT_EQ(isDateSourceAmbiguousAtImport(*pic), isAmbiguous) << int(type);
        EXPECT_EQ(pic->zones.dstDivergenceState, 0U) << int(type);
    }
    // The earlier instant, once chosen, stays.
    pic->zones.usesAltTimeAtAmbiguityReason = 1;
    update();
    EXPECT_EQ(pic->spDateTimeOriginal, earlier);
}

} // namespace
} // namespace chronomender
