// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterRows.h"
#include "FilterSourceController.h"
#include "LittleItem.h"
#include "PredicateRewriting.h"
#include "TemporaryFolder.h"
#include "Texts.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;

Predicate parsed(std::string_view text) {
    return std::get<Predicate>(parsePredicate(text));
}

TEST(PredicateRewriting, CompletesRowsAndTakesTheCheapWay) {
    const struct {
        const char *shown, *run;
    } rows[] = {
        {R"(spName CONTAINS[cd] "IMG")", R"(spDisplayName CONTAINS[c] "IMG")"},
        {R"(spName BEGINSWITH[cd] "")", R"(spDisplayName !=[cd] "")"},
        {R"(pivMakeModel ==[cd] "")", R"(filter_pivMakeModel !=[cd] "")"},
        {R"(pivMakeModel ==[cd] "X")", R"(filter_pivMakeModel ==[cd] "X")"},
        {R"(pivMakeModel ENDSWITH[cd] "X")", R"(filter_pivMakeModel ENDSWITH[c] "X")"},
        {R"(pivMakeModel ==[c] "")", nullptr}, // no row, but typed so
        {"filter_mediaType ==[cd] 4", "filter_mediaType_2 ==[cd] 1"},
        {"filter_mediaType !=[cd] 4", "filter_mediaType_2 !=[cd] 1"},
        {"filter_mediaType ==[cd] 3", nullptr},
        {"filter_miscState ==[cd] 6", "filter_miscState_6 ==[cd] 1"},
        {"(filter_miscState !=[cd] 0) OR (filter_rating == 1)",
         "(filter_miscState_0 !=[cd] 1) OR (filter_rating == 1)"},
        // What a value says is nobody's operator.
        {R"(spName CONTAINS[cd] "CONTAINS[cd] \"\" filter_miscState ==[cd] 6")",
         R"(spDisplayName CONTAINS[c] "CONTAINS[cd] \"\" filter_miscState ==[cd] 6")"},
    };
    for (const auto &[shown, run] : rows)
        EXPECT_EQ(predicateFormat(completeFilterPredicate(optimizedAlternative(parsed(shown)))),
                  run ? run : shown);
}

TEST(FilterRows, KeepTheirValueWhenTheirLeftSideChanges) {
    const struct {
        const char *before, *shown, *becomes;
    } rows[] = {
        {R"(spName CONTAINS[cd] "a[cd] b")", R"(spName ENDSWITH[cd] "")",
         R"(spName ENDSWITH[cd] "a[cd] b")"},
        {R"(spName CONTAINS[cd] "a")", R"(spName CONTAINS[cd] "b")", nullptr},
        {"filter_miscState ==[cd] 6", "filter_miscState !=[cd] 0", "filter_miscState !=[cd] 6"},
        {R"(spName CONTAINS[cd] "a")", "filter_miscState ==[cd] 0", nullptr},
        {R"(filter_dateTimeModified < "2024-05-06")", R"(spName CONTAINS[cd] "")", nullptr},
    };
    for (const auto &[before, shown, becomes] : rows) {
        FilterEditorRow row;
        EXPECT_FALSE(row.edited(parsed(before)).needsChangePredicateRefresh);
        const auto edited = row.edited(parsed(shown));
        EXPECT_EQ(predicateFormat(edited.predicate), becomes ? becomes : shown);
        EXPECT_EQ(edited.needsChangePredicateRefresh, becomes != nullptr);
    }
    EXPECT_EQ(predicateFormat(rowPredicate(FilterRowKind::DateRange,
                                           {utc(2001, 1, 1, 0, 1), utc(2001, 1, 1, 0, 2)})),
              R"((filter_dateTimeModified >= CAST(60.000000, "NSDate")) AND )"
              R"((filter_dateTimeModified < CAST(120.000000, "NSDate")))");
    EXPECT_EQ(predicateFormat(emptyPredicate()), R"((spName CONTAINS[cd] ""))");
}

