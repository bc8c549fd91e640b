// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleItem.h"
#include "NewDates.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using O = DateChangeOptions;

const struct {
    const char *key;
    int O::*field;
    int registered;
    const char *other;
} rows[] = {
    {"dateChangeEXIFEXIFDigiDate", &O::dateChangeEXIFEXIFDigiDate, 1, "3"},
    {"dateChangeEXIFEXIFDigiDateUnchangedOption", &O::dateChangeEXIFEXIFDigiDateUnchangedOption, 1,
     "0"},
    {"dateChangeEXIFEXIFModDate", &O::dateChangeEXIFEXIFModDate, 1, "2"},
    {"dateChangeEXIFEXIFModDateUnchangedOption", &O::dateChangeEXIFEXIFModDateUnchangedOption, 1,
     "0"},
    {"dateChangeEXIFChangeFinderWhenChangingEXIF", &O::dateChangeEXIFChangeFinderWhenChangingEXIF,
     1, "0"},
    {"dateChangeEXIFFinderCreaDate2", &O::dateChangeEXIFFinderCreaDate2, 0, "2"},
    {"dateChangeEXIFFinderModDate", &O::dateChangeEXIFFinderModDate, 0, "2"},
    {"dateChangeEXIFFinderModDateUnchangedOption", &O::dateChangeEXIFFinderModDateUnchangedOption,
     1, "0"},
    {"dateChangeEXIFFinderModDateEXIFModDateOptions",
     &O::dateChangeEXIFFinderModDateEXIFModDateOptions, 1, "0"},
    {"dateChangeEXIFFinderModDateEXIFModDateUnchangedOption",
     &O::dateChangeEXIFFinderModDateEXIFModDateUnchangedOption, 1, "0"},
    {"dateChangeNoEXIFFinderModDate", &O::dateChangeNoEXIFFinderModDate, 2, "3"},
    {"dateChangeNoEXIFFinderModDateUnchangedOption",
     &O::dateChangeNoEXIFFinderModDateUnchangedOption, 1, "0"},
    {"dateChangeNoEXIFButTIFFMetaModDate", &O::dateChangeNoEXIFButTIFFMetaModDate, 2, "3"},
    {"dateChangeNoEXIFButTIFFFinderModDate", &O::dateChangeNoEXIFButTIFFFinderModDate, 2, "0"},
    {"dateChangeNoEXIFButTIFFFinderModDateUnchangedOption",
     &O::dateChangeNoEXIFButTIFFFinderModDateUnchangedOption, 1, "0"},
};

TEST(DateChangeOptions, EachKeyReachesItsOwnField) {
    const Date now = little::utc(2024, 6, 1);
    for (const auto &changed : rows) {
        UserDefaults defaults;
        ASSERT_EQ(defaults.setForThisRun(changed.key, changed.other), UserDefaults::Outcome::Done)
            << changed.key;
        const O options = cachedSaveOptions(defaults, now, true);
        EXPECT_EQ(options.nowDate, now);
        EXPECT_TRUE(options.isSavingPhotosWithoutDateChangesEnabled);
        for (const auto &row : rows) {
            const int expected = row.key == changed.key ? *changed.other - '0' : row.registered;
            EXPECT_EQ(options.*row.field, expected) << row.key << " after " << changed.key;
            EXPECT_EQ(O().*row.field, row.registered) << row.key;
        }
    }
}

} // namespace
} // namespace chronomender
