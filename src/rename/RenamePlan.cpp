// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenamePlan.h"

#include <algorithm>

namespace chronomender {

bool ItemMoves::isMoving() const {
    return !isRefused && std::ranges::any_of(files, [](const FileMove &file) {
        return file.oldName != file.finalName;
    });
}

RenamePlan planRename(const RenameScope &, const RenameChoices &, const RenameServices &) {
    return {};
}

std::vector<ItemRename> outcomesOf(const RenamePlan &) {
    return {};
}

} // namespace chronomender
