// SPDX-License-Identifier: GPL-3.0-or-later
#include "Commands.h"
#include "SaveRun.h"

namespace chronomender {

int runSave(const CommandLine &line) {
    return runAndSave(line, [](MendSession &) { return std::optional<Complaint>(); });
}

} // namespace chronomender