struct GridView : SourceViews {
    bool isGridFullScreen() const override { return isGrid; }
    bool isOneFolderSelected() const override { return isOneFolder; }
    bool isGrid = false, isOneFolder = true;
};

class FilterSource : public testing::Test {
protected:
    FilterSource() {
        static int count = 1;
        static char name[] = "test", *arguments[] = {name, nullptr};
        if (!QCoreApplication::instance())
            static QCoreApplication application(count, arguments);
        loadTexts("en");
        on("isFilterActive");
    }
    void on(const char *key, const char *value = "1") { defaults.setForThisRun(key, value); }
    /// The text of the predicate that runs for one that is shown; "" for none.
    std::string final(const std::string &shown) {
        filters.didChangePredicate(shown.empty() ? std::nullopt : std::optional(parsed(shown)));
        const auto &predicate = filters.filter_finalPredicate();
        EXPECT_EQ(filters.compiled() != nullptr, predicate.has_value());
        return predicate ? predicateFormat(*predicate) : "";
    }
    /// The rebuilds that a change brings about.
    std::vector<NewSelection> after(std::string_view key) {
        builds.clear();
        filters.filterRelevantChangeWasMade(key);
        return builds;
    }
    TemporaryFolder disk;
    UserDefaults defaults{disk.path("preferences")};
    Zones zones;
    GridView views;
    std::vector<NewSelection> builds;
    FilterSourceController filters{defaults, zones, views,
                                   [this](NewSelection selection, Refilter refilter) {
                                       EXPECT_EQ(refilter, Refilter::RefilterOnly);
                                       builds.push_back(selection);
                                   }};
};

TEST_F(FilterSource, RunsTheEditorsFilterAndTheOneByRatingApartOrTogether) {
    EXPECT_EQ(final(R"((spName CONTAINS[cd] ""))"), "");
    EXPECT_FALSE(filters.filter_sourcePredicate());
    EXPECT_EQ(defaults.stringForKey("lastActiveFilterPredicate"), "");
    const std::string shown = R"((spName CONTAINS[cd] "IMG"))";
    EXPECT_EQ(final(shown), R"((spDisplayName CONTAINS[c] "IMG"))");
    EXPECT_EQ(predicateFormat(*filters.filter_sourcePredicate()), shown);
    EXPECT_EQ(UserDefaults(disk.path("preferences")).stringForKey("lastActiveFilterPredicate"),
              shown);
    on("isRatingFilterActive");
    EXPECT_EQ(final(shown), R"((filter_rating != -1) AND ((spDisplayName CONTAINS[c] "IMG")))");
    on("ratingFilterSelectedOption");
    EXPECT_EQ(final(""), "filter_rating == 1");
    on("areFiltersCombined");
    EXPECT_FALSE(filters.isRatingFilterActiveAndRelevant());
    EXPECT_EQ(final("filter_rating == -1"), "filter_rating == -1");
    on("areFiltersCombined", "0");
    on("isFilterActive", "0");
    EXPECT_EQ(final(shown), "filter_rating == 1");
    EXPECT_FALSE(filters.filter_sourcePredicate());
    // Switched on again, the editor's filter is what it shows.
    on("isFilterActive");
    filters.refreshFilter();
    EXPECT_EQ(predicateFormat(*filters.filter_sourcePredicate()), shown);
    filters.disableFilters(FilterMemory::ThisRun);
    EXPECT_FALSE(filters.filter_finalPredicate() || filters.isAnyFilterActive());
    EXPECT_THAT(builds, testing::Each(NewSelection::Choose));
    EXPECT_EQ(builds.size(), 8U);
}

TEST_F(FilterSource, ACommandsFilterIsNotKept) {
    final(R"(spName CONTAINS[cd] "IMG")");
    filters.didChangePredicate(parsed("filter_rating == 0"), FilterMemory::ThisRun);
    filters.disableFilters(FilterMemory::ThisRun);
    const UserDefaults stored(disk.path("preferences"));
    EXPECT_EQ(stored.stringForKey("lastActiveFilterPredicate"), R"(spName CONTAINS[cd] "IMG")");
}

