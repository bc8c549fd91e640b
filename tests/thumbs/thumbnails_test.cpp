// SPDX-License-Identifier: GPL-3.0-or-later
#include "Previews.h"
#include "Thumbnails.h"
#include "ThumbsTest.h"

#include <filesystem>

namespace chronomender {
namespace {

using namespace little;

class ThumbnailsTest : public ThumbsTest {
protected:
    void start(ThumbnailSettings settings = {}) {
        m_thumbs.emplace(settings);
        m_thumbs->setChanged([this](const std::vector<std::uint32_t> &ids) {
            m_made.insert(m_made.end(), ids.begin(), ids.end());
        });
        m_thumbs->setPausedForEviction([this] { ++m_pauses; });
    }
    ThumbAnswer ready(const MySinglePicPtr &pic, ThumbSide side = ThumbSide::Normal) {
        EXPECT_TRUE(
            until([&] { return m_thumbs->spThumb(pic, side).state != ThumbState::Pending; }));
        return m_thumbs->spThumb(pic, side);
    }
    std::string shown(const MySinglePicPtr &pic) {
        const ThumbAnswer answer = ready(pic);
        return answer.image.isNull() ? std::string(answer.reasonKey) : quarters(answer.image);
    }
    bool hasEnded() {
        return until([&] { return m_thumbs->progress().waiting == 0; });
    }

