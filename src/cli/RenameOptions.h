// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine.h"
#include "OptionTable.h"

#include <optional>
#include <set>
#include <string>

namespace chronomender {

// The options that say how files are to be named. Most set a preference for the run.

struct RenameOption {
    OptionId id;
    /// What is wrong with the value; none when it was taken.
    std::optional<std::string> (*take)(CommandLine &line, const std::string &value);
};
/// Null for an option of something else.
const RenameOption *renameOption(OptionId id);

/// What is wrong with the options together; none when nothing is.
std::optional<std::string> checkRename(const CommandLine &line, const std::set<OptionId> &taken);

} // namespace chronomender
