// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImportSteps.h"
#include "LittleAvi.h"
#include "LittleMovie.h"
#include "LittleXmp.h"

#include <filesystem>
#include <set>

namespace chronomender {
namespace {

using testing::ElementsAre;
using EmptyTags = PerFolderImportOptions::EmptyTags;

constexpr const char *stamp = "2024:05:06 07:08:09", *stampDate = "2024-05-06 05:08:09";
constexpr const char *early = "2022:01:01 00:00:00";
constexpr const char *zeros = "0000:00:00 00:00:00", *blanks = "    :  :     :  :  ";
constexpr const char *noSuchDay = "2023:02:29 10:00:00";
constexpr const char *ofFile = "2024-06-01 12:00:00", *fixedDateText = "2001-02-03 04:05:06";
constexpr const char *never = nullptr; ///< the distant past
/// Dates of movies: of the header's times, and of the metadata.
constexpr const char *created = "2020-04-17 16:03:47", *modified = "2020-04-17 16:03:49";
constexpr const char *metaStamp = "2020-04-17T18:00:00+0200", *metaDate = "2020-04-17 16:00:00";

/// What a person chose for the folder.
struct Choices {
    EmptyTags emptyTags = EmptyTags::FileDate;
    MovieOptions movies = {};
    bool isEXIFIgnored = false;
    const char *sourceZone = nullptr;
};
const Choices fixed{EmptyTags::FixedDate}, alone{EmptyTags::LeaveAlone};
const Choices headerFirst{.movies = {.isMDTADateEnabled = false}}, ignored{.isEXIFIgnored = true};
const Choices localHeader{.movies = {false, true}}, tokyo{.sourceZone = "Asia/Tokyo"};
const Choices tokyoHeader{.movies = {false, true}, .sourceZone = "Asia/Tokyo"};
const Choices newYork{.sourceZone = "America/New_York"};

struct TypeCase {
    const char *what;
    std::string bytes;
    SpType type;
    const char *date; ///< in UTC; the system's zone is Berlin
    Choices choices = {};
    const char *name = "a.jpg";
};

std::string jpeg(const little::PhotoFields &fields) {
    return little::jpegPhoto(fields).bytes;
}
std::string xmp(const char *name, const char *value) {
    return jpeg({.xmp = little::xmpWith(name, value)});
}
std::string mov(const little::MovieFields &fields) {
    return little::movie(fields).bytes;
}
std::string avi(std::optional<std::string> date) {
    return little::avi({.date = std::move(date)}).bytes;
}

std::vector<TypeCase> photoCases() {
    const std::string packet = little::xmpWith("xmp:CreateDate", "2024-05-06T07:08:09");
    const std::string modifiedPacket = little::xmpWith("xmp:ModifyDate", "2023-05-06T07:08:09Z");
    return {
        {"original", jpeg({.original = stamp, .digitized = early, .modified = early}),
         SpTypeExifOriginal, stampDate},
        {"its own zone",
         jpeg({.original = stamp, .zoneOriginal = "+09:00", .zoneDigitized = "-03:00"}),
         SpTypeExifOriginal, "2024-05-05 22:08:09"},
        {"in Tokyo", jpeg({.original = stamp}), SpTypeExifOriginal, "2024-05-05 22:08:09", tokyo},
        {"not in Tokyo", jpeg({.original = stamp, .zoneOriginal = "+02:00"}), SpTypeExifOriginal,
         stampDate, tokyo},
        {"zone off the globe", jpeg({.original = stamp, .zoneOriginal = "+19:00"}),
         SpTypeExifOriginal, stampDate},
        {"colon for a blank", jpeg({.original = "2024:05:06:07:08:09"}), SpTypeExifOriginal,
         stampDate},
        {"original in the future", jpeg({.original = "2025:06:01 14:00:00"}), SpTypeExifOriginal,
         "2025-06-01 12:00:00"},
        {"XMP with a zone", xmp("photoshop:DateCreated", "2024-05-06T07:08:09+09:00"),
         SpTypeExifOriginal, "2024-05-05 22:08:09"},
        {"digitized", jpeg({.digitized = stamp, .modified = early}), SpTypeExifDigitized,
         stampDate},
        {"its zone",
         jpeg({.digitized = stamp, .zoneOriginal = "+09:00", .zoneDigitized = "-03:00"}),
         SpTypeExifDigitized, "2024-05-06 10:08:09"},
        {"behind an empty one", jpeg({.original = zeros, .digitized = stamp}), SpTypeExifDigitized,
         stampDate},
        {"XMP before a tag", jpeg({.modified = early, .xmp = packet}), SpTypeExifDigitized,
         stampDate},
        {"XMP before an empty tag", jpeg({.modified = zeros, .xmp = packet}), SpTypeExifDigitized,
         stampDate},
        {"XMP in Tokyo", jpeg({.xmp = packet}), SpTypeExifDigitized, "2024-05-05 22:08:09", tokyo},
        {"modification", jpeg({.original = zeros, .digitized = blanks, .modified = stamp}),
         SpTypeTiffDateTime, stampDate},
        {"just as old", jpeg({.modified = "2024:06:01 14:00:03"}), SpTypeTiffDateTime,
         "2024-06-01 12:00:03"},
        {"XMP modification", xmp("xmp:ModifyDate", "2024-05-06T07:08:09Z"), SpTypeTiffDateTime,
         "2024-05-06 07:08:09"},
        {"a tag before it", jpeg({.modified = stamp, .xmp = modifiedPacket}), SpTypeTiffDateTime,
         stampDate},
        {"younger", jpeg({.modified = "2024:06:01 14:00:04"}), SpTypeTiffYoungerThanFile, ofFile},
        {"younger in New York", jpeg({.modified = "2024:06:01 13:30:00"}),
         SpTypeTiffYoungerThanFile, ofFile, newYork},
        {"empty original", jpeg({.original = noSuchDay}), SpTypeEmptyOriginalFileDate, ofFile},
        {"XMP unread", jpeg({.original = zeros, .xmp = packet}), SpTypeEmptyOriginalFileDate,
         ofFile},
        {"left alone", jpeg({.original = zeros}), SpTypeEmptyOriginalFileDate, ofFile, alone},
        {"empty digitized", jpeg({.digitized = zeros}), SpTypeEmptyDigitizedFileDate, ofFile},
        {"empty modification", jpeg({.modified = blanks}), SpTypeEmptyTiffFileDate, ofFile},
        {"fixed", jpeg({.original = zeros}), SpTypeEmptyOriginalFixedDate, fixedDateText, fixed},
        {"fixed", jpeg({.digitized = zeros}), SpTypeEmptyDigitizedFixedDate, fixedDateText, fixed},
        {"fixed", jpeg({.modified = noSuchDay}), SpTypeEmptyTiffFixedDate, fixedDateText, fixed},
        {"no tags", jpeg({}), SpTypeNoTagsFileDate, ofFile, fixed},
        {"no stamp", jpeg({.original = "2O24:05:06 07:08:09"}), SpTypeNoTagsFileDate, ofFile},
        {"XMP of itself", xmp("xmp:MetadataDate", "2024-05-06T07:08:09Z"), SpTypeNoTagsFileDate,
         ofFile},
        {"ignored", jpeg({.original = stamp}), SpTypeUnsupported, never, ignored},
    };
}

std::vector<TypeCase> movieCases() {
    const little::MovieFields empty{.creation = 0, .modification = 0};
    const little::MovieFields inTenYears{
        .creation = 0, .modification = little::kMovieTime + std::uint64_t{10} * 365 * 86400};
    const std::string riff = "20 08:16:08 2022\n" + little::zeros(1);
    return {
        {"no movie", "text", SpTypeMovieFileDate, ofFile, {}, "a.mov"},
        {"no date", avi({}), SpTypeMovieFileDate, ofFile, {}, "a.avi"},
        {"no month", avi("Thu Jam " + riff), SpTypeMovieFileDate, ofFile, {}, "a.avi"},
        {"RIFF", avi("Thu Jan " + riff), SpTypeMovieRiff, "2022-01-20 07:16:08", {}, "a.avi"},
        {"header", mov({}), SpTypeMovieMvhdCreation, created, {}, "a.mp4"},
        {"header first", mov({.date = metaStamp}), SpTypeMovieMvhdCreation, created, headerFirst,
         "a.mov"},
        {"Berlin", mov({}), SpTypeMovieMvhdCreation, "2020-04-17 14:03:47", localHeader, "a.mov"},
        {"Tokyo", mov({}), SpTypeMovieMvhdCreation, "2020-04-17 07:03:47", tokyoHeader, "a.mov"},
        {"modification", mov({.creation = 0}), SpTypeMovieMvhdModification, modified, {}, "a.mov"},
        {"modification first", mov({.creation = 0, .date = metaStamp}), SpTypeMovieMvhdModification,
         modified, headerFirst, "a.mov"},
        {"younger", mov(inTenYears), SpTypeMovieMvhdYoungerThanFile, ofFile, {}, "a.mov"},
        {"empty", mov(empty), SpTypeMovieEmptyFileDate, ofFile, {}, "a.mov"},
        {"left alone", mov(empty), SpTypeMovieEmptyFileDate, ofFile, alone, "a.mov"},
        {"fixed", mov(empty), SpTypeMovieEmptyFixedDate, fixedDateText, fixed, "a.mp4"},
        {"metadata", mov({.date = metaStamp}), SpTypeMovieMdta, metaDate, {}, "a.mov"},
        {"only metadata", mov({.creation = 0, .modification = 0, .date = metaStamp}),
         SpTypeMovieMdta, metaDate, headerFirst, "a.mp4"},
        {"ignored", mov({}), SpTypeMovieIgnored, never, ignored, "a.mov"},
    };
}

std::vector<TypeCase> typeCases() {
    std::vector<TypeCase> cases = photoCases();
    for (TypeCase &each : movieCases())
        cases.push_back(std::move(each));
    return cases;
}

class DateDecisionTest : public ImportTest {
protected:
    ImportOutcome importOne(const TypeCase &c) {
        questions.answer = {c.choices.emptyTags, utc(fixedDateText)};
        questions.movieAnswer = c.choices.movies;
        file(c.name, c.bytes);
        openFolder();
        folder->isEXIFIgnored = c.choices.isEXIFIgnored;
        if (c.choices.sourceZone)
            folder->sourceTimeZones.folderDefault =
                ZoneChoice::named(*zones.zoneWithName(c.choices.sourceZone));
        ImportOutcome outcome = import();
        std::filesystem::remove(disk.path(c.name));
        return outcome;
    }
};

TEST_F(DateDecisionTest, EachFileHasItsTypeAndDate) {
    for (const TypeCase &c : typeCases()) {
        SCOPED_TRACE(c.what);
        const ImportOutcome outcome = importOne(c);
        ASSERT_EQ(outcome.items.size(), 1U);
        const MySinglePic &pic = *outcome.items[0];
        EXPECT_EQ(pic.spType, c.type);
        EXPECT_EQ(pic.spDateTimeOriginal, c.date ? utc(c.date) : InfinitePast());
        EXPECT_EQ(pic.importState.isLeftAlone, c.choices.emptyTags == EmptyTags::LeaveAlone);
        EXPECT_EQ(pic.slots.fileModificationDateOLD, fileDate);
        EXPECT_GE(outcome.fixedDates, isNullerFile(c.type) ? 1 : 0);
    }
}

TEST_F(DateDecisionTest, TheTableHasEveryTypeThatAnImportGives) {
    std::set<SpType> made, all;
    for (const TypeCase &c : typeCases())
        made.insert(c.type);
    for (int type = 1; type <= static_cast<int>(SpTypeMovieIgnored); ++type)
        if (static_cast<SpType>(type) != SpTypeNoTagsFixedDate)
            all.insert(static_cast<SpType>(type));
    EXPECT_EQ(made, all);
}

TEST_F(DateDecisionTest, AnEmptyStampThatXmpReplacesStillCounts) {
    photo("a.jpg",
          {.modified = zeros, .xmp = little::xmpWith("xmp:CreateDate", "2024-01-06T07:08:09")});
    questions.answer.withEmptyExifFixDate = EmptyTags::LeaveAlone;
    const ImportOutcome outcome = import();
    EXPECT_EQ(outcome.fixedDates, 1);
    EXPECT_FALSE(outcome.items.at(0)->importState.isLeftAlone);
}

class EmptyTagsTest : public ImportTest {
protected:
    void emptyPhotos(const std::vector<std::string> &names) {
        for (const std::string &name : names)
            photo(name, {.original = zeros});
    }
    static std::vector<std::int64_t> minutesFromStart(const std::vector<MySinglePicPtr> &items) {
        std::vector<std::int64_t> minutes;
        for (const MySinglePicPtr &item : items)
            minutes.push_back((item->spDateTimeOriginal - utc(fixedDateText)) / absl::Minutes(1));
        return minutes;
    }
};

TEST_F(EmptyTagsTest, FixedDatesFollowTheNamesAndGoOnInTheNextBatch) {
    questions.answer = {EmptyTags::FixedDate, utc(fixedDateText), absl::Minutes(5)};
    emptyPhotos({"IMG_10.jpg", "IMG_9.jpg", "IMG_1.jpg"});
    dated("IMG_5.jpg");

    const ImportOutcome first = importAndPublish();
    EXPECT_THAT(namesOf(first.items),
                ElementsAre("IMG_1.jpg", "IMG_5.jpg", "IMG_9.jpg", "IMG_10.jpg"));
    EXPECT_EQ(first.items[2]->spDateTimeOriginal, utc("2001-02-03 04:10:06"));
    EXPECT_EQ(first.fixedDates, 3);

    emptyPhotos({"IMG_2.jpg", "IMG_3.jpg"});
    EXPECT_THAT(minutesFromStart(importAndPublish().items), ElementsAre(15, 20));
    EXPECT_EQ(questions.asked, 1);
}

TEST_F(EmptyTagsTest, AnAnswerWithoutADateLeavesSuchFilesOut) {
    questions.answer.withEmptyExifFixDate = EmptyTags::FixedDate;
    emptyPhotos({"a.jpg"});
    dated("b.jpg");
    const ImportOutcome outcome = import();
    EXPECT_THAT(namesOf(outcome.items), ElementsAre("b.jpg"));
    EXPECT_THAT(skippedOf(outcome), ElementsAre("a.jpg noDate"));
}

TEST_F(EmptyTagsTest, ThePreferenceAnswersInsteadOfAPerson) {
    defaults.setForThisRun("skipEmptyTagImportOptions", "1");
    questions.answer.withEmptyExifFixDate = EmptyTags::LeaveAlone;
    emptyPhotos({"a.jpg"});
    const ImportOutcome outcome = import();
    EXPECT_EQ(questions.asked, 0);
    EXPECT_EQ(outcome.items.at(0)->spType, SpTypeEmptyOriginalFileDate);
    EXPECT_FALSE(outcome.items.at(0)->importState.isLeftAlone);
}

using AmbiguityTest = ImportTest;

TEST_F(AmbiguityTest, AStampInTheHourThatCameTwiceIsMarkedUnlessItSaysItsZone) {
    const std::string local = "2024:10:27 02:30:00", xmpLocal = "2024-10-27T02:30:00";
    const auto packet = [](const std::string &taken, const std::string &gps = "") {
        return little::PhotoFields{.xmp = little::Xmp()
                                              .attribute("photoshop:DateCreated", taken)
                                              .attribute("exif:GPSTimeStamp", gps)
                                              .end()
                                              .bytes()};
    };
    const struct {
        little::PhotoFields photo;
        bool isAmbiguous, isGpsApart;
        unsigned majorDifference = 0;
    } table[]{{{.original = local}, true, false},
              {{.original = local, .location = little::PhotoLocation{}}, true, true},
              {{.original = local, .zoneOriginal = "+02:00"}, false, false},
              {{.original = local, .zoneOriginal = "+09:00"}, false, false, kZoneDisagrees},
              {packet(xmpLocal), true, false},
              {packet("2024-10-27T02:30:00+02:00"), false, false},
              {packet("2024-10-27T00:30:00Z"), false, false},
              {packet(xmpLocal, "2024-10-27T02:30:00"), true, false},
              {packet(xmpLocal, "2024-10-27T00:30:00Z"), true, true}};
    for (std::size_t i = 0; i < std::size(table); ++i)
        photo(std::to_string(i) + ".jpg", table[i].photo);
    const auto items = import().items;
    ASSERT_EQ(items.size(), std::size(table));
    for (std::size_t i = 0; i < items.size(); ++i) {
        EXPECT_EQ(items[i]->spType, SpTypeExifOriginal) << i;
        EXPECT_EQ(items[i]->zones.dstAmbiguityAtImportState,
                  table[i].isAmbiguous ? bit(StampSlot::Original) : 0U)
            << i;
        EXPECT_EQ(items[i]->zones.hasMinorDateDifference, table[i].isGpsApart) << i;
        EXPECT_EQ(items[i]->zones.majorDateDifferenceType, table[i].majorDifference) << i;
    }
    EXPECT_EQ(items[0]->spDateTimeOriginal, utc("2024-10-27 01:30:00")) << "the later one";
}

} // namespace
} // namespace chronomender
