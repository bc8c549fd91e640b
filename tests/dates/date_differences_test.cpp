// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateDifferences.h"

#include "LittleItem.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace chronomender {
namespace {

using namespace little;
using enum DstSpecialCase;

/// Photos and a movie that tell one wall clock and one zone, each in its own way: "2024-06-01
/// 12:00:00" and "+09:00".
class ZoneInFile : public testing::Test {
protected:
    MySinglePicPtr exifPhoto(std::string clock, const std::string &offset) {
        std::replace(clock.begin(), clock.begin() + 8, '-', ':');
        const auto pic = addItem(folder, SpTypeExifOriginal, InfinitePast());
        pic->singlePicAttributes.exifDateTimeOriginal = located(clock);
        pic->singlePicAttributes.exifOffsetTimeOriginal = located(offset);
        return pic;
    }
    MySinglePicPtr xmpPhoto(std::string clock, const std::string &offset) {
        clock[10] = 'T';
        const auto pic = addItem(folder, SpTypeExifOriginal, InfinitePast());
        pic->xmp.isCreaXmp = true;
        pic->singlePicAttributes.xmpDateInfos.stamps = {
            {XmpProperty::PhotoshopDateCreated, {100, 25, clock + offset}, XmpStampType::Zoned}};
        return pic;
    }
    MySinglePicPtr movie(std::string clock, const std::string &offset) {
        clock[10] = 'T';
        const auto pic = addItem(folder, SpTypeMovieMdta, InfinitePast());
        const Bytes data = clock + offset;
        pic->singlePicAttributes.qtMetaDate = {100, static_cast<std::uint32_t>(data.size()), data};
        return pic;
    }
    MySingleFolderPtr folder = makeFolder();
    absl::TimeZone berlin = zone("Europe/Berlin").rules;
};

TEST_F(ZoneInFile, IsHeldAgainstTheAssumedOneUnlessAStepOfTheClocksExplainsTheHour) {
    const struct {
        const char *clock, *offset;
        std::int64_t difference;
        DstSpecialCase specialCase = None;
    } rows[] = {
        {"2024-06-01 12:00:00", "+02:00", 0},
        {"2024-06-01 12:00:00", "+09:00", -25200},
        {"2024-06-01 12:00:00", "+01:00", 3600},
        {"2024-10-27 02:30:00", "+02:00", 0, SameClock}, // the earlier of the two
        {"2024-10-27 03:30:00", "+02:00", -3600},
        {"2024-03-31 02:30:00", "+02:00", 0, SkippedTime},
        {"2024-03-31 03:30:00", "+01:00", 3600},
    };
    for (const auto &row : rows) {
        const auto check = [&](auto function, const MySinglePicPtr &pic) {
            DstSpecialCase specialCase = SkippedTime;
            EXPECT_EQ(function(*pic, berlin, &specialCase), row.difference)
                << row.clock << row.offset;
            EXPECT_EQ(specialCase, row.specialCase) << row.clock << row.offset;
            validateDateDifferencesUsingTimeZone(*pic, berlin);
            EXPECT_EQ(hasMajorDateDifference(*pic), row.difference != 0);
        };
        check(checkEXOFTimeWithTimeZone, exifPhoto(row.clock, row.offset));
        check(checkEXOFTimeWithTimeZone, xmpPhoto(row.clock, row.offset));
        check(checkXmpTZTimeWithTimeZone, xmpPhoto(row.clock, row.offset));
        check(checkMDTADateWithTimeZone, movie(row.clock, row.offset));
    }
}

TEST_F(ZoneInFile, IsToldByFewStamps) {
    const auto isDifferent = [&](const MySinglePicPtr &pic) {
        return zoneDisagreement(*pic, berlin).has_value();
    };
    const std::string noon = "2024-06-01 12:00:00", minute = "2024-06-01 12:00";
    EXPECT_TRUE(isDifferent(movie(noon, "+0900")));
    EXPECT_TRUE(isDifferent(movie(minute, "+09:00")));
    for (const auto &clock : {noon, minute})
        for (const char *zoneText : {"Z", ""}) // UTC as a form of writing, and a wall clock
            EXPECT_FALSE(isDifferent(movie(clock, zoneText))) << clock << zoneText;
    EXPECT_FALSE(isDifferent(exifPhoto(noon, "+99:00")));
    // The slot of the type decides, also where the file's date goes before it.
    const auto photo = exifPhoto(noon, "+09:00");
    photo->singlePicAttributes.tiffDateTime = photo->singlePicAttributes.exifDateTimeOriginal;
    for (const SpType type : {SpTypeExifDigitized, SpTypeTiffDateTime, SpTypeTiffYoungerThanFile,
                              SpTypeEmptyOriginalFileDate}) {
        photo->spType = type;
        EXPECT_FALSE(isDifferent(photo)) << static_cast<int>(type);
    }
    photo->singlePicAttributes.tiffOffsetTime = located("+09:00");
    photo->spType = SpTypeTiffYoungerThanFile;
    EXPECT_TRUE(isDifferent(photo));
}

TEST(GroupDeviations, AreOfTwoKindsAndHarmonisingIsOneOnPurpose) {
    const struct {
        double apart; ///< seconds
        bool isMovie, isMasterLocal;
        int harmonizing;
        unsigned bits;
    } rows[] = {
        {300.9, false, true, 0, 0},
        {-301, false, false, 0, kGroupDeviates},
        {301, true, false, 1, kGroupDeviates},
        {301, true, true, 1, kGroupDeviates | kOnlyOneSideIsLocal},
        {301, false, true, 0, kGroupDeviates | kOnlyOneSideIsLocal},
        {301, false, true, 1, kGroupDeviates},
        {-2, false, true, 2, kGroupDeviates},
        {1, false, true, 2, 0},
        {2, false, true, 1, 0},
    };
    for (const auto &row : rows) {
        const Date noon = utc(2024, 6, 1, 12);
        const auto folder = makeFolder();
        folder->harmonizingRawJpgsType = row.harmonizing;
        const auto master = addItem(folder, SpTypeExifOriginal, noon);
        master->slots.exifDateTimeOriginalOLD = noon;
        if (!row.isMasterLocal)
            master->singlePicAttributes.exifOffsetTimeOriginal = located("+02:00");
        const auto dependent = addItem(folder, row.isMovie ? SpTypeMovieMdta : SpTypeNoTagsFileDate,
                                       noon + absl::Seconds(row.apart));
        makeDependent(dependent, master);
        master->zones.majorDateDifferenceType = kZoneDisagrees;
        EXPECT_EQ(validateGroupDeviations(*master), (row.bits & kOnlyOneSideIsLocal) != 0);
        EXPECT_EQ(master->zones.majorDateDifferenceType, row.bits | kZoneDisagrees) << row.apart;
        // A group that is none any more deviates in nothing.
        master->group.bundleDependentImage = nullptr;
        EXPECT_FALSE(validateGroupDeviations(*master));
        EXPECT_EQ(master->zones.majorDateDifferenceType, kZoneDisagrees);
    }
}

TEST(MinorDifference, IsAGpsTimeApartFromADateWithoutAZone) {
    const auto folder = makeFolder();
    const auto pic = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1, 12));
    pic->slots.exifDateTimeOriginalOLD = pic->spDateTimeOriginal;
    pic->location.spGpsUTCDate = utc(2024, 6, 1, 12, 5);
    Zones zones;
    EXPECT_FALSE(validateDateDifferences(*pic, *folder, zones));
    pic->location.spGpsUTCDate = utc(2024, 6, 1, 12, 5, 1);
    EXPECT_TRUE(validateDateDifferences(*pic, *folder, zones)); // it came
    EXPECT_FALSE(validateDateDifferences(*pic, *folder, zones));
    pic->singlePicAttributes.exifOffsetTimeOriginal = located("+00:00");
    zones.setSystemZone(Zones::utc());
    EXPECT_TRUE(validateDateDifferences(*pic, *folder, zones)); // and went
    EXPECT_FALSE(pic->zones.hasMinorDateDifference);
}

} // namespace
} // namespace chronomender
