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
    void SetUp() override {
        shiftAllSlotsAlike();
        built = session.photo("a.jpg", fullPhotoFields());
        session.import();
        keepOwnZones();
        shift(absl::Hours(1));
    }
    /// After a failure nothing of it is left in the file, and it can be saved the next time.
    void expectAsBeforeAndSavableAgain() {
        EXPECT_EQ(content(), built.bytes);
        EXPECT_EQ(attributesOf(session.path("a.jpg")).modificationDate, session.fileDate);
        EXPECT_EQ(session.item("a.jpg").spDateTimeOriginal, utc(2024, 5, 6, 5, 8, 9));
        EXPECT_EQ(session.item("a.jpg").spDateTimeModified(), utc(2024, 5, 6, 6, 8, 9));
        session.files.failingWrite = session.files.failingDateSetting = 0;
        session.files.updateOpenError = 0;
        EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Saved));
        EXPECT_EQ(stampAt(built, "TIFFDateTime"), "2024:05:06 08:08:11");
        expectModelIsWhatAFreshImportShows();
    }

    BuiltPhoto built;
};

TEST_F(RefusedWrite, ValuesWrittenSoFarGoBack) {
    for (const int failing : {1, 2, 3, 4}) {
        session.files.writes = 0;
        session.files.failingWrite = failing;
        const SaveRunResult run = session.save();
        EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::WriteFailed)) << failing;
        EXPECT_THAT(results(run), ElementsAre(ItemResult::Failed));
        EXPECT_EQ(run.errors[0].systemText, "Input/output error");
        EXPECT_EQ(slotResult(run.items[0], "exifDateTimeOriginal"), SlotResult::Refused);
        EXPECT_EQ(content(), built.bytes) << failing;
    }
    expectAsBeforeAndSavableAgain();
}

TEST_F(RefusedWrite, TornValueGoesBackToo) {
    session.files.failingWrite = 3;
    session.files.tornBytes = 13;
    EXPECT_THAT(ids(session.save()), ElementsAre(SaveErrorId::WriteFailed));
    expectAsBeforeAndSavableAgain();
}

TEST_F(RefusedWrite, ValueThatCannotGoBackIsSaidAndStopsTheNextSave) {
    session.files.failingWritesFrom = 3;
    const SaveRunResult run = session.save();
    EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::WriteFailed));
    EXPECT_THAT(run.errors[0].systemText, HasSubstr(text("saveObstacle_notPutBack")));
    session.files.failingWritesFrom = 0;
    EXPECT_THAT(kinds(session.preProcess().problems),
                ElementsAre(PreSaveProblem::error_06_modifiedAfterImport));
}

TEST_F(RefusedWrite, FileWhoseDateCannotBeSetIsNotTouched) {
    session.files.failingDateSetting = 1;
    const SaveRunResult run = session.save();
    EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::SettingFileDatesFailed));
    EXPECT_EQ(run.errors[0].systemText, "Operation not permitted");
    EXPECT_EQ(session.files.writes, 0);
    expectAsBeforeAndSavableAgain();
}

TEST_F(RefusedWrite, DateRefusedAfterTheValuesTakesThemBack) {
    session.files.failingDateSetting = 2;
    EXPECT_THAT(ids(session.save()), ElementsAre(SaveErrorId::SettingFileDatesFailed));
    EXPECT_GT(session.files.writes, 0);
    expectAsBeforeAndSavableAgain();
}

TEST_F(RefusedWrite, ReadOnlyFileIsNamedSo) {
    session.files.updateOpenError = EACCES;
    const SaveRunResult run = session.save();
    EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::CannotBeOpened));
    EXPECT_THAT(results(run), ElementsAre(ItemResult::Failed));
    EXPECT_EQ(run.errors[0].systemText, "Permission denied");
    expectAsBeforeAndSavableAgain();
}

TEST_F(RefusedWrite, RestOfTheRunGoesOn) {
    const BuiltPhoto other = session.photo("b.jpg", fullPhotoFields());
    session.import();
    std::filesystem::remove(session.path("a.jpg"));
    EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Refused, ItemResult::Saved));
    EXPECT_NE(content("b.jpg"), other.bytes);
}

} // namespace
} // namespace chronomender
