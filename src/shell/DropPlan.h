// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MyDroppedFolders.h"

#include <cstdint>
#include <string>
#include <vector>

namespace chronomender {

/// Why a dropped path becomes no part of the session.
enum class DropRefusal : std::uint8_t {
    NotFound,
    NoAccess,
    NotAMedium, ///< a file that no format answers for by its name
    GpsTrack,   ///< a GPX file: tracks are not read yet
};
/// Text key of a reason.
const char *textKey(DropRefusal refusal);

/// A folder to open, and which of its files.
struct DropJob {
    std::string path;
    std::vector<std::string> names; ///< in natural order; empty: the whole folder
};
struct RefusedPath {
    std::string path;
    DropRefusal refusal{};
};
struct DropPlan {
    std::vector<DropJob> jobs;
    std::vector<RefusedPath> refused;
};

/// What dropped paths mean: folders as a whole, and single files by the folder that they lie in.
/// A folder that is dropped makes its own files' jobs needless. Looks at the disk.
DropPlan planDrop(const std::vector<std::string> &paths);

} // namespace chronomender
