// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RunJournal.h"

#include <string>
#include <string_view>

namespace chronomender {

/// What became of a file, for programs: such as "takenBack".
std::string_view resultName(RecoveredFile::Result result);
/// It was to be renamed, and does not stand where it stood before the run.
bool hasOtherPath(const RecoveredFile &file);
/// One line for people: the file (where it stood and where it stands), what became of it, and the
/// system's words where it refused.
std::string recoveryText(const RecoveredFile &file);

} // namespace chronomender
