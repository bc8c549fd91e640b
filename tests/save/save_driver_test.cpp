// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveTest.h"

#include <QCoreApplication>

#include <thread>

namespace chronomender {
namespace {

using namespace little;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class SaveDriverTest : public SaveTest {};

TEST_F(SaveDriverTest, WritesTheShiftedStampsAndNotOneOtherByte) {
    const BuiltPhoto built = importPhoto();
    shiftAllSlotsAlike();
    keepOwnZones();
    shift(absl::Hours(25));
    const SaveRunResult run = session.save();
    EXPECT_THAT(results(run), ElementsAre(ItemResult::Saved));
    EXPECT_EQ(content(), replaced(built, {{"ExifDateTimeOriginal", "2024:05:07 08:08:09"},
                                          {"ExifDateTimeDigitized", "2024:05:07 08:08:10"},
                                          {"TIFFDateTime", "2024:05:07 08:08:11"},
                                          {"GPSDateStamp", "2024:05:07"},
                                          {"GPSTimeStamp", number(6, 4, Endian::Intel)}}));
    EXPECT_EQ(attributesOf(session.path("a.jpg")).modificationDate, utc(2024, 5, 7, 6, 8, 11));
    EXPECT_EQ(session.folder().sfDateModificationsTimeInterval, absl::ZeroDuration());
    EXPECT_FALSE(session.folder().isUnsavedFolder());
    expectModelIsWhatAFreshImportShows();
}

TEST_F(SaveDriverTest, ShiftAndShiftBackGiveTheSameFile) {
    shiftAllSlotsAlike();
    const std::map<std::string, BuiltPhoto> photos{
        {"intel.jpg", session.photo("intel.jpg", fullPhotoFields())},
        {"motorola.jpg", session.photo("motorola.jpg", fullPhotoFields(Endian::Motorola))},
        {"colon.jpg", session.photo("colon.jpg", {.original = "2024:05:06:07:08:09"})},
        {"plain.jpg", session.photo("plain.jpg", {.original = "2024:12:31 23:59:59",
                                                  .modified = "2025:01:01 00:00:00"})}};
    session.import();
    keepOwnZones();
    for (const absl::Duration by : {absl::Seconds(3723), absl::Seconds(-3723)}) {
        shift(by);
        EXPECT_THAT(results(session.save()), Each(ItemResult::Saved));
        expectModelIsWhatAFreshImportShows();
        for (const auto &[name, built] : photos)
            EXPECT_EQ(content(name) == built.bytes, by < absl::ZeroDuration()) << name;
    }
}

TEST_F(SaveDriverTest, WithoutACorrectionNothingIsTouched) {
    importPhoto({.original = "2024:05:06 07:08:09"});
    EXPECT_THAT(session.save().items, IsEmpty());
    EXPECT_EQ(session.files.touches(), 0);
    EXPECT_THAT(session.save({.savingAll = true}).items, SizeIs(1));
    EXPECT_EQ(session.files.writes, 0);
}

TEST_F(SaveDriverTest, SavingAllBringsFileDatesInLineWithoutWritingStamps) {
    session.defaults.setForThisRun("dateChangeEXIFFinderModDateEXIFModDateOptions", "0");
    importPhoto({.original = "2024:05:06 07:08:09"});
    EXPECT_THAT(results(session.save({.savingAll = true})), ElementsAre(ItemResult::Saved));
    EXPECT_EQ(session.files.writes, 0);
    EXPECT_EQ(attributesOf(session.path("a.jpg")).modificationDate, utc(2024, 5, 6, 5, 8, 9));
    expectModelIsWhatAFreshImportShows();
}

TEST_F(SaveDriverTest, DryRunTellsEachSlotAndLeavesTheFileAlone) {
    const BuiltPhoto built = importPhoto({.original = "2024:05:06 07:08:09",
                                          .digitized = "2020:01:01 00:00:00",
                                          .modified = "2024:05:06 07:08:09"});
    shift(absl::Hours(1));
    const PreProcessResult dry = session.preProcess();
    ASSERT_THAT(dry.items, SizeIs(1));
    const ItemOutcome &item = dry.items[0];
    EXPECT_EQ(item.result, ItemResult::Saved);
    EXPECT_EQ(slotResult(item, "exifDateTimeOriginal"), SlotResult::WrittenInPlace);
    EXPECT_EQ(slotResult(item, "exifDateTimeDigitized"), SlotResult::WrittenInPlace)
        << "it must not precede the original";
    EXPECT_EQ(slotResult(item, "tiffDateTime"), SlotResult::WrittenInPlace);
    EXPECT_EQ(slotResult(item, "fileCreationDate"), SlotResult::NotStorable);
    EXPECT_EQ(item.slots[0].oldDate, utc(2024, 5, 6, 5, 8, 9));
    EXPECT_EQ(item.slots[0].newDate, utc(2024, 5, 6, 6, 8, 9));
    EXPECT_EQ(content(), built.bytes);
    EXPECT_EQ(session.files.updateOpens, 0);
    EXPECT_EQ(attributesOf(session.path("a.jpg")).modificationDate, session.fileDate);
}

TEST_F(SaveDriverTest, FileWithoutTagsTakesTheDateAsItsOwn) {
    importPhoto({});
    shift(absl::Hours(-1));
    EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Saved));
    EXPECT_EQ(session.files.writes, 0);
    EXPECT_EQ(attributesOf(session.path("a.jpg")).modificationDate,
              session.fileDate - absl::Hours(1));
    expectModelIsWhatAFreshImportShows();
}

