// SPDX-License-Identifier: GPL-3.0-or-later
#include "ItemDates.h"

#include "LittleItem.h"

#include <gtest/gtest.h>

#include <array>

namespace chronomender {
namespace {

using namespace little;

using Rationals = std::array<std::uint32_t, 6>;

GpsTimeStamp gpsTime(const Rationals &numbers, bool isBigEndian) {
    Bytes data;
    for (std::uint32_t number : numbers)
        for (int byte = 0; byte < 4; ++byte)
            data += static_cast<char>(number >> 8 * (isBigEndian ? 3 - byte : byte));
    return {{0, 24, data}, isBigEndian};
}

class GpsDates : public testing::Test {
protected:
    MySinglePicPtr pic = addItem(makeFolder(), SpTypeExifOriginal, utc(2024, 6, 1));

    /// The instant of these stamps; null or none for a missing half.
    std::string completed(const char *date, std::optional<Rationals> time,
                          OptionalDate creation = {}, bool isBigEndian = false) {
        SinglePicAttributes &attributes = pic->singlePicAttributes;
        attributes.gpsDateStamp = date ? std::optional(located(date)) : std::nullopt;
        attributes.gpsTimeStamp.reset();
        if (time)
            attributes.gpsTimeStamp = gpsTime(*time, isBigEndian);
        const OptionalDate found = updatedGpsDateWithCreationDate(*pic, creation);
        return found ? utcText(*found) : "none";
    }
};

TEST_F(GpsDates, ReadHoursMinutesAndSecondsInEitherByteOrder) {
    const std::pair<Rationals, const char *> rows[] = {
        {{12, 1, 34, 1, 5699, 100}, "2024-06-01 12:34:56"},
        {{12, 1, 297, 10, 0, 1}, "2024-06-01 12:29:42"}, // decimal minutes
        {{25, 2, 0, 1, 0, 1}, "2024-06-01 12:30:00"},
        {{12, 0, 34, 0, 56, 0}, "2024-06-01 12:34:56"},
        {{24, 1, 0, 1, 0, 1}, "none"},
        {{12, 1, 60, 1, 0, 1}, "none"},
        {{12, 1, 0, 1, 60, 1}, "none"},
        {{0xFFFFFFFF, 1, 0, 1, 0, 1}, "none"},
    };
    for (const auto &[time, expected] : rows)
        for (bool isBigEndian : {false, true})
            EXPECT_EQ(completed("2024:06:01", time, {}, isBigEndian), expected) << time[0];
    EXPECT_EQ(completed("2024:13:01", Rationals{12, 1, 0, 1, 0, 1}), "none");
}

TEST_F(GpsDates, AMissingHalfComesFromTheCreationDateOfTheNearestDay) {
    const Date evening = utc(2024, 6, 1, 23, 50), night = utc(2024, 6, 2, 0, 10);
    const Rationals afterMidnight{0, 1, 5, 1, 0, 1}, beforeMidnight{23, 1, 55, 1, 0, 1};
    EXPECT_EQ(completed(nullptr, afterMidnight, evening), "2024-06-02 00:05:00");
    EXPECT_EQ(completed(nullptr, afterMidnight, night), "2024-06-02 00:05:00");
    EXPECT_EQ(completed(nullptr, beforeMidnight, night), "2024-06-01 23:55:00");
    EXPECT_EQ(completed(nullptr, beforeMidnight), "none");
    // A stated day is never moved.
    EXPECT_EQ(completed("2024:06:03", std::nullopt, evening), "2024-06-03 23:50:00");
    EXPECT_EQ(completed("2024:06:03", std::nullopt, InfinitePast()), "none");
}

TEST_F(GpsDates, AnInstantThatIsKnownOrCameFromXmpStays) {
    const Rationals noon{12, 1, 0, 1, 0, 1};
    pic->location.spGpsUTCDate = utc(2000, 1, 1);
    EXPECT_EQ(completed("2024:06:01", noon), "2000-01-01 00:00:00");
    pic->location.isGpsXmp = true;
    EXPECT_EQ(completed(nullptr, noon, utc(2024, 6, 1)), "2000-01-01 00:00:00");
    pic->location.isGpsXmp = false;
    EXPECT_EQ(completed(nullptr, noon, utc(2024, 6, 1)), "2024-06-01 12:00:00");
}

TEST_F(GpsDates, ADifferenceOfFiveMinutesIsNone) {
    const Date gps = utc(2024, 6, 1);
    EXPECT_EQ(differenceFromGPSDateToDate(*pic, gps), 0);
    pic->location.spGpsUTCDate = gps;
    EXPECT_EQ(differenceFromGPSDateToDate(*pic, gps + absl::Seconds(300)), 0);
    EXPECT_EQ(differenceFromGPSDateToDate(*pic, gps + absl::Seconds(301.9)), 301);
    EXPECT_EQ(differenceFromGPSDateToDate(*pic, gps - absl::Hours(1)), -3600);
    EXPECT_EQ(differenceFromGPSDateToDate(*pic, InfinitePast()), 0);
}

TEST_F(GpsDates, AStampYoungerThanItsFileIsOneBehindTheThreshold) {
    const Date file = utc(2024, 6, 1);
    pic->slots.fileCreationDateOLD = file;
    for (SpType type : {SpTypeTiffDateTime, SpTypeTiffYoungerThanFile, SpTypeExifOriginal}) {
        pic->spType = type;
        const auto isYounger = [&](Date stamp) {
            return isSourceMetaModAndYoungerThanFileCrea(*pic, stamp, 60);
        };
        EXPECT_FALSE(isYounger(file + absl::Seconds(60)) || isYounger(InfiniteFuture()));
        EXPECT_EQ(isYounger(file + absl::Milliseconds(60001)), type != SpTypeExifOriginal);
    }
}

} // namespace
} // namespace chronomender
