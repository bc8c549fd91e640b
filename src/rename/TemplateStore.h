// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RenameTemplate.h"
#include "UserDefaults.h"

#include <cstddef>
#include <vector>

namespace chronomender {

/// The templates that the program comes with, in order.
const std::vector<RenameTemplate> &factoryTemplates();

// The user's templates, kept under "renameTemplates_7". What cannot be read there counts as not
// kept, and then the factory's are the user's.

std::vector<RenameTemplate> renameTemplatesRaw(const UserDefaults &defaults);
UserDefaults::Outcome storeRenameTemplates(const std::vector<RenameTemplate> &templates,
                                           UserDefaults &defaults);
/// The template at "templateSelectedIndex"; none beyond the end of the list.
std::optional<RenameTemplate> selectedTemplate(const UserDefaults &defaults);

} // namespace chronomender
