// SPDX-License-Identifier: GPL-3.0-or-later
#include "RunJournal.h"

#include "JournalFile.h"
#include "MoveRecovery.h"
#include "MovedFiles.h"
#include "UnitRecovery.h"

#include <absl/time/clock.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <iterator>
#include <numeric>
#include <set>

namespace chronomender {
namespace {

bool appendUnits(JournalFile &file, std::span<const UnitIntent> units, FileError *error) {
    const bool isReadable = std::ranges::all_of(
        units, [](const UnitIntent &unit) { return std::ranges::all_of(unit.moves, isSound); });
    const auto frames = isReadable ? batchFrames(units, absl::Now()) : std::nullopt;
    if (!frames && error)
        error->code = isReadable ? EFBIG : EINVAL;
    return frames && file.append(*frames, error);
}

/// Puts right what one record says.
class RecordRecovery {
public:
    RecordRecovery(JournalFile &file, const Record &record, FileLayer &files,
                   RecoveryDirection direction)
        : m_file(file), m_record(record), m_files(files), m_direction(direction) {}

    std::vector<RecoveredFile> run() {
        // A file is recorded for writing under the name that it had before it was to be renamed.
        if (m_direction == RecoveryDirection::TakeBack)
            recoverNames();
        recoverValues();
        if (m_direction == RecoveryDirection::Finish)
            recoverNames();
        if (m_left.empty())
            m_file.remove();
        else if (m_left.size() < m_units)
            m_file.append(leftFrame(std::vector<std::size_t>(m_left.begin(), m_left.end())));
        return std::move(m_told);
    }

private:
    void recoverValues() {
        // Without this mark, a recovery that is itself interrupted would leave the date of its own
        // writing on a file. It is worth trying even when the mark cannot be made.
        bool isMarked = false;
        const auto beforeWriting = [&] {
            if (!isMarked)
                m_file.append(resumedFrame(absl::Now()));
            isMarked = true;
        };
        for (std::size_t i = 0; i < m_record.unsettled.size(); ++i) {
            auto results = recoverUnit(m_record.unsettled[i], m_record.resumed, m_files,
                                       m_direction, beforeWriting);
            if (std::ranges::any_of(results, isLeft, &RecoveredFile::result))
                m_left.insert(i);
            std::ranges::move(results, std::back_inserter(m_told));
        }
    }

    void recoverNames() {
        const auto record = [this](std::span<const UnitIntent> units, FileError *error) {
            const bool isRecorded = appendUnits(m_file, units, error);
            m_units += isRecorded ? units.size() : 0;
            return isRecorded;
        };
        auto moved = recoverMoves(m_record.unsettled, m_direction, {m_files, record});
        m_left.insert(moved.left.begin(), moved.left.end());
        std::ranges::move(moved.told, std::back_inserter(m_told));
    }

