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

    void setStamps(const char *date, std::optional<Rationals> time, bool isBigEndian = false) {
        pic->singlePicAttributes.gpsDateStamp.reset();
        pic->singlePicAttributes.gpsTimeStamp.reset();
        pic->location.spGpsUTCDate.reset();
        if (date)
            pic->singlePicAttributes.gpsDateStamp = located(date);
        if (time)
            pic->singlePicAttributes.gpsTimeStamp = gpsTime(*time, isBigEndian);
    }
    std::string completed(OptionalDate creation = {}) {
        const OptionalDate date = updatedGpsDateWithCreationDate(*pic, creation);
        return date ? utcText(*date) : "none";
    }
};

TEST_F(GpsDates, ReadHoursMinutesAndSecondsInEitherByteOrder) {
    const struct {
        Rationals time;
        const char *expected;
    } rows[] = {
        {{12, 1, 34, 1, 56, 1}, "2024-06-01 12:34:56"},
        {{12, 1, 34, 1, 5699, 100}, "2024-06-01 12:34:56"},
        {{12, 1, 297, 10, 0, 1}, "2024-06-01 12:29:42"}, // decimal minutes
        {{25, 2, 0, 1, 0, 1}, "2024-06-01 12:30:00"},
        {{12, 0, 34, 0, 56, 0}, "2024-06-01 12:34:56"},
        {{24, 1, 0, 1, 0, 1}, "none"},
        {{12, 1, 60, 1, 0, 1}, "none"},
        {{12, 1, 0, 1, 60, 1}, "none"},
        {{0xFFFFFFFF, 1, 0, 1, 0, 1}, "none"},
    };
    for (const auto &row : rows) {
        for (bool isBigEndian : {false, true}) {
            setStamps("2024:06:01", row.time, isBigEndian);
            EXPECT_EQ(completed(), row.expected) << row.time[0] << ' ' << row.time[2];
        }
    }
    setStamps("2024:13:01", Rationals{12, 1, 0, 1, 0, 1});
    EXPECT_EQ(completed(), "none");
}

TEST_F(GpsDates, AMissingHalfComesFromTheCreationDateOfTheNearestDay) {
    const Date beforeMidnight = utc(2024, 6, 1, 23, 50), afterMidnight = utc(2024, 6, 2, 0, 10);
    setStamps(nullptr, Rationals{0, 1, 5, 1, 0, 1});
    EXPECT_EQ(completed(beforeMidnight), "2024-06-02 00:05:00");
    EXPECT_EQ(completed(afterMidnight), "2024-06-02 00:05:00");
    setStamps(nullptr, Rationals{23, 1, 55, 1, 0, 1});
    EXPECT_EQ(completed(afterMidnight), "2024-06-01 23:55:00");
    EXPECT_EQ(completed(), "none");
    setStamps("2024:06:03", std::nullopt);
    EXPECT_EQ(completed(beforeMidnight), "2024-06-03 23:50:00"); // a stated day is never moved
    EXPECT_EQ(completed(InfinitePast()), "none");
}

TEST_F(GpsDates, AnInstantThatIsKnownOrCameFromXmpStays) {
    const Date known = utc(2000, 1, 1);
    setStamps("2024:06:01", Rationals{12, 1, 0, 1, 0, 1});
    pic->location.spGpsUTCDate = known;
    updateGpsDateWithCreationDate(*pic, std::nullopt);
    EXPECT_EQ(pic->location.spGpsUTCDate, known);
    setStamps(nullptr, Rationals{12, 1, 0, 1, 0, 1});
    pic->location.spGpsUTCDate = known;
    pic->location.isGpsXmp = true;
    EXPECT_EQ(completed(utc(2024, 6, 1)), utcText(known));
    pic->location.isGpsXmp = false;
    EXPECT_EQ(completed(utc(2024, 6, 1)), "2024-06-01 12:00:00");
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
        const auto isYounger = [&](absl::Duration by) {
            return isSourceMetaModAndYoungerThanFileCrea(*pic, file + by, 60);
        };
        EXPECT_FALSE(isYounger(absl::Seconds(60)));
        EXPECT_EQ(isYounger(absl::Milliseconds(60001)), type != SpTypeExifOriginal);
    }
    EXPECT_FALSE(isSourceMetaModAndYoungerThanFileCrea(*pic, InfiniteFuture(), 60));
}

} // namespace
} // namespace chronomender
