// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppSession.h"

#include "LittlePhoto.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

namespace chronomender {
namespace {

using little::fileContent;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// All that a save could leave behind on a file: which file it is, its times, its bytes.
struct FileTrace {
    ino_t inode;
    off_t size;
    std::pair<time_t, long> modified, changed;
    std::string bytes;
    bool operator==(const FileTrace &) const = default;
};

FileTrace traceOf(const std::string &path) {
    struct stat status = {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return {status.st_ino,
            status.st_size,
            {status.st_mtim.tv_sec, status.st_mtim.tv_nsec},
            {status.st_ctim.tv_sec, status.st_ctim.tv_nsec},
            fileContent(path)};
}

timespec modificationTime(const std::string &path) {
    struct stat status = {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mtim;
}

void setModificationTime(const std::string &path, timespec time) {
    const timespec times[2] = {{0, UTIME_OMIT}, time};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
}

/// Moves the file's modification time by exactly so many nanoseconds.
void touchBy(const std::string &path, long long nanoseconds) {
    const timespec time = modificationTime(path);
    const long long total = time.tv_sec * 1'000'000'000LL + time.tv_nsec + nanoseconds;
    setModificationTime(path, {static_cast<time_t>(total / 1'000'000'000),
                               static_cast<long>(total % 1'000'000'000)});
}

/// Puts another digit into the file's first stamp; size and modification time stay.
void changeOneByteOfAStamp(const std::string &path) {
    const timespec time = modificationTime(path);
    const std::size_t offset = fileContent(path).find("2024:05:06 07:08:09") + 18;
    const int file = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
    ASSERT_EQ(::pwrite(file, "8", 1, static_cast<off_t>(offset)), 1);
    ::close(file);
    setModificationTime(path, time);
}

class UnchangedFile : public AppSession {
protected:
    UnchangedFile() : m_path(writePhoto("trip/a.jpg")) {
        const MySingleFolderPtr folder = openAndImport(disk().path("trip"));
        EXPECT_EQ(app().shiftFolder(*folder, absl::Hours(1)), DateChangeOutcome::Done);
    }

    static std::vector<PreSaveProblem> problemsOf(const PreProcessResult &plan) {
        std::vector<PreSaveProblem> problems;
        for (const PreSaveFinding &finding : plan.problems)
            problems.push_back(finding.problem);
        return problems;
    }

    /// Stage two leaves the file alone and says so with id 3; the item keeps its correction.
    void expectRefusal(const PreProcessResult &plan) {
        const FileTrace before = traceOf(m_path);
        const SaveRunResult result = goOn(plan);
        ASSERT_EQ(result.items.size(), 1U);
        EXPECT_EQ(result.items[0].result, ItemResult::Refused);
        ASSERT_EQ(result.errors.size(), 1U);
        EXPECT_EQ(result.errors[0].id, SaveErrorId::ChangedSinceImport);
        EXPECT_EQ(traceOf(m_path), before);
        EXPECT_TRUE(app().source_full().at(0)->isUnsavedOrGroupHarmonized());
    }

    std::string m_path;
};

TEST_F(UnchangedFile, IsSavedWhenNobodyTouchedIt) {
    const PreProcessResult plan = preProcess();
    EXPECT_THAT(problemsOf(plan), IsEmpty());
    const SaveRunResult result = goOn(plan);
    ASSERT_EQ(result.items.size(), 1U);
    EXPECT_EQ(result.items[0].result, ItemResult::Saved);
    EXPECT_NE(fileContent(m_path).find("2024:05:06 08:08:09"), std::string::npos);
    EXPECT_THAT(preProcess().items, IsEmpty()); // the shift is written and gone
}

TEST_F(UnchangedFile, ChangedByteOfAStampIsAProblemAndThenRefused) {
    changeOneByteOfAStamp(m_path);
    const PreProcessResult plan = preProcess();
    EXPECT_THAT(problemsOf(plan), ElementsAre(PreSaveProblem::error_06_modifiedAfterImport));
    expectRefusal(plan);
}

TEST_F(UnchangedFile, TouchedFileIsAProblemAndThenRefused) {
    touchBy(m_path, 5'000'000'000);
    const PreProcessResult plan = preProcess();
    EXPECT_THAT(problemsOf(plan), ElementsAre(PreSaveProblem::error_06_modifiedAfterImport));
    expectRefusal(plan);
}

TEST_F(UnchangedFile, ChangeBetweenTheTwoStagesIsRefused) {
    const PreProcessResult plan = preProcess();
    EXPECT_THAT(problemsOf(plan), IsEmpty());
    changeOneByteOfAStamp(m_path);
    expectRefusal(plan);
}

TEST_F(UnchangedFile, RemovedFileIsNotFound) {
    const PreProcessResult planned = preProcess();
    ASSERT_EQ(::unlink(m_path.c_str()), 0);
    const SaveRunResult result = goOn(planned);
    ASSERT_EQ(result.errors.size(), 1U);
    EXPECT_EQ(result.errors[0].id, SaveErrorId::NotReachable);
    EXPECT_THAT(problemsOf(preProcess()), ElementsAre(PreSaveProblem::error_05_notFound));
}

struct Touch {
    long long nanoseconds;
    bool passes;
};
class TouchedFile : public UnchangedFile, public ::testing::WithParamInterface<Touch> {};

TEST_P(TouchedFile, PassesBelowOneSecondOnly) {
    touchBy(m_path, GetParam().nanoseconds);
    const PreProcessResult plan = preProcess();
    EXPECT_EQ(plan.problems.empty(), GetParam().passes);
    if (!GetParam().passes) {
        expectRefusal(plan);
        return;
    }
    EXPECT_EQ(goOn(plan).items.at(0).result, ItemResult::Saved);
}

INSTANTIATE_TEST_SUITE_P(FileDates, TouchedFile,
                         ::testing::Values(Touch{900'000'000, true}, Touch{-900'000'000, true},
                                           Touch{999'999'999, true}, Touch{1'000'000'000, false},
                                           Touch{-1'000'000'000, false}));

} // namespace
} // namespace chronomender
