// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImportSteps.h"
#include "LittlePng.h"
#include "LittleXmp.h"

#include <filesystem>

namespace chronomender {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ImportRunTest : public ImportTest {
protected:
    /// Photos IMG_0 … whose stamps count the seconds.
    void manyPhotos(int count) {
        for (int i = 0; i < count; ++i)
            photo("IMG_" + std::to_string(i) + ".jpg", {.original = stampOf(i)});
    }
    static std::string stampOf(int seconds) {
        return absl::FormatTime("%Y:%m:%d %H:%M:%S",
                                utc("2024-05-06 00:00:00") + absl::Seconds(seconds),
                                absl::UTCTimeZone());
    }
};

TEST_F(ImportRunTest, ItemsComeInNaturalOrderAndAreNumberedSo) {
    for (const char *name : {"IMG_10.jpg", "IMG_9.jpg", "img_1.jpg", "IMG_0100.jpg", "a.jpg"})
        dated(name);
    const auto items = import().items;
    EXPECT_THAT(namesOf(items),
                ElementsAre("a.jpg", "img_1.jpg", "IMG_9.jpg", "IMG_10.jpg", "IMG_0100.jpg"));
    for (std::size_t i = 1; i < items.size(); ++i)
        EXPECT_EQ(items[i]->sessionUniqueId, items[i - 1]->sessionUniqueId + 1);
}

TEST_F(ImportRunTest, EveryItemHasWhatStandsInItsOwnFile) {
    constexpr int count = 700; // several blocks on several threads
    manyPhotos(count);
    const ImportOutcome outcome = import();
    ASSERT_EQ(outcome.items.size(), static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const MySinglePic &pic = *outcome.items[static_cast<std::size_t>(i)];
        EXPECT_EQ(pic.spName, "IMG_" + std::to_string(i) + ".jpg");
        EXPECT_EQ(pic.spDateTimeOriginal,
                  utc("2024-05-05 22:00:00") + absl::Seconds(i)); // Berlin in summer
        ASSERT_TRUE(pic.singlePicAttributes.exifDateTimeOriginal);
        EXPECT_EQ(pic.singlePicAttributes.exifDateTimeOriginal->data.substr(0, 19), stampOf(i));
        EXPECT_NE(pic.singlePicAttributes.fileInode, 0U);
    }
}

TEST_F(ImportRunTest, AnItemIsCompleteButForWhatTheImageLibraryAdds) {
    const auto built = little::jpegPhoto(little::fullPhotoFields());
    file("a.jpg", built.bytes);
    const auto items = import().items;
    ASSERT_EQ(items.size(), 1U);
    const MySinglePic &pic = *items[0];
    EXPECT_EQ(pic.fileFormatType, FileFormatJpeg);
    EXPECT_EQ(pic.camera.pivMakeModel, "Little One");
    EXPECT_NEAR(pic.location.gpsLat.value_or(0), 48 + 51 / 60.0 + 24.3 / 3600, 1e-9);
    EXPECT_EQ(pic.location.spGpsUTCDate, utc("2024-05-06 05:08:09"));
    EXPECT_EQ(pic.singlePicAttributes.exifDateTimeDigitized->offset,
              built.offsets.at("ExifDateTimeDigitized"));
    EXPECT_EQ(pic.slots.tiffDateTimeOLD, utc("2024-05-06 05:08:11"));
    EXPECT_EQ(pic.singlePicAttributes.fileSize, built.bytes.size());
    EXPECT_FALSE(pic.importState.wasLocationDataSearched);
}

TEST_F(ImportRunTest, APngKeepsItsPlaceInXmpOnly) {
    const std::string packet = little::Xmp()
                                   .attribute("exif:GPSLatitude", "48,30.0N")
                                   .attribute("exif:GPSLongitude", "11,15.0W")
                                   .end()
                                   .bytes();
    file("a.png", little::pngPhoto({.original = "2024:05:06 07:08:09", .xmp = packet}).bytes);
    photo("b.jpg", {.original = "2024:05:06 07:08:09", .xmp = packet});
    const auto items = import().items;
    ASSERT_EQ(items.size(), 2U);
    EXPECT_NEAR(items[0]->location.gpsLong.value_or(0), -11.25, 1e-9);
    EXPECT_TRUE(items[0]->singlePicAttributes.xmpLocation.gpsLat);
    EXPECT_FALSE(items[1]->hasLocation());
}

TEST_F(ImportRunTest, ImportWritesNothing) {
    photo("empty.jpg", {.original = "0000:00:00 00:00:00"});
    const std::string path = photo("a.jpg", little::fullPhotoFields());
    const std::string before = little::fileContent(path);
    const auto folderTime = std::filesystem::last_write_time(disk.path());
    const auto fileTime = std::filesystem::last_write_time(path);
    import();
    EXPECT_EQ(little::fileContent(path), before);
    EXPECT_EQ(std::filesystem::last_write_time(path), fileTime);
    EXPECT_EQ(std::filesystem::last_write_time(disk.path()), folderTime);
}

TEST_F(ImportRunTest, AFolderThatMovedOnDiskIsStillRead) {
    dated("inside/a.jpg");
    folder = MySingleFolder::initWithFolder(
        disk.path("inside"), FolderReference::open(disk.path("inside")), EditMode::Together);
    std::filesystem::rename(disk.path("inside"), disk.path("moved"));
    const auto items = import().items;
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0]->spPath(), disk.path("moved/a.jpg"));
}

TEST_F(ImportRunTest, ACancelledImportKeepsAPrefixOfFinishedItems) {
    manyPhotos(600);
    photo("IMG_30x.jpg", {.original = "0000:00:00 00:00:00"}); // asks behind IMG_30
    questions.whenAsked = [this] { cancellation.request(); };

    const ImportOutcome outcome = import();

    EXPECT_TRUE(outcome.wasCancelled);
    ASSERT_GT(outcome.items.size(), 31U);
    ASSERT_LT(outcome.items.size(), 601U);
    EXPECT_EQ(outcome.items.size() + outcome.skipped.size(), 601U);
    EXPECT_EQ(outcome.items[30]->spName, "IMG_30.jpg");
    EXPECT_EQ(outcome.items[31]->spName, "IMG_30x.jpg");
    for (const MySinglePicPtr &pic : outcome.items)
        EXPECT_TRUE(pic->slots.exifDateTimeOriginalOLD && pic->slots.fileModificationDateOLD);
    EXPECT_EQ(skippedOf(outcome).back(), "IMG_599.jpg cancelled");
}

TEST_F(ImportRunTest, ACancelledSessionReadsNothing) {
    manyPhotos(3);
    file("notes.txt", "text");
    cancellation.request();
    const ImportOutcome outcome = import();
    EXPECT_TRUE(outcome.wasCancelled);
    EXPECT_THAT(outcome.items, IsEmpty());
    EXPECT_THAT(skippedOf(outcome),
                ElementsAre("IMG_0.jpg cancelled", "IMG_1.jpg cancelled", "IMG_2.jpg cancelled"));
}

TEST_F(ImportRunTest, ProgressRisesToTheEndInFewSteps) {
    manyPhotos(300);
    std::vector<std::size_t> done;
    progress = [&](ImportProgress step) {
        EXPECT_EQ(step.total, 300U);
        done.push_back(step.done);
    };
    import();
    EXPECT_TRUE(std::ranges::is_sorted(done));
    EXPECT_EQ(done.back(), 300U);
    EXPECT_LE(done.size(), 25U);
}

} // namespace
} // namespace chronomender
