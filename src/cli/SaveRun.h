// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MendSession.h"

#include <optional>

namespace chronomender {

/// What a command does to an opened session before it is saved; its complaint ends the run.
using SessionChange = std::optional<Complaint> (*)(MendSession &session);

/// Opens the session of a command line, changes it (unless the user interrupted the import), and
/// saves all that it then has to save, or only says what a save would do (`isDryRun`), and reports.
/// Problems need the consent that the command line gives. The exit code; main thread.
int runAndSave(const CommandLine &line, SessionChange change);

} // namespace chronomender
