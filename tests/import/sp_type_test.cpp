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
using little::MovieFields;
using little::xmpWith;

constexpr const char *zeros = "0000:00:00 00:00:00";
constexpr const char *stampText = "2024:05:06 07:08:09";
constexpr const char *fileDateText = "2024-06-01 12:00:00";
constexpr const char *fixedDateText = "2001-02-03 04:05:06";
constexpr const char *creationText = "2020-04-17 16:03:47"; ///< `kMovieTime`
constexpr std::uint64_t behindTheFile = little::kMovieTime + std::uint64_t{10} * 365 * 86400;

/// What a person chose for the folder.
struct Choices {
    EmptyTags emptyTags = EmptyTags::FileDate;
    MovieOptions movies = {};
    bool isEXIFIgnored = false;
    const char *sourceZone = nullptr;
};
constexpr MovieOptions headerFirst{.isMDTADateEnabled = false};
constexpr MovieOptions localHeader{false, true};

struct TypeCase {
    const char *what;
    std::string name, bytes;
    SpType type;
    const char *date; ///< in UTC; the system's zone is Berlin. Null: the distant past
    Choices choices = {};
};

std::string photo(const little::PhotoFields &fields) {
    return little::jpegPhoto(fields).bytes;
}
std::string movie(const MovieFields &fields) {
    return little::movie(fields).bytes;
}
std::string avi(std::optional<std::string> date) {
    return little::avi({.date = std::move(date)}).bytes;
}

std::vector<TypeCase> photoCases() {
    const std::string created = xmpWith("xmp:CreateDate", "2024-01-06T07:08:09");
    return {
        {"original", "a.jpg", photo({.original = stampText}), SpTypeExifOriginal,
         "2024-05-06 05:08:09"},
        {"XMP with a zone", "a.jpg",
         photo({.xmp = xmpWith("photoshop:DateCreated", "2024-05-06T07:08:09+09:00")}),
         SpTypeExifOriginal, "2024-05-05 22:08:09"},
        {"digitized", "a.jpg", photo({.digitized = stampText}), SpTypeExifDigitized,
         "2024-05-06 05:08:09"},
        {"XMP takes over from a modification stamp", "a.jpg",
         photo({.modified = stampText, .xmp = created}), SpTypeExifDigitized,
         "2024-01-06 06:08:09"},
        {"and from an empty one", "a.jpg", photo({.modified = zeros, .xmp = created}),
         SpTypeExifDigitized, "2024-01-06 06:08:09"},
        {"local XMP in the folder's zone",
         "a.jpg",
         photo({.xmp = created}),
         SpTypeExifDigitized,
         "2024-01-05 22:08:09",
         {.sourceZone = "Asia/Tokyo"}},
        {"modification", "a.tif", little::tiffPhoto({.modified = stampText}).bytes,
         SpTypeTiffDateTime, "2024-05-06 05:08:09"},
        {"XMP modification", "a.jpg",
         photo({.xmp = xmpWith("xmp:ModifyDate", "2024-05-06T07:08:09Z")}), SpTypeTiffDateTime,
         "2024-05-06 07:08:09"},
        {"XMP modification gives way to a tag", "a.jpg",
         photo({.modified = stampText, .xmp = xmpWith("xmp:ModifyDate", "2023-05-06T07:08:09Z")}),
         SpTypeTiffDateTime, "2024-05-06 05:08:09"},
        {"younger than the file", "a.jpg", photo({.modified = "2024:07:01 00:00:00"}),
         SpTypeTiffYoungerThanFile, fileDateText},
        {"an empty original keeps XMP unread", "a.jpg", photo({.original = zeros, .xmp = created}),
         SpTypeEmptyOriginalFileDate, fileDateText},
        {"empty digitized", "a.jpg", photo({.digitized = zeros}), SpTypeEmptyDigitizedFileDate,
         fileDateText},
        {"empty modification", "a.jpg", photo({.modified = zeros}), SpTypeEmptyTiffFileDate,
         fileDateText},
        {"empty original, fixed",
         "a.jpg",
         photo({.original = zeros}),
         SpTypeEmptyOriginalFixedDate,
         fixedDateText,
         {EmptyTags::FixedDate}},
        {"empty digitized, fixed",
         "a.jpg",
         photo({.digitized = zeros}),
         SpTypeEmptyDigitizedFixedDate,
         fixedDateText,
         {EmptyTags::FixedDate}},
        {"empty modification, fixed",
         "a.jpg",
         photo({.modified = zeros}),
         SpTypeEmptyTiffFixedDate,
         fixedDateText,
         {EmptyTags::FixedDate}},
        {"no tags", "a.jpg", photo({}), SpTypeNoTagsFileDate, fileDateText},
        {"XMP that tells of its own writing only", "a.jpg",
         photo({.xmp = xmpWith("xmp:MetadataDate", "2024-05-06T07:08:09Z")}), SpTypeNoTagsFileDate,
         fileDateText},
        {"ignored",
         "a.jpg",
         photo({.original = stampText}),
         SpTypeUnsupported,
         nullptr,
         {.isEXIFIgnored = true}},
    };
}

