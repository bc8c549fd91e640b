// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDateSteps.h"

namespace chronomender {
namespace {

using namespace little;
using O = DateChangeOptions;

constexpr auto exif = SpTypeExifOriginal;
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
    check({
        {"moves with the shift", exif, {0, 0, 0, 0, 0}, -1000, {}, Original, -1000},
        {"a slot that the file lacks",
         SpTypeExifDigitized,
         {none, 0, 0, 0, 0},
         9,
         {},
         Original,
         none},
        {"an empty tag is filled",
         SpTypeEmptyOriginalFileDate,
         {past, none, none, 5, 5},
         0,
         {},
         Original,
         5},
    });
}

TEST(NewExifDates, Digitized) {
    check({
        {"0: new date", exif, {0, 50, none, 0, 0}, -1000, {{digi, 0}}, Digitized, -1000},
        {"1: equal within 3 s follows", exif, {0, 3, none, 0, 0}, -1000, {}, Digitized, -1000},
        {"1: equal within 3 s on the other side",
         exif,
         {0, -3, none, 0, 0},
         -1000,
         {},
         Digitized,
         -1000},
        {"1: 4 s stay", exif, {0, 4, none, 0, 0}, -1000, {}, Digitized, 4},
        {"1: fractions count", exif, {0, 3.5, none, 0, 0}, -1000, {}, Digitized, 3.5},
        {"1: but never before the original", exif, {0, 4, none, 0, 0}, 1000, {}, Digitized, 1000},
        {"1: a week back leaves a different date",
         exif,
         {0, 60, none, 0, 0},
         -604800,
         {},
         Digitized,
         60},
        {"1, unchanged option off: stays",
         exif,
         {0, 0, none, 0, 0},
         -1000,
         {{digiUn, 0}},
         Digitized,
         0},
        {"3: same shift", exif, {0, 50, none, 0, 0}, -1000, {{digi, 3}}, Digitized, -950},
        {"3: never before the original",
         exif,
         {0, -50, none, 0, 0},
         1000,
         {{digi, 3}},
         Digitized,
         1000},
        {"2: untouched", exif, {0, 50, none, 0, 0}, -1000, {{digi, 2}}, Digitized, held},
        {"no such slot", exif, {0, none, none, 0, 0}, -1000, {{digi, 2}}, Digitized, none},
        {"no original",
         SpTypeExifDigitized,
         {none, 0, none, 0, 0},
         500,
         {{digi, 2}},
         Digitized,
         500},
        {"an empty tag beside an empty original",
         SpTypeEmptyOriginalFileDate,
         {past, past, none, 5, 5},
         0,
         {{digi, 3}},
         Digitized,
         5},
    });
}

TEST(NewExifDates, Tiff) {
    check({
        {"0: follows the digitised date", exif, {0, 50, 900, 0, 0}, -1000, {{mod, 0}}, Tiff, 50},
        {"0: else the original", exif, {0, none, 900, 0, 0}, -1000, {{mod, 0}}, Tiff, -1000},
        {"1: equal to the digitised date, 3 s", exif, {0, 0, 3, 0, 0}, -1000, {}, Tiff, -1000},
        {"1: equal to the digitised date, 4 s", exif, {0, 0, 4, 0, 0}, -1000, {}, Tiff, 4},
        {"1: but never before it", exif, {0, 0, 4, 0, 0}, 1000, {}, Tiff, 1000},
        {"1: the digitised date did not move", exif, {0, 50, 52, 0, 0}, -1000, {}, Tiff, 52},
        {"1: no digitised date, equal to the original",
         exif,
         {0, none, 2, 0, 0},
         -1000,
         {},
         Tiff,
         -1000},
        {"1: digitised date decides, not the original",
         exif,
         {0, 50, 2, 0, 0},
         -1000,
         {},
         Tiff,
         50},
        {"1, unchanged option off", exif, {0, 0, 0, 0, 0}, -1000, {{modUn, 0}}, Tiff, 0},
        {"2: now", exif, {0, 0, 0, 0, 0}, -1000, {{mod, 2}}, Tiff, now},
        {"2: a date in the future", exif, {0, 0, 0, 0, 0}, 2 * now, {{mod, 2}}, Tiff, 2 * now},
        {"2: exactly now", exif, {0, 0, 0, 0, 0}, now, {{mod, 2}}, Tiff, future, Live},
        {"2 in a display", exif, {0, 0, 0, 0, 0}, -1000, {{mod, 2}}, Tiff, future, Live},
        {"2 in a display, future", exif, {0, 0, 0, 0, 0}, 2 * now, {{mod, 2}}, Tiff, 2 * now, Live},
        {"3: same shift", exif, {0, 0, 100, 0, 0}, -1000, {{mod, 3}}, Tiff, -900},
        {"3: never before the digitised date",
         exif,
         {0, 0, -100, 0, 0},
         -1000,
         {{mod, 3}},
         Tiff,
         -1000},
        {"4: untouched", exif, {0, 0, 100, 0, 0}, -1000, {{mod, 4}}, Tiff, held},
        {"no such slot", exif, {0, 0, none, 0, 0}, -1000, {{mod, 4}}, Tiff, none},
        {"alone in the file", SpTypeTiffDateTime, {none, none, 0, 0, 0}, 7, {{mod, 4}}, Tiff, 7},
    });
}

TEST(NewExifDates, FileCreation) {
    const Moments all{0, 50, 900, 5, 6};
    check({
        {"0: new date", exif, all, -1000, {}, Created, -1000},
        {"1: digitised date", exif, all, -1000, {{crea, 1}}, Created, 50},
        {"1: without one", exif, {0, none, 900, 5, 6}, -1000, {{crea, 1}}, Created, -1000},
        {"2: TIFF date", exif, all, -1000, {{crea, 2}}, Created, 900},
        {"2: without one", exif, {0, 50, none, 5, 6}, -1000, {{crea, 2}}, Created, 50},
        {"2: without both", exif, {0, none, none, 5, 6}, -1000, {{crea, 2}}, Created, -1000},
        {"7: as 2", exif, all, -1000, {{crea, 7}}, Created, 900},
        {"file dates off", exif, all, -1000, {{fileDates, 0}, {crea, 2}}, Created, 5},
    });
}

TEST(NewExifDates, FileModification) {
    const Moments all{0, 50, 900, 5, 6}, noTiffDate{0, 50, none, 5, 6};
    check({
        {"file dates off", exif, all, -1000, {{fileDates, 0}, {file, 2}}, Modified, 6},
        {"file dates off, out of order",
         exif,
         {0, 50, 900, 8, 6},
         -1000,
         {{fileDates, 0}},
         Modified,
         8,
         Save,
         true},
        {"0: TIFF date", exif, all, -1000, {}, Modified, 900},
        {"0: TIFF date at the moment of saving",
         exif,
         all,
         -1000,
         {{mod, 2}},
         Modified,
         future,
         Live},
        {"0, no TIFF date, 0: digitised", exif, noTiffDate, -1000, {{noTiff, 0}}, Modified, 50},
        {"0, no TIFF date, 0: original",
         exif,
         {0, none, none, 5, 6},
         -1000,
         {{noTiff, 0}},
         Modified,
         -1000},
        {"0, no TIFF date, 1: keep", exif, {0, 50, none, 900, 600}, -1000, {}, Modified, 600},
        {"0, no TIFF date, 1: keep with its own option",
         exif,
         {0, 0, none, 0, 0},
         -1000,
         {{noTiffUn, 0}},
         Modified,
         0},
        {"0, no TIFF date, 2: now", exif, noTiffDate, -1000, {{noTiff, 2}}, Modified, now},
        {"1: keep", exif, {0, 50, 900, 300, 600}, -1000, {{file, 1}}, Modified, 600},
        {"2: now", exif, all, -1000, {{file, 2}}, Modified, now},
        {"2: a date in the future", exif, all, 2 * now, {{file, 2}}, Modified, 2 * now},
        {"5: untouched", exif, all, -1000, {{file, 5}}, Modified, held},
    });
}

/// The rule that keeps the file's modification date, through `dateChangeEXIFFinderModDate` 1.
TEST(NewExifDates, KeptFileModification) {
    const Option keep{file, 1};
    check({
        {"option off: only never before creation",
         exif,
         {0, none, none, 0, 0},
         1000,
         {keep, {fileUn, 0}},
         Modified,
         1000},
        {"option off: stays", exif, {0, none, none, 0, 0}, -1000, {keep, {fileUn, 0}}, Modified, 0},
        {"equal to nothing: stays", exif, {0, none, none, 0, 500}, -1000, {keep}, Modified, 500},
        {"equal to nothing: never before creation",
         exif,
         {0, none, none, 0, 500},
         1000,
         {keep},
         Modified,
         1000},
        {"equal to creation alone",
         exif,
         {0, none, none, 500, 500},
         -1000,
         {keep},
         Modified,
         -1000},
        {"3 s from creation", exif, {0, none, none, 500, 503}, -1000, {keep}, Modified, -1000},
        {"4 s from creation", exif, {0, none, none, 500, 504}, -1000, {keep}, Modified, 504},
        {"near to a creation date that stays",
         exif,
         {0, none, none, -1000, -998},
         -1000,
         {keep},
         Modified,
         -998},
        {"equal to the TIFF date alone", exif, {0, 0, 0, 500, 3}, -1000, {keep}, Modified, -1000},
        {"near to a TIFF date that stays", exif, {0, 50, 50, 500, 52}, -1000, {keep}, Modified, 52},
        {"no TIFF date: the digitised", exif, {0, 0, none, 500, 0}, -1000, {keep}, Modified, -1000},
        {"a TIFF date hides the digitised", exif, {0, 0, 900, 500, 0}, -1000, {keep}, Modified, 0},
        {"near to both: with the stamp that is later",
         exif,
         {0, none, 2, 0, 1},
         -1000,
         {keep, {mod, 3}},
         Modified,
         -998},
        {"equal to both: creation moved further",
         exif,
         {0, none, 0, 0, 0},
         -1000,
         {keep, {mod, 4}},
         Modified,
         -1000},
        {"out of order: creation stands in",
         exif,
         {0, none, none, 900, 500},
         -1000,
         {keep, {fileUn, 0}},
         Modified,
         900,
         Save,
         true},
    });
}

} // namespace
} // namespace chronomender
