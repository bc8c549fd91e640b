// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine.h"
#include "ZoneChange.h"
#include "Zones.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace chronomender {

/// Something the user must put right; the code is the program's exit code.
struct Complaint {
    int exitCode = 2;
    std::string message;
};

/// An item of a folder and what is to be corrected of it.
struct PicPlan {
    std::string name;
    std::optional<absl::Duration> shift;
    ZoneWish zones;
};

/// A folder to open, made from one block, or from all plain files of that folder.
struct FolderPlan {
    std::string path;
    FolderBlock block;
    std::vector<std::string> names; ///< only these files; empty: the whole folder
    ZoneWish zones;
    std::vector<PicPlan> pics;
    PerFolderImportOptions importOptions;
};

struct FolderPlans {
    std::vector<FolderPlan> plans;
    std::vector<std::string> missing; ///< plain paths that do not exist
};

/// Looks at the disk to tell files from folders, and looks up the zones. Two blocks that name the
/// same directory, under whatever path, are a complaint, and so is an unknown zone.
std::variant<FolderPlans, Complaint> planFolders(const std::vector<FolderBlock> &blocks,
                                                 const Zones &zones);

/// The zone, or a complaint that names similar zones.
std::variant<Zone, Complaint> lookUpZone(const std::string &name, const Zones &zones);

} // namespace chronomender
