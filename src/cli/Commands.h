// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine.h"

namespace chronomender {

/// The program's exit codes, as `mend --help` tells them.
enum ExitCode : int {
    exitDone = 0,
    exitItemFailed = 1,
    exitUsage = 2,
    exitProblems = 3,
    exitInterrupted = 130,
};

/// The commands. Each answers the exit code; main thread, with the application object alive.
int runList(const CommandLine &line);
int runInfo(const CommandLine &line);
int runSave(const CommandLine &line);
int runAlign(const CommandLine &line);
int runDrag(const CommandLine &line);
int runRename(const CommandLine &line);
int runResume(const CommandLine &line);

} // namespace chronomender
