// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleItem.h"
#include "NewDates.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using O = DateChangeOptions;

struct Row {
    const char *key;
    int O::*field;
    int registered;
    const char *other;
};

#define ROW(name, registered, other)                                                               \
    Row {                                                                                          \
#name, &O::name, registered, other                                                         \
    }
const Row rows[] = {
    ROW(dateChangeEXIFEXIFDigiDate, 1, "3"),
    ROW(dateChangeEXIFEXIFDigiDateUnchangedOption, 1, "0"),
    ROW(dateChangeEXIFEXIFModDate, 1, "2"),
    ROW(dateChangeEXIFEXIFModDateUnchangedOption, 1, "0"),
    ROW(dateChangeEXIFChangeFinderWhenChangingEXIF, 1, "0"),
    ROW(dateChangeEXIFFinderCreaDate2, 0, "2"),
    ROW(dateChangeEXIFFinderModDate, 0, "2"),
    ROW(dateChangeEXIFFinderModDateUnchangedOption, 1, "0"),
    ROW(dateChangeEXIFFinderModDateEXIFModDateOptions, 1, "0"),
    ROW(dateChangeEXIFFinderModDateEXIFModDateUnchangedOption, 1, "0"),
    ROW(dateChangeNoEXIFFinderModDate, 2, "3"),
    ROW(dateChangeNoEXIFFinderModDateUnchangedOption, 1, "0"),
    ROW(dateChangeNoEXIFButTIFFMetaModDate, 2, "3"),
    ROW(dateChangeNoEXIFButTIFFFinderModDate, 2, "0"),
    ROW(dateChangeNoEXIFButTIFFFinderModDateUnchangedOption, 1, "0"),
};
#undef ROW

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
