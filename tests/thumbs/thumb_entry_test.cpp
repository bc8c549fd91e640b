// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittlePicture.h"
#include "ThumbCache.h"
#include "ThumbEntry.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;

TEST(ThumbEntryTest, HasTheSizesThatThePictureReaches) {
    struct Case {
        QSize picture;
        KeepMaxi keepMaxi;
        QSize maxi, normal, mini, kept;
    };
    const Case cases[]{
        {{3000, 2000}, KeepMaxi::No, {}, {126, 84}, {50, 33}, {126, 84}},
        {{3000, 2000}, KeepMaxi::Yes, {252, 168}, {126, 84}, {50, 33}, {252, 168}},
        {{200, 100}, KeepMaxi::Yes, {}, {126, 63}, {50, 25}, {126, 63}},
        {{100, 80}, KeepMaxi::Yes, {}, {}, {50, 40}, {100, 80}},
        {{20, 40}, KeepMaxi::No, {}, {}, {20, 40}, {20, 40}},
        {{9000, 1}, KeepMaxi::No, {}, {126, 1}, {50, 1}, {126, 1}},
    };
    for (const Case &c : cases) {
        auto entry = setSpThumb(fourQuarters(c.picture.width(), c.picture.height()), c.keepMaxi);
        for (int i = 0; i < 2; ++i) { // as made, and as made again from the bytes
            ASSERT_TRUE(entry);
            EXPECT_EQ(entry->maxiThumb.size(), c.maxi.isEmpty() ? QSize(0, 0) : c.maxi);
            EXPECT_EQ(entry->prevThumb.size(), c.normal.isEmpty() ? QSize(0, 0) : c.normal);
            EXPECT_EQ(entry->miniThumb.size(), c.mini);
            EXPECT_EQ(entry->largestThumbSize, c.kept);
            EXPECT_EQ(QImage::fromData(entry->compressedData).size(), c.kept);
            EXPECT_TRUE(entry->compressedData.startsWith("\xFF\xD8"));
            entry = setSpThumbFromCompressedData(entry->compressedData, c.keepMaxi);
        }
    }
    EXPECT_FALSE(setSpThumb({}, KeepMaxi::No));
    EXPECT_FALSE(setSpThumbFromCompressedData("<svg width='9' height='9'/>", KeepMaxi::No));
}

TEST(ThumbEntryTest, KeepsTransparencyWithoutLoss) {
    const QImage glass = fourQuarters(90, 60, 128);
    const auto entry = setSpThumb(glass, KeepMaxi::No);
    ASSERT_TRUE(entry);
    EXPECT_FALSE(entry->compressedData.startsWith("\xFF\xD8"));
    const QImage again = QImage::fromData(entry->compressedData);
    EXPECT_EQ(again.pixelColor(10, 10).alpha(), 128);
    EXPECT_EQ(again.convertToFormat(QImage::Format_ARGB32_Premultiplied),
              glass.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    EXPECT_EQ(setSpThumbFromCompressedData(entry->compressedData, KeepMaxi::No)->compressedData,
              entry->compressedData);
}

TEST(ThumbCacheTest, LosesDecodedPicturesSilentlyAndBytesAloud) {
    const ThumbEntry entry = *setSpThumb(fourQuarters(40, 40), KeepMaxi::No);
    const auto decoded = entry.decodedBytes(),
               compressed = std::size_t(entry.compressedData.size());
    std::vector<std::uint32_t> lost;
    ThumbCache cache(decoded * 2, compressed * 3);
    cache.setWillEvictObject([&](std::uint32_t id) { lost.push_back(id); });
    for (const std::uint32_t id : {1U, 2U, 3U}) {
        cache.setEntry(id, entry, ThumbCache::Seen::Yes);
        cache.entry(1); // the first one is used all the time
    }
    EXPECT_TRUE(cache.entry(1)->isDecoded());
    EXPECT_FALSE(cache.entry(2)->isDecoded());
    EXPECT_EQ(cache.entry(2)->compressedData, entry.compressedData);
    cache.setEntry(3, entry, ThumbCache::Seen::Yes);
    cache.remove(3);
    EXPECT_TRUE(lost.empty());
    EXPECT_EQ(cache.decodedBytes(), decoded);
    EXPECT_EQ(cache.compressedBytes(), compressed * 2);
    for (const std::uint32_t id : {3U, 4U})
        cache.setEntry(id, entry, ThumbCache::Seen::Yes);
    EXPECT_EQ(lost, std::vector<std::uint32_t>{1});
    EXPECT_EQ(cache.entry(1), nullptr);
    cache.setEntry(5, entry, ThumbCache::Seen::No); // there is no room for it
    EXPECT_EQ(lost, (std::vector<std::uint32_t>{1, 5}));
    EXPECT_TRUE(cache.entry(4)->isDecoded());
}

} // namespace
} // namespace chronomender
