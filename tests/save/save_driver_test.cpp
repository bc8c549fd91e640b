// SPDX-License-Identifier: GPL-3.0-or-later
#include "AlternativeReading.h"
#include "SaveTest.h"

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using enum PerFolderImportOptions::EmptyTags;

class SaveDriverTest : public SaveTest {
protected:
    const PhotoFields plain{.original = "2024:05:06 07:08:09"}; // 05:08:09 UTC
};

TEST_F(SaveDriverTest, WritesTheShiftedStampsAndNotOneOtherByteAndTakesThemBack) {
    const auto fullAfter = [](Endian endian) {
        return std::map<std::string, std::string>{{"ExifDateTimeOriginal", "2024:05:07 08:08:09"},
                                                  {"ExifDateTimeDigitized", "2024:05:07 08:08:10"},
                                                  {"TIFFDateTime", "2024:05:07 08:08:11"},
                                                  {"GPSDateStamp", "2024:05:07"},
                                                  {"GPSTimeStamp", number(6, 4, endian)}};
    };
    const struct {
        PhotoFields fields;
        std::map<std::string, std::string> after;
    } table[] = {
        {fullPhotoFields(), fullAfter(Endian::Intel)},
        {fullPhotoFields(Endian::Motorola), fullAfter(Endian::Motorola)},
        {{.original = "2024:05:06:07:08:09"}, {{"ExifDateTimeOriginal", "2024:05:07:08:08:09"}}},
        {{.original = "2024:12:31 23:59:59", .modified = "2025:01:01 00:00:00"},
         {{"ExifDateTimeOriginal", "2025:01:02 00:59:59"},
          {"TIFFDateTime", "2025:01:02 01:00:00"}}},
    };
    shiftAllSlotsAlike();
    for (const auto &row : table) {
        const BuiltPhoto built = importPhoto(row.fields);
        const Date modified = session.item("a.jpg").slots.tiffDateTimeOLD.value_or(
            session.item("a.jpg").spDateTimeOriginal);
        keepOwnZones();
        shift(absl::Hours(25));
        saves();
        EXPECT_EQ(content(), replaced(built, row.after));
        EXPECT_EQ(attributesOf(session.path("a.jpg")).modificationDate, modified + absl::Hours(25));
        EXPECT_EQ(session.folder().sfDateModificationsTimeInterval, absl::ZeroDuration());
        EXPECT_FALSE(session.folder().isUnsavedFolder());
        shift(absl::Hours(-25));
        saves();
        EXPECT_EQ(content(), built.bytes);
    }
}

TEST_F(SaveDriverTest, WritesNoStampThatNeedsNone) {
    session.defaults.setForThisRun("dateChangeEXIFFinderModDateEXIFModDateOptions", "0");
    importPhoto(plain);
    EXPECT_THAT(session.save().items, IsEmpty());
    EXPECT_EQ(session.files.touches(), 0);
    EXPECT_THAT(results(session.save({.savingAll = true})), ElementsAre(ItemResult::Saved));
    EXPECT_EQ(attributesOf(session.path("a.jpg")).modificationDate, utc(2024, 5, 6, 5, 8, 9));
    expectModelIsWhatAFreshImportShows();

    importPhoto({}); // has no tags: the date is that of the file
    shift(absl::Hours(-1));
    saves();
    EXPECT_EQ(attributesOf(session.path("a.jpg")).modificationDate,
              session.fileDate - absl::Hours(1));
    EXPECT_EQ(session.files.writes, 0);
}

TEST_F(SaveDriverTest, DryRunTellsEachSlotAndLeavesTheFileAlone) {
    const BuiltPhoto built =
        importPhoto({.original = "2024:05:06 07:08:09", .digitized = "2020:01:01 00:00:00"});
    shift(absl::Hours(1));
    const PreProcessResult dry = session.preProcess();
    ASSERT_THAT(dry.items, SizeIs(1));
    const ItemOutcome &item = dry.items[0];
    EXPECT_EQ(item.result, ItemResult::Saved);
    EXPECT_EQ(slotResult(item, "exifDateTimeDigitized"), SlotResult::WrittenInPlace)
        << "it must not precede the original";
    EXPECT_EQ(slotResult(item, "fileCreationDate"), SlotResult::NotStorable);
    EXPECT_EQ(item.slots[0].oldDate, utc(2024, 5, 6, 5, 8, 9));
    EXPECT_EQ(item.slots[0].newDate, utc(2024, 5, 6, 6, 8, 9));
    EXPECT_EQ(content(), built.bytes);
    EXPECT_EQ(session.files.updateOpens, 0);
    EXPECT_EQ(attributesOf(session.path("a.jpg")).modificationDate, session.fileDate);
}

