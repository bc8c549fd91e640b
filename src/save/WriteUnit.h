// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileWrite.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

namespace chronomender {

/// Files that are written together or not at all: an item's, or the two of a group with the
/// dependent first. Its steps are those of a file; each does nothing for a unit that failed.
class WriteUnit {
public:
    WriteUnit(std::vector<PatchJob> jobs, FileLayer &files);

    /// All files are proved before the first write. A group's master, which leads, speaks first.
    void prove();
    void write();
    /// Asks the tool for what it is to add to the unit's next file; false when there is none, or
    /// the unit has failed. One at a time: what the tool did to one file stays, should it fail with
    /// the other.
    bool sendTo(XtController &tool);
    void takeToolAnswer(const ToolOutcome &answer);
    void finish();
    void sync();
    /// Adds one written file of each device that is not among them yet.
    void addWrittenDevices(std::map<std::uint64_t, FileWrite *> &files);
    void refuse(SaveErrorId id, const std::string &systemText);
    void close();

    UnitIntent intent() const;
    bool hasFailed() const;
    bool hasWork() const;
    bool needsTool() const;
    bool isLeftHalfWritten() const;

    std::size_t fileCount() const { return m_files.size(); }
    const PatchOutcome &outcome(std::size_t file) const { return m_files[file].outcome(); }

private:
    void doForEach(bool (FileWrite::*step)());
    void followFailureOf(const FileWrite &failed);

    std::vector<FileWrite> m_files;
    std::size_t m_withTool = 0; ///< files in front that were sent to the tool, or need it not
};

} // namespace chronomender
