// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameRun.h"

namespace chronomender {

void RenameRun::run(const SaveRequest &, const PreProcessResult &, SaveRunResult &) {}

std::vector<ItemRename> RenameRun::renamePreview(const SaveRequest &) {
    return {};
}

} // namespace chronomender
