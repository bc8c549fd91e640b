// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterEditor.h"
#include "FilterFacts.h"
#include "FilterSourceController.h"
#include "FilterTemplateStore.h"
#include "LittleItem.h"
#include "SourceViews.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Match = FilterConditions::Match;

Predicate parsed(const std::string &text) {
    return std::get<Predicate>(parsePredicate(text));
}

class FilterEditor : public testing::Test {
protected:
    absl::TimeZone zone(const char *name) { return zones.zoneWithName(name)->rules; }
    /// The conditions for a text, told as a text again; "" for what rows cannot say.
    std::string shown(const std::string &text) {
        const auto conditions = conditionsOf(parsed(text), berlin);
        return conditions ? predicateFormat(predicateOf(*conditions).value_or(Predicate())) : "";
    }
    Zones zones;
    absl::TimeZone berlin = zone("Europe/Berlin");
};

TEST_F(FilterEditor, EveryRowIsFoundAgainInItsText) {
    const Date from = startOfDay(absl::CivilDay(2024, 3, 31), berlin),
               till = startOfDay(absl::CivilDay(2024, 4, 1), berlin);
    EXPECT_EQ(till - from, absl::Hours(23));
    FilterConditions all{Match::Any,
                         {{.kind = FilterRowKind::DateRange, .from = from, .till = till}}};
    for (const FilterChoice &kind : filterKinds())
        for (const FilterChoice &each : filterOperators(static_cast<FilterRowKind>(kind.value))) {
            FilterCondition row{.kind = static_cast<FilterRowKind>(kind.value),
                                .comparison = static_cast<PredicateOperator>(each.value)};
            const auto values = filterValues(row.kind);
            for (const FilterChoice &value : values) {
                row.number = value.value;
                all.rows.push_back(row);
            }
            if (row.kind == FilterRowKind::SingleDate)
                row.from = from + absl::Seconds(1);
            else
                row.text = R"(a "b" \ é)";
            if (values.empty())
                all.rows.push_back(row);
        }
    EXPECT_EQ(all.rows.size(), 1U + 5 + 5 + 2 * 5 + 2 * 8 + 6);
    for (const Match match : {Match::All, Match::Any}) {
        all.match = match;
        const std::string text = predicateFormat(*predicateOf(all));
        EXPECT_EQ(conditionsOf(parsed(text), berlin), all) << text;
    }
}

TEST_F(FilterEditor, TellsWhatRowsCannotSay) {
    const char *const unsaid[] = {
        "TRUEPREDICATE",
        "FALSEPREDICATE",
        "filter_rating == 1",
        "filter_mediaType == 5",
        "filter_mediaType ==[cd] 1e300",
        "filter_mediaType < 2",
        R"(spName CONTAINS[c] "x")",
        R"(spDisplayName CONTAINS[cd] "x")",
        R"(spName <[cd] "x")",
        R"(NOT spName CONTAINS[cd] "x")",
        R"((spName ==[cd] "x" AND spName !=[cd] "y") OR filter_mediaType == 1)",
        R"(filter_mediaType == 1 OR (filter_dateTimeModified >= "2024-05-06 07:00" AND )"
        R"(filter_dateTimeModified < "2024-05-07"))",
    };
    for (const char *text : unsaid)
        EXPECT_EQ(shown(text), "") << text;
    EXPECT_EQ(shown("filter_mediaType == 4"), "(filter_mediaType ==[cd] 4)");
    EXPECT_EQ(shown(R"(spName CONTAINS[cd] "" OR filter_miscState == 6)"),
              "(filter_miscState ==[cd] 6)");
    EXPECT_EQ(conditionsOf(std::nullopt, berlin), FilterConditions());
    EXPECT_FALSE(predicateOf(FilterConditions()));
    // After a journey a range is no longer one of days.
    FilterConditions days;
    days.rows = {withKind({}, FilterRowKind::DateRange,
                          {startOfDay(absl::CivilDay(2024, 5, 6), berlin),
                           startOfDay(absl::CivilDay(2024, 5, 8), berlin)})};
    const auto there = conditionsOf(predicateOf(days), zone("Asia/Tokyo"));
    ASSERT_TRUE(there && there->rows.size() == 2);
    EXPECT_EQ(there->rows[0].from, days.rows[0].from);
    EXPECT_EQ(there->rows[1].from, days.rows[0].till);
}