    JournalFile &m_file;
    const Record &m_record;
    FileLayer &m_files;
    const RecoveryDirection m_direction;
    std::vector<RecoveredFile> m_told;
    std::size_t m_units = m_record.unsettled.size(); ///< in the file
    std::set<std::size_t> m_left;                    ///< those that stay
};

/// A unit behind the first `kept` ones moves a file of the unit from where that could have left it.
bool isRenamedSince(std::span<const RecordedUnit> units, std::size_t index, std::size_t kept) {
    // Some file systems give a renamed file another number.
    const auto takesOver = [](const MoveIntent &earlier, const MoveIntent &later) {
        const bool looksAlike = earlier.before.size == later.before.size &&
                                earlier.before.modificationDate == later.before.modificationDate;
        return earlier.folder == later.folder &&
               (earlier.before.isSameFile(later.before) ||
                (earlier.temporaryName == later.oldName && looksAlike));
    };
    const auto &moves = units[index].unit.moves;
    return std::any_of(units.begin() + static_cast<std::ptrdiff_t>(kept), units.end(),
                       [&](const RecordedUnit &later) {
                           return std::ranges::any_of(later.unit.moves, [&](const auto &move) {
                               return std::ranges::any_of(moves, [&](const MoveIntent &earlier) {
                                   return takesOver(earlier, move);
                               });
                           });
                       });
}

} // namespace

bool isLeft(RecoveredFile::Result result) {
    using enum RecoveredFile::Result;
    return result == Unreachable || result == InUse || result == WriteFailed;
}

std::string_view textKey(const RecoveredFile &file) {
    struct Keys {
        std::string_view written, renamed;
    };
    static constexpr std::array<Keys, 7> keys{{
        {"recovery_nothing", "recovery_renameNothing"},
        {"recovery_completed", "recovery_renameCompleted"},
        {"recovery_takenBack", "recovery_renameTakenBack"},
        {"recovery_changed", "recovery_renameChanged"},
        {"recovery_unreachable", "recovery_renameUnreachable"},
        {"recovery_inUse", "recovery_inUse"}, // a file that others hold can be renamed
        {"recovery_writeFailed", "recovery_renameFailed"},
    }};
    const Keys &found = keys.at(static_cast<std::size_t>(file.result));
    return file.isRenamed() ? found.renamed : found.written;
}

RunJournal::RunJournal(std::string supportFolder, Durability durability)
    : m_folder(std::move(supportFolder)), m_durability(durability) {}

RunJournal::~RunJournal() {
    if (m_file && m_file->size() == 0)
        m_file->remove();
}

bool RunJournal::begin(std::span<const UnitIntent> units, FileError *error) {
    if (!m_file || !m_file->isThere()) {
        auto created = JournalFile::create(m_folder, m_durability, error);
        if (!created)
            return false;
        m_file = std::make_unique<JournalFile>(*std::move(created));
        m_kept = m_batch = 0;
    }
    m_kept += m_batch;
    m_batch = 0;
    m_batchStart = m_file->size();
    return append(units, error);
}

bool RunJournal::extend(std::span<const UnitIntent> units, FileError *error) {
    if (!m_file || m_batch == 0)
        return begin(units, error);
    return append(units, error);
}

bool RunJournal::append(std::span<const UnitIntent> units, FileError *error) {
    const bool isRecorded = appendUnits(*m_file, units, error);
    m_batch += isRecorded ? units.size() : 0;
    return isRecorded;
}

/// A file that was left at a temporary name, and has been renamed since, is no longer what the
/// first record says: a recovery by it would undo what the user wanted last.
std::vector<std::size_t> RunJournal::keptUnits() const {
    const auto record = m_kept > 0 ? m_file->read() : std::nullopt;
    std::vector<std::size_t> kept;
    for (std::size_t i = 0; i < m_kept; ++i)
        if (!record || !isRenamedSince(record->unsettled, i, m_kept))
            kept.push_back(i);
    return kept;
}

void RunJournal::settle(std::span<const std::size_t> unsettled) {
    if (!m_file || m_batch == 0)
        return;
    std::vector<std::size_t> left = keptUnits();
    if (unsettled.empty() && (left.empty() || left.size() == m_kept)) {
        m_file->cut(left.empty() ? 0 : m_batchStart);
        m_kept = left.size();
        m_batch = 0;
        return;
    }
    for (const std::size_t index : unsettled)
        left.push_back(m_kept + index);
    std::sort(left.begin(), left.end());
    // A frame that cannot be written leaves more recorded than need be, which costs a proof.
    if (m_file->append(leftFrame(left))) {
        m_kept = left.size();
        m_batch = 0;
    }
}

std::vector<RecoveredFile> RunJournal::recover(const std::string &supportFolder, FileLayer &files,
                                               RecoveryDirection direction) {
    std::vector<RecoveredFile> told;
    for (const std::string &path : JournalFile::list(supportFolder)) {
        auto file = JournalFile::takeOver(path);
        const auto record = file ? file->read() : std::nullopt;
        if (!record)
            continue;
        std::ranges::move(RecordRecovery(*file, *record, files, direction).run(),
                          std::back_inserter(told));
    }
    return told;
}

bool RunJournal::hasUnfinished(const std::string &supportFolder) {
    const auto paths = JournalFile::list(supportFolder);
    return std::any_of(paths.begin(), paths.end(), [](const std::string &path) {
        const auto file = JournalFile::takeOver(path);
        return file && file->size() > 0;
    });
}

std::size_t RunJournal::forget(const std::string &supportFolder) {
    std::size_t count = 0;
    for (const std::string &path : JournalFile::list(supportFolder)) {
        auto file = JournalFile::takeOver(path);
        const auto record = file ? file->read() : std::nullopt;
        if (!record)
            continue;
        for (const RecordedUnit &each : record->unsettled)
            count += each.unit.files.size();
        for (const MovedItem &each : itemsOf(record->unsettled))
            count += each.files.size();
        file->remove();
    }
    return count;
}

} // namespace chronomender
