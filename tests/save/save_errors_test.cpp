// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveTest.h"

namespace chronomender {
namespace {

using namespace little;

constexpr std::array allProblems{
    PreSaveProblem::error_01_ambiguousStamp,   PreSaveProblem::error_02_pre1904,
    PreSaveProblem::error_03_pre1970,          PreSaveProblem::error_04_livePhotoDriftingApart,
    PreSaveProblem::error_05_notFound,         PreSaveProblem::error_06_modifiedAfterImport,
    PreSaveProblem::error_07_notFound,         PreSaveProblem::error_08_modifiedAfterImport,
    PreSaveProblem::error_10_disconnected,     PreSaveProblem::error_11_oldVersion_file,
    PreSaveProblem::error_11_oldVersion_group, PreSaveProblem::error_12_zoneStampRewritten,
    PreSaveProblem::error_13_unreadableStamp,
};
constexpr std::array allIds{
    SaveErrorId::SettingFileDatesFailed,
    SaveErrorId::CannotBeOpened,
    SaveErrorId::ChangedSinceImport,
    SaveErrorId::NotReachable,
    SaveErrorId::SidecarCannotBeOpened,
    SaveErrorId::CannotBeOpenedChecking,
    SaveErrorId::ChangedSinceImportChecking,
    SaveErrorId::NotReachableChecking,
    SaveErrorId::SidecarMissing,
    SaveErrorId::NotWrittenUnreadableBack,
    SaveErrorId::WriteFailed,
};

class SaveErrors : public SaveTest {};

TEST_F(SaveErrors, EveryProblemHasItsKeyAndTexts) {
    EXPECT_EQ(key(PreSaveProblem::error_06_modifiedAfterImport), "error_06_modifiedAfterImport");
    EXPECT_EQ(problemWithKey("error_09_unknown"), std::nullopt);
    for (const PreSaveProblem problem : allProblems) {
        EXPECT_EQ(problemWithKey(key(problem)), problem);
        const std::string summary = "preSaveSummary_" + std::string(key(problem));
        for (const std::string &name : {summary, summary + "_details"})
            EXPECT_NE(text(name), name);
    }
}

TEST_F(SaveErrors, EveryIdHasADescription) {
    for (const SaveErrorId id : allIds) {
        const std::string name =
            "errorPanelDescriptionText_ID" + std::to_string(static_cast<int>(id));
        EXPECT_NE(text(name), name);
    }
}

TEST_F(SaveErrors, TextListsPathsUnderTheirIdsInOrder) {
    EXPECT_EQ(actionErrorText({}), "");
    const auto description = [](int id) {
        return text("errorPanelDescriptionText_ID" + std::to_string(id));
    };
    EXPECT_EQ(actionErrorText({{SaveErrorId::WriteFailed, "/p/c.jpg", "No space left on device"},
                               {SaveErrorId::ChangedSinceImport, "/p/b.jpg", ""},
                               {SaveErrorId::ChangedSinceImport, "/p/a.jpg", ""}}),
              text("errorPanelMessageText") + "\n\n" + description(3) + "\n/p/b.jpg\n/p/a.jpg\n\n" +
                  description(23) + "\n/p/c.jpg (No space left on device)\n");
}

} // namespace
} // namespace chronomender
