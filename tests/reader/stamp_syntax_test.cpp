// SPDX-License-Identifier: GPL-3.0-or-later
#include "StampSyntax.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using std::string_literals::operator""s;

TEST(StampFields, AreReadByPositionAndRangeChecked) {
    using Fields = std::optional<CivilFields>;
    const struct {
        const char *stamp;
        Fields fields;
    } cases[]{
        {"2024:05:06 07:08:09", CivilFields{2024, 5, 6, 7, 8, 9}},
        {"2024:05:06:07:08:09", CivilFields{2024, 5, 6, 7, 8, 9}}, // old Minolta cameras
        {"2024: 5: 6  7: 8: 9", CivilFields{2024, 5, 6, 7, 8, 9}},
        {"0001:01:01 00:00:00", CivilFields{1, 1, 1, 0, 0, 0}},
        {"9999:12:31 23:59:59", CivilFields{9999, 12, 31, 23, 59, 59}},
        {"2024:02:29 00:00:00", CivilFields{2024, 2, 29, 0, 0, 0}},
        {"2000:02:29 00:00:00", CivilFields{2000, 2, 29, 0, 0, 0}},
        {"2023:02:29 00:00:00", {}},
        {"1900:02:29 00:00:00", {}},
        {"2024:02:30 00:00:00", {}},
        {"2024:04:31 00:00:00", {}},
        {"2024:13:01 00:00:00", {}},
        {"2024:00:01 00:00:00", {}},
        {"2024:01:00 00:00:00", {}},
        {"0000:01:01 00:00:00", {}},
        {"2024:01:01 24:00:00", {}},
        {"2024:01:01 23:60:00", {}},
        {"2024:01:01 23:59:60", {}},
        {"2024:1 :01 00:00:00", {}},
        {"2024:01:01 00:00:  ", {}},
        {"2024:01:01 00:00:+1", {}},
        {"2024-01-01 00:00:00", {}},
        {"2024:01:01T00:00:00", {}},
        {"2024:01:01 00:00:0", {}},
        {"", {}},
    };
    for (const auto &[stamp, fields] : cases)
        EXPECT_EQ(civilFromExifTimeStamp(stamp), fields) << stamp;
}

TEST(StampBytes, OfSeventeenToNineteenCharactersMakeNineteen) {
    const struct {
        Bytes data;
        std::optional<std::string> stamp;
    } cases[]{
        {"2024:05:06 07:08:09\0"s, "2024:05:06 07:08:09"},
        {"2024:05:06 07:08:1\0\0"s, "2024:05:06 07:08:10"},
        {"2024:05:06 07:08:\0\0\0"s, "2024:05:06 07:08:00"},
        {"2024:05:06 07:08:"s, "2024:05:06 07:08:00"},
        {"2024:05:06 07:08:\0\0x"s, {}},
        {"2024:05:06 07:08\0\0\0\0"s, {}},
        {"2024:05:06 07:08:09xx"s, {}},
        {"2024:05:06 07:08:09x"s, {}},
    };
    for (const auto &[data, stamp] : cases)
        EXPECT_EQ(exifTimeStampFromData(data), stamp) << data;
}

TEST(StampForm, LetsEmptyTagsPassAndKeepsLettersOut) {
    const struct {
        std::string_view data;
        bool isForm;
    } cases[]{
        {"2024:05:06 07:08:09", true},
        {"0000:00:00 00:00:00", true},
        {"    :  :     :  :  ", true},
        {"2024:05:06:07:08:09", true},
        {"2024:05:06 07:08:0x", false},
        {"2024-05-06 07:08:09", false},
        {"2024:05:06 07:08", false},
        {"", false},
        {std::string_view("2024:05:06 07:08:\0\0", 19), true},
        {std::string_view("2024:05:06 07:08:\0"
                          "9",
                          19),
         false},
    };
    for (const auto &[data, isForm] : cases)
        EXPECT_EQ(verifyDateData(data), isForm) << data;
}

TEST(EmptyStamps, AreToldFromUnreadableOnes) {
    const struct {
        const char *stamp;
        bool isZero, isUnreadable;
    } cases[]{
        {"2024:05:06 07:08:09", false, false}, {"0000:00:00 00:00:00", true, false},
        {"    :  :     :  :  ", true, false},  {"2024:13:06 07:08:09", true, true},
        {"0000:00:00 10:00:00", true, true},   {"2024:05:06 07:08:09 more", false, false},
    };
    for (const auto &[stamp, isZero, isUnreadable] : cases) {
        EXPECT_EQ(isValidZeroStamp(stamp), isZero) << stamp;
        EXPECT_EQ(isUnreadableStamp(stamp), isUnreadable) << stamp;
    }
}

TEST(ZoneStamps, AreReadWithinEighteenHours) {
    const struct {
        Bytes data;
        std::optional<int> seconds;
    } cases[]{
        {"+02:00\0"s, 7200}, {"-03:30\0"s, -12600},  {"+05:45"s, 20700},    {"+02:00x"s, 7200},
        {"-00:00\0"s, 0},    {"+18:00\0"s, 64800},   {"-18:00\0"s, -64800}, {"+18:01\0"s, {}},
        {"+02:60\0"s, {}},   {"+2:000\0"s, {}},      {"+02-00\0"s, {}},     {"+0-:00\0"s, {}},
        {"02:00\0\0"s, {}},  {"Z\0\0\0\0\0\0"s, {}}, {"+02:0"s, {}},        {"+02:00\0\0"s, {}},
    };
    for (const auto &[data, seconds] : cases) {
        const auto stamp = exifOffsetFromData(data);
        EXPECT_EQ(stamp ? secondsFromExifOffset(*stamp) : std::nullopt, seconds) << data;
    }
}

TEST(GpsDateForm, NeedsElevenBytesAndColons) {
    EXPECT_TRUE(verifyGpsDateStampData("2024:05:06\0"s));
    for (const Bytes &data : {"2024:05:06"s, "2024:05:06x"s, "2024-05-06\0"s, "2024:05: 6\0"s})
        EXPECT_FALSE(verifyGpsDateStampData(data)) << data;
}

} // namespace
} // namespace chronomender
