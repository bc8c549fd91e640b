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
    movieOf(still).movie.livePhotoStillImageTime.reset();
    EXPECT_FALSE(livePhotoStartTime(*still));
    folder->isEXIFIgnored = true;
    EXPECT_EQ(exactly(), "none");
    // Sorted by movie, a newer camera's date is the movie's.
    folder->sortFolderLPsByMov = true;
    for (const std::string model : {"iPhone 13 Pro", "iPhone 12", "iPhone X", "iPhone"}) {
        still->livePhoto.usesSimplerLPExactTime_cached = 0;
        still->camera.model = model;
        EXPECT_EQ(usesSimplerLPExactTime(*still), model == "iPhone 13 Pro") << model;
    }
}

TEST_F(LivePhotoTest, OverlapNeedsTimesThatMeet) {
    const std::tuple<int, double, bool> cases[]{
        {3200, 3, true},   {3201, 3, false}, {1000, 1.5, true}, {1000, 1.499, false},
        {-60, 3.05, true}, {-62, 3, false},  {1000, -1, false}};
    for (const auto &[start, duration, doMeet] : cases) {
        const auto first = livePhoto("a", 4000), second = livePhoto("b", 4000 + start);
        movieOf(second).movie.movDuration = duration;
        EXPECT_EQ(doLivePhotosOverlap(*first, *second) == LivePhotoOverlap::Overlap, doMeet)
            << start << ' ' << duration;
    }
}

TEST_F(LivePhotoTest, OverlapNeedsOneCameraOneSizeAndFractions) {
    using Change = void (*)(MySinglePic &);
    for (const Change change :
         {Change([](auto &pic) { pic.camera.pivImageWidth = 1; }),
          Change([](auto &pic) { pic.camera.model = "Pixel"; }),
          Change([](auto &pic) { pic.livePhoto.subsecTimeOriginal.reset(); }),
          Change([](auto &pic) { pic.group.bundleDependentImage->camera.pivImageHeight = 1; })}) {
        const auto first = livePhoto("a", 4000), second = livePhoto("b", 5000);
        change(*second);
        EXPECT_EQ(doLivePhotosOverlap(*first, *second), LivePhotoOverlap::None);
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
    addItem(folder, SpTypeExifOriginal, utc(2024, 5, 6, 7, 0, 2) + absl::Milliseconds(100), "x");
    refreshCompoundLivePhotosStates(*folder, defaults);
    EXPECT_EQ(chains(), "ah bc ") << "a photo stands between";
}

} // namespace
} // namespace chronomender
