// SPDX-License-Identifier: GPL-3.0-or-later
#include "FailingFileLayer.h"
#include "IntentRecord.h"
#include "RunJournal.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <absl/time/clock.h>

namespace chronomender {
namespace {

using namespace little;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using Result = RecoveredFile::Result;
namespace fs = std::filesystem;

constexpr std::string_view oldText = "2024:05:06 07:08:09", newText = "2024:06:07 07:09:10";
constexpr std::string_view oldTime("\x00\x01\x02\x03", 4), newTime("\x00\x01\x12\x33", 4);
constexpr std::uint64_t textAt = 10, timeAt = 40;
const Date oldDate = absl::FromUnixSeconds(1'700'000'000) + absl::Nanoseconds(123);
const Date newDate = absl::FromUnixSeconds(1'710'000'000) + absl::Nanoseconds(456);

std::string fileWith(std::string_view textBytes, std::string_view timeBytes) {
    std::string bytes(64, '#');
    bytes.replace(textAt, textBytes.size(), textBytes);
    return bytes.replace(timeAt, timeBytes.size(), timeBytes);
}
const std::string oldFile = fileWith(oldText, oldTime), newFile = fileWith(newText, newTime);

/// `count` bytes of one value, the rest of another.
std::string torn(std::string_view front, std::string_view back, std::size_t count) {
    return std::string(front.substr(0, count)).append(back.substr(count));
}
/// Everything that a kill can leave of two values written one after the other.
std::vector<std::string> brokenFiles() {
    std::vector<std::string> all{fileWith(newText, oldTime), fileWith(oldText, newTime)};
    for (std::size_t i = 0; i < oldText.size(); ++i) {
        all.push_back(fileWith(torn(newText, oldText, i), newTime));
        all.push_back(fileWith(torn(oldText, newText, i), oldTime));
    }
    return all;
}

class RunJournalTest : public testing::Test {
protected:
    std::string path(const std::string &name) const { return disk.path(name); }
    FileAttributes attributes(const std::string &name) { return *files.attributes(path(name)); }
    Date date(const std::string &name = "a") { return attributes(name).modificationDate; }
    void setDate(const std::string &name, Date to) {
        files.open(path(name), OpenMode::Update, nullptr)->setModificationDate(to);
    }
    /// The file as it stood before the run, and what the run means to do with it.
    FileIntent intent(const std::string &name, bool isForTool = false) {
        fs::remove(path(name));
        disk.write(name, oldFile);
        setDate(name, oldDate);
        return {path(name),
                attributes(name),
                {Patch(textAt, oldText, newText), Patch(timeAt, oldTime, newTime)},
                newDate,
                isForTool ? path(name + "_copy") : std::string()};
    }
    /// A run that begins with these and is killed.
    void interrupt(std::vector<UnitIntent> units) {
        RunJournal journal(support, RunJournal::Durability::Unsynced);
        ASSERT_TRUE(journal.begin(units));
    }
    /// What the killed run has left in a file.
    void leave(const std::string &name, const std::string &bytes) { disk.write(name, bytes); }
    std::vector<Result> recover() {
        std::vector<Result> results;
        for (const RecoveredFile &each : RunJournal::recover(support, files))
            results.push_back(each.result);
        return results;
    }
    void expectWhole(const std::string &name, bool isNew) {
        EXPECT_EQ(fileContent(path(name)) == (isNew ? newFile : oldFile), true) << name;
        EXPECT_EQ(date(name), isNew ? newDate : oldDate) << name;
    }
    bool isSettled() { return !RunJournal::hasUnfinished(support); }

    TemporaryFolder disk;
    std::string support = disk.path("home/support");
    FailingFileLayer files;
};

std::string framedAgain(std::string frame) {
    const auto crc = crc32(0, reinterpret_cast<const Bytef *>(frame.data() + 12),
                           static_cast<uInt>(frame.size() - 12));
    for (std::size_t i = 0; i < 4; ++i)
        frame[8 + i] = static_cast<char>(crc >> (8 * i) & 0xFF);
    return frame;
}

TEST_F(RunJournalTest, RecordReadsBackAndDamageOnlyMakesItShorter) {
    const std::vector<UnitIntent> units{{{intent("a"), intent("b", true)}}, {{intent("c")}}};
    const std::string batch = batchFrame(units, newDate);
    const std::vector<std::size_t> second{1};
    const std::string all = batch + resumedFrame(oldDate) + leftFrame(second);
    const Record whole = readRecord(all);
    EXPECT_EQ(whole.end, all.size());
    EXPECT_THAT(whole.resumed, ElementsAre(oldDate));
    ASSERT_EQ(whole.unsettled.size(), 1u);
    EXPECT_EQ(whole.unsettled[0].begun, newDate);
    const FileIntent read = readRecord(batch).unsettled.at(0).unit.files.at(1);
    const FileIntent &written = units[0].files[1];
    EXPECT_EQ(std::tuple(read.path, read.toolCopy, read.modificationDate, read.before.size,
                         read.before.inode, read.before.modificationDate),
              std::tuple(written.path, written.toolCopy, written.modificationDate,
                         written.before.size, written.before.inode,
                         written.before.modificationDate));
    ASSERT_EQ(read.patches.size(), 2u);
    EXPECT_EQ(read.patches[1].before(), oldTime);
    EXPECT_EQ(read.patches[1].after(), newTime);

    for (std::size_t length = 0; length < all.size(); ++length)
        EXPECT_EQ(readRecord(all.substr(0, length)).unsettled.size(),
                  length < batch.size() ? 0u : 2u);
    for (std::size_t i = 0; i < all.size(); ++i) {
        std::string flipped = all;
        flipped[i] = static_cast<char>(flipped[i] ^ (1 << i % 8));
        EXPECT_EQ(readRecord(flipped).unsettled.size(), i < batch.size() ? 0u : 2u) << i;
    }
    // Damage that the checksum does not show still gives nothing that reaches outside its file.
    for (std::size_t i = 12; i < batch.size(); ++i)
        for (int bit = 0; bit < 8; ++bit) {
            std::string flipped = batch;
            flipped[i] = static_cast<char>(flipped[i] ^ (1 << bit));
            for (const RecordedUnit &unit : readRecord(framedAgain(flipped)).unsettled)
                for (const FileIntent &file : unit.unit.files)
                    for (const Patch &patch : file.patches)
                        EXPECT_TRUE(file.path.starts_with('/') && patch.end() <= file.before.size &&
                                    patch.before().size() == patch.after().size());
        }
}

TEST_F(RunJournalTest, BrokenFileIsCompleted) {
    for (const std::string &broken : brokenFiles()) {
        interrupt({{{intent("a")}}});
        leave("a", broken);
        EXPECT_THAT(recover(), ElementsAre(Result::Completed));
        expectWhole("a", true);
        EXPECT_TRUE(fs::is_empty(support + "/journal"));
    }
}

TEST_F(RunJournalTest, WholeFileIsNotWritten) {
    const Date later = absl::Now() + absl::Hours(2);
    const struct {
        const char *what;
        std::string bytes;
        Date date, expectedDate;
        Result result;
    } table[] = {
        {"not begun", oldFile, oldDate, oldDate, Result::Nothing},
        {"old but for the date", oldFile, absl::Now(), oldDate, Result::TakenBack},
        {"old, and changed by others", oldFile, later, later, Result::Nothing},
        {"done", newFile, newDate, newDate, Result::Nothing},
        {"done but for the date", newFile, absl::Now(), newDate, Result::Completed},
        {"done, the date not on disk", newFile, oldDate, newDate, Result::Completed},
        {"new, and changed by others", newFile, later, later, Result::Nothing},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.what);
        interrupt({{{intent("a")}}});
        leave("a", row.bytes);
        setDate("a", row.date);
        EXPECT_THAT(recover(), ElementsAre(row.result));
        EXPECT_EQ(fileContent(path("a")), row.bytes);
        EXPECT_EQ(date(), row.expectedDate);
        EXPECT_TRUE(isSettled());
    }
    EXPECT_EQ(files.writes, 0);
}

TEST_F(RunJournalTest, FilesOfOneUnitEndAlike) {
    const std::string half = fileWith(torn(newText, oldText, 9), oldTime);
    for (const std::string &first : {oldFile, newFile, half})
        for (const std::string &second : {oldFile, newFile, half}) {
            interrupt({{{intent("a"), intent("b")}}});
            for (const auto &[name, bytes] : {std::pair("a", first), std::pair("b", second)})
                if (bytes != oldFile)
                    leave(name, bytes);
            recover();
            const bool isNew = first != oldFile || second != oldFile;
            expectWhole("a", isNew);
            expectWhole("b", isNew);
        }
}

TEST_F(RunJournalTest, WhatTheToolHasNotDoneIsTakenBack) {
    std::vector<std::string> all = brokenFiles();
    all.push_back(newFile);
    for (const std::string &bytes : all) {
        interrupt({{{intent("a", true), intent("b")}}});
        leave("a_copy", "half of a cop");
        leave("a", bytes);
        leave("b", newFile);
        EXPECT_THAT(recover(), Each(Result::TakenBack));
        expectWhole("a", false);
        expectWhole("b", false);
        EXPECT_FALSE(fs::exists(path("a_copy")));
    }
}

TEST_F(RunJournalTest, WhatTheToolHasDoneIsKeptAndTheOtherFileFollows) {
    const std::string byTool = newFile + "added tags";
    interrupt({{{intent("a", true), intent("b")}}});
    leave("a_copy", byTool);
    fs::rename(path("a_copy"), path("a"));
    EXPECT_THAT(recover(), Each(Result::Completed));
    EXPECT_EQ(fileContent(path("a")), byTool);
    EXPECT_EQ(date("a"), newDate);
    expectWhole("b", true);
}

TEST_F(RunJournalTest, ObstacleStopsTheWholeUnitAndSaysWhetherItWaits) {
    const std::string broken = fileWith(newText, oldTime);
    const struct {
        const char *what;
        Result result;
        bool isKept;
        std::function<void()> make, remove;
    } table[] = {
        {"another value",
         Result::Changed,
         false,
         [&] { leave("a", fileWith("2024:05:06 09:08:09", newTime)); },
         {}},
        {"two tears",
         Result::Changed,
         false,
         [&] { leave("a", fileWith("2024:06:06 07:09:09", newTime)); },
         {}},
        {"longer", Result::Changed, false, [&] { leave("a", broken + '#'); }, {}},
        {"another file of the name",
         Result::Changed,
         false,
         [&] {
             leave("new", broken);
             fs::rename(path("new"), path("a"));
         },
         {}},
        {"a link",
         Result::Changed,
         false,
         [&] {
             fs::rename(path("a"), path("c"));
             fs::create_symlink(path("c"), path("a"));
         },
         {}},
        {"missing", Result::Unreachable, true, [&] { fs::rename(path("a"), path("c")); },
         [&] { fs::rename(path("c"), path("a")); }},
        {"no permission", Result::WriteFailed, true, [&] { files.updateOpenError = EACCES; },
         [&] { files.updateOpenError = 0; }},
        {"no write", Result::WriteFailed, true, [&] { files.failingWritesFrom = 1; },
         [&] { files.failingWritesFrom = 0; }},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.what);
        interrupt({{{intent("b"), intent("a")}}, {{intent("z")}}});
        leave("a", broken);
        row.make();
        const auto results = recover();
        EXPECT_EQ(results.at(0), row.result == Result::Changed ? Result::Nothing : row.result);
        EXPECT_EQ(results.at(1), row.result);
        EXPECT_EQ(fileContent(path("b")), oldFile);
        EXPECT_EQ(results.at(2),
                  files.updateOpenError != 0 ? Result::WriteFailed : Result::Nothing);
        EXPECT_EQ(isSettled(), !row.isKept);
        if (!row.isKept)
            continue;
        row.remove();
        EXPECT_THAT(recover(), testing::IsSupersetOf({Result::Completed, Result::Completed}));
        expectWhole("a", true);
        expectWhole("b", true);
    }
}

TEST_F(RunJournalTest, AllIsTakenBackWhereThatIsWantedUnlessTheToolHasDoneItsPart) {
    interrupt({{{intent("a"), intent("b")}}, {{intent("c", true), intent("d")}}});
    leave("a", fileWith(torn(newText, oldText, 9), oldTime));
    leave("b", newFile);
    leave("c_copy", newFile + "added tags");
    fs::rename(path("c_copy"), path("c"));
    std::vector<Result> results;
    for (const RecoveredFile &each :
         RunJournal::recover(support, files, RecoveryDirection::TakeBack))
        results.push_back(each.result);
    EXPECT_THAT(results, ElementsAre(Result::TakenBack, Result::TakenBack, Result::Completed,
                                     Result::Completed));
    expectWhole("a", false);
    expectWhole("b", false);
    expectWhole("d", true);
    EXPECT_TRUE(isSettled());
}

TEST_F(RunJournalTest, FileThatSomebodyChangedDoesNotKeepTheOtherHalfWritten) {
    interrupt({{{intent("a"), intent("b")}}});
    leave("a", fileWith("2024:05:06 09:08:09", newTime));
    leave("b", fileWith(newText, oldTime));
    EXPECT_THAT(recover(), ElementsAre(Result::Changed, Result::Completed));
    expectWhole("b", true);
}

TEST_F(RunJournalTest, FileHeldByAnotherProgramWaits) {
    interrupt({{{intent("a")}}});
    leave("a", fileWith(newText, oldTime));
    const int other = ::open(path("a").c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(other, LOCK_EX), 0);
    EXPECT_THAT(recover(), ElementsAre(Result::InUse));
    ::close(other);
    EXPECT_EQ(RunJournal::forget(support), 1u);
    EXPECT_THAT(recover(), IsEmpty());
    EXPECT_TRUE(isSettled());
}

/// Dies at every call in turn, in the middle of a value where the call is a write.
TEST_F(RunJournalTest, RecoveryThatDiesIsRecovered) {
    for (const bool isForTool : {false, true}) {
        bool isDone = false;
        for (int call = 1; !isDone; ++call) {
            SCOPED_TRACE(call);
            interrupt({{{intent("a", isForTool), intent("b")}}});
            leave("a", fileWith(torn(newText, oldText, 9), oldTime));
            leave("b", newFile);
            leave("a_copy", "part");
            files.calls = 0;
            files.diesAtCall = call;
            files.tornBytes = 9;
            recover();
            isDone = files.calls < call;
            files.diesAtCall = 0;
            recover();
            expectWhole("a", !isForTool);
            expectWhole("b", !isForTool);
            EXPECT_EQ(fs::exists(path("a_copy")), !isForTool);
            EXPECT_TRUE(isSettled());
        }
    }
}

TEST_F(RunJournalTest, LivingProgramIsPassedOverAndOnlyUnsettledUnitsStay) {
    const std::vector<UnitIntent> first{{{intent("a")}}, {{intent("b")}}}, second{{{intent("c")}}};
    const std::vector<std::size_t> failed{1};
    {
        RunJournal journal(support);
        ASSERT_TRUE(journal.begin(first));
        leave("a", fileWith(newText, oldTime));
        EXPECT_THAT(recover(), IsEmpty());
        EXPECT_TRUE(isSettled());
        EXPECT_EQ(RunJournal::forget(support), 0u);
        journal.settle(failed);
        ASSERT_TRUE(journal.begin(second));
        journal.settle();
    }
    EXPECT_FALSE(isSettled());
    const auto told = RunJournal::recover(support, files);
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0].path, path("b"));
    EXPECT_EQ(fileContent(path("a")), fileWith(newText, oldTime));
    {
        RunJournal journal(support);
        ASSERT_TRUE(journal.begin(second));
        journal.settle();
        fs::remove_all(support);
        ASSERT_TRUE(journal.begin(second));
        EXPECT_FALSE(fs::is_empty(support + "/journal"));
        journal.settle();
    }
    EXPECT_TRUE(fs::is_empty(support + "/journal"));
}

TEST_F(RunJournalTest, RecordThatCannotBeMadeForbidsWriting) {
    const std::vector<UnitIntent> units{{{intent("a")}}};
    FileError error;
    {
        RunJournal journal(support);
        ASSERT_TRUE(journal.begin(units));
        FileIntent endless = units[0].files[0];
        endless.path.append(largestRecord, 'a');
        EXPECT_FALSE(journal.begin(std::vector<UnitIntent>{{{endless}}}, &error));
        EXPECT_EQ(error.code, EFBIG);
    }
    EXPECT_THAT(recover(), ElementsAre(Result::Nothing));
    fs::remove_all(support);
    disk.write("home/support", "a file");
    EXPECT_FALSE(RunJournal(support).begin(units, &error));
    EXPECT_EQ(error.code, ENOTDIR);
}

} // namespace
} // namespace chronomender
