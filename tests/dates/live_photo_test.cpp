// SPDX-License-Identifier: GPL-3.0-or-later
#include "CompoundLivePhotos.h"
#include "LittleItem.h"
#include "LivePhotoTimes.h"

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using namespace little;

/// A folder of live photos, each a still at some milliseconds and a movie of three seconds with the
/// still in its middle.
class LivePhotoTest : public testing::Test {
protected:
    MySinglePicPtr livePhoto(const std::string &name, int milliseconds) {
        const auto still = addItem(folder, SpTypeExifOriginal, utc(2024, 5, 6, 7), name + ".HEIC");
        const auto movie = addItem(folder, SpTypeMovieMdta, utc(2024, 5, 6, 8), name + ".MOV");
        makeDependent(movie, still);
        still->singlePicAttributes.exifDateTimeOriginal =
            located("2024:05:06 07:00:0" + std::to_string(milliseconds / 1000));
        still->livePhoto.subsecTimeOriginal = milliseconds % 1000;
        still->camera.make = "Apple";
        still->camera.model = "iPhone 12";
        movie->movie.movDuration = 3;
        movie->movie.livePhotoStillImageTime = 1.5;
        return still;
    }
    static MySinglePic &movieOf(const MySinglePicPtr &still) {
        return *still->group.bundleDependentImage;
    }
    std::string chains() const {
        std::string text;
        for (const MySinglePicPtr &pic : folder->sfPicDetails_fullArray)
            if (const auto next = pic->livePhoto.compoundLivePhotoNext.lock()) {
                EXPECT_EQ(next->livePhoto.compoundLivePhotoPrev.lock(), pic);
                text += pic->spBaseName() + next->spBaseName() + ' ';
            }
        return text;
    }

    MySingleFolderPtr folder = makeFolder();
    UserDefaults defaults;
};

TEST_F(LivePhotoTest, ExactTimeIsThatOfTheFirstStampWithItsFraction) {
    const auto still = livePhoto("a", 9042);
    const auto exactly = [&] {
        still->livePhoto.livePhotoExactTimeCached.reset();
        const OptionalDate date = livePhotoExactTime(*still);
        return date ? utcText(*date) : "none";
    };
    EXPECT_EQ(exactly(), "2024-05-06 07:00:09.042");
    EXPECT_EQ(utcText(livePhotoStartTime(*still).value()), "2024-05-06 07:00:07.542");
    still->singlePicAttributes.exifOffsetTimeOriginal = located("+02:00");
    EXPECT_EQ(exactly(), "2024-05-06 05:00:09.042");
    still->singlePicAttributes.exifDateTimeDigitized = located("2024:05:06 09:00:00");
    still->singlePicAttributes.exifDateTimeOriginal = located("0000:00:00 00:00:00");
    EXPECT_EQ(exactly(), "2024-05-06 09:00:00.042");
    still->singlePicAttributes.exifDateTimeDigitized.reset();
    still->singlePicAttributes.tiffDateTime = located("2024:05:06 10:00:00");
    EXPECT_EQ(exactly(), "2024-05-06 10:00:00.042");
    still->spType = SpTypeTiffYoungerThanFile;
    EXPECT_EQ(exactly(), "2024-05-06 07:00:00.042") << "the main date";
    movieOf(still).movie.livePhotoStillImageTime.reset();
    EXPECT_FALSE(livePhotoStartTime(*still));
    folder->isEXIFIgnored = true;
    EXPECT_EQ(exactly(), "none");
}

TEST_F(LivePhotoTest, SortedByMovieTheNewerCamerasDateIsTheMovies) {
    struct Case {
        const char *model;
        bool isSimpler;
    };
    for (const Case &each : {Case{"iPhone 13 Pro", true},
                             {"iPhone 12", false},
                             {"iPhone X", false},
                             {"iPhone", false},
                             {"", false},
                             {"iPhone 15", true}}) {
        const auto still = livePhoto("a", 0);
        still->camera.model = each.model;
        folder->sortFolderLPsByMov = false;
        EXPECT_FALSE(usesSimplerLPExactTime(*still)) << each.model;
        folder->sortFolderLPsByMov = true;
        EXPECT_EQ(usesSimplerLPExactTime(*still), each.isSimpler) << each.model;
        EXPECT_EQ(livePhotoStartTime(*still) == movieOf(still).spDateTimeOriginal, each.isSimpler);
    }
}

