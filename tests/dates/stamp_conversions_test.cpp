// SPDX-License-Identifier: GPL-3.0-or-later
#include "StampConversions.h"

#include "LittleItem.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <tuple>

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

TEST(ReadingStamps, ByPlaceAndYear) {
    const std::tuple<const char *, const char *, const char *> rows[] = {
        // The hour that comes twice means the later instant: winter time.
        {"Europe/Berlin", "2024:10:27 01:59:59", "2024-10-26 23:59:59"},
        {"Europe/Berlin", "2024:10:27 02:00:00", "2024-10-27 01:00:00"},
        {"Europe/Berlin", "2024:10:27 02:59:59", "2024-10-27 01:59:59"},
        // The hour that never comes is read with winter time, which held before the step.
        {"Europe/Berlin", "2024:03:31 02:30:00", "2024-03-31 01:30:00"},
        {"Europe/Berlin", "2024:03:31 03:00:00", "2024-03-31 01:00:00"},
        // Samoa crossed the date line and left a whole day out.
        {"Pacific/Apia", "2011:12:30 12:00:00", "2011-12-30 22:00:00"},
        // Clocks that move by half an hour.
        {"Australia/Lord_Howe", "2024:04:07 01:45:00", "2024-04-06 15:15:00"},
        {"Australia/Lord_Howe", "2024:10:06 02:15:00", "2024-10-05 15:45:00"},
        // Nepal stepped by a quarter of an hour once.
        {"Asia/Kathmandu", "1986:01:01 00:10:00", "1985-12-31 18:40:00"},
        // Local mean time, to the second.
        {"Europe/Paris", "1890:01:01 00:09:21", "1890-01-01 00:00:00"},
        // Behind the end of the zone's table its last rule goes on.
        {"Europe/Berlin", "2500:07:01 12:00:00", "2500-07-01 10:00:00"},
        {"UTC", "0001:01:01 00:00:00", "0001-01-01 00:00:00"},
        {"UTC", "9999:12:31 23:59:59", "9999-12-31 23:59:59"},
        {"UTC", "2024:02:29:23:59:59", "2024-02-29 23:59:59"},
    };
    for (const auto &[place, stamp, inUtc] : rows)
        EXPECT_EQ(readIn(place, stamp), inUtc) << place << ' ' << stamp;
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
    const std::pair<const char *, const char *> rows[] = {
        {"+02:00", "2024-06-01 10:00:00"}, {"-05:30", "2024-06-01 17:30:00"},
        {"+18:00", "2024-05-31 18:00:00"}, {"+18:01", "2024-06-01 03:00:00"},
        {"+02:61", "2024-06-01 03:00:00"}, {"      ", "2024-06-01 03:00:00"},
    };
    const absl::TimeZone tokyo = zone("Asia/Tokyo").rules;
    const Bytes stamp = located("2024:06:01 12:00:00").data;
    for (const auto &[text, inUtc] : rows) {
        const Bytes offset = located(text).data;
        EXPECT_EQ(utcText(*dateFromExifData(stamp, &offset, tokyo)), inUtc) << text;
    }
    // A wall clock that the zone skips exists under its own offset.
    const Date skipped = dateFromEXIFTimeStampAndOffset("2024:03:31 02:30:00", "+02:00",
                                                        zone("Europe/Berlin").rules);
    EXPECT_EQ(utcText(skipped), "2024-03-31 00:30:00");
}

TEST(WritingStamps, OneSecondAcrossEachChangeOfTheClock) {
    const std::tuple<const char *, Date, const char *, const char *> rows[] = {
        {"Europe/Berlin", utc(2024, 10, 27, 1), "2024:10:27 02:59:59", "2024:10:27 02:00:00"},
        {"Europe/Berlin", utc(2024, 3, 31, 1), "2024:03:31 01:59:59", "2024:03:31 03:00:00"},
        {"Pacific/Apia", utc(2011, 12, 30, 10), "2011:12:29 23:59:59", "2011:12:31 00:00:00"},
        {"Australia/Lord_Howe", utc(2024, 4, 6, 15), "2024:04:07 01:59:59", "2024:04:07 01:30:00"},
        {"Asia/Kathmandu", utc(1985, 12, 31, 18, 30), "1985:12:31 23:59:59", "1986:01:01 00:15:00"},
    };
    for (const auto &[place, change, before, after] : rows) {
        EXPECT_EQ(stampIn(place, change - absl::Nanoseconds(1)), before);
        EXPECT_EQ(stampIn(place, change), after);
    }
}

