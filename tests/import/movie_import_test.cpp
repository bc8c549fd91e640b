// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImportSteps.h"
#include "LittleMovie.h"

namespace chronomender {
namespace {

using testing::ElementsAre;
using EmptyTags = PerFolderImportOptions::EmptyTags;
using little::MovieFields;

constexpr const char *zeros = "0000:00:00 00:00:00";
constexpr const char *fixedDateText = "2001-02-03 04:05:06";
constexpr MovieOptions headerFirst{.isMDTADateEnabled = false};

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

} // namespace
} // namespace chronomender
