// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <set>
#include <string>

namespace chronomender {

/// The name, or if it is taken the first free one of "name (2)", "name (3)"…
inline std::string freeName(const std::string &wanted, const std::set<std::string> &taken) {
    std::string name = wanted;
    for (int number = 2; taken.contains(name); ++number)
        name = wanted + " (" + std::to_string(number) + ')';
    return name;
}

} // namespace chronomender
