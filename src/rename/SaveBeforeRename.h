// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RenameSheetItems.h"

#include <optional>
#include <string>

namespace chronomender {

// Names are made of corrected dates: a rename waits for changes that are not saved. For the
// requests of a rename; main thread.

/// What the user is asked before; none where nothing waits for a save.
std::optional<std::string> confirmSaveBeforeRename(RenameSheetRequest request,
                                                   const RenameSheetViews &views);
/// The user agreed: the save renames, and its sheet is opened in place of the other.
RenameSheetRequest saveInPlaceOfRename(RenameSheetRequest request, const RenameSheetViews &views,
                                       UserDefaults &defaults);

} // namespace chronomender
