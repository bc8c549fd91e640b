// SPDX-License-Identifier: GPL-3.0-or-later
#include "SpType.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <tuple>

namespace chronomender {
namespace {

const std::set<int> emptyTagTypes{5, 6, 7, 8, 9, 10, 19, 20};

const std::tuple<const char *, bool (*)(SpType), std::set<int>> predicateRows[] = {
    {"isMovie", isMovie, {14, 15, 16, 17, 18, 19, 20, 21, 22}},
    {"isQtMovie", isQtMovie, {16, 17, 18, 19, 20, 21}},
    {"isNullerFile", isNullerFile, emptyTagTypes},
    {"hasImportOptionChanges", hasImportOptionChanges, {5, 6, 7, 8, 9, 10, 12, 19, 20}},
    {"isPreferringFileDate", isPreferringFileDate, {4, 18}},
    {"isEligibleForYoungerThanFile", isEligibleForYoungerThanFile, {3, 4, 17, 18}},
    {"hasNoCorrectableDate", hasNoCorrectableDate, {13, 22}},
    {"hasNoDateTags", hasNoDateTags, {11, 12, 14}},
};

TEST(SpTypes, PredicatesHoldForExactlyTheseTypes) {
    for (const auto &[name, predicate, trueFor] : predicateRows)
        for (int type = 1; type <= 22; ++type)
            EXPECT_EQ(predicate(static_cast<SpType>(type)), trueFor.contains(type))
                << name << " of type " << type;
}

TEST(SpTypes, FilledTagsGiveTheTypeOfTheTag) {
    const std::map<int, int> moves{{5, 1}, {6, 2},  {7, 3},   {8, 1},
                                   {9, 2}, {10, 3}, {19, 16}, {20, 16}};
    for (int type = 1; type <= 22; ++type) {
        const int after = static_cast<int>(typeAfterFillingEmptyTags(static_cast<SpType>(type)));
        EXPECT_EQ(after, moves.contains(type) ? moves.at(type) : type);
    }
}

} // namespace
} // namespace chronomender