TEST(WritingStamps, InTheYears1To9999AndForNoMarker) {
    const Date first = utc(1, 1, 1), last = utc(9999, 12, 31, 23, 59, 59);
    EXPECT_EQ(stampIn("UTC", first), "0001:01:01 00:00:00");
    EXPECT_EQ(stampIn("UTC", last), "9999:12:31 23:59:59");
    for (Date date : {first - absl::Nanoseconds(1), InfinitePast(), InfiniteFuture()})
        EXPECT_EQ(stampIn("UTC", date), "");
    EXPECT_EQ(stampIn("Asia/Kolkata", last), "");
    EXPECT_EQ(stampIn("UTC", utc(1970, 1, 1) - absl::Milliseconds(1)), "1969:12:31 23:59:59");
}

TEST(WritingStamps, WithTheirZoneStampWhereOneCanSayIt) {
    const std::tuple<const char *, Date, const char *, const char *> rows[] = {
        {"Europe/Berlin", utc(2024, 10, 27, 0, 30), "2024:10:27 02:30:00", "+02:00"},
        {"Europe/Berlin", utc(2024, 10, 27, 1, 30), "2024:10:27 02:30:00", "+01:00"},
        {"America/St_Johns", utc(2024, 1, 1, 12), "2024:01:01 08:30:00", "-03:30"},
        {"UTC", utc(2024, 1, 1), "2024:01:01 00:00:00", "+00:00"},
    };
    for (const auto &[place, date, stamp, offset] : rows) {
        const auto built = exifWithOffsetDatasFromDate(date, zone(place).rules);
        ASSERT_TRUE(built) << place;
        EXPECT_EQ(built->stamp, located(stamp).data);
        EXPECT_EQ(built->offset, located(offset).data);
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

/// The instants between 1970 and 2037 at which the zone's offset changes, by bisection: an answer
/// of its own, independent of the zone's table of changes.
std::vector<Date> changesOf(const absl::TimeZone &rules) {
    std::vector<Date> changes;
    const auto offsetAt = [&](Date date) { return rules.At(date).offset; };
    for (Date from = utc(1970, 1, 1); from < utc(2038, 1, 1); from += absl::Hours(24 * 5)) {
        Date before = from, after = from + absl::Hours(24 * 5);
        if (offsetAt(before) == offsetAt(after))
            continue;
        while (after - before > absl::Seconds(1)) {
            const Date middle = before + absl::Seconds(absl::ToInt64Seconds(after - before) / 2);
            (offsetAt(middle) == offsetAt(before) ? before : after) = middle;
        }
        changes.push_back(after);
    }
    return changes;
}

void expectToReadBack(Date date, const Zone &place) {
    const auto written = exifDataFromDate(date, place.rules);
    ASSERT_TRUE(written);
    const auto readAgain = dateFromExifData(*written, nullptr, place.rules);
    ASSERT_TRUE(readAgain);
    EXPECT_GE(*readAgain, date) << place.name << ' ' << utcText(date);
    EXPECT_EQ(exifDataFromDate(*readAgain, place.rules), written) << place.name;
    const auto withOffset = exifWithOffsetDatasFromDate(date, place.rules);
    if (withOffset) { // an offset says exactly which instant is meant
        EXPECT_EQ(dateFromExifData(withOffset->stamp, &withOffset->offset, {}), date);
    }
}

TEST(AllZones, StampsReadBack) {
    const Zones zones;
    EXPECT_GT(zones.zoneNames().size(), 300U);
    for (const std::string &name : zones.zoneNames()) {
        const Zone place = zones.zoneWithName(name).value();
        for (Date change : changesOf(place.rules)) {
            for (int seconds : {-3601, -3600, -1, 0, 1, 1799, 1800, 3599, 3600, 7200})
                expectToReadBack(change + absl::Seconds(seconds), place);
        }
    }
}

} // namespace
} // namespace chronomender
