// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MendSession.h"

#include <optional>

namespace chronomender {

/// Tells the controller how the session's files are to be named. A template that is not there, or
/// makes one name only, is a complaint; one whose names may be equal is told.
std::optional<Complaint> settleRename(MendSession &session);

/// Prints the user's templates: number, text form, and a name as it would make it. The exit code.
int listTemplates(const CommandLine &line);

} // namespace chronomender
