// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDateSteps.h"

namespace chronomender {
namespace {

using namespace little;
using O = DateChangeOptions;

constexpr auto exif = SpTypeExifOriginal, digitizedOnly = SpTypeExifDigitized;
constexpr auto tiffOnly = SpTypeTiffDateTime, emptyTag = SpTypeEmptyOriginalFileDate;
constexpr auto noTags = SpTypeNoTagsFileDate, younger = SpTypeTiffYoungerThanFile;
constexpr auto digi = &O::dateChangeEXIFEXIFDigiDate, mod = &O::dateChangeEXIFEXIFModDate;
constexpr auto crea = &O::dateChangeEXIFFinderCreaDate2, file = &O::dateChangeEXIFFinderModDate;
constexpr auto noTiff = &O::dateChangeEXIFFinderModDateEXIFModDateOptions;
const Option digiUnOff{&O::dateChangeEXIFEXIFDigiDateUnchangedOption, 0};
const Option modUnOff{&O::dateChangeEXIFEXIFModDateUnchangedOption, 0};
const Option fileUnOff{&O::dateChangeEXIFFinderModDateUnchangedOption, 0};
const Option noTiffUnOff{&O::dateChangeEXIFFinderModDateEXIFModDateUnchangedOption, 0};
const Option fileDatesOff{&O::dateChangeEXIFChangeFinderWhenChangingEXIF, 0};

// Per setting: 0 the new date, 1 stays and follows what it was equal to, 2 untouched, 3 same shift.
TEST(NewExifDates, OriginalAndDigitized) {
    check(Original, digi,
          {{"moves with the shift", exif, {0, 0, 0, 0, 0}, -1000, {-1000}},
           {"no such slot", digitizedOnly, {none, 0, 0, 0, 0}, 9, {none}},
           {"an empty tag is filled", emptyTag, {past, none, none, 5, 5}, 0, {5}}});
    check(Digitized, digi,
          {{"50 s after", exif, {0, 50, none, 0, 0}, -1000, {-1000, 50, held, -950}},
           {"equal, 3 s after", exif, {0, 3, none, 0, 0}, -1000, {-1000, -1000, held, -997}},
           {"equal, 3 s before", exif, {0, -3, none, 0, 0}, -1000, {-1000, -1000, held, -1000}},
           {"fractions count", exif, {0, 3.5, none, 0, 0}, -1000, {-1000, 3.5, held, -996.5}},
           {"not before original", exif, {0, 4, none, 0, 0}, 1000, {1000, 1000, held, 1004}},
           {"never before original", exif, {0, -50, none, 0, 0}, 1000, {1000, 1000, held, 1000}},
           {"not to follow", exif, {0, 0, none, 0, 0}, -1000, {-1000, 0, held, -1000}, {digiUnOff}},
           {"no such slot", exif, {0, none, none, 0, 0}, -1000, {none, none, none, none}},
           {"no original", digitizedOnly, {none, 0, none, 0, 0}, 500, {500, 500, 500, 500}},
           {"both tags empty", emptyTag, {past, past, none, 5, 5}, 0, {5, 5, held, 5}}});
}

// 0 the date before it, 1 stays and follows what it was equal to, 2 now, 3 same shift, 4 untouched.
TEST(NewExifDates, Tiff) {
    const Moments same{0, 0, 0, 0, 0};
    const double later = 2 * now;
    check(Tiff, mod,
          {{"behind digitised", exif, {0, 50, 900, 0, 0}, -1000, {50, 900, now, 50, held}},
           {"no digitised", exif, {0, none, 900, 0, 0}, -1000, {-1000, 900, now, -100, held}},
           {"equal to digitised", exif, {0, 0, 3, 0, 0}, -1000, {-1000, -1000, now, -997, held}},
           {"not before it", exif, {0, 0, 4, 0, 0}, 1000, {1000, 1000, now, 1004, held}},
           {"never before it", exif, {0, 0, -100, 0, 0}, -1000, {-1000, -100, now, -1000, held}},
           {"near one that stays", exif, {0, 50, 52, 0, 0}, -1000, {50, 52, now, 50, held}},
           {"equal to original", exif, {0, none, 2, 0, 0}, -1000, {-1000, -1000, now, -998, held}},
           {"not to digitised", exif, {0, 50, 2, 0, 0}, -1000, {50, 50, now, 50, held}},
           {"not to follow", exif, same, -1000, {-1000, 0, now, -1000, held}, {modUnOff}},
           {"in the future", exif, same, later, {later, later, later, later, held}},
           {"shown, future", exif, same, later, {later, later, later, later, held}, {}, Live},
           {"shown, exactly now", exif, same, now, {now, now, future, now, held}, {}, Live},
           {"no such slot", exif, {0, 0, none, 0, 0}, -1000, {none, none, none, none, none}},
           {"alone in the file", tiffOnly, {none, none, 0, 0, 0}, 7, {7, 7, 7, 7, 7}}});
}

// 0 the new date, 1 the digitised, 2 the TIFF date.
TEST(NewExifDates, FileCreation) {
    check(Created, crea,
          {{"all", exif, {0, 50, 900, 5, 6}, -1000, {-1000, 50, 900}},
           {"no digitised", exif, {0, none, 900, 5, 6}, -1000, {-1000, -1000, 900}},
           {"no TIFF", exif, {0, 50, none, 5, 6}, -1000, {-1000, 50, 50}},
           {"neither", exif, {0, none, none, 5, 6}, -1000, {-1000, -1000, -1000}},
           {"file dates off", exif, {0, 50, 900, 5, 6}, -1000, {5, 5, 5}, {fileDatesOff}}});
}

// 0 the TIFF date, 1 stays and follows what it was equal to, 2 now, others untouched.
TEST(NewExifDates, FileModification) {
    const Moments all{0, 50, 900, 5, 6}, bare{0, none, none, 0, 0}, late{0, none, none, 900, 500};
    check(Modified, file,
          {{"equal to creation", exif, all, -1000, {900, -1000, now, held}},
           {"shown", exif, all, -1000, {future, -1000, future}, {{mod, 2}}, Live},
           {"file dates off", exif, all, -1000, {6, 6, 6}, {fileDatesOff}},
           {"off, out of order", exif, late, -1000, {900, 900, 900}, {fileDatesOff}, Save, true},
           {"out of order", exif, late, -1000, {-1000, 900, now}, {fileUnOff}, Save, true},
           {"not to follow", exif, bare, -1000, {-1000, 0, now}, {fileUnOff}},
           {"not before creation", exif, bare, 1000, {1000, 1000, now}, {fileUnOff}},
           {"without TIFF, not to follow", exif, bare, -1000, {0, -1000, now}, {noTiffUnOff}},
           {"equal to nothing", exif, {0, none, none, 0, 500}, -1000, {500, 500, now}},
           {"to nothing, bounded", exif, {0, none, none, 0, 500}, 1000, {1000, 1000, now}},
           {"3 s from creation", exif, {0, none, none, 500, 503}, -1000, {-1000, -1000, now}},
           {"4 s from creation", exif, {0, none, none, 500, 504}, -1000, {504, 504, now}},
           {"near one that stays", exif, {0, none, none, -1000, -998}, -1000, {-998, -998, now}},
           {"equal to TIFF", exif, {0, 0, 0, 500, 3}, -1000, {-1000, -1000, now}},
           {"near TIFF that stays", exif, {0, 50, 50, 500, 52}, -1000, {50, 52, now}},
           {"equal to digitised", exif, {0, 0, none, 500, 0}, -1000, {-1000, -1000, now}},
           {"TIFF hides digitised", exif, {0, 0, 900, 500, 0}, -1000, {900, 0, now}},
           {"near both", exif, {0, none, 2, 0, 1}, -1000, {-998, -998, now}, {{mod, 3}}},
           {"equal to both", exif, {0, none, 0, 0, 0}, -1000, {held, -1000, now}, {{mod, 4}}}});
    // The file has no TIFF date to follow: 0 the last stamp, 1 stays, 2 now.
    check(Modified, noTiff,
          {{"digitised", exif, {0, 50, none, 5, 600}, -1000, {50, 600, now}},
           {"original", exif, {0, none, none, 5, 600}, -1000, {-1000, 600, now}}});
}

// 0 the new date, 1 now, 2 stays and follows what it was equal to, 3 same shift, others untouched.
TEST(NewDatesWithoutTags, FileModification) {
    constexpr auto key = &O::dateChangeNoEXIFFinderModDate;
    const Option off{&O::dateChangeNoEXIFFinderModDateUnchangedOption, 0};
    const auto modified = [](double date) { return Moments{none, none, none, 0, date}; };
    check(Modified, key,
          {{"not equal", noTags, modified(100), -1000, {-1000, now, 100, -900, held}},
           {"shown", noTags, modified(100), -1000, {-1000, future, 100, -900, held}, {}, Live},
           {"equal, 3 s", noTags, modified(3), -1000, {-1000, now, -1000, -997}},
           {"not equal, 4 s", noTags, modified(4), -1000, {-1000, now, 4, -996}},
           {"not before creation", noTags, modified(4), 1000, {1000, now, 1000, 1004}},
           {"never before it", noTags, modified(-100), -1000, {-1000, now, -100, -1000}},
           {"not to follow", noTags, modified(0), -1000, {-1000, now, 0, -1000}, {off}},
           {"out of order", noTags, modified(-50), -1000, {-1000, now, -1000}, {}, Save, true}});
    check(Created, key,
          {{"file date", noTags, modified(0), -1000, {-1000}},
           {"fixed date", SpTypeNoTagsFixedDate, modified(0), -1000, {-1000}},
           {"movie", SpTypeMovieFileDate, modified(0), -1000, {-1000}}});
}

// The stamp: 0 the new date in whole seconds, 1 now, 2 stays, 3 same shift, others untouched.
TEST(NewDatesByFileDate, Tiff) {
    constexpr auto key = &O::dateChangeNoEXIFButTIFFMetaModDate;
    const Moments old{none, none, 100, 0.75, 100}, early{none, none, -500, 0, 0};
    const double later = 2 * now + 0.75;
    check(Created, key, {{"new date", younger, old, -1000, {-999.25}}});
    check(Tiff, key,
          {{"back", younger, old, -1000, {-1000, now, 100, -900, held}},
           {"not before the file", younger, old, 1000, {1000, now, 1000.75, 1100}},
           {"in the future", younger, old, 2 * now, {2 * now, later, later, 2 * now + 100}},
           {"same shift has no bound", younger, early, -1000, {-1000, now, -500, -1500}},
           {"movie", SpTypeMovieMvhdYoungerThanFile, old, -1000, {-1000, now, 100, -900}}});
}

// 0 the stamp, 1 now, 2 stays and follows what it was equal to, others untouched.
TEST(NewDatesByFileDate, FileModification) {
    constexpr auto key = &O::dateChangeNoEXIFButTIFFFinderModDate;
    const Option off{&O::dateChangeNoEXIFButTIFFFinderModDateUnchangedOption, 0};
    const Option moveTiff{&O::dateChangeNoEXIFButTIFFMetaModDate, 3};
    const auto modified = [](double date) { return Moments{none, none, 100, 0, date}; };
    check(Modified, key,
          {{"equal to nothing", younger, modified(500), -1000, {100, now, 500, held}},
           {"not before the file", younger, modified(500), 1000, {1000, now, 1000}},
           {"equal to the main date", younger, modified(3), -1000, {100, now, -1000}},
           {"equal to a moved stamp", younger, modified(103), -1000, {-900, now, -900}, {moveTiff}},
           {"equal to one that stays", younger, modified(103), -1000, {100, now, 103}},
           {"near both", younger, {none, none, 2, 0, 1}, -1000, {2, now, 1}},
           {"not to follow", younger, modified(0), -1000, {100, now, 0}, {off}}});
}

} // namespace
} // namespace chronomender
