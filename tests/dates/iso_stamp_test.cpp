// SPDX-License-Identifier: GPL-3.0-or-later
#include "IsoStamp.h"

#include "LittleItem.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using little::utcText;

/// What a stamp says, read as the wall clock of UTC.
std::string readIn(const absl::TimeZone &zone, const std::string &text) {
    const auto stamp = readIsoStamp(text);
    return stamp ? utcText(instantFromIsoStamp(*stamp, zone)) : "none";
}

TEST(IsoStamp, everyFormIsReadAndWrittenBackAsItStood) {
    const absl::TimeZone newYork = little::zone("America/New_York").rules;
    for (const std::string text :
         {"2024-05-06T07:08", "2024-05-06T11:08Z", "2024-05-06T07:08:09", "2024-05-06T11:08:09Z",
          "2024-05-06T07:08-0400", "2024-05-06T07:08-04:00", "2024-05-06T07:08:09-0400",
          "2024-05-06T07:08:09-04:00"}) {
        const auto stamp = readIsoStamp(text);
        ASSERT_TRUE(stamp) << text;
        EXPECT_EQ(readIn(newYork, text),
                  stamp->form.hasSeconds ? "2024-05-06 11:08:09" : "2024-05-06 11:08:00");
        EXPECT_EQ(isoFormOfLength(text.size()), stamp->form) << text;
        EXPECT_EQ(isoStampFromDate(instantFromIsoStamp(*stamp, newYork), newYork, stamp->form),
                  text);
    }
    // Digits that say UTC, not the letter.
    EXPECT_EQ(isoStampFromDate(absl::UnixEpoch(), absl::UTCTimeZone(), {true, IsoZone::Basic}),
              "1970-01-01T00:00:00+0000");
    // An offset with seconds, as before standard time, cannot be said.
    const Date early = little::utc(1880, 1, 1);
    EXPECT_FALSE(isoStampFromDate(early, newYork, {true, IsoZone::Extended}));
    EXPECT_TRUE(isoStampFromDate(early, newYork, {}));
}

TEST(IsoStamp, whatIsNoStampIsNotGuessed) {
    for (const char *text :
         {"", "2024-05-06", "2024-05-06 07:08:09", "2024:05:06T07:08:09", "2024-02-30T07:08:09",
          "2024-05-06T24:00:00", "2024-05-06T07:08:60", "2024-05- 6T07:08:09", "0000-05-06T07:08",
          "2024-05-06T07:08:09z", "2024-05-06T07:08:09+2:00", "2024-05-06T07:08:09+18:01",
          "2024-05-06T07:08:09+01:60", "2024-05-06T07:08:09.", "2024-05-06T07:08.5",
          "2024-05-06T07:08:09Z ", "2024-05-06T07:08:0"})
        EXPECT_EQ(readIn(absl::UTCTimeZone(), text), "none") << text;
}

TEST(IsoStamp, fractionsOfASecondAreKeptExactly) {
    EXPECT_EQ(readIn(absl::UTCTimeZone(), "2024-05-06T11:08:09.5+01:00"), "2024-05-06 10:08:09.5");
    EXPECT_EQ(readIsoStamp("2024-05-06T11:08:09.125Z")->fractionLength, 4U);
    // A long row of digits is no way to run out of the second.
    EXPECT_LT(readIsoStamp("2024-05-06T11:08:09." + std::string(200, '9'))->fraction,
              absl::Seconds(1));
}

} // namespace
} // namespace chronomender
