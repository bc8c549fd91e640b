// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "UserDefaults.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace chronomender {

// Changes to a text before it becomes part of a name. Characters are what a person takes for one:
// a letter with its accents, an emoji with its modifiers. All texts are UTF-8.

/// Which end of the text is meant: 0 the front, every other number the end.
struct CharCount {
    bool isEnabled = false;
    int type = 0; ///< 0 removes so many characters, every other number keeps so many
    int direction = 0;
    int value = 1; ///< how many
};
struct UpToString {
    bool isEnabled = false;
    int type = 0;       ///< 0 removes what lies before the occurrence, else keeps only that
    int direction = 0;  ///< with the end: what lies behind it
    int value = 1;      ///< the n-th occurrence
    std::string value2; ///< of this text, taken literally
};
struct ReplaceWith {
    bool isEnabled = false;
    int direction = 0;
    std::string value, value2; ///< what is searched for, equivalent forms too; what replaces it
    int value3 = 0;            ///< the n-th occurrence; 0: all
};
struct ChangeCase {
    bool isEnabled = false;
    int value = 0; ///< 0 capitalised words, 1 lower case, 2 upper case
};
using TextModification = std::variant<CharCount, UpToString, ReplaceWith, ChangeCase>;
/// Applied in this order; a kind may stand several times.
using TextModifications = std::vector<TextModification>;

/// One change; a row that is not enabled changes nothing.
std::string modifiedStringFromString(const std::string &text, const TextModification &row);
/// All rows, one after the other. An empty text stays empty.
std::string modifiedStringFromString(const std::string &text, const TextModifications &rows);

/// Some row is enabled.
bool changesAnything(const TextModifications &rows);

/// Rows under a name, to be chosen again.
struct TextModificationTemplate {
    int key = 0;
    std::string name;
    TextModifications rows;
};

/// Which text is modified; the numbers are those of stored preferences.
enum class ModificationTag : int { Folder = 1, File = 2 };

/// One row of each kind, as new.
const TextModifications &factoryModifications();
/// The rows of "modAtRenameSettings_…_7": rows, or a stored template by its key. What cannot be
/// read gives the factory rows.
TextModifications modificationsForTag(ModificationTag tag, const UserDefaults &defaults);
UserDefaults::Outcome storeModifications(ModificationTag tag, const TextModifications &rows,
                                         UserDefaults &defaults);
UserDefaults::Outcome chooseModificationTemplate(ModificationTag tag, int key,
                                                 UserDefaults &defaults);
/// Those of "textModTemplates_7", in order of their keys.
std::vector<TextModificationTemplate> textModTemplates(const UserDefaults &defaults);
UserDefaults::Outcome storeTextModTemplates(std::vector<TextModificationTemplate> templates,
                                            UserDefaults &defaults);

} // namespace chronomender
