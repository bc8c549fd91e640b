// SPDX-License-Identifier: GPL-3.0-or-later
#include "MendRun.h"

#include <csignal>
#include <gmock/gmock.h>
#include <set>

namespace chronomender {
namespace {

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

} // namespace
} // namespace chronomender
