// SPDX-License-Identifier: GPL-3.0-or-later
#include "RunJournal.h"

#include "JournalFile.h"
#include "UnitRecovery.h"

#include <absl/time/clock.h>

#include <array>
#include <numeric>

namespace chronomender {
namespace {

/// Puts right what one record says; the indices of the units that it could not.
std::vector<std::size_t> recoverUnits(JournalFile &file, const Record &record, FileLayer &files,
                                      std::vector<RecoveredFile> &told) {
    // Without this mark, a recovery that is itself interrupted would leave the date of its own
    // writing on a file. It is worth trying even when the mark cannot be made.
    bool isMarked = false;
    const auto beforeWriting = [&] {
        if (!isMarked)
            file.append(resumedFrame(absl::Now()));
        isMarked = true;
    };
    std::vector<std::size_t> left;
    for (std::size_t i = 0; i < record.unsettled.size(); ++i) {
        auto results = recoverUnit(record.unsettled[i], record.resumed, files, beforeWriting);
        if (std::any_of(results.begin(), results.end(),
                        [](const RecoveredFile &each) { return isLeft(each.result); }))
            left.push_back(i);
        std::move(results.begin(), results.end(), std::back_inserter(told));
    }
    return left;
}

} // namespace

bool isLeft(RecoveredFile::Result result) {
    using enum RecoveredFile::Result;
    return result == Unreachable || result == InUse || result == WriteFailed;
}

std::string_view textKey(RecoveredFile::Result result) {
    static constexpr std::array<std::string_view, 7> keys = {
        "recovery_nothing",     "recovery_completed", "recovery_takenBack",   "recovery_changed",
        "recovery_unreachable", "recovery_inUse",     "recovery_writeFailed",
    };
    return keys.at(static_cast<std::size_t>(result));
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
    if (!m_file->append(batchFrame(units, absl::Now()), error))
        return false;
    m_batch = units.size();
    return true;
}

bool RunJournal::extend(std::span<const UnitIntent> units, FileError *error) {
    if (!m_file || m_batch == 0)
        return begin(units, error);
    if (!m_file->append(batchFrame(units, absl::Now()), error))
        return false;
    m_batch += units.size();
    return true;
}

void RunJournal::settle(std::span<const std::size_t> unsettled) {
    if (!m_file || m_batch == 0)
        return;
    if (unsettled.empty()) {
        m_file->cut(m_batchStart);
        m_batch = 0;
        return;
    }
    std::vector<std::size_t> left(m_kept);
    std::iota(left.begin(), left.end(), std::size_t{0});
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
                                               RecoveryDirection) {
    std::vector<RecoveredFile> told;
    for (const std::string &path : JournalFile::list(supportFolder)) {
        auto file = JournalFile::takeOver(path);
        const auto record = file ? file->read() : std::nullopt;
        if (!record)
            continue;
        const auto left = recoverUnits(*file, *record, files, told);
        if (left.empty())
            file->remove();
        else if (left.size() < record->unsettled.size())
            file->append(leftFrame(left));
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
        file->remove();
    }
    return count;
}

} // namespace chronomender
