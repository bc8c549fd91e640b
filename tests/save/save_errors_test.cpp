// SPDX-License-Identifier: GPL-3.0-or-later
#include "ErrorLog.h"
#include "SaveTest.h"

namespace chronomender {
namespace {

using little::fileContent;
using little::utc;

class SaveErrors : public little::SaveTest {
protected:
    static std::string description(int id) {
        const std::string name = "errorPanelDescriptionText_ID" + std::to_string(id);
        EXPECT_NE(text(name), name);
        return text(name);
    }
};

/// A new id has no way around this list: the compiler names it.
std::vector<SaveErrorId> allIds() {
    std::vector<SaveErrorId> ids;
    for (int i = 0; i < 100; ++i)
        switch (const auto id = static_cast<SaveErrorId>(i)) {
        case SaveErrorId::SettingFileDatesFailed:
        case SaveErrorId::CannotBeOpened:
        case SaveErrorId::ChangedSinceImport:
        case SaveErrorId::NotReachable:
        case SaveErrorId::NotRenamed:
        case SaveErrorId::SyncCannotBeOpened:
        case SaveErrorId::SidecarCannotBeOpened:
        case SaveErrorId::NumberAdded:
        case SaveErrorId::CompanionNotWritable:
        case SaveErrorId::CannotBeOpenedChecking:
        case SaveErrorId::ChangedSinceImportChecking:
        case SaveErrorId::NotReachableChecking:
        case SaveErrorId::CompanionNotRenamed:
        case SaveErrorId::SidecarMissing:
        case SaveErrorId::NameBeginsWithDot:
        case SaveErrorId::NotWrittenUnreadableBack:
        case SaveErrorId::WriteFailed:
        case SaveErrorId::ToolFailed:
        case SaveErrorId::ToolMissing:
        case SaveErrorId::InUse:
        case SaveErrorId::IntentNotKept:
        case SaveErrorId::ReplacedMeanwhile:
            ids.push_back(id);
        }
    return ids;
}

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
    for (const SaveErrorId id : allIds())
        description(static_cast<int>(id));
}

TEST_F(SaveErrors, TextListsPathsUnderTheirIdsInOrder) {
    EXPECT_EQ(actionErrorText({}), "");
    EXPECT_EQ(actionErrorText({{SaveErrorId::WriteFailed, "/p/c.jpg", "No space left on device"},
                               {SaveErrorId::ChangedSinceImport, "/p/b.jpg", ""},
                               {SaveErrorId::ChangedSinceImport, "/p/a.jpg", ""}}),
              text("errorPanelMessageText") + "\n\n" + description(3) + "\n/p/b.jpg\n/p/a.jpg\n\n" +
                  description(23) + "\n/p/c.jpg (No space left on device)\n");
}

TEST_F(SaveErrors, TheToolsSummaryStandsBehindThePaths) {
    const std::vector<SaveError> errors{{SaveErrorId::ToolFailed, "/p/a.jpg", ""}};
    EXPECT_EQ(actionErrorText(errors, "Errors\n\tFile format error\n"),
              actionErrorText(errors) + "\nErrors\n\tFile format error\n");
    EXPECT_EQ(actionErrorText({}, "Errors"), text("errorPanelMessageText") + "\n\nErrors\n");
}

TEST_F(SaveErrors, TheLogKeepsItsNewestWholeEntries) {
    constexpr std::size_t mostBytes = 400;
    const ErrorLog log(session.disk.path("new/support"), mostBytes);
    for (int i = 10; i < 50; ++i)
        log.append(utc(2024, 5, 6), "mend save", "error number " + std::to_string(i) + '\n');
    const std::string content = fileContent(log.path());
    EXPECT_LE(content.size(), mostBytes);
    EXPECT_GT(content.size(), mostBytes / 2);
    EXPECT_THAT(content, testing::StartsWith("== 2024-05-06 00:00:00 UTC  mend save\nerror"));
    EXPECT_THAT(content, testing::EndsWith("error number 49\n\n"));
    session.disk.write("file", "");
    ErrorLog(session.disk.path("file")).append(utc(2024, 5, 6), "mend", "no folder"); // no throw
}

} // namespace
} // namespace chronomender