    std::optional<Thumbnails> m_thumbs;
    std::vector<std::uint32_t> m_made;
    int m_pauses = 0;
};

TEST_F(ThumbnailsTest, AnswerWhatThereIs) {
    start();
    const auto photo = addPhoto("photo.jpg"), small = addPhoto("small.jpg", 100, 80);
    EXPECT_EQ(m_thumbs->spThumb(photo).state, ThumbState::Pending);
    EXPECT_EQ(m_thumbs->validatedThumbSize(photo), QSize(200, 200));
    const ThumbAnswer found = ready(photo);
    EXPECT_EQ(quarters(found.image), "rgbw");
    EXPECT_FALSE(found.isMiniFallBack);
    EXPECT_EQ(m_thumbs->validatedThumbSize(photo), QSize(126, 84));
    EXPECT_EQ(m_thumbs->spThumb(photo, ThumbSide::Mini).image.width(), 50);
    EXPECT_EQ(m_thumbs->spThumb(photo, ThumbSide::Maxi).image.width(), 126);
    EXPECT_TRUE(ready(small).isMiniFallBack);
    EXPECT_EQ(ready(small).image.size(), QSize(50, 40));
    EXPECT_EQ(m_thumbs->validatedThumbSize(small), QSize(100, 80));
    EXPECT_EQ(m_thumbs->spThumb(nullptr).state, ThumbState::Pending);
}

TEST_F(ThumbnailsTest, AFailureKeepsItsReasonUntilTheFileIsAnother) {
    start();
    const auto broken = add("broken.jpg", "nothing"), gone = addPhoto("gone.jpg");
    std::filesystem::remove(m_disk.path("gone.jpg"));
    EXPECT_EQ(ready(broken).state, ThumbState::Unsupported);
    EXPECT_EQ(ready(broken).reasonKey, "thumb_damagedOrUnknown");
    EXPECT_EQ(ready(gone).reasonKey, "thumb_cannotBeOpened");
    m_made.clear();
    m_thumbs->setOnScreen({broken, gone});
    m_thumbs->addImagesWithoutThumb({broken, gone});
    EXPECT_EQ(m_thumbs->progress().waiting, 0U);
    m_disk.write("broken.jpg", pictureFile(fourQuarters(300, 200), "jpeg"));
    m_thumbs->updateThumb(broken);
    EXPECT_EQ(quarters(ready(broken).image), "rgbw");
    EXPECT_EQ(m_made, std::vector{broken->sessionUniqueId});
}

TEST_F(ThumbnailsTest, AChangedFileShowsItsNewPicture) {
    start();
    const auto photo = addPhoto("photo.jpg");
    ready(photo);
    m_disk.write("photo.jpg", pictureFile(fourQuarters(300, 200).mirrored(), "jpeg"));
    m_thumbs->updateThumb(photo);
    EXPECT_EQ(m_thumbs->spThumb(photo).state, ThumbState::Pending);
    EXPECT_EQ(quarters(m_thumbs->spThumb(photo).image), "rgbw"); // meanwhile
    EXPECT_EQ(quarters(ready(photo).image), "bwrg");
    m_thumbs->forget({photo});
    EXPECT_EQ(m_thumbs->spThumb(photo).state, ThumbState::Pending);
}

TEST_F(ThumbnailsTest, WhatIsOnScreenComesFirst) {
    start({.threads = 1});
    const auto pics = addPhotos(400);
    m_thumbs->setIsAutoBGThumbsPaused(true);
    m_thumbs->addImagesWithoutThumb(pics);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_thumbs->progress().waiting, 400U);
    EXPECT_TRUE(m_made.empty());
    m_thumbs->setOnScreen({pics[390], pics[350]});
    m_thumbs->setIsAutoBGThumbsPaused(false);
    // A scroll while they are made: what is in a worker's hands or in the same heap is all that
    // may stand in front of it.
    ASSERT_TRUE(until([&] { return m_made.size() >= 2; }));
    EXPECT_EQ(m_made[0], pics[390]->sessionUniqueId);
    EXPECT_EQ(m_made[1], pics[350]->sessionUniqueId);
    m_thumbs->setOnScreen({pics[395]});
    const auto before = m_made.size();
    ASSERT_TRUE(hasEnded());
    const auto at = std::ranges::find(m_made, pics[395]->sessionUniqueId) - m_made.begin();
    EXPECT_LT(static_cast<std::size_t>(at), before + 151);
    EXPECT_EQ(m_thumbs->progress().finished, 400U);
    EXPECT_EQ(m_made.size(), 400U);
}

TEST_F(ThumbnailsTest, DecodedPicturesComeAndGoSilently) {
    // Room for about two of them.
    start({.decodedBytes = 110'000});
    const auto pics = addPhotos(12);
    m_thumbs->addImagesWithoutThumb(pics);
    ASSERT_TRUE(hasEnded());
    for (const auto &pic : pics)
        std::filesystem::remove(pic->spPath()); // from here on only the kept bytes can serve
    for (const auto &pic : pics)
        EXPECT_EQ(quarters(ready(pic).image), "rgbw");
    EXPECT_EQ(m_pauses, 0);
    EXPECT_TRUE(m_thumbs->autoBGThumbGeneration());
    EXPECT_EQ(m_thumbs->progress().waiting, 0U);
}

TEST_F(ThumbnailsTest, TheFirstLossOfBytesEndsTheBackgroundForTheSession) {
    start({.compressedBytes = 12'000});
    const auto pics = addPhotos(200);
    m_thumbs->addImagesWithoutThumb(pics);
    ASSERT_TRUE(until([&] { return m_pauses > 0; }));
    ASSERT_TRUE(hasEnded());
    EXPECT_FALSE(m_thumbs->autoBGThumbGeneration());
    m_thumbs->addImagesWithoutThumb(pics);
    EXPECT_EQ(m_thumbs->progress().waiting, 0U);
    EXPECT_EQ(quarters(ready(pics.back()).image), "rgbw"); // who looks at one still gets it
    EXPECT_EQ(m_pauses, 1);
    m_thumbs->setSettings({.autoThumbMode = true}); // has nothing to do with it
    EXPECT_FALSE(m_thumbs->autoBGThumbGeneration());
    m_thumbs->setSettings({.autoBGThumbGeneration = false});
    m_thumbs->setSettings({}); // switched on again by hand
    EXPECT_TRUE(m_thumbs->autoBGThumbGeneration());
}

TEST_F(ThumbnailsTest, AGroupShowsTheHalfThatIsWanted) {
    const auto raw = addPhoto("a.raf"), jpeg = addPhoto("a.jpg", 200, 300);
    const auto still = addPhoto("b.jpg"), movie = addPhoto("b.mov", 200, 300);
    movie->spType = SpTypeMovieMdta;
    makeDependent(jpeg, raw);
    makeDependent(movie, still);
    start();
    Previews previews;
    for (const auto type : {RawJpgDisplayType::Master, RawJpgDisplayType::Dependent}) {
        m_thumbs->setSettings({.rawJpgDisplayType = type});
        previews.setRawJpgDisplayType(type);
        EXPECT_EQ(ready(raw).image.width() < 126, type == RawJpgDisplayType::Dependent);
        EXPECT_TRUE(until([&] { return previews.preview(raw, 256).state == ThumbState::Ready; }));
        EXPECT_EQ(previews.preview(raw, 256).image.width() < 256,
                  type == RawJpgDisplayType::Dependent);
        EXPECT_EQ(ready(still).image.width(), 126);
    }
}

TEST_F(ThumbnailsTest, AChangedSettingMakesAnewWhatItConcerns) {
    const auto photo = addPhoto("photo.jpg"), raw = addPhoto("a.raf"), jpeg = addPhoto("a.jpg");
    makeDependent(jpeg, raw);
    start({.threads = 1});
    m_thumbs->addImagesWithoutThumb({photo, raw});
    ASSERT_TRUE(hasEnded());
    using Ids = std::vector<std::uint32_t>;
    const Ids all{photo->sessionUniqueId, raw->sessionUniqueId};
    const std::pair<ThumbnailSettings, Ids> steps[]{
        {{}, {}},
        {{.autoThumbMode = true}, {}},
        {{.rawJpgDisplayType = RawJpgDisplayType::Dependent}, {all[1]}},
        {{.vqsFspUsesHigherResScrollingAtTheCostOfMuchRam = true}, all},
        {{.autoBGThumbGeneration = false}, {}}, // until somebody looks
    };
    for (const auto &[settings, madeAnew] : steps) {
        m_made.clear();
        m_thumbs->setSettings(settings);
        ASSERT_TRUE(hasEnded());
        EXPECT_EQ(m_made, madeAnew);
    }
    EXPECT_EQ(m_thumbs->validatedThumbSize(photo).width(), 252);
    EXPECT_EQ(ready(photo, ThumbSide::Maxi).image.width(), 126);
}

TEST_F(ThumbnailsTest, OnlyEmbeddedOnesUntilSomebodyLooks) {
    const auto withEmbedded = [&](const std::string &name, int side) {
        const QImage embedded = fourQuarters(side, side).mirrored();
        return add(name, cameraJpeg(fourQuarters(300, 200), 1, embedded));
    };
    const auto bare = addPhoto("bare.jpg"), other = addPhoto("other.jpg"),
               movie = addPhoto("movie.mov"), embedded = withEmbedded("embedded.jpg", 160),
               tooSmall = withEmbedded("tooSmall.jpg", 120), broken = add("broken.jpg", "nothing");
    movie->spType = SpTypeMovieMdta;
    start({.autoThumbMode = true});
    const std::pair<MySinglePicPtr, std::string> found[]{
        {bare, "thumb_noneInFile"}, {other, "thumb_noneInFile"}, {movie, "rgbw"},
        {embedded, "bwrg"},         {tooSmall, "rgbw"},          {broken, "thumb_damagedOrUnknown"},
    };
    for (const auto &[pic, thumbnail] : found)
        EXPECT_EQ(shown(pic), thumbnail) << pic->spName;
    for (const auto &pic : {bare, embedded, broken})
        m_thumbs->setVisibleInPreviews(pic);
    EXPECT_EQ(m_thumbs->progress().waiting, 1U);
    EXPECT_EQ(shown(bare) + shown(other), "rgbwthumb_noneInFile");
    m_thumbs->setSettings({});
    EXPECT_EQ(shown(other) + shown(embedded), "rgbwbwrg");
}

TEST_F(ThumbnailsTest, EndInTheMiddle) {
    start();
    m_thumbs->addImagesWithoutThumb(addPhotos(300));
    ASSERT_TRUE(until([&] { return !m_made.empty(); }));
    m_thumbs.reset();
    const auto made = m_made.size();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_made.size(), made);
}

class PreviewsTest : public ThumbsTest {
protected:
    PreviewAnswer ready(Previews &previews, const MySinglePicPtr &pic, int side) {
        EXPECT_TRUE(
            until([&] { return previews.preview(pic, side).state != ThumbState::Pending; }));
        return previews.preview(pic, side);
    }
};

TEST_F(PreviewsTest, GrowWithTheWindow) {
    Previews previews;
    const auto photo = addPhoto("photo.jpg", 1500, 1000);
    EXPECT_EQ(ready(previews, photo, 400).image.width(), 512);
    const auto meanwhile = previews.preview(photo, 1000);
    EXPECT_EQ(meanwhile.state, ThumbState::Pending);
    EXPECT_EQ(meanwhile.image.width(), 512);
    EXPECT_EQ(ready(previews, photo, 1000).image.width(), 1024);
    EXPECT_EQ(ready(previews, photo, 2000).image.width(), 1500);
    EXPECT_EQ(previews.preview(photo, 9000).state, ThumbState::Ready); // there is no more
    EXPECT_EQ(quarters(previews.preview(photo, 100).image), "rgbw");
    m_disk.write("photo.jpg", "nothing");
    previews.forget(photo);
    EXPECT_EQ(ready(previews, photo, 400).reasonKey, "thumb_damagedOrUnknown");
}

TEST_F(PreviewsTest, OfManyOnlyTheLastAreMade) {
    Previews previews(3U << 20U);
    std::vector<std::uint32_t> made;
    previews.setChanged([&](std::uint32_t id) { made.push_back(id); });
    const auto pics = addPhotos(30);
    for (const auto &pic : pics)
        previews.preview(pic, 256);
    ASSERT_TRUE(until([&] { return made.size() >= 8; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(made.size(), 8U);
    EXPECT_EQ(previews.preview(pics.back(), 256).state, ThumbState::Ready);
    EXPECT_EQ(previews.preview(pics.front(), 256).state, ThumbState::Pending);
}

} // namespace
} // namespace chronomender
