// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace chronomender::bench {

struct BuiltNames {
    std::chrono::duration<double> time{};
    std::size_t count = 0; ///< 0 when a name was wrong
};

/// Names of 10,000 items from a template with date, folder, source name, counter and text, each
/// from what the item says now: dates of several years in two zones, shifted clocks, names in ASCII
/// and not, extensions in both cases. They stand in memory, in a folder that is really there, whose
/// name is asked of the system as by a run: once.
BuiltNames buildNames(const std::string &folder);

} // namespace chronomender::bench
