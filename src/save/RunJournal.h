// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileLayer.h"
#include "Patch.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

class JournalFile;

/// What is about to be done to one file.
struct FileIntent {
    std::string path;
    FileAttributes before; ///< as proved; the file's identity and size, and its modification date
    std::vector<Patch> patches;
    OptionalDate modificationDate; ///< set behind the last value; none: left to the system
    /// Where the external tool writes its copy before that takes the file's place, as the last
    /// step;
    /// "" when the tool has nothing to do. Nothing stood there before.
    std::string toolCopy;
};
/// A file that is about to be renamed inside its folder, by way of a name that nobody else has.
struct MoveIntent {
    std::string folder;
    std::string oldName, temporaryName, finalName;
    FileAttributes before; ///< its identity, size and modification date
};
/// What is done together or not at all: the files of an item, or the two of a group, that are
/// written; or an item's files that are renamed.
struct UnitIntent {
    std::vector<FileIntent> files;
    std::vector<MoveIntent> moves = {};
};

/// What became of one file of an interrupted run.
struct RecoveredFile {
    enum class Result : std::uint8_t {
        Nothing,     ///< it was as before, or done; nothing was written
        Completed,   ///< it holds the new values now, or has its new name
        TakenBack,   ///< it holds the old values again, or has its old name
        Changed,     ///< somebody else has changed or moved it since: left alone, and forgotten
        Unreachable, ///< not there now; tried again at the next start
        InUse,       ///< another program holds it; likewise
        WriteFailed, ///< the system refused a write; likewise
    };
    std::string path; ///< where it stands now, as far as is known
    Result result = Result::Nothing;
    std::string systemText; ///< the system's own words where it refused something; else ""
    /// Of a file that was to be renamed, where it stood before the run; "" for one that was
    /// written.
    std::string oldPath = {};

    bool isRenamed() const { return !oldPath.empty(); }
};
/// Which way a recovery brings what was begun: to its end, where that is possible, or back.
enum class RecoveryDirection : bool { Finish, TakeBack };

/// The file is not put right, and stays recorded for the next time.
bool isLeft(RecoveredFile::Result result);
/// Text key of what became of a file, for example "recovery_completed"; its text follows the path
/// and a colon.
std::string_view textKey(const RecoveredFile &file);

/// The record of what a run is about to write, so that a run that was killed can be put right:
/// after `recover` each file is entirely old or entirely new.
///
/// One file for each running program in the folder `journal` of the support folder, locked while
/// the program lives. One batch of units at a time; made, used and destroyed on one thread.
/// `recover` may be called by any program at any time: it passes over the records of programs that
/// live.
///
///     RunJournal journal(supportFolder());
///     if (journal.begin(intents, &error)) { write and sync all files; journal.settle(); }
class RunJournal {
public:
    /// Unsynced survives the death of the program, and not that of the system.
    enum class Durability : bool { Unsynced, Synced };
    explicit RunJournal(std::string supportFolder, Durability durability = Durability::Synced);
    /// Removes its file unless units stay recorded.
    ~RunJournal();
    RunJournal(const RunJournal &) = delete;
    RunJournal &operator=(const RunJournal &) = delete;

    Durability durability() const { return m_durability; }

    /// Records the batch in the place of the last one, or behind it when that was never settled.
    /// When it answers true the record is on disk; false: nothing may be written.
    /// EINVAL: a name reaches outside its folder.
    bool begin(std::span<const UnitIntent> units, FileError *error = nullptr);
    /// Adds units to the batch in hand, before or after its first write. A file that is to be moved
    /// otherwise than recorded before is recorded again, and the last record of it holds.
    bool extend(std::span<const UnitIntent> units, FileError *error = nullptr);
    /// The batch is written and its files are safe, but for the units with these indices: they stay
    /// recorded for `recover`. A file that an earlier
    /// batch has left on its way, and this one has moved from there, is recorded no more.
    void settle(std::span<const std::size_t> unsettled = {});

    /// Puts right what interrupted runs left: a unit of which any value is new is completed, unless
    /// the tool had still to run, then it is taken back. Every value is proved to be old, new or
    /// torn between the two first. Files that were to be renamed are brought to their new names,
    /// all of an item together; where somebody else has taken one, to their old names or to a
    /// number. With TakeBack all goes back to where it was, but for what the tool has done. Tells
    /// of every file that was recorded and not settled.
    static std::vector<RecoveredFile>
    recover(const std::string &supportFolder, FileLayer &files,
            RecoveryDirection direction = RecoveryDirection::Finish);
    /// A run was interrupted and is not put right yet. Cheap.
    static bool hasUnfinished(const std::string &supportFolder);
    /// Drops records that `recover` could not put right; the number of files given up.
    static std::size_t forget(const std::string &supportFolder);

private:
    bool append(std::span<const UnitIntent> units, FileError *error);
    std::vector<std::size_t> keptUnits() const; ///< those that stay recorded

    std::string m_folder;
    Durability m_durability;
    std::unique_ptr<JournalFile> m_file; ///< made with the first batch
    std::size_t m_kept = 0;              ///< units of earlier batches that stay recorded
    std::size_t m_batch = 0;             ///< units of the batch in hand
    std::size_t m_batchStart = 0;        ///< its place in the file
};

} // namespace chronomender
