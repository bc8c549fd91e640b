// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileLayer.h"
#include "PatchPlan.h"

#include <optional>
#include <string>

namespace chronomender {

/// What a sync of one item's XMP dates does to the file that holds them.
struct XmpSyncPlan {
    /// Stands for that file in the proof: the item with the packet's values as they were just read,
    /// or, for a sidecar, nothing but these.
    MySinglePicPtr recorded;
    std::string path;
    bool isSidecar = false;
    PatchPlan plan; ///< empty: the packet tells the right dates, or there is none
};
struct XmpSyncProblem {
    SaveErrorId id{};
    std::string path, systemText;
};

/// The item's dates are in its file's own tags, and no save of it failed.
bool shouldSyncXmpChangesForPic(const MySinglePic &pic);

/// Reads the packet of the item's sidecar, or without one that of its file, and plans its stamps. A
/// stamp that cannot tell its date is left as it is. Reads only; the item is only read. `problem`
/// says why the file could not be read.
std::optional<XmpSyncPlan> planXmpSync(const MySinglePic &pic, const PlanContext &context,
                                       FileLayer &files, std::optional<XmpSyncProblem> &problem);

} // namespace chronomender
