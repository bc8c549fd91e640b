// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieStampConversions.h"

#include "LittleItem.h"
#include "MovieStampSyntax.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;
using enum MvhdCorrection;

const absl::TimeZone kUtc = absl::UTCTimeZone();

absl::TimeZone berlin() {
    return zone("Europe/Berlin").rules;
}

std::string riffAfter(const std::string &present, Date date) {
    return riffTimeStampFromDate(date, berlin(), present).value_or("none");
}

TEST(MovieStamps, headerTimesReachFrom1904To2040) {
    const struct {
        Date date;
        const char *bytes; ///< null: no data
    } table[] = {
        {utc(1904, 1, 1), nullptr}, // the number 0 is an empty time
        {utc(1904, 1, 1, 0, 0, 1), "\x00\x00\x00\x01"},
        {utc(1903, 12, 31, 23, 59, 59), nullptr},
        {utc(2020, 4, 17, 16, 3, 47) + absl::Milliseconds(999), "\xDA\xBF\x83\xE3"},
        {utc(2040, 2, 6, 6, 28, 15), "\xFF\xFF\xFF\xFF"},
        {utc(2040, 2, 6, 6, 28, 16), nullptr},
        {InfinitePast(), nullptr},
        {InfiniteFuture(), nullptr},
    };
    for (const auto &row : table) {
        const auto data = mvhdDataFromDate(row.date, Off, kUtc);
        ASSERT_EQ(data.has_value(), row.bytes != nullptr) << utcText(row.date);
        if (!data)
            continue;
        EXPECT_EQ(*data, Bytes(row.bytes, 4)) << utcText(row.date);
        EXPECT_EQ(dateFromMVHDData(*data), cleanDate(row.date));
    }
    EXPECT_EQ(dateFromMVHDData("123"), std::nullopt);
}

TEST(MovieStamps, theCorrectionTakesHeaderTimesForAWallClock) {
    const Bytes noon = *mvhdDataFromDate(utc(2020, 7, 1, 12), Off, kUtc);
    EXPECT_EQ(finalDateFromMVHDData(noon, Off, berlin()), utc(2020, 7, 1, 12));
    EXPECT_EQ(finalDateFromMVHDData(noon, On, berlin()), utc(2020, 7, 1, 10));
    EXPECT_EQ(mvhdDataFromDate(utc(2020, 7, 1, 10), On, berlin()), noon);
    // The last second that fits is one of the wall clock, not of UTC.
    EXPECT_TRUE(mvhdDataFromDate(utc(2040, 2, 6, 5, 28, 15), On, berlin()));
    EXPECT_FALSE(mvhdDataFromDate(utc(2040, 2, 6, 5, 28, 16), On, berlin()));
}

TEST(MovieStamps, metadataDatesKeepTheirLength) {
    const Date date = utc(2020, 4, 17, 16, 3, 47);
    EXPECT_EQ(mdtaDataOfLength(20, date, berlin()), "2020-04-17T16:03:47Z"); // UTC everywhere
    EXPECT_EQ(mdtaDataOfLength(25, date, berlin()), "2020-04-17T18:03:47+02:00");
    for (const std::size_t length : {0, 18, 23, 26})
        EXPECT_FALSE(mdtaDataOfLength(length, date, berlin())) << length;
    EXPECT_EQ(dateFromMDTATimeStamp("2020-04-17T18:03:47.12", kUtc), std::nullopt);
    EXPECT_EQ(dateIgnoringFromMDTATimeStamp("2020-04-17T18:03:47+02:00", kUtc),
              utc(2020, 4, 17, 18, 3, 47));
}

TEST(MovieStamps, riffDatesKeepTheirManner) {
    const std::string canon = "Thu Jan 20 08:16:08 2022\n" + std::string(1, '\0');
    const std::string loud = "MON SEP  3 20:52:00 2012\r\n";
    EXPECT_EQ(dateFromRIFFTimeStamp(canon, berlin()), utc(2022, 1, 20, 7, 16, 8));
    EXPECT_EQ(dateFromRIFFTimeStamp(loud, kUtc), utc(2012, 9, 3, 20, 52));
    EXPECT_EQ(riffAfter(canon, utc(2024, 2, 29, 23)),
              "Fri Mar 01 00:00:00 2024" + canon.substr(24));
    EXPECT_EQ(riffAfter(loud, utc(2024, 2, 29, 23)), "FRI MAR  1 00:00:00 2024\r\n");
    EXPECT_EQ(riffAfter(loud + "x", utc(2024, 2, 29)), "none");
    for (const char *text : {"", "Thu Foo 20 08:16:08 2022", "Thu Jan 32 08:16:08 2022",
                             "Thu Jan 20 08:16:08 22\n\n", "Thu-Jan-20-08:16:08-2022"})
        EXPECT_EQ(dateFromRIFFTimeStamp(text, kUtc), std::nullopt) << text;
}

TEST(MovieStamps, locationsAreMeasuredByTheirDigits) {
    const auto measure = measureData("+48.1234-011.56789+520.1/");
    ASSERT_TRUE(measure);
    EXPECT_EQ(measure->int1() * 1000 + measure->frac1() * 100 + measure->int2() * 10 +
                  measure->frac2(),
              2435U);
    EXPECT_EQ(measure->longitudeEnd, 18U);
    EXPECT_TRUE(measure->isEditable());
    EXPECT_FALSE(measureData("+4807.4-01133.6/")->isEditable()); // degrees and minutes
    for (const char *text : {"", "+48.1", "+48.1/", "+48+011/", "+48.1+.5/", "+48.+011.5/",
                             "48.1+011.5/", "+4x.1+011.5/", "+48.1.2+011.5/"})
        EXPECT_FALSE(measureData(text)) << text;
}

} // namespace
} // namespace chronomender
