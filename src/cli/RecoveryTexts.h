// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RunJournal.h"

#include <string>
#include <string_view>

namespace chronomender {

/// What became of a file, for programs: such as "takenBack".
std::string_view resultName(RecoveredFile::Result result);
/// One line for people: the file, what became of it, and the system's words where it refused.
std::string recoveryText(const RecoveredFile &file);

} // namespace chronomender
