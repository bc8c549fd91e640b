// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveTest.h"

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::HasSubstr;

/// A system that refuses something in the middle of an item.
class RefusedWrite : public SaveTest {
protected:
    void begin() {
        shiftAllSlotsAlike();
        session.folder().sfEditMode = EditMode::Together;
        built = importPhoto();
        keepOwnZones();
        shift(absl::Hours(1));
        session.files.writes = session.files.dateSettings = 0;
    }

    BuiltPhoto built;
};

TEST_F(RefusedWrite, LeavesTheFileAsItWasAndSavableAgain) {
    FailingFileLayer &files = session.files;
    const struct {
        const char *what;
        int failingWrite;
        std::size_t tornBytes;
        int failingDateSetting, updateOpenError;
        SaveErrorId id;
        const char *systemText;
    } table[] = {
        {"first value", 1, 0, 0, 0, SaveErrorId::WriteFailed, "Input/output error"},
        {"second value", 2, 0, 0, 0, SaveErrorId::WriteFailed, "Input/output error"},
        {"third value", 3, 0, 0, 0, SaveErrorId::WriteFailed, "Input/output error"},
        {"fourth value", 4, 0, 0, 0, SaveErrorId::WriteFailed, "Input/output error"},
        {"torn value", 3, 13, 0, 0, SaveErrorId::WriteFailed, "Input/output error"},
        {"date beforehand", 0, 0, 1, 0, SaveErrorId::SettingFileDatesFailed,
         "Operation not permitted"},
        {"date afterwards", 0, 0, 2, 0, SaveErrorId::SettingFileDatesFailed,
         "Operation not permitted"},
        {"read-only file", 0, 0, 0, EACCES, SaveErrorId::CannotBeOpened, "Permission denied"},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.what);
        begin();
        files.failingWrite = row.failingWrite;
        files.tornBytes = row.tornBytes;
        files.failingDateSetting = row.failingDateSetting;
        files.updateOpenError = row.updateOpenError;
        const SaveRunResult run = session.save();
        EXPECT_THAT(ids(run), ElementsAre(row.id));
        EXPECT_THAT(results(run), ElementsAre(ItemResult::Failed));
        EXPECT_EQ(run.errors.at(0).systemText, row.systemText);
        EXPECT_EQ(slotResult(run.items.at(0), "exifDateTimeOriginal"), SlotResult::Refused);
        EXPECT_EQ(files.writes > 0, row.failingWrite > 0 || row.failingDateSetting == 2);
        EXPECT_EQ(content(), built.bytes);
        EXPECT_EQ(attributesOf(session.path("a.jpg")).modificationDate, session.fileDate);
        EXPECT_EQ(session.item("a.jpg").spDateTimeOriginal, utc(2024, 5, 6, 5, 8, 9));
        EXPECT_EQ(session.item("a.jpg").spDateTimeModified(), utc(2024, 5, 6, 6, 8, 9));
        files.failingWrite = files.failingDateSetting = files.updateOpenError = 0;
        saves();
        EXPECT_EQ(at(built, "TIFFDateTime", 19), "2024:05:06 08:08:11");
    }
}

TEST_F(RefusedWrite, ValueThatCannotGoBackIsSaidAndStopsTheNextSave) {
    begin();
    session.files.failingWritesFrom = 3;
    const SaveRunResult run = session.save();
    EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::WriteFailed));
    EXPECT_THAT(run.errors.at(0).systemText, HasSubstr(text("saveObstacle_notPutBack")));
    session.files.failingWritesFrom = 0;
    EXPECT_THAT(kinds(session.preProcess()),
                ElementsAre(PreSaveProblem::error_06_modifiedAfterImport));
}

} // namespace
} // namespace chronomender