TEST_F(SaveDriverTest, FillsEmptyTagsAndMovesTheType) {
    session.emptyTags.withEmptyExifFixDate = PerFolderImportOptions::EmptyTags::FileDate;
    const struct {
        PhotoFields fields;
        SpType before, after;
        const char *value;
    } cases[] = {
        {{.original = "0000:00:00 00:00:00"},
         SpTypeEmptyOriginalFileDate,
         SpTypeExifOriginal,
         "ExifDateTimeOriginal"},
        {{.digitized = "    :  :     :  :  "},
         SpTypeEmptyDigitizedFileDate,
         SpTypeExifDigitized,
         "ExifDateTimeDigitized"},
        {{.modified = "0000:00:00 00:00:00"},
         SpTypeEmptyTiffFileDate,
         SpTypeTiffDateTime,
         "TIFFDateTime"},
    };
    session.fileDate = utc(2024, 5, 6, 20);
    for (const auto &each : cases) {
        const BuiltPhoto built = importPhoto(each.fields);
        ASSERT_EQ(session.item("a.jpg").spType, each.before);
        EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Saved));
        EXPECT_EQ(content(), replaced(built, {{each.value, "2024:05:06 22:00:00"}}));
        EXPECT_EQ(session.item("a.jpg").spType, each.after);
        expectModelIsWhatAFreshImportShows();
    }
}

TEST_F(SaveDriverTest, ItemsLeftAloneAreNeverPartOfASave) {
    session.emptyTags.withEmptyExifFixDate = PerFolderImportOptions::EmptyTags::LeaveAlone;
    const BuiltPhoto built = importPhoto({.original = "0000:00:00 00:00:00"});
    shift(absl::Hours(1));
    EXPECT_THAT(session.save({.savingAll = true}).items, IsEmpty());
    EXPECT_EQ(content(), built.bytes);
}

TEST_F(SaveDriverTest, ModificationStampThatIsNoLongerYoungerThanItsFileTakesOver) {
    session.defaults.setForThisRun("dateChangeNoEXIFButTIFFFinderModDate", "0");
    session.fileDate = utc(2024, 5, 6, 4);
    importPhoto({.modified = "2024:05:06 07:08:09"}); // 05:08:09 UTC, an hour younger
    ASSERT_EQ(session.item("a.jpg").spType, SpTypeTiffYoungerThanFile);
    shift(absl::Hours(2));
    EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Saved));
    EXPECT_EQ(session.item("a.jpg").spType, SpTypeTiffDateTime);
    expectModelIsWhatAFreshImportShows();
}

