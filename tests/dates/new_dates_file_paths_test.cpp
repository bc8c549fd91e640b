// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDateSteps.h"

namespace chronomender {
namespace {

using namespace little;
using O = DateChangeOptions;

constexpr auto noTags = SpTypeNoTagsFileDate;
constexpr auto younger = SpTypeTiffYoungerThanFile;

TEST(NewDatesWithoutTags, FileModification) {
    constexpr auto key = &O::dateChangeNoEXIFFinderModDate;
    constexpr auto unchanged = &O::dateChangeNoEXIFFinderModDateUnchangedOption;
    check(
        Modified,
        {
            {"0: new date", noTags, {none, none, none, 0, 100}, -1000, {{key, 0}}, -1000},
            {"1: now", noTags, {none, none, none, 0, 100}, -1000, {{key, 1}}, now},
            {"1: a date in the future",
             noTags,
             {none, none, none, 0, 100},
             2 * now,
             {{key, 1}},
             2 * now},
            {"1 in a display", noTags, {none, none, none, 0, 100}, -1000, {{key, 1}}, future, Live},
            {"2: equal within 3 s follows", noTags, {none, none, none, 0, 3}, -1000, {}, -1000},
            {"2: 4 s stay", noTags, {none, none, none, 0, 4}, -1000, {}, 4},
            {"2: but never before creation", noTags, {none, none, none, 0, 4}, 1000, {}, 1000},
            {"2, unchanged option off",
             noTags,
             {none, none, none, 0, 0},
             -1000,
             {{unchanged, 0}},
             0},
            {"3: same shift", noTags, {none, none, none, 0, 100}, -1000, {{key, 3}}, -900},
            {"3: never before creation",
             noTags,
             {none, none, none, 0, -100},
             -1000,
             {{key, 3}},
             -1000},
            {"9: untouched", noTags, {none, none, none, 0, 100}, -1000, {{key, 9}}, held},
            {"2: out of order", noTags, {none, none, none, 0, -50}, -1000, {}, -1000, Save, true},
        });
}

TEST(NewDatesWithoutTags, FileCreationMovesForEachType) {
    for (SpType type : {noTags, SpTypeNoTagsFixedDate, SpTypeMovieFileDate})
        check(Created, {
                           {"creation", type, {none, none, none, 0, 0}, -1000, {}, -1000},
                       });
}

TEST(NewDatesByFileDate, Tiff) {
    constexpr auto key = &O::dateChangeNoEXIFButTIFFMetaModDate;
    const Moments old{none, none, 100, 0.75, 100};
    check(Created, {{"new date", younger, old, -1000, {}, -999.25}});
    check(
        Tiff,
        {
            {"0: new date, whole seconds", younger, old, -1000, {{key, 0}}, -1000},
            {"1: now", younger, old, -1000, {{key, 1}}, now},
            {"1: a date in the future", younger, old, 2 * now, {{key, 1}}, 2 * now + 0.75},
            {"2: stays", younger, old, -1000, {}, 100},
            {"2: but never before the new date", younger, old, 1000, {}, 1000.75},
            {"3: same shift", younger, old, -1000, {{key, 3}}, -900},
            {"3: has no lower bound", younger, {none, none, -500, 0, 0}, -1000, {{key, 3}}, -1500},
            {"9: untouched", younger, old, -1000, {{key, 9}}, held},
            {"a movie's header", SpTypeMovieMvhdYoungerThanFile, old, -1000, {{key, 3}}, -900},
        });
}

TEST(NewDatesByFileDate, FileModification) {
    constexpr auto key = &O::dateChangeNoEXIFButTIFFFinderModDate;
    constexpr auto unchanged = &O::dateChangeNoEXIFButTIFFFinderModDateUnchangedOption;
    constexpr auto tiff = &O::dateChangeNoEXIFButTIFFMetaModDate;
    check(
        Modified,
        {
            {"0: TIFF date", younger, {none, none, 100, 0, 7}, -1000, {{key, 0}}, 100},
            {"1: now", younger, {none, none, 100, 0, 7}, -1000, {{key, 1}}, now},
            {"2: equal to nothing stays", younger, {none, none, 100, 0, 500}, -1000, {}, 500},
            {"2: but never before the new date",
             younger,
             {none, none, 100, 0, 500},
             1000,
             {},
             1000},
            {"2: equal to the main date alone", younger, {none, none, 100, 0, 3}, -1000, {}, -1000},
            {"2: 4 s from the main date", younger, {none, none, 100, 0, 4}, -1000, {}, 4},
            {"2: equal to a moved TIFF date",
             younger,
             {none, none, 100, 0, 103},
             -1000,
             {{tiff, 3}},
             -900},
            {"2: equal to a TIFF date that stays",
             younger,
             {none, none, 100, 0, 103},
             -1000,
             {},
             103},
            {"2: near both, TIFF date stays", younger, {none, none, 2, 0, 1}, -1000, {}, 1},
            {"2, unchanged option off",
             younger,
             {none, none, 100, 0, 0},
             -1000,
             {{unchanged, 0}},
             0},
            {"9: untouched", younger, {none, none, 100, 0, 7}, -1000, {{key, 9}}, held},
        });
}

} // namespace
} // namespace chronomender