TEST_F(SaveDriverTest, FillsEmptyTagsAndMovesTheTypeUnlessTheyAreLeftAlone) {
    const struct {
        PhotoFields fields;
        SpType before, after;
        const char *value;
    } table[] = {
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
    for (const auto choice : {FileDate, LeaveAlone})
        for (const auto &row : table) {
            session.emptyTags.withEmptyExifFixDate = choice;
            session.folder().perFolderImportOptions.reset();
            const BuiltPhoto built = importPhoto(row.fields);
            ASSERT_EQ(session.item("a.jpg").spType, row.before);
            if (choice == LeaveAlone) {
                EXPECT_THAT(session.save({.savingAll = true}).items, IsEmpty());
                EXPECT_EQ(content(), built.bytes);
                continue;
            }
            saves();
            EXPECT_EQ(content(), replaced(built, {{row.value, "2024:05:06 22:00:00"}}));
            EXPECT_EQ(session.item("a.jpg").spType, row.after);
        }
}

TEST_F(SaveDriverTest, ModificationStampThatIsNoLongerYoungerThanItsFileTakesOver) {
    session.defaults.setForThisRun("dateChangeNoEXIFButTIFFFinderModDate", "0");
    session.fileDate = utc(2024, 5, 6, 4);
    importPhoto({.modified = "2024:05:06 07:08:09"}); // 05:08:09 UTC, an hour younger
    ASSERT_EQ(session.item("a.jpg").spType, SpTypeTiffYoungerThanFile);
    shift(absl::Hours(2));
    saves();
    EXPECT_EQ(session.item("a.jpg").spType, SpTypeTiffDateTime);
}

TEST_F(SaveDriverTest, ZoneChoiceMovesToTheSourceOnceItIsWritten) {
    const BuiltPhoto built = importPhoto({.original = "2024:05:06 23:30:00",
                                          .modified = "2024:05:06 23:30:00",
                                          .zoneOriginal = "+02:00"});
    targetZone("America/St_Johns");
    session.item("a.jpg").zones.isUnsavedDueToTZC = true;
    saves();
    EXPECT_EQ(content(), replaced(built, {{"ExifDateTimeOriginal", "2024:05:06 19:00:00"},
                                          {"ExifOffsetTimeOriginal", "-02:30"},
                                          {"TIFFDateTime", "2024:05:06 19:00:00"}}));
    EXPECT_EQ(session.folder().sourceTimeZones.folderDefault->persistedName(), "America/St_Johns");
    EXPECT_FALSE(session.folder().isUnsavedFolder());
}

TEST_F(SaveDriverTest, AChosenReadingEndsWithTheStampThatNeededIt) {
    importPhoto({.original = "2024:10:27 02:30:00", .modified = "2024:10:27 02:30:00"});
    MySinglePic &photo = session.item("a.jpg");
    ASSERT_TRUE(changeAmbiguityCorrectionStateTo(photo, true, session.zones, session.undo));
    shift(absl::Hours(24));
    saves(); // 01:30 of the next day, which nobody can mistake
    EXPECT_EQ(photo.spDateTimeOriginal, utc(2024, 10, 28, 0, 30));
}

TEST_F(SaveDriverTest, SingleShiftsGoOnceTheyAreWritten) {
    session.photo("a.jpg", plain);
    const BuiltPhoto other = session.photo("b.jpg", plain);
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
        session.photo(name, plain);
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
    for (const char *name : {"a.jpg", "b.jpg"})
        EXPECT_EQ(session.item(name).spDateTimeModified(), utc(2024, 5, 6, 6, 8, 9));
    EXPECT_FALSE(session.undo.canUndo());

    setFileDate(session.path("b.jpg"), session.fileDate);
    saves();
    EXPECT_FALSE(session.folder().isUnsavedFolder());
}

TEST_F(SaveDriverTest, CancelledRunFinishesWhatItBeganAndKeepsTheRestUnsaved) {
    for (int i = 0; i < 600; ++i)
        session.photo(std::to_string(i) + ".jpg", plain);
    session.import();
    shift(absl::Hours(1));
    const PreProcessResult dry = session.preProcess();
    session.files.beforeUpdateOpen = [&](const std::string &) {
        if (session.files.updateOpens == 520) // while a second batch is proved
            session.cancellation.request();
    };
    const SaveRunResult run = goOn(dry);
    EXPECT_TRUE(run.wasCancelled);
    ASSERT_THAT(run.items, SizeIs(600));
    std::size_t saved = 0;
    while (saved < run.items.size() && run.items[saved].result == ItemResult::Saved)
        ++saved;
    EXPECT_GE(saved, 40U);
    EXPECT_LT(saved, 520U);
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
    EXPECT_THAT(results(goOn(dry)), ElementsAre(ItemResult::NotReached));
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
    EXPECT_THAT(session.save({.onlyFolders = {session.folders[3]}}).items, SizeIs(1));
    EXPECT_FALSE(session.folder(3).isUnsavedFolder());
    EXPECT_TRUE(session.folder(0).isUnsavedFolder());
}

} // namespace
} // namespace chronomender