TEST_F(FilterSource, RunsAgainOnlyWhenAChangeCanMatter) {
    const struct {
        const char *predicate;
        std::vector<std::string_view> keys; ///< of changes after which it runs again
    } rows[] = {
        {"", {}},
        {R"(spName CONTAINS[cd] "filter_rating")", {}},
        {"filter_rating == 0", {"filter_rating"}},
        {R"(pivMakeModel CONTAINS[cd] "x")", {"pivMakeModel"}},
        {"filter_miscState ==[cd] 0", {"filter_miscState", "filter_miscState_1"}},
        {"filter_miscState ==[cd] 1", {"filter_miscState_1"}},
        {"filter_miscState ==[cd] 3", {}},
        {"NOT filter_miscState ==[cd] 6", {"filter_miscState"}},
    };
    for (const auto &[predicate, keys] : rows) {
        final(predicate);
        for (const std::string_view key :
             {"filter_rating", "pivMakeModel", "filter_miscState", "filter_miscState_1"})
            EXPECT_EQ(after(key).size(), std::ranges::count(keys, key)) << predicate << ' ' << key;
    }
    on("isRatingFilterActive");
    final("");
    EXPECT_THAT(after("filter_rating"), ElementsAre(NewSelection::Choose));
    views.isOneFolder = false;
    EXPECT_THAT(after("filter_rating"), ElementsAre(NewSelection::Keep));
}

TEST_F(FilterSource, WaitsWhileAGridFillsTheScreen) {
    views.isGrid = true;
    final("filter_rating != -1 AND filter_miscState !=[cd] 1");
    EXPECT_THAT(after("filter_rating"), IsEmpty());
    filters.endFilterTimerNow();
    filters.endFilterTimerNow();
    EXPECT_EQ(builds.size(), 1U);
    EXPECT_EQ(after("filter_miscState_1").size(), 1U); // places are not rated
    EXPECT_THAT(after("filter_rating"), IsEmpty());
    QElapsedTimer waited;
    for (waited.start(); builds.empty() && waited.elapsed() < 20'000;)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(builds.size(), 1U);
    // A new filter takes the place of one that waits.
    after("filter_rating");
    final("filter_rating == 0");
    builds.clear();
    filters.endFilterTimerNow();
    EXPECT_THAT(builds, IsEmpty());
}

TEST_F(FilterSource, KnowsWhatIsReadLate) {
    for (const char *predicate :
         {R"(pivMakeModel == "x")", R"(NOT filter_pivMakeModelLens CONTAINS "x")",
          "filter_miscState ==[cd] 1", "filter_rating == 1 OR filter_miscState_1 == 0"}) {
        final(predicate);
        EXPECT_TRUE(filters.needsLateValues()) << predicate;
    }
    final(R"(spName == "pivMakeModel " AND filter_miscState ==[cd] 2)");
    EXPECT_FALSE(filters.needsLateValues());
}

TEST_F(FilterSource, TemplatesGetNamesOfTheirOwn) {
    filters.allSources = {{"5", "Trip", "filter_rating == 1"},
                          {"3", "", "spName == \"a\""},
                          {"4", "Trip 10", ""},
                          {"2", "Trip 9", "broken"},
                          {"1", "", "spName == \"b\""},
                          {"6", "Trip 9", ""},
                          {"7", "Trip 9", ""}};
    const auto names = [&] {
        std::vector<std::string> all;
        for (const FilterTemplate &each : filters.updateSource())
            all.push_back(each.key + ' ' + each.name);
        return all;
    };
    EXPECT_THAT(names(), ElementsAre("2 Trip 9", "6 Trip 9 (2)", "7 Trip 9 (3)", "4 Trip 10",
                                     "1 Unnamed", "3 Unnamed (2)"));
    on("areFiltersCombined");
    EXPECT_THAT(names(), testing::Contains("5 Trip"));
}

} // namespace
} // namespace chronomender
