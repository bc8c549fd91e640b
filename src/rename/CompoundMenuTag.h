// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "UserDefaults.h"

#include <string_view>

namespace chronomender {

/// A menu with an entry that shows only while folders are selected together, the compound entry.
/// Its tag is 3, kept as 1 and a preference beside it.
struct CompoundMenu {
    std::string_view key, alternativeKey;
};
inline constexpr CompoundMenu counterTypeMenu{"counterType",
                                              "counterType_prefersCompoundAltOption"};
inline constexpr CompoundMenu renameAtSaveMenu{"renameAtSave",
                                               "renameAtSave_prefersCompoundAltOption"};

/// The entry that is chosen.
struct CompoundMenuTag {
    static constexpr int compoundAlternative = 3;
    int tag = 0;

    bool isCompoundAlternative() const { return tag == compoundAlternative; }
    int integer() const { return isCompoundAlternative() ? 1 : tag; } ///< as it is kept
};

CompoundMenuTag menuTag(const CompoundMenu &menu, const UserDefaults &defaults);
/// Chooses an entry. While the compound entry does not show, it stays the user's wish for the time
/// when it does.
void chooseMenuTag(const CompoundMenu &menu, CompoundMenuTag chosen, bool isCompoundEntryVisible,
                   UserDefaults &defaults);

} // namespace chronomender
