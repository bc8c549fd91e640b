// SPDX-License-Identifier: GPL-3.0-or-later
#include "Commands.h"
#include "SaveRun.h"

namespace chronomender {

int runSave(const CommandLine &line) {
    MendSession session(line);
    if (const auto code = session.open({BadPath::Stop, CompletionScope::None}))
        return *code;
    return saveSession(session);
}

} // namespace chronomender