TEST_F(FilterEditor, ADayBeginsAtItsFirstInstant) {
    const struct {
        const char *zone;
        absl::CivilDay day;
        const char *utc;
    } rows[] = {
        {"Europe/Berlin", absl::CivilDay(2024, 7, 1), "2024-06-30T22:00:00+00:00"},
        {"Africa/Cairo", absl::CivilDay(2024, 4, 26), "2024-04-25T22:00:00+00:00"}, // begins at one
        {"Atlantic/Azores", absl::CivilDay(2024, 10, 27),
         "2024-10-27T00:00:00+00:00"}, // midnight comes twice
    };
    for (const auto &[name, day, utc] : rows) {
        const Date start = startOfDay(day, zone(name));
        EXPECT_EQ(absl::FormatTime(absl::RFC3339_sec, start, absl::UTCTimeZone()), utc) << name;
        EXPECT_EQ(absl::ToCivilDay(start, zone(name)), day) << name;
    }
}

TEST_F(FilterEditor, AnotherKindKeepsWhatSuitsIt) {
    const FilterDates dates{Date(), Date() + absl::Hours(24)};
    const auto changed = [&](FilterRowKind kind, PredicateOperator before, FilterRowKind to) {
        return withKind({.kind = kind, .comparison = before, .text = "IMG"}, to, dates);
    };
    using enum FilterRowKind;
    using enum PredicateOperator;
    EXPECT_EQ(changed(Filename, EndsWith, CamAndFolder).comparison, EndsWith);
    EXPECT_EQ(changed(MediaType, NotEqual, State).comparison, NotEqual);
    EXPECT_EQ(changed(State, Equal, SingleDate).comparison, GreaterOrEqual);
    EXPECT_EQ(changed(SingleDate, Less, Filename), changed(Filename, Contains, Filename));
}

TEST_F(FilterEditor, TemplatesAreKeptAndDamageLosesNothingElse) {
    const little::TemporaryFolder disk;
    UserDefaults defaults(disk.path("preferences"));
    const SourceViews views;
    FilterSourceController filters(defaults, zones, views, [](auto, auto) {});
    const auto names = [&] {
        restoreFilter(filters, UserDefaults(disk.path("preferences"))); // as at a start
        std::vector<std::string> all;
        for (const FilterTemplate &each : filters.updateSource())
            all.push_back(each.name + ": " + each.predicate);
        return all;
    };
    defaults.set("exifToolPath", "tool");
    const auto keep = [&](const char *name, const std::string &predicate) {
        return keepFilterTemplate(name, predicate, filters, defaults);
    };
    for (const char *name : {"Trip 10", "Trip 9", "Trip 10"})
        keep(name, std::string("spName == \"") + name + '"');
    keep("Trip 9", "filter_mediaType == 1");
    EXPECT_THAT(names(),
                ElementsAre("Trip 9: filter_mediaType == 1", "Trip 10: spName == \"Trip 10\""));
    EXPECT_EQ(keep("Long", std::string(5000, 'x')), UserDefaults::Outcome::ValueNotAllowed);
    renameFilterTemplate(filters.updateSource().front().key, "„Ä“\n", filters, defaults);
    removeFilterTemplate(filters.updateSource().front().key, filters, defaults);
    EXPECT_THAT(names(), testing::SizeIs(1));

    const std::pair<const char *, std::size_t> stored[] = {
        {"", 0},
        {"[{", 0},
        {R"({"key":"1"})", 0},
        {R"([1, null, {"key":"","name":"a","predicate":"b"}, {"key":"2","name":3}])", 0},
        {R"([{"key":"2","name":"a","predicate":"b"}, {"key":"2","name":"c","predicate":"d"}])", 1}};
    for (const auto &[text, count] : stored) {
        defaults.set("filterTemplates", text);
        EXPECT_THAT(names(), testing::SizeIs(count)) << text;
        EXPECT_EQ(UserDefaults(disk.path("preferences")).stringForKey("exifToolPath"), "tool");
    }
}

} // namespace
} // namespace chronomender
