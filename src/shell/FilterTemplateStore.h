// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FilterTemplates.h"
#include "UserDefaults.h"

#include <string>
#include <vector>

namespace chronomender {

class FilterSourceController;

/// The user's templates, kept under "filterTemplates". What cannot be read there is left out.
std::vector<FilterTemplate> storedFilterTemplates(const UserDefaults &defaults);
UserDefaults::Outcome storeFilterTemplates(const std::vector<FilterTemplate> &templates,
                                           UserDefaults &defaults);

// Changes of the list of a session, which are stored at once. Templates are known by the names of
// their menu, see templatesForMenu.

/// Null for a name that none has.
const FilterTemplate *filterTemplateNamed(const std::string &name,
                                          const std::vector<FilterTemplate> &menu);
/// Keeps a predicate under a name, in place of what had that name. ValueNotAllowed, and nothing is
/// changed, for a text that is too long to be read again.
UserDefaults::Outcome keepFilterTemplate(const std::string &name, const std::string &predicate,
                                         FilterSourceController &filters, UserDefaults &defaults);
UserDefaults::Outcome renameFilterTemplate(const std::string &key, const std::string &name,
                                           FilterSourceController &filters, UserDefaults &defaults);
UserDefaults::Outcome removeFilterTemplate(const std::string &key, FilterSourceController &filters,
                                           UserDefaults &defaults);

} // namespace chronomender
