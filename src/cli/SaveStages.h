// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MendSession.h"

#include <vector>

namespace chronomender {

// The stages of a save or a rename, waited for with a bar of their progress. Main thread.

PreProcessResult preProcess(MendSession &session, const SaveRequest &request);
SaveRunResult continueProcess(MendSession &session, const SaveRequest &request,
                              const PreProcessResult &preProcess);
/// What the rename of the request would do; nothing is moved.
std::vector<ItemRename> renamePreview(MendSession &session, const SaveRequest &request);

} // namespace chronomender
