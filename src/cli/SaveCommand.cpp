// SPDX-License-Identifier: GPL-3.0-or-later
#include "Commands.h"
#include "RenameSetup.h"
#include "SaveRun.h"

namespace chronomender {

int runSave(const CommandLine &line) {
    return runAndSave(line, [](MendSession &session) {
        return session.line().rename.isWanted ? settleRename(session) : std::nullopt;
    });
}

} // namespace chronomender
