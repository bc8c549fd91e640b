// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDates.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using O = DateChangeOptions;

#define KEY(name) std::pair(#name, &O::name)
const std::pair<const char *, int O::*> keys[] = {
    KEY(dateChangeEXIFEXIFDigiDate),
    KEY(dateChangeEXIFEXIFDigiDateUnchangedOption),
    KEY(dateChangeEXIFEXIFModDate),
    KEY(dateChangeEXIFEXIFModDateUnchangedOption),
    KEY(dateChangeEXIFChangeFinderWhenChangingEXIF),
    KEY(dateChangeEXIFFinderCreaDate2),
    KEY(dateChangeEXIFFinderModDate),
    KEY(dateChangeEXIFFinderModDateUnchangedOption),
    KEY(dateChangeEXIFFinderModDateEXIFModDateOptions),
    KEY(dateChangeEXIFFinderModDateEXIFModDateUnchangedOption),
    KEY(dateChangeNoEXIFFinderModDate),
    KEY(dateChangeNoEXIFFinderModDateUnchangedOption),
    KEY(dateChangeNoEXIFButTIFFMetaModDate),
    KEY(dateChangeNoEXIFButTIFFFinderModDate),
    KEY(dateChangeNoEXIFButTIFFFinderModDateUnchangedOption),
};
#undef KEY

TEST(DateChangeOptions, EachKeyReachesItsOwnFieldAndIsRegisteredAsTheRulesStart) {
    const UserDefaults registered;
    for (const auto &[changedKey, changedField] : keys) {
        UserDefaults defaults;
        const int other = registered.integerForKey(changedKey) == 0 ? 1 : 0;
        ASSERT_EQ(defaults.setForThisRun(changedKey, std::to_string(other)),
                  UserDefaults::Outcome::Done);
        const O options = cachedSaveOptions(defaults, absl::UnixEpoch(), true);
        EXPECT_EQ(options.nowDate, absl::UnixEpoch());
        EXPECT_TRUE(options.isSavingPhotosWithoutDateChangesEnabled);
        for (const auto &[key, field] : keys) {
            EXPECT_EQ(O().*field, registered.integerForKey(key)) << key;
            EXPECT_EQ(options.*field, key == changedKey ? other : O().*field)
                << key << " after " << changedKey;
        }
    }
}

} // namespace
} // namespace chronomender
