// SPDX-License-Identifier: GPL-3.0-or-later
#include "StampConversions.h"

#include "LittleItem.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;

std::string stampIn(const char *place, Date date) {
    const auto data = exifDataFromDate(date, zone(place).rules);
    return data ? std::string(*data, 0, data->size() - 1) : "";
}

std::string readIn(const char *place, const std::string &stamp) {
    return utcText(dateFromEXIFTimeStamp(stamp, zone(place).rules));
}

struct ReadingRow {
    const char *place, *stamp, *inUtc;
};

TEST(ReadingStamps, ByPlaceAndYear) {
    const ReadingRow rows[] = {
        // The hour that comes twice means the later instant: winter time.
        {"Europe/Berlin", "2024:10:27 01:59:59", "2024-10-26 23:59:59"},
        {"Europe/Berlin", "2024:10:27 02:00:00", "2024-10-27 01:00:00"},
        {"Europe/Berlin", "2024:10:27 02:59:59", "2024-10-27 01:59:59"},
        {"Europe/Berlin", "2024:10:27 03:00:00", "2024-10-27 02:00:00"},
        // The hour that never comes is read with winter time, which held before the step.
        {"Europe/Berlin", "2024:03:31 01:59:59", "2024-03-31 00:59:59"},
        {"Europe/Berlin", "2024:03:31 02:30:00", "2024-03-31 01:30:00"},
        {"Europe/Berlin", "2024:03:31 03:00:00", "2024-03-31 01:00:00"},
        // Samoa crossed the date line and left a whole day out.
        {"Pacific/Apia", "2011:12:29 23:59:59", "2011-12-30 09:59:59"},
        {"Pacific/Apia", "2011:12:30 12:00:00", "2011-12-30 22:00:00"},
        {"Pacific/Apia", "2011:12:31 00:00:00", "2011-12-30 10:00:00"},
        // Clocks that move by half an hour.
        {"Australia/Lord_Howe", "2024:04:07 01:45:00", "2024-04-06 15:15:00"},
        {"Australia/Lord_Howe", "2024:10:06 02:15:00", "2024-10-05 15:45:00"},
        // Nepal stepped by a quarter of an hour once.
        {"Asia/Kathmandu", "1986:01:01 00:10:00", "1985-12-31 18:40:00"},
        {"Asia/Kathmandu", "2024:06:01 12:00:00", "2024-06-01 06:15:00"},
        // Local mean time, to the second.
        {"Europe/Paris", "1890:01:01 00:09:21", "1890-01-01 00:00:00"},
        // Behind the end of the zone's table its last rule goes on.
        {"Europe/Berlin", "2500:07:01 12:00:00", "2500-07-01 10:00:00"},
        {"UTC", "0001:01:01 00:00:00", "0001-01-01 00:00:00"},
        {"UTC", "9999:12:31 23:59:59", "9999-12-31 23:59:59"},
        {"UTC", "2024:02:29:23:59:59", "2024-02-29 23:59:59"},
    };
    for (const ReadingRow &row : rows)
        EXPECT_EQ(readIn(row.place, row.stamp), row.inUtc) << row.place << ' ' << row.stamp;
}

TEST(ReadingStamps, WhatIsNoDateGivesTheDistantPast) {
    const absl::TimeZone utcZone = absl::UTCTimeZone();
    for (const char *stamp :
         {"0000:00:00 00:00:00", "    :  :     :  :  ", "2023:02:29 12:00:00"}) {
        EXPECT_EQ(dateFromEXIFTimeStamp(stamp, utcZone), InfinitePast()) << stamp;
        EXPECT_EQ(dateFromExifData(located(stamp).data, nullptr, utcZone), InfinitePast());
    }
    EXPECT_EQ(dateFromExifData("2024", nullptr, utcZone), std::nullopt);
}

TEST(ReadingStamps, AZoneStampReplacesTheZoneAndABadOneDoesNotLoseTheDate) {
    const struct {
        const char *offset, *inUtc;
    } rows[] = {
        {"+02:00", "2024-06-01 10:00:00"}, {"-05:30", "2024-06-01 17:30:00"},
        {"+18:00", "2024-05-31 18:00:00"}, {"+18:01", "2024-06-01 03:00:00"},
        {"+02:61", "2024-06-01 03:00:00"}, {"      ", "2024-06-01 03:00:00"},
    };
    const absl::TimeZone tokyo = zone("Asia/Tokyo").rules;
    const Bytes stamp = located("2024:06:01 12:00:00").data;
    for (const auto &row : rows) {
        const Bytes offset = located(row.offset).data;
        EXPECT_EQ(utcText(*dateFromExifData(stamp, &offset, tokyo)), row.inUtc) << row.offset;
    }
    EXPECT_EQ(utcText(*dateFromExifData(stamp, nullptr, tokyo)), "2024-06-01 03:00:00");
    // A wall clock that the zone skips exists under its own offset.
    const Date skipped = dateFromEXIFTimeStampAndOffset("2024:03:31 02:30:00", "+02:00",
                                                        zone("Europe/Berlin").rules);
    EXPECT_EQ(utcText(skipped), "2024-03-31 00:30:00");
}

