// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDateSteps.h"

namespace chronomender {
namespace {

using namespace little;
using O = DateChangeOptions;

constexpr auto exif = SpTypeExifOriginal;
constexpr auto digitizedOnly = SpTypeExifDigitized;
constexpr auto tiffOnly = SpTypeTiffDateTime;
constexpr auto emptyTag = SpTypeEmptyOriginalFileDate;
constexpr auto digi = &O::dateChangeEXIFEXIFDigiDate;
constexpr auto digiUn = &O::dateChangeEXIFEXIFDigiDateUnchangedOption;
constexpr auto mod = &O::dateChangeEXIFEXIFModDate;
constexpr auto modUn = &O::dateChangeEXIFEXIFModDateUnchangedOption;
constexpr auto fileDates = &O::dateChangeEXIFChangeFinderWhenChangingEXIF;
constexpr auto crea = &O::dateChangeEXIFFinderCreaDate2;
constexpr auto file = &O::dateChangeEXIFFinderModDate;
constexpr auto fileUn = &O::dateChangeEXIFFinderModDateUnchangedOption;
constexpr auto noTiff = &O::dateChangeEXIFFinderModDateEXIFModDateOptions;
constexpr auto noTiffUn = &O::dateChangeEXIFFinderModDateEXIFModDateUnchangedOption;

TEST(NewExifDates, Original) {
    check(Original, {
                        {"moves with the shift", exif, {0, 0, 0, 0, 0}, -1000, {}, -1000},
                        {"no such slot", digitizedOnly, {none, 0, 0, 0, 0}, 9, {}, none},
                        {"an empty tag is filled", emptyTag, {past, none, none, 5, 5}, 0, {}, 5},
                    });
}

TEST(NewExifDates, Digitized) {
    check(Digitized,
          {
              {"0: new date", exif, {0, 50, none, 0, 0}, -1000, {{digi, 0}}, -1000},
              {"1: equal within 3 s follows", exif, {0, 3, none, 0, 0}, -1000, {}, -1000},
              {"1: 3 s before it follows", exif, {0, -3, none, 0, 0}, -1000, {}, -1000},
              {"1: 4 s stay", exif, {0, 4, none, 0, 0}, -1000, {}, 4},
              {"1: fractions count", exif, {0, 3.5, none, 0, 0}, -1000, {}, 3.5},
              {"1: but never before the original", exif, {0, 4, none, 0, 0}, 1000, {}, 1000},
              {"1: a week back, 60 s apart", exif, {0, 60, none, 0, 0}, -604800, {}, 60},
              {"1, unchanged option off: stays", exif, {0, 0, none, 0, 0}, -1000, {{digiUn, 0}}, 0},
              {"3: same shift", exif, {0, 50, none, 0, 0}, -1000, {{digi, 3}}, -950},
              {"3: never before the original", exif, {0, -50, none, 0, 0}, 1000, {{digi, 3}}, 1000},
              {"2: untouched", exif, {0, 50, none, 0, 0}, -1000, {{digi, 2}}, held},
              {"no such slot", exif, {0, none, none, 0, 0}, -1000, {{digi, 2}}, none},
              {"no original", digitizedOnly, {none, 0, none, 0, 0}, 500, {{digi, 2}}, 500},
              {"both tags empty", emptyTag, {past, past, none, 5, 5}, 0, {{digi, 3}}, 5},
          });
}

TEST(NewExifDates, Tiff) {
    check(Tiff,
          {
              {"0: follows the digitised date", exif, {0, 50, 900, 0, 0}, -1000, {{mod, 0}}, 50},
              {"0: else the original", exif, {0, none, 900, 0, 0}, -1000, {{mod, 0}}, -1000},
              {"1: equal to the digitised date, 3 s", exif, {0, 0, 3, 0, 0}, -1000, {}, -1000},
              {"1: equal to the digitised date, 4 s", exif, {0, 0, 4, 0, 0}, -1000, {}, 4},
              {"1: but never before it", exif, {0, 0, 4, 0, 0}, 1000, {}, 1000},
              {"1: the digitised date did not move", exif, {0, 50, 52, 0, 0}, -1000, {}, 52},
              {"1: else equal to the original", exif, {0, none, 2, 0, 0}, -1000, {}, -1000},
              {"1: not equal to the digitised date", exif, {0, 50, 2, 0, 0}, -1000, {}, 50},
              {"1, unchanged option off", exif, {0, 0, 0, 0, 0}, -1000, {{modUn, 0}}, 0},
              {"2: now", exif, {0, 0, 0, 0, 0}, -1000, {{mod, 2}}, now},
              {"2: a date in the future", exif, {0, 0, 0, 0, 0}, 2 * now, {{mod, 2}}, 2 * now},
              {"2: exactly now", exif, {0, 0, 0, 0, 0}, now, {{mod, 2}}, future, Live},
              {"2 in a display", exif, {0, 0, 0, 0, 0}, -1000, {{mod, 2}}, future, Live},
              {"2 in a display, future", exif, {0, 0, 0, 0, 0}, 2 * now, {{mod, 2}}, 2 * now, Live},
              {"3: same shift", exif, {0, 0, 100, 0, 0}, -1000, {{mod, 3}}, -900},
              {"3: never before digitised", exif, {0, 0, -100, 0, 0}, -1000, {{mod, 3}}, -1000},
              {"4: untouched", exif, {0, 0, 100, 0, 0}, -1000, {{mod, 4}}, held},
              {"no such slot", exif, {0, 0, none, 0, 0}, -1000, {{mod, 4}}, none},
              {"alone in the file", tiffOnly, {none, none, 0, 0, 0}, 7, {{mod, 4}}, 7},
          });
}

TEST(NewExifDates, FileCreation) {
    const Moments all{0, 50, 900, 5, 6};
    check(Created, {
                       {"0: new date", exif, all, -1000, {}, -1000},
                       {"1: digitised date", exif, all, -1000, {{crea, 1}}, 50},
                       {"1: without one", exif, {0, none, 900, 5, 6}, -1000, {{crea, 1}}, -1000},
                       {"2: TIFF date", exif, all, -1000, {{crea, 2}}, 900},
                       {"2: without one", exif, {0, 50, none, 5, 6}, -1000, {{crea, 2}}, 50},
                       {"2: without both", exif, {0, none, none, 5, 6}, -1000, {{crea, 2}}, -1000},
                       {"7: as 2", exif, all, -1000, {{crea, 7}}, 900},
                       {"file dates off", exif, all, -1000, {{fileDates, 0}, {crea, 2}}, 5},
                   });
}

TEST(NewExifDates, FileModification) {
    const Moments all{0, 50, 900, 5, 6}, noTiffDate{0, 50, none, 5, 6};
    check(Modified,
          {
              {"file dates off", exif, all, -1000, {{fileDates, 0}, {file, 2}}, 6},
              {"file dates off, out of order",
               exif,
               {0, 50, 900, 8, 6},
               -1000,
               {{fileDates, 0}},
               8,
               Save,
               true},
              {"0: TIFF date", exif, all, -1000, {}, 900},
              {"0: TIFF date at the save", exif, all, -1000, {{mod, 2}}, future, Live},
              {"0, no TIFF, 0: digitised", exif, noTiffDate, -1000, {{noTiff, 0}}, 50},
              {"0, no TIFF, 0: original", exif, {0, none, none, 5, 6}, -1000, {{noTiff, 0}}, -1000},
              {"0, no TIFF, 1: keep", exif, {0, 50, none, 900, 600}, -1000, {}, 600},
              {"0, no TIFF, 1: own option", exif, {0, 0, none, 0, 0}, -1000, {{noTiffUn, 0}}, 0},
              {"0, no TIFF, 2: now", exif, noTiffDate, -1000, {{noTiff, 2}}, now},
              {"1: keep", exif, {0, 50, 900, 300, 600}, -1000, {{file, 1}}, 600},
              {"2: now", exif, all, -1000, {{file, 2}}, now},
              {"2: a date in the future", exif, all, 2 * now, {{file, 2}}, 2 * now},
              {"5: untouched", exif, all, -1000, {{file, 5}}, held},
          });
}

/// The rule that keeps the file's modification date, through `dateChangeEXIFFinderModDate` 1.
TEST(NewExifDates, KeptFileModification) {
    const Option keep{file, 1};
    check(Modified,
          {
              {"option off: not before creation",
               exif,
               {0, none, none, 0, 0},
               1000,
               {keep, {fileUn, 0}},
               1000},
              {"option off: stays", exif, {0, none, none, 0, 0}, -1000, {keep, {fileUn, 0}}, 0},
              {"equal to nothing: stays", exif, {0, none, none, 0, 500}, -1000, {keep}, 500},
              {"equal to nothing, not before creation",
               exif,
               {0, none, none, 0, 500},
               1000,
               {keep},
               1000},
              {"equal to creation alone", exif, {0, none, none, 500, 500}, -1000, {keep}, -1000},
              {"3 s from creation", exif, {0, none, none, 500, 503}, -1000, {keep}, -1000},
              {"4 s from creation", exif, {0, none, none, 500, 504}, -1000, {keep}, 504},
              {"near to a creation that stays",
               exif,
               {0, none, none, -1000, -998},
               -1000,
               {keep},
               -998},
              {"equal to the TIFF date alone", exif, {0, 0, 0, 500, 3}, -1000, {keep}, -1000},
              {"near to a TIFF date that stays", exif, {0, 50, 50, 500, 52}, -1000, {keep}, 52},
              {"no TIFF date: the digitised", exif, {0, 0, none, 500, 0}, -1000, {keep}, -1000},
              {"a TIFF date hides the digitised", exif, {0, 0, 900, 500, 0}, -1000, {keep}, 0},
              {"near to both: the stamp is later",
               exif,
               {0, none, 2, 0, 1},
               -1000,
               {keep, {mod, 3}},
               -998},
              {"equal to both: creation is later",
               exif,
               {0, none, 0, 0, 0},
               -1000,
               {keep, {mod, 4}},
               -1000},
              {"out of order",
               exif,
               {0, none, none, 900, 500},
               -1000,
               {keep, {fileUn, 0}},
               900,
               Save,
               true},
          });
}

} // namespace
} // namespace chronomender
