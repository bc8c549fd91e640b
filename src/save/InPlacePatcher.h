// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileLayer.h"
#include "PatchPlan.h"

#include <optional>
#include <string>

namespace chronomender {

/// What became of one file.
struct PatchOutcome {
    std::optional<SaveErrorId> error;
    std::string systemText; ///< the system's own words where it refused something; else ""
    FileUnchangedState state = FileUnchangedState::Unchanged; ///< the proof's answer
    /// As they are after the last write of ours; none when nothing was written.
    std::optional<FileAttributes> attributes;
    bool isWritten = false;     ///< the plan is carried out
    bool isOfOtherHalf = false; ///< the error is that of the group's other file
};

/// One file and what is to become of it. Everything outlives the job.
struct PatchJob {
    const MySinglePic &pic;
    std::string path;
    const PatchPlan &plan; ///< without obstacle
};

/// Carries out a plan: opens the file, proves that it is the file that was read, overwrites the
/// values, sets the modification date and takes the file's attributes again, all through one
/// descriptor. When the system refuses a write in the middle, what was written goes back, each
/// value proved first; the file then holds its old values, or the error says that it does not. The
/// item is only read. Safe side by side for different files.
PatchOutcome patchFile(const PatchJob &job, FileLayer &files);

/// The two files of a group: both are written or none. Both are proved before the first write, the
/// dependent is written first, and goes back when the master cannot be written.
struct PairOutcome {
    PatchOutcome dependent, master;
};
PairOutcome patchPair(const PatchJob &dependent, const PatchJob &master, FileLayer &files);

} // namespace chronomender
