// SPDX-License-Identifier: GPL-3.0-or-later
#include "IsoStamp.h"

#include "LittleItem.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using little::utc;
using little::utcText;

std::string readInNewYork(const std::string &text) {
    const auto stamp = readIsoStamp(text);
    return stamp ? utcText(instantFromIsoStamp(*stamp, little::zone("America/New_York").rules))
                 : "none";
}

struct Form {
    const char *text, *instant;
};

TEST(IsoStamp, everyFormIsReadAndWrittenBackAsItStood) {
    const Form forms[] = {
        {"2024-05-06T07:08", "2024-05-06 11:08:00"},
        {"2024-05-06T11:08Z", "2024-05-06 11:08:00"},
        {"2024-05-06T07:08:09", "2024-05-06 11:08:09"},
        {"2024-05-06T11:08:09Z", "2024-05-06 11:08:09"},
        {"2024-05-06T07:08-0400", "2024-05-06 11:08:00"},
        {"2024-05-06T07:08-04:00", "2024-05-06 11:08:00"},
        {"2024-05-06T07:08:09-0400", "2024-05-06 11:08:09"},
        {"2024-05-06T07:08:09-04:00", "2024-05-06 11:08:09"},
    };
    for (const Form &form : forms) {
        const std::string text = form.text;
        EXPECT_EQ(readInNewYork(text), form.instant) << text;
        const auto stamp = readIsoStamp(text);
        ASSERT_TRUE(stamp) << text;
        EXPECT_EQ(isoFormOfLength(text.size()), stamp->form) << text;
        const Date date = instantFromIsoStamp(*stamp, little::zone("America/New_York").rules);
        EXPECT_EQ(isoStampFromDate(date, little::zone("America/New_York").rules, stamp->form),
                  text);
    }
}

TEST(IsoStamp, whatIsNoStampIsNotGuessed) {
    for (const char *text :
         {"", "2024-05-06", "2024-05-06 07:08:09", "2024:05:06T07:08:09", "2024-02-30T07:08:09",
          "2024-05-06T24:00:00", "2024-05-06T07:08:60", "2024-05- 6T07:08:09", "0000-05-06T07:08",
          "2024-05-06T07:08:09z", "2024-05-06T07:08:09+2:00", "2024-05-06T07:08:09+18:01",
          "2024-05-06T07:08:09+01:60", "2024-05-06T07:08:09.", "2024-05-06T07:08.5",
          "2024-05-06T07:08:09Z ", "2024-05-06T07:08:0"})
        EXPECT_EQ(readInNewYork(text), "none") << text;
}

TEST(IsoStamp, fractionsOfASecondAreKeptExactly) {
    EXPECT_EQ(readInNewYork("2024-05-06T11:08:09.125Z"), "2024-05-06 11:08:09.125");
    EXPECT_EQ(readInNewYork("2024-05-06T11:08:09.5+01:00"), "2024-05-06 10:08:09.5");
    EXPECT_EQ(readIsoStamp("2024-05-06T11:08:09.125Z")->fractionLength, 4U);
    // A long row of digits is no way to run out of the second.
    const std::string nines = "2024-05-06T11:08:09." + std::string(200, '9');
    EXPECT_LT(readIsoStamp(nines)->fraction, absl::Seconds(1));
}

TEST(IsoStamp, utcIsWrittenAsTheFormSaysIt) {
    const Date date = utc(2024, 5, 6, 7, 8, 9);
    const absl::TimeZone utcZone = absl::UTCTimeZone();
    EXPECT_EQ(isoStampFromDate(date, utcZone, {true, IsoZone::Basic}), "2024-05-06T07:08:09+0000");
    EXPECT_EQ(isoStampFromDate(date, utcZone, {true, IsoZone::Extended}),
              "2024-05-06T07:08:09+00:00");
    // The letter stands for UTC even where the wall clock is another.
    EXPECT_EQ(isoStampFromDate(date, little::zone("Asia/Tokyo").rules, {true, IsoZone::Letter}),
              "2024-05-06T07:08:09Z");
}

TEST(IsoStamp, whatCannotBeSaidIsNotWritten) {
    const auto berlin = little::zone("Europe/Berlin").rules;
    EXPECT_FALSE(isoStampFromDate(InfinitePast(), berlin, {}));
    EXPECT_FALSE(isoStampFromDate(utc(1890, 1, 1), berlin, {true, IsoZone::Extended}));
    EXPECT_TRUE(isoStampFromDate(utc(1890, 1, 1), berlin, {true, IsoZone::None}));
}

} // namespace
} // namespace chronomender