TEST_F(SaveDriverTest, ZoneChoiceMovesToTheSourceOnceItIsWritten) {
    const BuiltPhoto built = importPhoto({.original = "2024:05:06 07:08:09"});
    targetZone("Asia/Tokyo");
    session.item("a.jpg").zones.isUnsavedDueToTZC = true;
    EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Saved));
    EXPECT_EQ(stampAt(built, "ExifDateTimeOriginal"), "2024:05:06 14:08:09");
    EXPECT_EQ(session.folder().sourceTimeZones.folderDefault->persistedName(), "Asia/Tokyo");
    EXPECT_FALSE(session.folder().isUnsavedFolder());
    expectModelIsWhatAFreshImportShows();
}

TEST_F(SaveDriverTest, SingleShiftsGoOnceTheyAreWritten) {
    session.photo("a.jpg", {.original = "2024:05:06 07:08:09"});
    const BuiltPhoto other = session.photo("b.jpg", {.original = "2024:05:06 07:08:09"});
    session.folder().sfEditMode = EditMode::Single;
    session.import();
    updateSinglePicModificationBy(session.item("a.jpg"), absl::Minutes(1));
    EXPECT_THAT(session.save().items, SizeIs(1));
    EXPECT_EQ(session.item("a.jpg").shift.singlePicModification, absl::ZeroDuration());
    EXPECT_EQ(session.folder().singlePicModeImages, 0);
    EXPECT_EQ(content("b.jpg"), other.bytes);
    expectModelIsWhatAFreshImportShows();
}

TEST_F(SaveDriverTest, FailedItemsOfATogetherFolderKeepItsShiftAsTheirOwn) {
    for (const char *name : {"a.jpg", "b.jpg", "c.jpg"})
        session.photo(name, {.original = "2024:05:06 07:08:09"});
    session.import();
    session.undo.registerUndo(session.folders[0], [](MySingleFolder &) {});
    shift(absl::Hours(1));
    setFileDate(session.path("b.jpg"), session.fileDate + absl::Hours(1));
    EXPECT_THAT(results(session.save()),
                ElementsAre(ItemResult::Saved, ItemResult::Refused, ItemResult::Saved));
    EXPECT_EQ(session.folder().sfEditMode, EditMode::Single);
    EXPECT_EQ(session.folder().sfDateModificationsTimeInterval, absl::ZeroDuration());
    EXPECT_EQ(session.folder().singlePicModeImages, 1);
    EXPECT_EQ(session.item("b.jpg").shift.singlePicModification, absl::Hours(1));
    EXPECT_TRUE(session.item("b.jpg").hasSaveErrorTime());
    EXPECT_EQ(session.item("b.jpg").spDateTimeModified(), utc(2024, 5, 6, 6, 8, 9));
    EXPECT_EQ(session.item("a.jpg").spDateTimeModified(), utc(2024, 5, 6, 6, 8, 9));
    EXPECT_FALSE(session.undo.canUndo());

    setFileDate(session.path("b.jpg"), session.fileDate);
    EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Saved));
    EXPECT_FALSE(session.folder().isUnsavedFolder());
    expectModelIsWhatAFreshImportShows();
}

TEST_F(SaveDriverTest, CancelledRunFinishesWhatItBeganAndKeepsTheRestUnsaved) {
    for (int i = 0; i < 200; ++i)
        session.photo(std::to_string(i) + ".jpg", {.original = "2024:05:06 07:08:09"});
    session.import();
    shift(absl::Hours(1));
    const PreProcessResult dry = session.preProcess();
    session.files.beforeUpdateOpen = [&](const std::string &) {
        if (session.files.updateOpens == 40)
            session.cancellation.request();
    };
    const SaveRunResult run = session.driver.continueProcessThread({}, dry);
    EXPECT_TRUE(run.wasCancelled);
    ASSERT_THAT(run.items, SizeIs(200));
    std::size_t saved = 0;
    while (saved < run.items.size() && run.items[saved].result == ItemResult::Saved)
        ++saved;
    EXPECT_GE(saved, 40U);
    EXPECT_LT(saved, 200U);
    for (std::size_t i = 0; i < run.items.size(); ++i) {
        EXPECT_EQ(run.items[i].result, i < saved ? ItemResult::Saved : ItemResult::NotReached);
        EXPECT_EQ(run.items[i].pic->isThisTimeUnsaved(), i >= saved);
        EXPECT_EQ(run.items[i].pic->spDateTimeModified(), utc(2024, 5, 6, 6, 8, 9));
        EXPECT_EQ(run.items[i].pic->save.saveErrorType, 0U);
    }
}

