// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NameBuilder.h"
#include "UserDefaults.h"

#include <cstddef>
#include <string>
#include <vector>

namespace chronomender {

struct TemplateMenuEntry {
    std::string name;          ///< unique; empty for the first entry
    StyledName aName;          ///< the title as shown
    std::size_t tempIndex = 0; ///< place in the list of templates
};

/// Which of a sheet's fields the template makes use of.
struct TemplateSheetFlags {
    bool isCounterAvailable = false, isFolderNameAvailable = false, isFileNameAvailable = false;
    bool isANameAvailable = false; ///< of folder or file
    /// At most one holds: the template places so many add-ons.
    bool isAdditionalTextAvailable = false, is2AdditionalTextAvailable = false,
         is3AdditionalTextAvailable = false;
};
TemplateSheetFlags sheetFlagsOf(const RenameTemplate &renameTemplate);

/// The templates by the names that they give, in natural order, behind an entry that carries the
/// title of the closed menu: that of the selected template. Keeps in the preferences at which place
/// of the menu the selected one stands, 0 for none.
std::vector<TemplateMenuEntry> updateTemplatePopup(UserDefaults &defaults, const Zones &zones);
/// Selects the template of an entry, and tells what the sheet shows for the one selected now. The
/// first entry, and one beyond the menu, change nothing.
TemplateSheetFlags templateSelected(const std::vector<TemplateMenuEntry> &menu, std::size_t place,
                                    UserDefaults &defaults);

} // namespace chronomender
