// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "UserDefaults.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

enum class PreferencePage : std::uint8_t { Dates, Import, Names, Saving, Appearance };
/// In the order of the pages, with the text keys of their titles.
struct PreferencePageTitle {
    PreferencePage page;
    const char *titleKey;
};
std::span<const PreferencePageTitle> preferencePages();

enum class PreferenceKind : std::uint8_t {
    Switch, ///< 0 or 1
    Choice, ///< one of some numbers
    Number, ///< within the bounds of its default entry
    Tool,   ///< where ExifTool is
    Colors, ///< "#rrggbb" values parted by blanks
};

struct PreferenceChoice {
    int value;
    const char *textKey;
};

/// One preference as a sheet shows it.
struct Preference {
    const char *key;
    const char *textKey;
    PreferencePage page;
    PreferenceKind kind;
    std::span<const PreferenceChoice> choices = {}; ///< of the kind Choice
    const char *groupKey = nullptr;                 ///< a heading above it; null: none
    /// It counts only while another one, above it, has a value; null: always.
    const char *onlyWhenKey = nullptr;
    int onlyWhenValue = 0;
};
/// All that the preferences sheet offers, page by page.
std::span<const Preference> preferenceTable();
/// The entry of a key that the table holds.
const Preference &preferenceWithKey(std::string_view key);

/// It has an effect now, by the other preferences.
bool isInEffect(const Preference &preference, const UserDefaults &defaults);
/// It differs from what the program comes with.
bool isChanged(const Preference &preference, const UserDefaults &defaults);
UserDefaults::Outcome resetToDefault(const Preference &preference, UserDefaults &defaults);

/// The values of a preference of the kind Colors, each "#rrggbb"; what is no such value is left
/// out.
std::vector<std::string> colorValues(const std::string &stored);
std::string storedColors(const std::vector<std::string> &values);

} // namespace chronomender
