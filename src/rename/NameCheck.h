// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string_view>

namespace chronomender {

/// Why a file shall not get a name: the key of a text, for example "nameCheck_tooLong"; "" for a
/// good name. `mostBytes` is what the folder's file system takes. Signs that turn the direction of
/// writing are good in a name that the file has already, `presentName`. Names that another system
/// could not read from the same card are refused as well: those of its devices, and a dot or a
/// blank at the end. Any thread.
std::string_view nameProblem(std::string_view name, std::string_view presentName,
                             std::size_t mostBytes);

} // namespace chronomender
