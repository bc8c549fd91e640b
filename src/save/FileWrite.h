// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileLayer.h"
#include "PatchPlan.h"
#include "RunJournal.h"
#include "XtController.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

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
    /// The item as its file shows it now; none when only recorded values were overwritten.
    MySinglePicPtr readAgain = {};
};

/// One file and what is to become of it. Everything outlives the job.
struct PatchJob {
    const MySinglePic &pic; ///< what was recorded of the file; only read
    std::string path;
    const PatchPlan &plan; ///< without obstacle
    /// For a plan with a tool action: a copy of the item, filled from the file that the tool wrote.
    /// None when it does not hold what the plan says.
    std::function<MySinglePicPtr(OpenFile &)> readAgain = {};
};

/// One file on its way through a save: proved, written, dated, synced, all through one descriptor.
/// Where the external tool has something to add it runs behind the values; its renaming is then
/// what commits the file, as what it does cannot be taken back. Each step may follow only when the
/// one before answered true. When a step fails, what was written goes back, each value proved
/// first; the file then holds its old values, or the outcome says that it does not. Different files
/// may be written side by side.
class FileWrite {
public:
    FileWrite(PatchJob job, FileLayer &files);

    /// Opens and locks the file and finds out everything that can be known before the first write:
    /// it is the file that was read, each byte to be overwritten is what it was, its date can be
    /// set.
    bool prove();
    /// What the steps behind this will do, for the journal.
    FileIntent intent() const;
    /// There is something to write.
    bool hasWork() const { return !m_job.plan.isEmpty(); }
    bool needsTool() const { return m_job.plan.toolAction.has_value(); }

    /// Proves the file once more, since others were proved in between, and overwrites the values.
    bool write();
    /// Asks for what the tool is to add; only behind `write`, and answered by `takeToolAnswer`.
    void sendTo(XtController &tool) const;
    /// From here on the file is the one that the tool wrote, read and found to be as planned; else
    /// what was written goes back.
    bool takeToolAnswer(const ToolOutcome &answer);
    /// Sets the modification date and takes the file's attributes again.
    bool finish();
    /// Waits until the file is on disk.
    bool sync();
    /// Waits until the whole file system is; false leaves the outcome alone.
    bool syncFileSystem() { return m_file->syncFileSystem(); }
    /// Where what was written stands; none when nothing was.
    std::optional<std::uint64_t> writtenDevice() const;

    /// After the other half of a group failed: nothing of this one stays written.
    void followFailureOf(const FileWrite &other);
    /// Nothing may be written to it, for a reason from outside.
    void refuse(SaveErrorId id, std::string systemText);
    /// Values of ours stand in it that could not go back.
    bool isLeftHalfWritten() const { return m_isLeftHalfWritten; }

    /// Closes the file, which gives up its lock.
    void close() { m_file.reset(); }
    const PatchOutcome &outcome() const { return m_outcome; }

private:
    bool fail(SaveErrorId id, FileUnchangedState state, std::string systemText = {});
    bool open();
    bool takeLock();
    bool isAtItsPath();
    bool planChecksums();
    std::optional<SaveErrorId> sidecarProblem(std::string &systemText) const;
    bool openReplacement();
    bool putOriginalBack();
    bool takeBack(SaveErrorId id, std::string systemText);

    PatchJob m_job;
    FileLayer *m_files;
    std::unique_ptr<OpenFile> m_file;
    FileAttributes m_proved;        ///< of the file before the first write
    std::vector<Patch> m_checksums; ///< behind the plan's patches
    std::size_t m_begun = 0;        ///< patches and checksums whose writing was begun
    bool m_isLeftHalfWritten = false;
    bool m_isReplaced = false; ///< the open file is the one that the tool wrote
    PatchOutcome m_outcome;
};

} // namespace chronomender