std::vector<TypeCase> movieCases() {
    const std::string metaDate = "2020-04-17T18:00:00+0200";
    return {
        {"not a movie at all", "a.mov", "text", SpTypeMovieFileDate, fileDateText},
        {"AVI without a date", "a.avi", avi({}), SpTypeMovieFileDate, fileDateText},
        {"AVI", "a.avi", avi("Thu Jan 20 08:16:08 2022\n" + little::zeros(1)), SpTypeMovieRiff,
         "2022-01-20 07:16:08"},
        {"AVI of a month that is none", "a.avi",
         avi("Thu Jam 20 08:16:08 2022\n" + little::zeros(1)), SpTypeMovieFileDate, fileDateText},
        {"header", "a.mp4", movie({}), SpTypeMovieMvhdCreation, creationText},
        {"header before metadata",
         "a.mov",
         movie({.date = metaDate}),
         SpTypeMovieMvhdCreation,
         creationText,
         {.movies = headerFirst}},
        {"header in local time",
         "a.mov",
         movie({}),
         SpTypeMovieMvhdCreation,
         "2020-04-17 14:03:47",
         {.movies = localHeader}},
        {"header in the folder's time",
         "a.mov",
         movie({}),
         SpTypeMovieMvhdCreation,
         "2020-04-17 07:03:47",
         {.movies = localHeader, .sourceZone = "Asia/Tokyo"}},
        {"modification time", "a.mov", movie({.creation = 0}), SpTypeMovieMvhdModification,
         "2020-04-17 16:03:49"},
        {"modification time before metadata",
         "a.mov",
         movie({.creation = 0, .date = metaDate}),
         SpTypeMovieMvhdModification,
         "2020-04-17 16:03:49",
         {.movies = headerFirst}},
        {"younger than the file", "a.mov", movie({.creation = 0, .modification = behindTheFile}),
         SpTypeMovieMvhdYoungerThanFile, fileDateText},
        {"empty times", "a.mov", movie({.creation = 0, .modification = 0}),
         SpTypeMovieEmptyFileDate, fileDateText},
        {"empty times, fixed",
         "a.mp4",
         movie({.creation = 0, .modification = 0}),
         SpTypeMovieEmptyFixedDate,
         fixedDateText,
         {EmptyTags::FixedDate}},
        {"metadata", "a.mov", movie({.date = metaDate}), SpTypeMovieMdta, "2020-04-17 16:00:00"},
        {"metadata and empty times",
         "a.mp4",
         movie({.creation = 0, .modification = 0, .date = metaDate}),
         SpTypeMovieMdta,
         "2020-04-17 16:00:00",
         {.movies = headerFirst}},
        {"ignored", "a.mov", movie({}), SpTypeMovieIgnored, nullptr, {.isEXIFIgnored = true}},
    };
}

std::vector<TypeCase> typeCases() {
    std::vector<TypeCase> cases = photoCases();
    for (TypeCase &each : movieCases())
        cases.push_back(std::move(each));
    return cases;
}

class SpTypeTest : public ImportTest {
protected:
    MySinglePicPtr importOne(const TypeCase &c) {
        questions.answer = {c.choices.emptyTags, utc(fixedDateText)};
        questions.movieAnswer = c.choices.movies;
        file(c.name, c.bytes);
        openFolder();
        folder->isEXIFIgnored = c.choices.isEXIFIgnored;
        if (c.choices.sourceZone)
            folder->sourceTimeZones.folderDefault =
                ZoneChoice::named(*zones.zoneWithName(c.choices.sourceZone));
        const ImportOutcome outcome = import();
        return outcome.items.size() == 1 ? outcome.items[0] : nullptr;
    }
};

TEST_F(SpTypeTest, EachFileHasItsTypeAndDate) {
    for (const TypeCase &c : typeCases()) {
        SCOPED_TRACE(c.what + (' ' + c.name));
        const MySinglePicPtr pic = importOne(c);
        ASSERT_TRUE(pic);
        EXPECT_EQ(pic->spType, c.type);
        EXPECT_EQ(pic->spDateTimeOriginal, c.date ? utc(c.date) : InfinitePast());
        std::filesystem::remove(disk.path(c.name));
    }
}

TEST_F(SpTypeTest, TheTableHasEveryTypeThatAnImportGives) {
    std::set<SpType> made, all;
    for (const TypeCase &c : typeCases())
        made.insert(c.type);
    for (int type = 1; type <= static_cast<int>(SpTypeMovieIgnored); ++type)
        if (static_cast<SpType>(type) != SpTypeNoTagsFixedDate)
            all.insert(static_cast<SpType>(type));
    EXPECT_EQ(made, all);
}

