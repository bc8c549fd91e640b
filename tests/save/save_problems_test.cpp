// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveTest.h"

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;
using enum PreSaveProblem;

/// Problems that a person must accept, and what happens without and with it.
class SaveProblems : public SaveTest {
protected:
    SaveRunResult saveUnaccepted(PreProcessResult dry) {
        dry.problems.clear();
        for (ItemOutcome &item : dry.items)
            item.problems.clear();
        return session.driver.continueProcessThread({}, dry);
    }
    void expectNotWrittenUnaccepted(const PreProcessResult &dry, const BuiltPhoto &built) {
        const SaveRunResult run = saveUnaccepted(dry);
        EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::NotWrittenUnreadableBack));
        EXPECT_EQ(content(), built.bytes);
    }
};

TEST_F(SaveProblems, WallClockThatOccursTwiceIsAmbiguous) {
    // Clocks in Berlin go back at 01:00 UTC; 00:30 UTC reads 02:30 for the first time.
    const BuiltPhoto built = importPhoto({.original = "2024:10:27 01:30:00"});
    shift(absl::Hours(1));
    const PreProcessResult dry = session.preProcess();
    ASSERT_THAT(kinds(dry.problems), ElementsAre(error_01_ambiguousStamp));
    EXPECT_EQ(dry.problems[0].detail, "exifDateTimeOriginal");
    const SaveRunResult run = session.driver.continueProcessThread({}, dry);
    EXPECT_THAT(results(run), ElementsAre(ItemResult::Saved));
    EXPECT_EQ(stampAt(built, "ExifDateTimeOriginal"), "2024:10:27 02:30:00");
    EXPECT_EQ(session.item("a.jpg").spDateTimeOriginal, utc(2024, 10, 27, 0, 30))
        << "the reading that was accepted stays";
    EXPECT_FALSE(session.folder().isUnsavedFolder());
}

TEST_F(SaveProblems, AmbiguousStampIsNotWrittenUnaccepted) {
    const BuiltPhoto built = importPhoto({.original = "2024:10:27 01:30:00"});
    shift(absl::Hours(1));
    expectNotWrittenUnaccepted(session.preProcess(), built);
}

TEST_F(SaveProblems, StampWithItsZoneIsNeverAmbiguous) {
    importPhoto({.original = "2024:10:27 01:30:00", .zoneOriginal = "+02:00"});
    keepOwnZones();
    shift(absl::Hours(1));
    EXPECT_THAT(session.preProcess().problems, IsEmpty());
}

TEST_F(SaveProblems, FileDateBefore1970) {
    importPhoto({.original = "1970:01:01 12:00:00"});
    session.defaults.setForThisRun("dateChangeEXIFFinderModDate", "0");
    session.defaults.setForThisRun("dateChangeEXIFFinderModDateEXIFModDateOptions", "0");
    shift(absl::Hours(-24));
    EXPECT_THAT(kinds(session.preProcess().problems), ElementsAre(error_03_pre1970));
    EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Saved));
    EXPECT_EQ(attributesOf(session.path("a.jpg")).modificationDate, utc(1969, 12, 31, 11));
    expectModelIsWhatAFreshImportShows();
}

TEST_F(SaveProblems, ZoneStampThatNobodyAskedToChange) {
    const PhotoFields fields{.original = "2024:05:06 07:08:09",
                             .digitized = "2024:05:06 07:08:09",
                             .zoneOriginal = "+05:30",
                             .zoneDigitized = "+05:30"};
    const BuiltPhoto built = importPhoto(fields);
    shift(absl::Hours(1));
    const PreProcessResult dry = session.preProcess();
    ASSERT_THAT(kinds(dry.problems), ElementsAre(error_12_zoneStampRewritten));
    EXPECT_EQ(dry.problems[0].detail, "+05:30 → +02:00");
    expectNotWrittenUnaccepted(dry, built);

    EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Saved));
    EXPECT_EQ(content(), replaced(built, {{"ExifDateTimeOriginal", "2024:05:06 04:38:09"},
                                          {"ExifOffsetTimeOriginal", "+02:00"},
                                          {"ExifDateTimeDigitized", "2024:05:06 04:38:09"},
                                          {"ExifOffsetTimeDigitized", "+02:00"}}));
}

TEST_F(SaveProblems, ZoneStampIsNoProblemWhereATargetWasChosenOrTheOffsetStays) {
    const PhotoFields fields{.original = "2024:05:06 07:08:09", .zoneOriginal = "+05:30"};
    importPhoto(fields);
    shift(absl::Hours(1));
    for (const auto &choice : {ZoneChoice::marker(ZoneChoice::Kind::Own),
                               ZoneChoice::named(*session.zones.zoneWithName("Asia/Tokyo"))}) {
        target(choice);
        EXPECT_THAT(session.preProcess().problems, IsEmpty()) << choice.persistedName();
    }
    session.folder().targetTimeZones.folderDefault.reset();
    session.zones.setSystemZone(*session.zones.zoneWithName("Asia/Kolkata"));
    EXPECT_THAT(session.preProcess().problems, IsEmpty());
}

TEST_F(SaveProblems, StampThatIsNotEmptyIsNotOverwrittenUnasked) {
    session.emptyTags.withEmptyExifFixDate = PerFolderImportOptions::EmptyTags::FileDate;
    const BuiltPhoto built =
        importPhoto({.original = "0000:00:00 00:00:00", .digitized = "2024:15:36 07:08:09"});
    const PreProcessResult dry = session.preProcess();
    ASSERT_THAT(kinds(dry.problems), ElementsAre(error_13_unreadableStamp));
    EXPECT_EQ(dry.problems[0].detail, "2024:15:36 07:08:09");
    expectNotWrittenUnaccepted(dry, built);
    EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Saved));
    EXPECT_EQ(stampAt(built, "ExifDateTimeDigitized"), "2024:05:06 22:00:00");
}

TEST_F(SaveProblems, UnreadableStampBesideADateStays) {
    const BuiltPhoto built =
        importPhoto({.original = "2024:05:06 07:08:09", .digitized = "2024:15:36 07:08:09"});
    shift(absl::Hours(1));
    EXPECT_THAT(session.preProcess().problems, IsEmpty());
    session.save();
    EXPECT_EQ(content(), replaced(built, {{"ExifDateTimeOriginal", "2024:05:06 08:08:09"}}));
}

TEST_F(SaveProblems, ItemThatOnlyCarriesAnErrorIsNotChecked) {
    importPhoto({.original = "2024:05:06 07:08:09", .zoneOriginal = "+05:30"});
    session.item("a.jpg").save.saveErrorType = 4;
    const PreProcessResult dry = session.preProcess();
    ASSERT_EQ(dry.items.size(), 1U);
    EXPECT_THAT(dry.problems, IsEmpty());
}

} // namespace
} // namespace chronomender