TEST(WritingStamps, OneSecondAcrossEachChangeOfTheClock) {
    const struct {
        const char *place;
        Date change;
        const char *before, *after;
    } rows[] = {
        {"Europe/Berlin", utc(2024, 10, 27, 1), "2024:10:27 02:59:59", "2024:10:27 02:00:00"},
        {"Europe/Berlin", utc(2024, 3, 31, 1), "2024:03:31 01:59:59", "2024:03:31 03:00:00"},
        {"Pacific/Apia", utc(2011, 12, 30, 10), "2011:12:29 23:59:59", "2011:12:31 00:00:00"},
        {"Australia/Lord_Howe", utc(2024, 4, 6, 15), "2024:04:07 01:59:59", "2024:04:07 01:30:00"},
        {"Asia/Kathmandu", utc(1985, 12, 31, 18, 30), "1985:12:31 23:59:59", "1986:01:01 00:15:00"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(stampIn(row.place, row.change - absl::Seconds(1)), row.before);
        EXPECT_EQ(stampIn(row.place, row.change - absl::Nanoseconds(1)), row.before);
        EXPECT_EQ(stampIn(row.place, row.change), row.after);
    }
}

TEST(WritingStamps, InTheYears1To9999AndForNoMarker) {
    EXPECT_EQ(stampIn("UTC", utc(1, 1, 1)), "0001:01:01 00:00:00");
    EXPECT_EQ(stampIn("UTC", utc(1, 1, 1) - absl::Nanoseconds(1)), "");
    EXPECT_EQ(stampIn("UTC", utc(9999, 12, 31, 23, 59, 59)), "9999:12:31 23:59:59");
    EXPECT_EQ(stampIn("Asia/Kolkata", utc(9999, 12, 31, 23, 59, 59)), "");
    EXPECT_EQ(stampIn("UTC", InfinitePast()), "");
    EXPECT_EQ(stampIn("UTC", InfiniteFuture()), "");
    EXPECT_EQ(stampIn("UTC", utc(1969, 12, 31, 23, 59, 59) + absl::Milliseconds(999)),
              "1969:12:31 23:59:59");
    EXPECT_EQ(exifDataFromDate(utc(2024, 6, 1), absl::UTCTimeZone())->size(), 20U);
}

TEST(WritingStamps, WithTheirZoneStampWhereOneCanSayIt) {
    const struct {
        const char *place;
        Date date;
        const char *stamp, *offset;
    } rows[] = {
        {"Europe/Berlin", utc(2024, 10, 27, 0, 30), "2024:10:27 02:30:00", "+02:00"},
        {"Europe/Berlin", utc(2024, 10, 27, 1, 30), "2024:10:27 02:30:00", "+01:00"},
        {"America/St_Johns", utc(2024, 1, 1, 12), "2024:01:01 08:30:00", "-03:30"},
        {"UTC", utc(2024, 1, 1), "2024:01:01 00:00:00", "+00:00"},
    };
    for (const auto &row : rows) {
        const auto built = exifWithOffsetDatasFromDate(row.date, zone(row.place).rules);
        ASSERT_TRUE(built) << row.place;
        EXPECT_EQ(built->stamp, located(row.stamp).data);
        EXPECT_EQ(built->offset, located(row.offset).data);
    }
    EXPECT_FALSE(exifWithOffsetDatasFromDate(utc(1890, 1, 1), zone("Europe/Paris").rules));
    EXPECT_TRUE(exifOffsetDataFromSeconds(-18 * 3600));
    EXPECT_FALSE(exifOffsetDataFromSeconds(18 * 3600 + 60));
}

TEST(WritingStamps, KeepAColonBetweenDateAndTime) {
    const Bytes built = located("2024:06:01 12:00:00").data;
    EXPECT_EQ(keepingSeparator(built, located("2023:01:01:00:00:00").data),
              located("2024:06:01:12:00:00").data);
    EXPECT_EQ(keepingSeparator(built, located("2023:01:01 00:00:00").data), built);
    EXPECT_EQ(keepingSeparator(built, "2023"), built);
}

} // namespace
} // namespace chronomender
