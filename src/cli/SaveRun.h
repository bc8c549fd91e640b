// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MendSession.h"

namespace chronomender {

/// Saves all that an opened session has to save, or only says what a save would do (`isDryRun` of
/// its command line), and reports. Problems need the consent that the command line gives. The
/// exit code; main thread.
int saveSession(MendSession &session);

} // namespace chronomender
