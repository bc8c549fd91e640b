// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace chronomender {

/// A saved filter.
struct FilterTemplate {
    std::string key; ///< orders the templates; unique
    std::string name, predicate;

    bool operator==(const FilterTemplate &) const = default;
};

/// The templates as a menu shows them, sorted by name. Each has a name of its own: by their keys,
/// one without a name gets one, and of equal names all but the first get a number, as "Trip (2)".
/// Templates with a row about the rating are left out where the rating filter stands apart.
std::vector<FilterTemplate> templatesForMenu(std::vector<FilterTemplate> all,
                                             bool areFiltersCombined);

} // namespace chronomender
