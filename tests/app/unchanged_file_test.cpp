// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppSession.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <fstream>
#include <sys/stat.h>

namespace chronomender {
namespace {

using little::fileContent;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// All that a save could leave behind on a file: which file it is, its times, its bytes.
auto traceOf(const std::string &path) {
    struct stat status = {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return std::tuple(status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec,
                      status.st_ctim.tv_sec, status.st_ctim.tv_nsec, fileContent(path));
}

class UnchangedFile : public AppSession {
protected:
    UnchangedFile() {
        const MySingleFolderPtr folder = openAndImport(disk().path("trip"));
        EXPECT_EQ(app().shiftFolder(*folder, absl::Hours(1)), DateChangeOutcome::Done);
    }

    const std::string m_path = writePhoto("trip/a.jpg");
};

TEST_F(UnchangedFile, IsSavedWhenNobodyTouchedIt) {
    const PreProcessResult plan = preProcess();
    EXPECT_THAT(plan.problems, IsEmpty());
    EXPECT_EQ(goOn(plan).items.at(0).result, ItemResult::Saved);
    EXPECT_NE(fileContent(m_path).find("2024:05:06 08:08:09"), std::string::npos);
    EXPECT_THAT(preProcess().items, IsEmpty()); // the shift is written and gone
}

TEST_F(UnchangedFile, ChangedBetweenTheTwoStagesIsRefusedAndLeftAlone) {
    const PreProcessResult plan = preProcess();
    EXPECT_THAT(plan.problems, IsEmpty());
    const auto time = std::filesystem::last_write_time(m_path);
    std::fstream(m_path, std::ios::in | std::ios::out)
        .seekp(static_cast<std::streamoff>(fileContent(m_path).find("07:08:09") + 7))
        .put('8');
    std::filesystem::last_write_time(m_path, time);
    const auto before = traceOf(m_path);
    const SaveRunResult result = goOn(plan);
    ASSERT_THAT(result.errors, SizeIs(1));
    EXPECT_EQ(result.errors[0].id, SaveErrorId::ChangedSinceImport);
    EXPECT_EQ(result.items.at(0).result, ItemResult::Refused);
    EXPECT_EQ(traceOf(m_path), before);
    EXPECT_TRUE(app().source_full().at(0)->isUnsavedOrGroupHarmonized());
}

TEST_F(UnchangedFile, IsBeingSavedFromTheFirstStageUntilThePlanIsGivenUpOrCarriedOut) {
    const auto isSaving = [&] { return app().liveContext().isSavingInProgress; };
    EXPECT_FALSE(isSaving());
    {
        const PreProcessResult givenUp = preProcess();
        EXPECT_TRUE(isSaving()); // while a person is asked
    }
    EXPECT_FALSE(isSaving());
    PreProcessResult older = preProcess();
    const PreProcessResult plan = preProcess();
    older = {};
    EXPECT_TRUE(isSaving());
    goOn(plan);
    EXPECT_FALSE(isSaving());
}

} // namespace
} // namespace chronomender
