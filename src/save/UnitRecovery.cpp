// SPDX-License-Identifier: GPL-3.0-or-later
#include "UnitRecovery.h"

#include "UnchangedProof.h"

#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <optional>

namespace chronomender {
namespace {

using Result = RecoveredFile::Result;

/// File times may be kept to two seconds, and lie behind the clock by a tick.
constexpr absl::Duration coarsestFileTime = absl::Seconds(2);
/// A run that was interrupted has not written for longer than that.
constexpr absl::Duration longestRun = absl::Hours(1);

enum class ValueState : std::uint8_t { Old, New, Torn, Same, Foreign, Unreadable };

/// One writing, from the front or from the back, that did not get to its end.
bool isTorn(std::string_view present, const Patch &patch) {
    const auto isSplit = [&](std::string_view front, std::string_view back) {
        const auto same = static_cast<std::size_t>(
            std::mismatch(present.begin(), present.end(), front.begin()).first - present.begin());
        return present.substr(same) == back.substr(same);
    };
    return isSplit(patch.after(), patch.before()) || isSplit(patch.before(), patch.after());
}

ValueState stateOf(const Patch &patch, OpenFile &file) {
    std::array<char, Patch::mostBytes> room;
    const std::span<char> wanted(room.data(), patch.before().size());
    const auto count = file.pread(wanted, patch.offset());
    if (!count)
        return ValueState::Unreadable;
    if (*count != wanted.size())
        return ValueState::Foreign;
    const std::string_view present(room.data(), wanted.size());
    if (present == patch.before())
        return patch.changesNothing() ? ValueState::Same : ValueState::Old;
    if (present == patch.after())
        return ValueState::New;
    return isTorn(present, patch) ? ValueState::Torn : ValueState::Foreign;
}

/// One file of the unit, open and locked.
struct Member {
    const FileIntent &intent;
    std::unique_ptr<OpenFile> file = {};
    FileAttributes present = {};
    bool isForeign = false;    ///< somebody else has changed it: left alone
    bool hasLeftover = false;  ///< the tool's copy stands beside it
    bool hasCommitted = false; ///< the tool's copy has taken its place
    bool hasNew = false;       ///< a value is new, or torn
    bool isWritten = false;
};

struct Failure {
    Result result;
    std::string systemText = {};
};
using Obstacle = std::optional<Failure>;

class UnitRecovery {
public:
    UnitRecovery(const RecordedUnit &recorded, std::span<const Date> resumed, FileLayer &files,
                 RecoveryDirection direction, const std::function<void()> &beforeWriting)
        : m_begun(recorded.begun),
          m_resumed(resumed),
          m_files(files),
          m_direction(direction),
          m_beforeWriting(beforeWriting) {
        for (const FileIntent &intent : recorded.unit.files)
            m_members.push_back({intent});
    }

    std::vector<RecoveredFile> run() {
        Obstacle obstacle = prove();
        chooseDirection();
        for (std::size_t i = 0; i < m_members.size() && !obstacle; ++i)
            if (!m_members[i].isForeign)
                obstacle = bringTo(m_members[i]);
        std::vector<RecoveredFile> told;
        for (const Member &each : m_members)
            if (each.isForeign)
                told.push_back({each.intent.path, Result::Changed, {}});
            else if (obstacle)
                told.push_back({each.intent.path, obstacle->result, obstacle->systemText});
            else
                told.push_back({each.intent.path, doneTo(each), {}});
        return told;
    }

private:
    Result doneTo(const Member &member) const {
        if (!member.isWritten)
            return Result::Nothing;
        return m_isForward ? Result::Completed : Result::TakenBack;
    }

    /// All files before any is written. One that somebody else has changed does not keep the others
    /// half written.
    Obstacle prove() {
        for (const auto step : {&UnitRecovery::open, &UnitRecovery::judge})
            for (Member &each : m_members) {
                Obstacle obstacle = each.isForeign ? std::nullopt : (this->*step)(each);
                if (obstacle && obstacle->result != Result::Changed)
                    return obstacle;
                each.isForeign = each.isForeign || obstacle;
            }
        return std::nullopt;
    }

    Obstacle open(Member &member) {
        FileError error;
        member.file = m_files.open(member.intent.path, OpenMode::Update, &error);
        if (!member.file && isAbsence(error))
            return Failure{Result::Unreachable, error.text()};
        // A link or a folder has taken its place.
        if (!member.file && (error.code == ELOOP || error.code == EISDIR))
            return Failure{Result::Changed};
        if (!member.file)
            return Failure{Result::WriteFailed, error.text()};
        if (member.file->lockExclusively() == LockResult::HeldByAnother)
            return Failure{Result::InUse};
        const auto present = member.file->attributes();
        if (!present)
            return refused(member);
        member.present = *present;
        return std::nullopt;
    }

    /// Is it the file that was recorded, and what does it hold? The number of its device is not
    /// asked: it may be another after the system has started again.
    Obstacle judge(Member &member) {
        const FileAttributes &before = member.intent.before;
        const bool isSameSize = member.present.size == before.size;
        const bool isSameFile = member.present.inode == before.inode;
        const bool isKnownFile = isSameFile || !hasLastingInodes(member.file->descriptor());
        if (!member.intent.toolCopy.empty()) {
            const auto copy = m_files.attributes(member.intent.toolCopy);
            member.hasLeftover = copy && copy->kind == FileAttributes::Kind::Regular;
            // The copy takes the file's place by its name, and is then no longer beside it.
            member.hasCommitted = !isSameFile && !copy.has_value() && !(isKnownFile && isSameSize);
        }
        if (member.hasCommitted)
            return std::nullopt;
        return isKnownFile && isSameSize ? judgeValues(member) : Failure{Result::Changed};
    }