TEST_F(LivePhotoTest, OverlapNeedsTimesSizesCameraAndFractions) {
    using enum LivePhotoOverlap;
    struct Case {
        const char *what;
        int start;
        double duration;
        LivePhotoOverlap expected;
        std::function<void(MySinglePic &still, MySinglePic &movie)> change = {};
    };
    const Case cases[]{
        {"within", 2500, 3, Overlap},
        {"end meets start", 3000, 3, Overlap},
        {"a gap of 200 ms", 3200, 3, Overlap},
        {"a gap of 201 ms", 3201, 3, None},
        {"ends half a second earlier", 1000, 1.5, Overlap},
        {"ends earlier than that", 1000, 1.499, None},
        {"at the same time", 0, 3, Overlap},
        {"slightly out of order", -60, 3.05, Overlap},
        {"out of order", -62, 3, None},
        {"another size of the still", 1000, 3, None,
         [](auto &still, auto &) { still.camera.pivImageWidth = 1; }},
        {"another size of the movie", 1000, 3, None,
         [](auto &, auto &movie) { movie.camera.pivImageHeight = 1; }},
        {"another camera", 1000, 3, None,
         [](auto &still, auto &) { still.camera.model = "Pixel"; }},
        {"no fraction", 1000, 3, None,
         [](auto &still, auto &) { still.livePhoto.subsecTimeOriginal.reset(); }},
        {"no place of the still", 1000, 3, None,
         [](auto &, auto &movie) { movie.movie.livePhotoStillImageTime.reset(); }},
        {"unknown length", 1000, -1, None},
        {"a raw pair", 1000, 3, None,
         [](auto &, auto &movie) { movie.spType = SpTypeExifOriginal; }},
        {"one is HDR", 1000, 3, HdrBreaker,
         [](auto &still, auto &) { still.livePhoto.customRendered = 8; }},
        {"one is HDR, far away", 4000, 3, None,
         [](auto &still, auto &) { still.livePhoto.customRendered = 8; }},
    };
    for (const Case &each : cases) {
        const auto first = livePhoto("a", 4000), second = livePhoto("b", 4000 + each.start);
        movieOf(second).movie.movDuration = each.duration;
        if (each.change)
            each.change(*second, movieOf(second));
        EXPECT_EQ(doLivePhotosOverlap(*first, *second), each.expected) << each.what;
    }
}

TEST_F(LivePhotoTest, ChainsFollowTheOrderOfShootingAcrossHdrPictures) {
    const auto c = livePhoto("c", 4000), a = livePhoto("a", 1000), hdr = livePhoto("h", 2000),
               b = livePhoto("b", 2500), z = livePhoto("z", 9500);
    hdr->livePhoto.customRendered = 8;
    refreshCompoundLivePhotosStates(*folder, defaults);
    EXPECT_EQ(chains(), "ab bc ");
    b->livePhoto.customRendered = 8;
    refreshCompoundLivePhotosStates(*folder, defaults);
    EXPECT_EQ(chains(), "hb ") << "old chains are cut";
    hdr->livePhoto.customRendered = b->livePhoto.customRendered = std::nullopt;
    EXPECT_THAT(refreshCompoundLivePhotosStatesFor(*hdr, defaults), testing::ElementsAre(a));
    EXPECT_EQ(chains(), "ah hb ");
    addItem(folder, SpTypeExifOriginal, utc(2024, 5, 6, 7, 0, 2) + absl::Milliseconds(100), "x");
    refreshCompoundLivePhotosStates(*folder, defaults);
    EXPECT_EQ(chains(), "ah bc ") << "a photo stands between";
}

} // namespace
} // namespace chronomender
