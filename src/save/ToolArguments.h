// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ToolAction.h"

#include <optional>
#include <string>

namespace chronomender {

/// One action as the lines that the tool's argument file takes for it, "-execute" the last. None
/// when they cannot be said: a line of the action would be two, or the path has no form that the
/// tool reads as exactly this path.
///
/// A path stands alone on its line, byte by byte. One that begins or ends with a blank, begins with
/// "#" or "-", or holds a line feed is escaped behind "#[CSTR]".
std::optional<std::string> argumentLines(const ToolAction &action, const std::string &path,
                                         bool isPng);

} // namespace chronomender
