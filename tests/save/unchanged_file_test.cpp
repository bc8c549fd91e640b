// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveTest.h"

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;
using enum PreSaveProblem;

/// Files that were changed by somebody else: the save must not touch them.
class ChangedFile : public SaveTest {
protected:
    void begin() {
        session.folder().sfEditMode = EditMode::Together;
        std::filesystem::create_directories(session.disk.path("folder0"));
        built = importPhoto();
        keepOwnZones();
        shift(absl::Hours(1));
    }
    /// Changes one byte of the original stamp, with size and dates kept.
    void changeOneByte() {
        std::fstream(path, std::ios::in | std::ios::out | std::ios::binary)
            .seekp(static_cast<std::streamoff>(built.offsets.at("ExifDateTimeOriginal") + 18))
            .put('8');
        setFileDate(path, session.fileDate);
    }
    void expectRefusedAndUntouched(const PreProcessResult &dry, SaveErrorId id) {
        const FileAttributes before = attributesOf(path);
        const std::string bytes = content();
        const SaveRunResult run = goOn(dry);
        EXPECT_THAT(ids(run), ElementsAre(id));
        EXPECT_THAT(results(run),
                    ElementsAre(id == SaveErrorId::SidecarMissing ? ItemResult::Failed
                                                                  : ItemResult::Refused));
        EXPECT_EQ(session.files.writes + session.files.dateSettings, 0);
        const FileAttributes after = attributesOf(path);
        EXPECT_TRUE(after.isSameFile(before));
        EXPECT_EQ(after.modificationDate, before.modificationDate);
        EXPECT_EQ(content(), bytes);
        EXPECT_TRUE(session.item("a.jpg").isThisTimeUnsaved());
    }

    BuiltPhoto built;
    const std::string path = session.path("a.jpg");
};

TEST_F(ChangedFile, IsAProblemOfTheDryRunAndThenRefused) {
    const struct {
        const char *what;
        std::function<void()> change;
        PreSaveProblem problem;
        SaveErrorId id;
    } table[] = {
        {"a byte", [&] { changeOneByte(); }, error_06_modifiedAfterImport,
         SaveErrorId::ChangedSinceImport},
        {"a touch", [&] { setFileDate(path, session.fileDate + absl::Seconds(1)); },
         error_06_modifiedAfterImport, SaveErrorId::ChangedSinceImport},
        {"a sidecar is gone", [&] { session.item("a.jpg").spSidecarExtensions = {"xmp"}; },
         error_06_modifiedAfterImport, SaveErrorId::SidecarMissing},
        {"must be read again",
         [&] {
             session.item("a.jpg").save.fileUnchangedState = FileUnchangedState::MustBeReadAgain;
         },
         error_11_oldVersion_file, SaveErrorId::ChangedSinceImport},
        {"it is gone", [&] { std::filesystem::remove(path); }, error_05_notFound,
         SaveErrorId::NotReachable},
        {"its folder is gone", [&] { std::filesystem::remove_all(session.disk.path("folder0")); },
         error_10_disconnected, SaveErrorId::NotReachable},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.what);
        begin();
        row.change();
        const PreProcessResult dry = session.preProcess();
        EXPECT_THAT(kinds(dry), ElementsAre(row.problem));
        EXPECT_EQ(dry.items.at(0).result, ItemResult::Refused);
        const PreProcessResult rename = session.preProcess({.type = SaveProcessType::Rename});
        EXPECT_EQ(kinds(rename), kinds(dry));
        EXPECT_THAT(rename.items, IsEmpty());
        expectRefusedAndUntouched(dry, row.id);
    }
}

TEST_F(ChangedFile, IsAProblemOfARenameWhetherItIsSavedOrNot) {
    session.photo("b.jpg", fullPhotoFields());
    begin();
    shift(absl::ZeroDuration());
    changeOneByte();
    SaveRequest request{.type = SaveProcessType::SaveThenRename, .onlyFolders = session.folders};
    const PreProcessResult dry = session.preProcess(request);
    EXPECT_THAT(kinds(dry), ElementsAre(error_06_modifiedAfterImport));
    EXPECT_THAT(dry.items, IsEmpty());
    session.folder().sfPicDetails_fullArray[1]->positions.indexInSource_full = -1;
    request.savingAll = true;
    const PreProcessResult all = session.preProcess(request);
    EXPECT_THAT(kinds(all), ElementsAre(error_06_modifiedAfterImport)) << "told once";
    EXPECT_EQ(all.items.size(), 1U);
    request = {.type = SaveProcessType::Rename,
               .onlyPics = {{session.folder().sfPicDetails_fullArray[1]}}};
    EXPECT_THAT(kinds(session.preProcess(request)), IsEmpty());
    session.cancellation.request();
    EXPECT_TRUE(session.preProcess({.type = SaveProcessType::Rename}).wasCancelled);
}

TEST_F(ChangedFile, ChangeBetweenTheStagesIsSeenAndTheFileStays) {
    begin();
    const PreProcessResult dry = session.preProcess();
    EXPECT_THAT(dry.problems, IsEmpty());
    changeOneByte();
    expectRefusedAndUntouched(dry, SaveErrorId::ChangedSinceImport);
}

TEST_F(ChangedFile, SavesInARowProveTheirOwnWrites) {
    begin();
    setFileDate(path, session.fileDate + absl::Milliseconds(900)); // less than a second passes
    saves();
    shift(absl::Hours(1));
    EXPECT_THAT(session.preProcess().problems, IsEmpty());
    saves();
    EXPECT_EQ(at(built, "ExifDateTimeOriginal", 19), "2024:05:06 09:08:09");
}

} // namespace
} // namespace chronomender
