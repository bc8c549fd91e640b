// SPDX-License-Identifier: GPL-3.0-or-later
#include "MoveRecovery.h"

#include "MovedFiles.h"
#include "SystemFiles.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <set>
#include <unordered_map>
#include <unordered_set>

namespace chronomender {
namespace {

using Result = RecoveredFile::Result;

/// Where an item's files may go, in this order: where they are wanted, the other way, and from
/// there on to new names with this number.
constexpr int wantedWay = 0, otherWay = 1, firstNumber = 2, lastNumber = 9999;
/// Somebody may take names while we move.
constexpr int mostAttempts = 16;

std::size_t baseLength(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos || dot == 0 ? name.size() : dot;
}

/// "IMG_1 2.CR2.xmp": with `addition` behind the base name of the item's main file.
std::string extended(const std::string &name, std::string_view mainName,
                     const std::string &addition) {
    const std::string_view base = mainName.substr(0, baseLength(mainName));
    const bool sharesBase =
        name.starts_with(base) && (name.size() == base.size() || name[base.size()] == '.');
    std::string longer = name;
    longer.insert(sharesBase ? base.size() : baseLength(name), addition);
    return longer;
}

struct Target {
    std::string name;
    bool isOccupied = false; ///< by one of ours, which leaves
    bool wasMoved = false;
};
struct Job {
    MovedItem &item;
    std::vector<Target> targets = {}; ///< of each file
    int way = wantedWay;
    std::optional<RecoveredFile> failure = {}; ///< its result and words; the item stays recorded
};

class MoveRecovery {
public:
    MoveRecovery(std::span<const RecordedUnit> units, RecoveryDirection direction,
                 const MoveServices &services)
        : m_items(itemsOf(units)),
          m_direction(direction),
          m_services(services),
          m_units(units.size()) {}

    RecoveredMoves run() {
        m_folders = findFiles(m_items, m_services.files, m_services.hasLastingInodes);
        m_jobs.reserve(m_items.size());
        for (MovedItem &item : m_items)
            m_jobs.push_back({item, std::vector<Target>(item.files.size())});
        leaveUnreachable();
        noteOurs();
        chooseNames();
        recordNewNames();
        for (Job &job : m_jobs)
            if (!job.failure)
                removeLeftovers(job);
        for (Job &job : m_jobs)
            if (!job.failure)
                makeWay(job);
        for (Job &job : m_jobs)
            if (!job.failure)
                bringHome(job);
        syncFolders();
        return told();
    }

private:
    // ---- judging

    /// One of which no file at all is left is more likely not there, such as an empty mount point.
    void leaveUnreachable() {
        for (Job &job : m_jobs)
            for (const MovedFile &file : job.item.files) {
                const ListedFolder &folder = m_folders.at(file.intent.folder);
                const bool isGone = folder.error.code == 0 && !folder.hasAny;
                if (isGone || folder.error.code != 0)
                    fail(job, Result::Unreachable, isGone ? FileError{ENOENT} : folder.error);
            }
    }

    void noteOurs() {
        for (const Job &job : m_jobs)
            for (const MovedFile &file : job.item.files)
                if (!job.failure && file.present) {
                    m_ours.insert(file.path(*file.present));
                    m_ourInodes.emplace(file.attributes.inode, file.attributes.device);
                    if (file.leftover)
                        m_ours.insert(file.path(*file.leftover));
                }
    }

    bool goesBack(int way) const {
        const int wayBack = m_direction == RecoveryDirection::TakeBack ? wantedWay : otherWay;
        return way == wayBack;
    }
    std::string nameFor(const Job &job, const MovedFile &file, int way) const {
        if (way < firstNumber)
            return goesBack(way) ? file.intent.oldName : file.intent.finalName;
        return extended(file.intent.finalName, job.item.files.front().intent.finalName,
                        ' ' + std::to_string(way));
    }