TEST_F(SpTypeTest, AnEmptyStampThatXmpReplacesStillCounts) {
    photo("a.jpg", {.modified = zeros, .xmp = xmpWith("xmp:CreateDate", "2024-01-06T07:08:09")});
    questions.answer.withEmptyExifFixDate = EmptyTags::LeaveAlone;
    const ImportOutcome outcome = import();
    EXPECT_EQ(outcome.fixedDates, 1);
    EXPECT_FALSE(outcome.items.at(0)->importState.isLeftAlone);
}

class MovieImportTest : public ImportTest {
protected:
    void movieFile(const std::string &name, const MovieFields &fields = {}) {
        file(name, little::movie(fields).bytes);
    }
    static std::vector<SpType> typesOf(const std::vector<MySinglePicPtr> &items) {
        std::vector<SpType> types;
        for (const MySinglePicPtr &pic : items)
            types.push_back(pic->spType);
        return types;
    }
};

TEST_F(MovieImportTest, AHalfOfALivePhotoAsksNobody) {
    const MovieFields fields{
        .date = "2020-04-17T18:03:47+0200", .make = "Apple", .model = "iPhone 11"};
    photo("a.jpg", {.make = "Apple", .model = "iPhone 11", .original = "2020:04:17 18:03:47"});
    movieFile("a.mov", fields);
    questions.movieAnswer = headerFirst;
    EXPECT_THAT(namesOf(import().items), ElementsAre("a.jpg"));
    EXPECT_EQ(questions.askedAboutMovies, 0);
    EXPECT_EQ(folder->bundleDependentsLivePhotos.at(0)->spType, SpTypeMovieMdta);

    movieFile("b.mov", fields);
    movieFile("c.mp4", fields);
    EXPECT_THAT(typesOf(import({"b.mov", "c.mp4"}).items),
                ElementsAre(SpTypeMovieMvhdCreation, SpTypeMovieMvhdCreation));
    EXPECT_EQ(questions.askedAboutMovies, 1);
}

TEST_F(MovieImportTest, WithoutGroupingAMovieIsAMovie) {
    photo("a.jpg", {.make = "Apple", .model = "iPhone 11", .original = "2020:04:17 18:03:47"});
    movieFile("a.mov", {.date = "2020-04-17T18:03:47+0200", .make = "Apple", .model = "iPhone 11"});
    keyStates.createFileGroups = false;
    questions.movieAnswer = headerFirst;
    EXPECT_THAT(typesOf(import().items), ElementsAre(SpTypeExifOriginal, SpTypeMovieMvhdCreation));
}

TEST_F(MovieImportTest, PreferencesOrTheCallerAnswerInsteadOfAPerson) {
    movieFile("a.mov", {.date = "2020-04-17T18:03:47+0200"});
    defaults.setForThisRun("useMovieOptionsQTValuesWithoutShowingSheet", "1");
    defaults.setForThisRun("isMDTADateEnabled", "0");
    EXPECT_THAT(typesOf(import().items), ElementsAre(SpTypeMovieMvhdCreation));
    openFolder();
    folder->areMovieOptionsSettled = true;
    EXPECT_THAT(typesOf(import().items), ElementsAre(SpTypeMovieMdta));
    EXPECT_EQ(questions.askedAboutMovies, 0);
}

TEST_F(MovieImportTest, PhotosAndMoviesShareOneAnswerAndOneSequence) {
    const MovieFields empty{.creation = 0, .modification = 0};
    questions.answer = {EmptyTags::FixedDate, utc(fixedDateText), absl::Minutes(1)};
    photo("a.jpg", {.original = zeros});
    movieFile("b.mov", empty);
    photo("c.jpg", {.digitized = zeros});
    const ImportOutcome outcome = import();
    ASSERT_EQ(outcome.items.size(), 3U);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(outcome.items[static_cast<std::size_t>(i)]->spDateTimeOriginal,
                  utc(fixedDateText) + absl::Minutes(i));
    EXPECT_EQ(questions.asked, 1);
    EXPECT_EQ(outcome.fixedDates, 3);
    EXPECT_EQ(folder->fixedDates, 3);
    EXPECT_EQ(outcome.items[1]->slots.exifDateTimeOriginalOLD, InfinitePast());
    EXPECT_EQ(outcome.items[1]->slots.tiffDateTimeOLD, InfinitePast());
}

TEST_F(MovieImportTest, AMovieThatIsLeftAloneIsMarked) {
    movieFile("a.mov", {.creation = 0, .modification = 0});
    questions.answer.withEmptyExifFixDate = EmptyTags::LeaveAlone;
    const auto items = import().items;
    EXPECT_THAT(typesOf(items), ElementsAre(SpTypeMovieEmptyFileDate));
    EXPECT_TRUE(items.at(0)->importState.isLeftAlone);
    EXPECT_EQ(items.at(0)->slots.tiffDateTimeOLD, fileDate);
}

} // namespace
} // namespace chronomender
