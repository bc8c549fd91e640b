// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine.h"

#include <string>
#include <string_view>
#include <variant>

namespace chronomender {

class FilterSourceController;
class UserDefaults;

/// The predicate of `--filter`, or what is wrong with it, for people: where, why, and the keys that
/// there are.
std::variant<Predicate, std::string> readFilter(const std::string &typed);

/// No filter that the user has switched on elsewhere; what the command line sets comes after.
void forgetStoredFilters(UserDefaults &defaults);
/// Filters by what the command line says, for this run.
void filterBy(const FilterWish &wish, FilterSourceController &filters, UserDefaults &defaults);

} // namespace chronomender
