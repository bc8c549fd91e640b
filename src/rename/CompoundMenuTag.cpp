// SPDX-License-Identifier: GPL-3.0-or-later
#include "CompoundMenuTag.h"

#include <string>

namespace chronomender {

CompoundMenuTag menuTag(const CompoundMenu &menu, const UserDefaults &defaults) {
    const int integer = defaults.integerForKey(menu.key);
    const bool isAlternative = integer == 1 && defaults.boolForKey(menu.alternativeKey);
    return {isAlternative ? CompoundMenuTag::compoundAlternative : integer};
}

void chooseMenuTag(const CompoundMenu &menu, CompoundMenuTag chosen, bool isCompoundEntryVisible,
                   UserDefaults &defaults) {
    defaults.set(menu.key, std::to_string(chosen.integer()));
    if (chosen.isCompoundAlternative())
        defaults.set(menu.alternativeKey, "1");
    else if (isCompoundEntryVisible)
        defaults.set(menu.alternativeKey, "0");
}

} // namespace chronomender