    /// What stands at the place of one value, as long as it is ours.
    static Obstacle look(const Patch &patch, const Member &member, ValueState &state) {
        state = stateOf(patch, *member.file);
        if (state == ValueState::Unreadable)
            return refused(member);
        if (state == ValueState::Foreign)
            return Failure{Result::Changed};
        return std::nullopt;
    }

    Obstacle judgeValues(Member &member) {
        bool isToldByValues = false;
        for (const Patch &patch : member.intent.patches) {
            ValueState state{};
            if (auto obstacle = look(patch, member, state))
                return obstacle;
            member.hasNew |= state == ValueState::New || state == ValueState::Torn;
            isToldByValues |= state != ValueState::Same;
        }
        if (!isToldByValues)
            member.hasNew = hasPlannedDate(member);
        return std::nullopt;
    }

    /// What the tool has not done, nobody can complete; what it has done cannot be taken back.
    void chooseDirection() {
        const auto any = [this](auto holds) {
            return std::any_of(m_members.begin(), m_members.end(),
                               [&](const Member &each) { return !each.isForeign && holds(each); });
        };
        const bool hasCommitted = any([](const Member &each) { return each.hasCommitted; });
        const bool awaitsTool = any(
            [](const Member &each) { return !each.hasCommitted && !each.intent.toolCopy.empty(); });
        const bool hasNew = any([](const Member &each) { return each.hasNew; });
        m_isForward =
            hasCommitted || (hasNew && !awaitsTool && m_direction == RecoveryDirection::Finish);
    }

    Obstacle bringTo(Member &member) {
        if (!member.hasCommitted)
            if (auto obstacle = writeValues(member))
                return obstacle;
        if (auto obstacle = setDate(member))
            return obstacle;
        if (member.isWritten && !member.file->sync())
            return refused(member);
        return removeLeftover(member);
    }

    Obstacle writeValues(Member &member) {
        for (const Patch &patch : member.intent.patches) {
            ValueState state{};
            if (auto obstacle = look(patch, member, state))
                return obstacle;
            const ValueState wanted = m_isForward ? ValueState::New : ValueState::Old;
            if (state == wanted || state == ValueState::Same)
                continue;
            announce(member);
            if (!member.file->pwrite(m_isForward ? patch.after() : patch.before(), patch.offset()))
                return refused(member);
        }
        return std::nullopt;
    }

    /// The date of a later change by somebody else is not covered up: a date is set only where the
    /// present one is the recorded one, or one that the interrupted run or a recovery has left.
    Obstacle setDate(Member &member) {
        const Date present = member.present.modificationDate;
        const Date before = member.intent.before.modificationDate;
        const OptionalDate wanted = m_isForward ? member.intent.modificationDate : before;
        const bool isOfRecovery = std::any_of(m_resumed.begin(), m_resumed.end(), [&](Date begun) {
            return isWithinRun(present, begun);
        });
        const bool isOurs = isOfRecovery || hasPlannedDate(member) ||
                            isWithinRun(present, m_begun) ||
                            distance(present, before) <= coarsestFileTime;
        if (!isCleanDate(wanted) || !isOurs || (present == *wanted && !member.isWritten))
            return std::nullopt;
        announce(member);
        return member.file->setModificationDate(*wanted) ? Obstacle() : refused(member);
    }

    static bool hasPlannedDate(const Member &member) {
        const OptionalDate &planned = member.intent.modificationDate;
        return isCleanDate(planned) &&
               distance(member.present.modificationDate, *planned) <= coarsestFileTime;
    }
    static bool isWithinRun(Date date, Date begun) {
        return date >= begun - coarsestFileTime && date <= begun + longestRun;
    }

    /// Nothing stood there when the run began. Left behind, it would keep the tool from ever
    /// writing this file.
    Obstacle removeLeftover(Member &member) {
        if (!member.hasLeftover)
            return std::nullopt;
        announce(member);
        if (::unlink(member.intent.toolCopy.c_str()) == 0 || errno == ENOENT)
            return std::nullopt;
        return Failure{Result::WriteFailed, FileError{errno}.text()};
    }

    void announce(Member &member) {
        m_beforeWriting();
        member.isWritten = true;
    }
    static Failure refused(const Member &member) {
        return {Result::WriteFailed, member.file->lastError().text()};
    }

    Date m_begun;
    std::span<const Date> m_resumed;
    FileLayer &m_files;
    const RecoveryDirection m_direction;
    const std::function<void()> &m_beforeWriting;
    std::vector<Member> m_members;
    bool m_isForward = false;
};

} // namespace

std::vector<RecoveredFile> recoverUnit(const RecordedUnit &recorded, std::span<const Date> resumed,
                                       FileLayer &files, RecoveryDirection direction,
                                       const std::function<void()> &beforeWriting) {
    return UnitRecovery(recorded, resumed, files, direction, beforeWriting).run();
}

bool hasLastingInodes(int descriptor) {
    constexpr std::array<std::uint64_t, 3> withoutThem = {
        0x4d44,     // FAT
        0x2011BAB0, // exFAT
        0x65735546, // FUSE
    };
    struct statfs system;
    return fstatfs(descriptor, &system) != 0 ||
           std::find(withoutThem.begin(), withoutThem.end(),
                     static_cast<std::uint64_t>(system.f_type)) == withoutThem.end();
}

} // namespace chronomender