    /// The names are free, or held by those of ours that leave them. Keeps them for the item.
    bool take(Job &job, int way) {
        std::vector<Target> targets(job.item.files.size());
        for (std::size_t i = 0; i < targets.size(); ++i) {
            const MovedFile &file = job.item.files[i];
            if (!file.present)
                continue;
            targets[i].name = nameFor(job, file, way);
            const std::string path = file.path(targets[i].name);
            const auto occupant = m_services.files.attributes(path);
            targets[i].isOccupied = occupant.has_value();
            if (m_taken.contains(path) || (occupant && !isOurs(path, *occupant)))
                return false;
        }
        for (std::size_t i = 0; i < targets.size(); ++i)
            if (job.item.files[i].present)
                m_taken.insert(job.item.files[i].path(targets[i].name));
        job.targets = std::move(targets);
        job.way = way;
        return true;
    }
    /// By its number where a look-up does not ask for the spelling.
    bool isOurs(const std::string &path, const FileAttributes &occupant) const {
        const auto known = m_ourInodes.find(occupant.inode);
        return m_ours.contains(path) ||
               (known != m_ourInodes.end() && known->second == occupant.device);
    }

    bool takeFrom(Job &job, int way) {
        while (way <= lastNumber && !take(job, way))
            ++way;
        if (way > lastNumber)
            fail(job, Result::WriteFailed, {EEXIST});
        return !job.failure;
    }
    /// Those that can have what they are to have come first.
    void chooseNames() {
        std::vector<Job *> blocked;
        for (Job &job : m_jobs)
            if (!job.failure && !take(job, wantedWay))
                blocked.push_back(&job);
        for (Job *job : blocked)
            takeFrom(*job, otherWay);
    }

    // ---- names that no unit knows yet

    /// It stands in the way of another, or another in its way.
    bool mustMakeWay(const MovedFile &file, const Target &target) const {
        return file.present && *file.present != target.name &&
               *file.present != file.intent.temporaryName &&
               (target.isOccupied || m_taken.contains(file.path(*file.present)));
    }
    bool isFree(const std::string &path) const {
        return !m_taken.contains(path) && !m_services.files.attributes(path);
    }
    /// True: it was changed.
    bool chooseTemporaryName(const Job &job, MovedFile &file) {
        const std::string planned = file.intent.temporaryName;
        for (int i = 2; !isFree(file.path(file.intent.temporaryName)) && i <= lastNumber; ++i)
            file.intent.temporaryName =
                extended(planned, job.item.files.front().intent.finalName, '_' + std::to_string(i));
        m_taken.insert(file.path(file.intent.temporaryName));
        return file.intent.temporaryName != planned;
    }
    /// As the item will be known from now on; none when nothing about it is new.
    std::optional<UnitIntent> renewed(Job &job) {
        bool isNew = job.way >= firstNumber;
        UnitIntent unit;
        for (std::size_t i = 0; i < job.targets.size(); ++i) {
            MovedFile &file = job.item.files[i];
            if (mustMakeWay(file, job.targets[i]))
                isNew = chooseTemporaryName(job, file) || isNew;
            unit.moves.push_back(file.intent);
            if (job.way >= firstNumber && file.present)
                unit.moves.back().finalName = job.targets[i].name;
        }
        return isNew ? std::optional(std::move(unit)) : std::nullopt;
    }
    void record(const std::vector<Job *> &jobs, const std::vector<UnitIntent> &units) {
        FileError error;
        const bool isRecorded = units.empty() || m_services.record(units, &error);
        for (Job *job : jobs)
            if (isRecorded)
                job->item.units.push_back(m_units++);
            else
                fail(*job, Result::WriteFailed, error);
    }
    void recordNewNames() {
        std::vector<Job *> jobs;
        std::vector<UnitIntent> units;
        for (Job &job : m_jobs)
            if (auto unit = job.failure ? std::nullopt : renewed(job)) {
                jobs.push_back(&job);
                units.push_back(*std::move(unit));
            }
        record(jobs, units);
    }

    // ---- moving

    bool move(MovedFile &file, const std::string &name, FileError &error) {
        const std::string from = file.path(*file.present), to = file.path(name);
        error.code = EIO;
        if (!m_services.files.renameExclusively(from, to, &error))
            return false;
        error.code = 0;
        m_ours.erase(from);
        m_ours.insert(to);
        m_changedFolders.insert(file.intent.folder);
        file.present = name;
        return true;
    }
    /// What is not going to leave its place is in the way like anybody else's.
    void fail(Job &job, Result result, FileError error) {
        job.failure = RecoveredFile{{}, result, error.text()};
        for (const MovedFile &file : job.item.files)
            if (file.present) {
                m_ours.erase(file.path(*file.present));
                m_ourInodes.erase(file.attributes.inode);
            }
    }

