// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleMovie.h"
#include "SaveTest.h"

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A raw file and its JPEG, "a.CR2" and "a.JPG"; the JPEG is the dependent.
class PairSaveTest : public SaveTest {
protected:
    void importPair(const PhotoFields &rawFields, const PhotoFields &jpegFields) {
        raw = tiffPhoto(rawFields);
        jpeg = jpegPhoto(jpegFields);
        session.write("a.CR2", raw.bytes);
        session.write("a.JPG", jpeg.bytes);
        session.import();
        ASSERT_THAT(session.folder().sfPicDetails_fullArray, SizeIs(1));
    }
    void importPair() { importPair({.original = rawStamp}, {.original = jpegStamp}); }

    bool isUntouched() const {
        return content("a.CR2") == raw.bytes && content("a.JPG") == jpeg.bytes;
    }
    static std::vector<std::string> names(const std::vector<ItemOutcome> &items) {
        std::vector<std::string> list;
        for (const ItemOutcome &item : items)
            list.push_back(item.pic->spName);
        return list;
    }

    static constexpr auto rawStamp = "2024:05:06 07:08:09", jpegStamp = "2024:05:06 07:08:10";
    BuiltPhoto raw, jpeg;
};

constexpr auto Saved = ItemResult::Saved;
constexpr auto Refused = ItemResult::Refused;

TEST_F(PairSaveTest, AShiftMovesBothFilesAndComesBack) {
    importPair();
    for (const int hours : {25, -25}) {
        shift(absl::Hours(hours));
        const SaveRunResult run = session.save();
        EXPECT_THAT(names(run.items), ElementsAre("a.JPG", "a.CR2"));
        EXPECT_THAT(results(run), ElementsAre(Saved, Saved));
        expectModelIsWhatAFreshImportShows();
        EXPECT_EQ(isUntouched(), hours < 0);
        EXPECT_EQ(content("a.CR2") == raw.bytes, hours < 0);
    }
}

TEST_F(PairSaveTest, AHalfThatCannotBeWrittenKeepsTheOtherFromBeingWritten) {
    for (const char *name : {"a.JPG", "a.CR2"}) {
        session.folder().sfEditMode = EditMode::Together;
        importPair();
        shift(absl::Hours(1));
        session.write(name, content(name) + "!");
        const PreProcessResult dry = session.preProcess();
        EXPECT_THAT(kinds(dry), ElementsAre(PreSaveProblem::error_08_modifiedAfterImport));
        EXPECT_TRUE(dry.items.at(0).result == Refused && dry.items.at(1).result == Refused);
        const SaveRunResult run = session.save();
        EXPECT_THAT(results(run), ElementsAre(Refused, Refused)) << name;
        EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::ChangedSinceImport)) << name;
        for (const ItemOutcome &item : run.items)
            EXPECT_TRUE(item.errors.at(0).path.ends_with(name)) << "both halves say why";
        EXPECT_EQ(session.files.writes, 0);
    }
}

TEST_F(PairSaveTest, AMasterThatFailsInTheMiddleTakesTheDependentBack) {
    importPair({.original = rawStamp, .modified = rawStamp}, {.original = jpegStamp});
    shiftAllSlotsAlike();
    shift(absl::Hours(1));
    session.files.failingWrite = 3; // the second stamp of the raw file
    const SaveRunResult run = session.save();
    EXPECT_THAT(results(run), ElementsAre(Refused, ItemResult::Failed));
    EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::WriteFailed));
    EXPECT_TRUE(isUntouched());
    EXPECT_EQ(session.folder().saveErrors, 1);
    session.files.failingWrite = 0;
    EXPECT_THAT(results(session.save()), ElementsAre(Saved, Saved));
    EXPECT_EQ(content("a.JPG"), replaced(jpeg, {{"ExifDateTimeOriginal", "2024:05:06 08:08:10"}}))
        << "shifted once, whatever happened in between";
    expectModelIsWhatAFreshImportShows();
}

TEST_F(PairSaveTest, AHarmonisedJpegTakesTheDateOfItsRawWhichStaysAsItIs) {
    session.defaults.setForThisRun("harmonizingRawJpgsTypeDefault", "1");
    importPair({.original = rawStamp}, {.original = "2024:05:06 09:00:00"});
    EXPECT_EQ(session.folder().unsavedImagesCount(), 1);
    EXPECT_THAT(names(session.save().items), ElementsAre("a.JPG"));
    EXPECT_EQ(content("a.CR2"), raw.bytes);
    EXPECT_EQ(content("a.JPG"), replaced(jpeg, {{"ExifDateTimeOriginal", rawStamp}}));
    EXPECT_FALSE(session.folder().isUnsavedFolder());
    expectModelIsWhatAFreshImportShows();
}

TEST_F(PairSaveTest, AHalfThatWasLeftAloneStaysAsItIs) {
    session.emptyTags.withEmptyExifFixDate = PerFolderImportOptions::EmptyTags::LeaveAlone;
    importPair({.original = rawStamp}, {.original = "0000:00:00 00:00:00"});
    EXPECT_FALSE(session.folder().isUnsavedFolder());
    shift(absl::Hours(1));
    EXPECT_THAT(names(session.save().items), ElementsAre("a.CR2"));
    EXPECT_EQ(content("a.JPG"), jpeg.bytes);
}

/// A still without a zone and a movie of the same camera, joined by their clocks.
class LivePhotoSaveTest : public PairSaveTest {
protected:
    void importLivePhoto(const std::string &stillStamp, const std::string &movieDate) {
        film = movie({.date = movieDate, .make = "Little", .model = "Little One"});
        session.photo("a.JPG", {.original = stillStamp});
        session.write("a.MOV", film.bytes);
        session.import();
        ASSERT_THAT(session.folder().bundleDependentsLivePhotos, SizeIs(1));
    }
    Part film;
};

TEST_F(LivePhotoSaveTest, AcrossADaylightSavingStepTheyStayOne) {
    importLivePhoto("2024:03:31 01:59:58", "2024-03-31T03:00:02+0200");
    shift(absl::Hours(-24));
    EXPECT_THAT(kinds(session.preProcess()),
                ElementsAre(PreSaveProblem::error_12_zoneStampRewritten))
        << "to winter's offset";
    EXPECT_THAT(results(session.save()), ElementsAre(Saved, Saved));
    EXPECT_EQ(content("a.MOV").substr(film.at("date"), 24), "2024-03-30T02:00:02+0100");
    expectModelIsWhatAFreshImportShows();
}

TEST_F(LivePhotoSaveTest, ClocksThatWouldPartAreSaidFirst) {
    importLivePhoto(rawStamp, "2024-05-06T07:08:10-0800");
    shift(absl::Hours(1));
    EXPECT_THAT(kinds(session.preProcess()),
                testing::UnorderedElementsAre(PreSaveProblem::error_12_zoneStampRewritten,
                                              PreSaveProblem::error_04_livePhotoDriftingApart));
    keepOwnZones();
    EXPECT_THAT(session.preProcess().problems, IsEmpty());
}

} // namespace
} // namespace chronomender
