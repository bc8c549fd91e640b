// SPDX-License-Identifier: GPL-3.0-or-later
#include "MendRun.h"
#include "RunJournal.h"

#include <csignal>
#include <gmock/gmock.h>
#include <set>

namespace chronomender {
namespace {

using ::testing::HasSubstr;

constexpr int fileCount = 3000;
constexpr const char *oldStamp = "2024:05:06 07:08:09";
constexpr const char *newStamp = "2024:05:06 08:08:09";

std::size_t occurrences(const std::string &text, const std::string &wanted) {
    std::size_t count = 0;
    for (std::size_t at = text.find(wanted); at != std::string::npos;
         at = text.find(wanted, at + 1))
        ++count;
    return count;
}

class Interruption : public MendTest {
protected:
    /// Starts a save of many files and interrupts it as soon as one of them is written.
    RunResult interruptASave() {
        const little::PhotoFields fields{
            .original = oldStamp, .digitized = oldStamp, .modified = oldStamp};
        const std::string bytes = little::jpegPhoto(fields).bytes;
        for (int i = 0; i < fileCount; ++i)
            disk().write("many/" + std::to_string(i) + ".jpg", bytes);
        const std::string first = path("many/0.jpg");
        const auto started =
            start({"save", "--json", "--folder", path("many"), "--shift", "1:00:00"});
        while (!isDone(started) && little::fileContent(first) == bytes)
            ::sched_yield();
        started.signal(SIGINT);
        return started.wait();
    }

    /// The output is written at the end only.
    bool isDone(const StartedProgram &) const {
        return std::filesystem::exists(workFolder() + "/output") &&
               std::filesystem::file_size(workFolder() + "/output") > 0;
    }
};

TEST_F(Interruption, OfASaveLeavesEveryFileWholeAndSaysWhich) {
    RunResult run = interruptASave();
    for (int attempt = 0; run.exitCode == 0 && attempt < 4; ++attempt)
        run = interruptASave(); // everything was saved before the signal came
    ASSERT_EQ(run.exitCode, 130) << run.errors;
    const auto lines = run.lines();
    ASSERT_EQ(lines.size(), fileCount + 1U);
    std::set<std::string> saved;
    for (const Json &line : lines)
        if (line.value("result", "") == "saved")
            saved.insert(line.at("path"));
    EXPECT_GT(saved.size(), 0U);
    EXPECT_LT(saved.size(), static_cast<std::size_t>(fileCount));
    for (int i = 0; i < fileCount; ++i) {
        const std::string file = path("many/" + std::to_string(i) + ".jpg");
        const std::string content = little::fileContent(file);
        ASSERT_EQ(occurrences(content, newStamp), saved.contains(file) ? 3U : 0U) << file;
        ASSERT_EQ(occurrences(content, oldStamp), saved.contains(file) ? 0U : 3U) << file;
    }
    const Json summary = lines.back().at("summary");
    EXPECT_EQ(summary.at("saved"), saved.size());
    EXPECT_EQ(summary.at("notReached"), fileCount - saved.size());
    EXPECT_EQ(summary.at("interrupted"), true);
}

TEST_F(Interruption, OfAnImportSavesNothing) {
    writePhoto("few/a.jpg", oldStamp);
    // The signal is there before the program can have read anything, or comes when all is done.
    const auto started = start({"save", "--folder", path("few"), "--shift", "60"});
    started.signal(SIGTERM);
    const RunResult run = started.wait();
    EXPECT_TRUE(run.exitCode == -SIGTERM || run.exitCode == 130 || run.exitCode == 0);
    const std::string content = little::fileContent(path("few/a.jpg"));
    EXPECT_EQ(occurrences(content, oldStamp), run.exitCode == 0 ? 0U : 3U);
}

/// A photo whose save was killed behind the first of its three stamps.
class KilledSave : public MendTest {
protected:
    KilledSave() {
        const little::PhotoFields fields{
            .original = oldStamp, .digitized = oldStamp, .modified = oldStamp};
        const auto built = little::jpegPhoto(fields);
        m_photo = disk().write("trip/a.jpg", built.bytes);
        const auto files = makeSystemFileLayer();
        UnitIntent unit{{{m_photo, *files->attributes(m_photo), {}, std::nullopt, ""}}};
        for (const char *key : {"ExifDateTimeOriginal", "ExifDateTimeDigitized", "TIFFDateTime"})
            unit.files[0].patches.emplace_back(built.offsets.at(key), oldStamp, newStamp);
        EXPECT_TRUE(RunJournal(workFolder() + "/home/chronoMender").begin({&unit, 1}));
        files->open(m_photo, OpenMode::Update)
            ->pwrite(newStamp, built.offsets.at("ExifDateTimeOriginal"));
        m_torn = little::fileContent(m_photo);
    }

    std::string m_photo, m_torn;
};

TEST_F(KilledSave, IsPutRightByTheNextStartButNotByADryRun) {
    const RunResult dry = mend({"save", "--dry-run", "--folder", path("trip"), "--shift", "60"});
    EXPECT_THAT(dry.errors, HasSubstr("mend resume"));
    EXPECT_EQ(little::fileContent(m_photo), m_torn);
    const RunResult list = mend({"list", "--json", path("trip")});
    EXPECT_THAT(list.errors, HasSubstr("a.jpg: was being written when a run was interrupted"));
    EXPECT_EQ(occurrences(little::fileContent(m_photo), newStamp), 3U);
    EXPECT_EQ(mend({"list", "--json", path("trip")}).errors, "");
}

TEST_F(KilledSave, StaysNotedWhileItsFileIsAwayUntilItIsGivenUp) {
    std::filesystem::rename(m_photo, path("elsewhere.jpg"));
    const RunResult run = mend({"resume", "--json"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.lines().at(0).at("result"), "unreachable");
    EXPECT_EQ(run.lines().at(1).at("summary").at("left"), 1);
    std::filesystem::rename(path("elsewhere.jpg"), m_photo);
    const RunResult back = mend({"resume"});
    EXPECT_EQ(back.exitCode, 0);
    EXPECT_THAT(back.output, HasSubstr("it has all its new values now"));
    EXPECT_EQ(occurrences(little::fileContent(m_photo), newStamp), 3U);
}

TEST_F(KilledSave, CanBeGivenUp) {
    std::filesystem::remove(m_photo);
    const RunResult run = mend({"resume", "--forget"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.output, HasSubstr("1 given up"));
    EXPECT_EQ(mend({"resume"}).output, "No run was interrupted.\n");
}

} // namespace
} // namespace chronomender
