// SPDX-License-Identifier: GPL-3.0-or-later
#include "IsoStamp.h"
#include "LittleItem.h"
#include "MovieStampConversions.h"
#include "MovieStampSyntax.h"
#include "XmpStampConversions.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;
using enum MvhdCorrection;

const absl::TimeZone kUtc = absl::UTCTimeZone();

absl::TimeZone berlin() {
    return zone("Europe/Berlin").rules;
}

std::string readIsoIn(const absl::TimeZone &zone, const std::string &text) {
    const auto stamp = readIsoStamp(text);
    return stamp ? utcText(instantFromIsoStamp(*stamp, zone)) : "none";
}

TEST(IsoStamp, everyFormIsReadAndWrittenBackAsItStood) {
    const absl::TimeZone newYork = zone("America/New_York").rules;
    for (const std::string text :
         {"2024-05-06T07:08", "2024-05-06T11:08Z", "2024-05-06T07:08:09", "2024-05-06T11:08:09Z",
          "2024-05-06T07:08-0400", "2024-05-06T07:08-04:00", "2024-05-06T07:08:09-0400",
          "2024-05-06T07:08:09-04:00"}) {
        const auto stamp = readIsoStamp(text);
        ASSERT_TRUE(stamp) << text;
        const Date date = instantFromIsoStamp(*stamp, newYork);
        EXPECT_EQ(date, utc(2024, 5, 6, 11, 8, stamp->form.hasSeconds ? 9 : 0)) << text;
        EXPECT_EQ(isoFormOfLength(text.size()), stamp->form) << text;
        EXPECT_EQ(isoStampFromDate(date, newYork, stamp->form), text);
    }
    // Digits that say UTC, not the letter.
    EXPECT_EQ(isoStampFromDate(absl::UnixEpoch(), kUtc, {true, IsoZone::Basic}),
              "1970-01-01T00:00:00+0000");
    // An offset with seconds, as before standard time, cannot be said.
    EXPECT_FALSE(isoStampFromDate(utc(1880, 1, 1), newYork, {true, IsoZone::Extended}));
    EXPECT_TRUE(isoStampFromDate(utc(1880, 1, 1), newYork, {}));
}

TEST(IsoStamp, whatIsNoStampIsNotGuessed) {
    for (const char *text :
         {"", "2024-05-06", "2024-05-06 07:08:09", "2024:05:06T07:08:09", "2024-02-30T07:08:09",
          "2024-05-06T24:00:00", "2024-05-06T07:08:60", "2024-05- 6T07:08:09", "0000-05-06T07:08",
          "2024-05-06T07:08:09z", "2024-05-06T07:08:09+2:00", "2024-05-06T07:08:09+18:01",
          "2024-05-06T07:08:09+01:60", "2024-05-06T07:08:09.", "2024-05-06T07:08.5",
          "2024-05-06T07:08:09Z ", "2024-05-06T07:08:0"})
        EXPECT_EQ(readIsoIn(kUtc, text), "none") << text;
}

TEST(IsoStamp, fractionsOfASecondAreKeptExactly) {
    EXPECT_EQ(readIsoIn(kUtc, "2024-05-06T11:08:09.5+01:00"), "2024-05-06 10:08:09.5");
    EXPECT_EQ(readIsoStamp("2024-05-06T11:08:09.125Z")->fractionLength, 4U);
    // A long row of digits is no way to run out of the second.
    EXPECT_LT(readIsoStamp("2024-05-06T11:08:09." + std::string(200, '9'))->fraction,
              absl::Seconds(1));
}

TEST(XmpStamps, EveryFormIsReadAndWrittenBack) {
    using Type = XmpStampType;
    const absl::TimeZone kathmandu = zone("Asia/Kathmandu").rules; // +05:45
    const Date date = utc(2024, 5, 6, 1, 23, 9);
    const auto valueOf = [&](const std::string &text, Type type, unsigned subtype = 0) {
        const LocatedBytes bytes{100, static_cast<std::uint32_t>(text.size()), text};
        const XmpStamp stamp{XmpProperty::XmpCreateDate, bytes, type, subtype};
        return xmpDateFromStampInfos(&stamp, kathmandu);
    };
    const std::tuple<bool, unsigned, const char *> rows[] = {
        {true, 0, "2024-05-06T07:08:09"},        {true, 2, "2024-05-06T07:08"},
        {false, 0, "2024-05-06T07:08:09+05:45"}, {false, 1, "2024-05-06T07:08:09+0545"},
        {false, 2, "2024-05-06T07:08+05:45"},    {false, 3, "2024-05-06T07:08+0545"},
    };
    for (const auto &[isLocal, subtype, text] : rows) {
        EXPECT_EQ(xmpTimeStampFromDate(date, kathmandu, isLocal, subtype), text);
        const Date expected = subtype & kXmpWithoutSeconds ? date - absl::Seconds(9) : date;
        EXPECT_EQ(dateFromXmpTimeStamp(text, kathmandu, isLocal, subtype), expected);
        EXPECT_EQ(dateFromXmpTimeStamp(text, kathmandu, !isLocal, subtype), std::nullopt);
        EXPECT_EQ(valueOf(text, isLocal ? Type::Local : Type::Zoned, subtype), expected) << text;
    }
    // Fractions are left out, and so is a zone that cannot be.
    for (const char *text : {"2024-05-06T07:08:09.999", "2024-05-06T07:08:09+19:00"})
        EXPECT_EQ(valueOf(text, Type::Local), date) << text;
}

TEST(MovieStamps, headerTimesReachFrom1904To2040) {
    const std::pair<Date, const char *> table[] = {
        {utc(1904, 1, 1), nullptr}, // no data: the number 0 is an empty time
        {utc(1904, 1, 1, 0, 0, 1), "\x00\x00\x00\x01"},
        {utc(1903, 12, 31, 23, 59, 59), nullptr},
        {utc(2020, 4, 17, 16, 3, 47) + absl::Milliseconds(999), "\xDA\xBF\x83\xE3"},
        {utc(2040, 2, 6, 6, 28, 15), "\xFF\xFF\xFF\xFF"},
        {utc(2040, 2, 6, 6, 28, 16), nullptr},
        {InfinitePast(), nullptr},
        {InfiniteFuture(), nullptr},
    };
    for (const auto &[date, bytes] : table) {
        const auto data = mvhdDataFromDate(date, Off, kUtc);
        ASSERT_EQ(data.has_value(), bytes != nullptr) << utcText(date);
        if (!data)
            continue;
        EXPECT_EQ(*data, Bytes(bytes, 4)) << utcText(date);
        EXPECT_EQ(dateFromMVHDData(*data), cleanDate(date));
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
    const Date date = utc(2024, 2, 29, 23);
    const std::string canon = "Thu Jan 20 08:16:08 2022\n" + std::string(1, '\0');
    const std::string loud = "MON SEP  3 20:52:00 2012\r\n";
    EXPECT_EQ(dateFromRIFFTimeStamp(canon, berlin()), utc(2022, 1, 20, 7, 16, 8));
    EXPECT_EQ(dateFromRIFFTimeStamp(loud, kUtc), utc(2012, 9, 3, 20, 52));
    EXPECT_EQ(riffTimeStampFromDate(date, berlin(), canon),
              "Fri Mar 01 00:00:00 2024" + canon.substr(24));
    EXPECT_EQ(riffTimeStampFromDate(date, berlin(), loud), "FRI MAR  1 00:00:00 2024\r\n");
    EXPECT_EQ(riffTimeStampFromDate(date, berlin(), loud + "x"), std::nullopt);
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
