// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveTest.h"

namespace chronomender {
namespace {

class SaveErrors : public little::SaveTest {
protected:
    static std::string description(int id) {
        const std::string name = "errorPanelDescriptionText_ID" + std::to_string(id);
        EXPECT_NE(text(name), name);
        return text(name);
    }
};

TEST_F(SaveErrors, EachHasItsKeyAndTexts) {
    EXPECT_EQ(key(PreSaveProblem::error_06_modifiedAfterImport), "error_06_modifiedAfterImport");
    EXPECT_EQ(problemWithKey("error_09_unknown"), std::nullopt);
    for (int i = 0; i <= static_cast<int>(PreSaveProblem::error_13_unreadableStamp); ++i) {
        const auto problem = static_cast<PreSaveProblem>(i);
        EXPECT_EQ(problemWithKey(key(problem)), problem);
        const std::string summary = "preSaveSummary_" + std::string(key(problem));
        for (const std::string &name : {summary, summary + "_details"})
            EXPECT_NE(text(name), name);
    }
    for (const int id : {0, 2, 3, 4, 7, 10, 11, 12, 15, 21, 23})
        description(id);
}

TEST_F(SaveErrors, TextListsPathsUnderTheirIdsInOrder) {
    EXPECT_EQ(actionErrorText({}), "");
    EXPECT_EQ(actionErrorText({{SaveErrorId::WriteFailed, "/p/c.jpg", "No space left on device"},
                               {SaveErrorId::ChangedSinceImport, "/p/b.jpg", ""},
                               {SaveErrorId::ChangedSinceImport, "/p/a.jpg", ""}}),
              text("errorPanelMessageText") + "\n\n" + description(3) + "\n/p/b.jpg\n/p/a.jpg\n\n" +
                  description(23) + "\n/p/c.jpg (No space left on device)\n");
}

} // namespace
} // namespace chronomender