    /// Both names are the same file: taking one away loses nothing.
    void removeLeftovers(Job &job) {
        for (std::size_t i = 0; i < job.targets.size(); ++i) {
            MovedFile &file = job.item.files[i];
            if (!file.leftover)
                continue;
            if (*file.leftover == job.targets[i].name)
                std::swap(*file.leftover, *file.present);
            if (::unlink(file.path(*file.leftover).c_str()) != 0 && errno != ENOENT) {
                fail(job, Result::WriteFailed, {errno});
                return;
            }
            m_ours.erase(file.path(*file.leftover));
            m_changedFolders.insert(file.intent.folder);
            job.targets[i].wasMoved = true;
        }
    }

    /// To the temporary names. One that cannot go keeps the item's other files where they are.
    void makeWay(Job &job) {
        std::vector<std::pair<MovedFile *, std::string>> moved;
        for (std::size_t i = 0; i < job.targets.size(); ++i) {
            MovedFile &file = job.item.files[i];
            if (!mustMakeWay(file, job.targets[i]))
                continue;
            const std::string before = *file.present;
            FileError error, ignored;
            if (move(file, file.intent.temporaryName, error)) {
                moved.emplace_back(&file, before);
                continue;
            }
            for (const auto &[each, name] : moved)
                move(*each, name, ignored);
            fail(job, Result::WriteFailed, error);
            return;
        }
    }

    /// To the names that were chosen, or when somebody has taken one since, to the next ones.
    void bringHome(Job &job) {
        for (int attempt = 0;; ++attempt) {
            const FileError error = moveAll(job);
            if (error.code == 0)
                return;
            if (error.code != EEXIST || attempt == mostAttempts) {
                fail(job, Result::WriteFailed, error);
                return;
            }
            if (!takeFrom(job, job.way + 1))
                return;
            if (auto unit = renewed(job))
                record({&job}, {*std::move(unit)});
            if (job.failure)
                return;
        }
    }
    FileError moveAll(Job &job) {
        FileError error;
        for (std::size_t i = 0; i < job.targets.size() && error.code == 0; ++i) {
            MovedFile &file = job.item.files[i];
            if (!file.present || *file.present == job.targets[i].name)
                continue;
            if (move(file, job.targets[i].name, error))
                job.targets[i].wasMoved = true;
        }
        return error;
    }

    void syncFolders() {
        for (const std::string &path : m_changedFolders)
            if (!systemFiles::syncFolder(path)) {
                const FileError error{errno};
                for (Job &job : m_jobs)
                    if (job.item.files.front().intent.folder == path && !job.failure)
                        fail(job, Result::WriteFailed, error);
            }
    }

    // ---- telling

    RecoveredMoves told() const {
        RecoveredMoves moves;
        for (const Job &job : m_jobs) {
            for (std::size_t i = 0; i < job.item.files.size(); ++i)
                moves.told.push_back(told(job, i));
            if (job.failure)
                moves.left.insert(moves.left.end(), job.item.units.begin(), job.item.units.end());
        }
        return moves;
    }
    RecoveredFile told(const Job &job, std::size_t index) const {
        const MovedFile &file = job.item.files[index];
        const std::string oldPath = file.path(file.intent.oldName);
        RecoveredFile result{file.present ? file.path(*file.present) : oldPath, {}, {}, oldPath};
        if (job.failure && (file.present || job.failure->result == Result::Unreachable)) {
            result.result = job.failure->result;
            result.systemText = job.failure->systemText;
        } else if (!file.present) {
            result.result = Result::Changed;
        } else if (job.targets[index].wasMoved || job.way != wantedWay) {
            result.result = goesBack(job.way) ? Result::TakenBack : Result::Completed;
        }
        return result;
    }

    std::vector<MovedItem> m_items;
    const RecoveryDirection m_direction;
    const MoveServices &m_services;
    std::size_t m_units; ///< recorded so far
    ListedFolders m_folders;
    std::vector<Job> m_jobs;
    std::unordered_set<std::string> m_ours;  ///< paths of files that leave them
    std::unordered_set<std::string> m_taken; ///< paths that files of ours are going to have
    std::unordered_map<std::uint64_t, std::uint64_t> m_ourInodes; ///< with their devices
    std::set<std::string> m_changedFolders;
};

} // namespace

RecoveredMoves recoverMoves(std::span<const RecordedUnit> units, RecoveryDirection direction,
                            const MoveServices &services) {
    return MoveRecovery(units, direction, services).run();
}

} // namespace chronomender
