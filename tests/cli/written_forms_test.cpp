// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateTexts.h"
#include "JsonLine.h"
#include "ProgressBar.h"
#include "Table.h"
#include "Utf8Text.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace chronomender {
namespace {

TEST(WrittenForms, JsonSurvivesAnyText) {
    const std::string awkward("q\" b\\ n\n t\t u\x01 d\x7F \xC3\xA9 \xF0\x9F\x93\xB7 z\0z", 31);
    std::string buffer;
    JsonLine(buffer).field("text", awkward).finish();
    EXPECT_EQ(nlohmann::json::parse(buffer).at("text").get<std::string>(), awkward);
}

TEST(WrittenForms, JsonStaysUtf8WhenTheTextIsNot) {
    // A lone continuation, an overlong slash, a surrogate, a sequence that ends too early.
    std::string buffer;
    JsonLine(buffer).field("text", std::string("a\x80z\xC0\xAFz\xED\xA0\x80z\xE2\x82")).finish();
    EXPECT_EQ(nlohmann::json::parse(buffer).at("text").get<std::string>(),
              "a\uFFFDz\uFFFD\uFFFDz\uFFFD\uFFFD\uFFFDz\uFFFD\uFFFD");
}

TEST(WrittenForms, JsonNestsAndSeparates) {
    std::string buffer;
    JsonLine line(buffer);
    line.beginArray("a").element(std::int64_t{1}).beginElement().flag("b", true).end().end();
    line.beginObject("c").end().fieldIfAny("d", "").field("e", 0.1).finish();
    EXPECT_EQ(buffer, "{\"a\":[1,{\"b\":true}],\"c\":{},\"e\":0.1}\n");
}

TEST(WrittenForms, TerminalTextCannotMoveTheCursor) {
    EXPECT_EQ(printable("a\x1B[2J\n\xC2\x9B"
                        "b\xFF"
                        "\xC3\xA9"),
              "a\\x1B[2J\\x0A\\xC2\\x9Bb\\xFF\xC3\xA9");
}

TEST(WrittenForms, TableAlignsByCharactersAndDropsEmptyColumns) {
    Table table("> ");
    table.add({"\xC3\xA9", "", "x"});
    table.add({"abc", "", ""});
    EXPECT_EQ(table.text(), "> \xC3\xA9    x\n> abc\n");
}

TEST(WrittenForms, ProgressTellsRateAndRemainingTime) {
    EXPECT_EQ(progressLine("Reading", 40, 100, 0.5),
              "Reading [#########---------------] 40/100  80/s  0:01");
    EXPECT_EQ(progressLine("Reading", 0, 0, 0), "Reading [------------------------] 0/0");
}

struct DateRow {
    Date date;
    const char *utc, *local, *readable;
};

TEST(WrittenForms, DatesHaveAFractionOnlyWhereThereIsOne) {
    absl::TimeZone berlin;
    ASSERT_TRUE(absl::LoadTimeZone("Europe/Berlin", &berlin));
    const Date noon =
        absl::FromCivil(absl::CivilSecond(2024, 10, 27, 10, 0, 0), absl::UTCTimeZone());
    const Date longAgo = absl::FromCivil(absl::CivilSecond(1, 2, 3, 0, 0, 0), absl::UTCTimeZone());
    const DateRow rows[]{
        {noon, "2024-10-27T10:00:00Z", "2024-10-27T11:00:00+01:00", "2024-10-27 11:00:00 +01:00"},
        {noon - absl::Hours(12), "2024-10-26T22:00:00Z", "2024-10-27T00:00:00+02:00",
         "2024-10-27 00:00:00 +02:00"},
        {noon + absl::Milliseconds(250), "2024-10-27T10:00:00.25Z", "2024-10-27T11:00:00.25+01:00",
         "2024-10-27 11:00:00.25 +01:00"},
        {noon + absl::Nanoseconds(1), "2024-10-27T10:00:00.000000001Z",
         "2024-10-27T11:00:00.000000001+01:00", "2024-10-27 11:00:00 +01:00"},
        {longAgo, "0001-02-03T00:00:00Z", "0001-02-03T00:53:28+00:53:28",
         "0001-02-03 00:53:28 +00:53:28"},
        {InfinitePast(), "", "", ""},
        {InfiniteFuture(), "", "", ""},
    };
    for (const DateRow &row : rows) {
        EXPECT_EQ(utcText(row.date), row.utc);
        EXPECT_EQ(localText(row.date, berlin), row.local);
        EXPECT_EQ(readableText(row.date, berlin), row.readable);
    }
}

} // namespace
} // namespace chronomender