TEST_F(SaveDriverTest, RunCancelledBeforeItsFirstItemLeavesTheFolderAsItWas) {
    const BuiltPhoto built = importPhoto();
    shift(absl::Hours(1));
    const PreProcessResult dry = session.preProcess();
    session.cancellation.request();
    const SaveRunResult run = session.driver.continueProcessThread({}, dry);
    EXPECT_THAT(results(run), ElementsAre(ItemResult::NotReached));
    EXPECT_EQ(session.folder().sfEditMode, EditMode::Together);
    EXPECT_EQ(session.folder().sfDateModificationsTimeInterval, absl::Hours(1));
    EXPECT_EQ(content(), built.bytes);
    EXPECT_TRUE(session.preProcess().wasCancelled);
}

TEST(SaveDriverFolders, TakesUnsavedFoldersInOrderAndPassesOverIgnoredOnes) {
    FakeSession session(4);
    for (std::size_t i = 0; i < 4; ++i)
        session.photo("a.jpg", {.original = "2024:05:06 07:08:09"}, i);
    session.import();
    for (const std::size_t i : {3U, 1U, 0U})
        setSfDateModificationsFromTimeInterval(session.folder(i), absl::Hours(1), false);
    session.folder(1).isEXIFIgnored = true;
    EXPECT_THAT(session.preProcess().folders, ElementsAre(session.folders[0], session.folders[3]));
    EXPECT_THAT(session.save({.onlyFolder = session.folders[3]}).items, SizeIs(1));
    EXPECT_FALSE(session.folder(3).isUnsavedFolder());
    EXPECT_TRUE(session.folder(0).isUnsavedFolder());
}

TEST_F(SaveDriverTest, UnreachableFolderFailsItsItemsAndNoOthers) {
    importPhoto();
    shift(absl::Hours(1));
    std::filesystem::remove_all(session.disk.path("folder0"));
    const PreProcessResult dry = session.preProcess();
    EXPECT_THAT(kinds(dry.problems), ElementsAre(PreSaveProblem::error_10_disconnected));
    EXPECT_EQ(dry.items[0].result, ItemResult::Refused);
    const SaveRunResult run = session.driver.continueProcessThread({}, dry);
    EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::NotReachable));
}

TEST_F(SaveDriverTest, WorksFromAThreadWhileTheMainThreadServesIt) {
    for (int i = 0; i < 50; ++i)
        session.photo(std::to_string(i) + ".jpg", {.original = "2024:05:06 07:08:09"});
    session.import();
    shift(absl::Hours(1));
    std::atomic<bool> isOver{false};
    SaveRunResult run;
    std::thread worker([&] {
        run = session.save();
        isOver = true;
    });
    while (!isOver)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    worker.join();
    EXPECT_THAT(results(run), testing::AllOf(SizeIs(50), Each(ItemResult::Saved)));
    expectModelIsWhatAFreshImportShows();
}

TEST(SaveDriverProgress, TellsTenTimesOrEvery25Items) {
    for (const auto &[count, between] :
         {std::pair{1, 1}, {9, 1}, {10, 1}, {100, 10}, {249, 24}, {250, 25}, {100'000, 25}})
        EXPECT_EQ(SaveDriver::piValueForCount(static_cast<std::size_t>(count)),
                  static_cast<std::size_t>(between));
}

} // namespace
} // namespace chronomender
