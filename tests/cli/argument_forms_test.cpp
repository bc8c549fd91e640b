// SPDX-License-Identifier: GPL-3.0-or-later
#include "ShiftSpec.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using EmptyTags = PerFolderImportOptions::EmptyTags;

struct ShiftRow {
    const char *text;
    absl::Duration shift;
};

TEST(ShiftForms, AreSecondsOrDaysAndAClock) {
    const ShiftRow rows[]{
        {"0", absl::ZeroDuration()},
        {"90", absl::Seconds(90)},
        {"+90", absl::Seconds(90)},
        {"-3600", absl::Hours(-1)},
        {"0.5", absl::Milliseconds(500)},
        {"-0.000000001", absl::Nanoseconds(-1)},
        {"1:30", absl::Minutes(90)},
        {"+1:02:03", absl::Hours(1) + absl::Seconds(123)},
        {"-0:00:01", absl::Seconds(-1)},
        {"100:00", absl::Hours(100)},
        {"2d", absl::Hours(48)},
        {"-1d", absl::Hours(-24)},
        {"-1d1:01:01", absl::Seconds(-90061)},
        {"+1d2:30", absl::Hours(26) + absl::Minutes(30)},
    };
    for (const ShiftRow &row : rows)
        EXPECT_EQ(parseShift(row.text), row.shift) << row.text;
}

TEST(ShiftForms, EverythingElseIsRefused) {
    for (const char *text :
         {"",           "+",   "-",   "x",   "1x", "1:2",   "1:60",         "1:00:60",
          "1:00:00:00", ":30", "1:",  "1d1", "d",  "1d:30", "1.",           ".5",
          "1.5:00",     "--1", "+-1", "1 ",  " 1", "1e3",   "1.0000000001", "9999999999999",
          "1d1d",       "−1"})
        EXPECT_EQ(parseShift(text), std::nullopt) << text;
}

Date utc(int hour, int minute, int second) {
    return absl::FromCivil(absl::CivilSecond(2024, 10, 27, hour, minute, second),
                           absl::UTCTimeZone());
}

struct FixedDateRow {
    const char *text;
    Date date;
    absl::Duration step;
};

TEST(EmptyTagForms, DateMeansTheFoldersZoneUnlessItHasAnOffset) {
    absl::TimeZone berlin;
    ASSERT_TRUE(absl::LoadTimeZone("Europe/Berlin", &berlin));
    const FixedDateRow rows[]{
        {"2024-10-27T10:00", utc(9, 0, 0), absl::ZeroDuration()},
        {"2024-10-27T10:00:07+60", utc(9, 0, 7), absl::Seconds(60)},
        {"2024-10-27T10:00+0:01:30", utc(9, 0, 0), absl::Seconds(90)},
        {"2024-10-27T10:00Z", utc(10, 0, 0), absl::ZeroDuration()},
        {"2024-10-27T10:00+05:30", utc(4, 30, 0), absl::ZeroDuration()},
        {"2024-10-27T10:00-02:00+5", utc(12, 0, 0), absl::Seconds(5)},
        {"2024-10-27T10:00+02:00:00", utc(9, 0, 0), absl::Hours(2)}, // a step, not an offset
        {"2024-10-27T02:30", utc(1, 30, 0), absl::ZeroDuration()},   // twice that day: the later
    };
    for (const FixedDateRow &row : rows) {
        const auto spec = parseEmptyTags(row.text);
        ASSERT_TRUE(spec) << row.text;
        const PerFolderImportOptions options = importOptions(*spec, berlin);
        EXPECT_EQ(options.withEmptyExifFixDate, EmptyTags::FixedDate) << row.text;
        EXPECT_EQ(options.prefFixDateDate, row.date) << row.text;
        EXPECT_EQ(options.step, row.step) << row.text;
    }
}

TEST(EmptyTagForms, WordsAndRefusals) {
    EXPECT_EQ(parseEmptyTags("leave")->choice, EmptyTags::LeaveAlone);
    EXPECT_EQ(parseEmptyTags("file")->choice, EmptyTags::FileDate);
    for (const char *text :
         {"", "keep", "2024-10-27", "2024-02-30T10:00", "2024-10-27 10:00", "2024-10-27T24:00",
          "2024-10-27T10:60", "2024-10-27T10:00+", "2024-10-27T10:00+1:30", "2024-10-27T10:00-60",
          "2024-10-27T10:00+19:00", "0000-01-01T00:00"})
        EXPECT_EQ(parseEmptyTags(text), std::nullopt) << text;
}

} // namespace
} // namespace chronomender
