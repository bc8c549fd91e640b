// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveTest.h"

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;

/// Files that were changed by somebody else: the save must not touch them.
class ChangedFile : public SaveTest {
protected:
    void SetUp() override {
        built = importPhoto();
        keepOwnZones();
        shift(absl::Hours(1));
    }
    /// Changes one byte of the original stamp, with size and dates kept.
    void changeOneByte() {
        const std::size_t at = built.offsets.at("ExifDateTimeOriginal") + 18;
        changed = built.bytes;
        changed[at] = '8';
        std::fstream(path, std::ios::in | std::ios::out | std::ios::binary)
            .seekp(static_cast<std::streamoff>(at))
            .put('8');
        setFileDate(path, session.fileDate);
    }
    void expectRefusedAndUntouched(const PreProcessResult &dry) {
        const FileAttributes before = attributesOf(path);
        const std::string bytes = content();
        const SaveRunResult run = session.driver.continueProcessThread({}, dry);
        EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::ChangedSinceImport));
        EXPECT_THAT(results(run), ElementsAre(ItemResult::Refused));
        EXPECT_EQ(session.files.writes + session.files.dateSettings, 0);
        const FileAttributes after = attributesOf(path);
        EXPECT_TRUE(after.isSameFile(before));
        EXPECT_EQ(after.modificationDate, before.modificationDate);
        EXPECT_EQ(content(), bytes);
        EXPECT_TRUE(session.item("a.jpg").isThisTimeUnsaved());
    }

    BuiltPhoto built;
    std::string changed;
    const std::string path = session.path("a.jpg");
};

TEST_F(ChangedFile, OneByteOfAStampIsSeenAndTheFileStays) {
    changeOneByte();
    const PreProcessResult dry = session.preProcess();
    EXPECT_THAT(kinds(dry.problems), ElementsAre(PreSaveProblem::error_06_modifiedAfterImport));
    EXPECT_EQ(dry.items[0].result, ItemResult::Refused);
    EXPECT_EQ(session.item("a.jpg").save.fileUnchangedState, FileUnchangedState::BytesDiffer);
    expectRefusedAndUntouched(dry);
    EXPECT_EQ(content(), changed);
}

TEST_F(ChangedFile, TouchIsSeenAndTheFileStays) {
    setFileDate(path, session.fileDate + absl::Seconds(1));
    const PreProcessResult dry = session.preProcess();
    EXPECT_THAT(kinds(dry.problems), ElementsAre(PreSaveProblem::error_06_modifiedAfterImport));
    EXPECT_EQ(session.item("a.jpg").save.fileUnchangedState, FileUnchangedState::AttributesDiffer);
    expectRefusedAndUntouched(dry);
}

TEST_F(ChangedFile, ChangeBetweenTheStagesIsSeenAndTheFileStays) {
    const PreProcessResult dry = session.preProcess();
    EXPECT_THAT(dry.problems, IsEmpty());
    changeOneByte();
    expectRefusedAndUntouched(dry);
}

TEST_F(ChangedFile, DateLessThanASecondAwayPasses) {
    setFileDate(path, session.fileDate + absl::Milliseconds(900));
    const PreProcessResult dry = session.preProcess();
    EXPECT_THAT(dry.problems, IsEmpty());
    EXPECT_THAT(results(session.driver.continueProcessThread({}, dry)),
                ElementsAre(ItemResult::Saved));
}

TEST_F(ChangedFile, MissingFileIsNamedSo) {
    std::filesystem::remove(path);
    const PreProcessResult dry = session.preProcess();
    EXPECT_THAT(kinds(dry.problems), ElementsAre(PreSaveProblem::error_05_notFound));
    const SaveRunResult run = session.driver.continueProcessThread({}, dry);
    EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::NotReachable));
}

TEST_F(ChangedFile, ItemThatMustBeReadAgainIsNotWritten) {
    session.item("a.jpg").save.fileUnchangedState = FileUnchangedState::MustBeReadAgain;
    const PreProcessResult dry = session.preProcess();
    EXPECT_THAT(kinds(dry.problems), ElementsAre(PreSaveProblem::error_11_oldVersion_file));
    expectRefusedAndUntouched(dry);
}

TEST_F(ChangedFile, SidecarThatIsGoneStopsTheSave) {
    session.item("a.jpg").spSidecarExtensions = {"xmp"};
    const PreProcessResult dry = session.preProcess();
    EXPECT_THAT(kinds(dry.problems), ElementsAre(PreSaveProblem::error_06_modifiedAfterImport));
    EXPECT_THAT(ids(session.driver.continueProcessThread({}, dry)),
                ElementsAre(SaveErrorId::SidecarMissing));
    EXPECT_EQ(content(), built.bytes);
}

TEST_F(ChangedFile, TwoSavesInARowProveTheirOwnWrites) {
    EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Saved));
    shift(absl::Hours(1));
    const PreProcessResult dry = session.preProcess();
    EXPECT_THAT(dry.problems, IsEmpty());
    EXPECT_THAT(results(session.driver.continueProcessThread({}, dry)),
                ElementsAre(ItemResult::Saved));
    EXPECT_EQ(stampAt(built, "ExifDateTimeOriginal"), "2024:05:06 09:08:09");
}

} // namespace
} // namespace chronomender
