// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderNames.h"
#include "ImportSteps.h"
#include "Texts.h"

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace chronomender {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class SkippedEntriesTest : public ImportTest {
protected:
    void link(const std::string &target, const std::string &name) {
        std::filesystem::create_symlink(target, disk.path(name));
    }
};

TEST_F(SkippedEntriesTest, WhatAPersonWouldMissIsListedWithItsReason) {
    file("empty.jpg", "");
    file("empty.mov", "");
    file("cut\xFF.jpg", "no matter");
    dated("good.jpg");
    ASSERT_EQ(::mkfifo(disk.path("pipe.jpg").c_str(), 0600), 0);
    link("good.jpg", "link.jpg");
    link("nowhere", "dangling.jpg");
    link("loop", "loop");

    const ImportOutcome outcome = import();

    EXPECT_THAT(namesOf(outcome.items), ElementsAre("good.jpg"));
    EXPECT_THAT(skippedOf(outcome),
                UnorderedElementsAre("empty.jpg empty", "empty.mov empty",
                                     "cut\xFF.jpg nameNotUtf8", "pipe.jpg unreadable",
                                     "link.jpg symbolicLink", "dangling.jpg symbolicLink",
                                     "loop symbolicLink"));
    EXPECT_EQ(outcome.skipped.front().path.substr(0, disk.path().size()), disk.path());
}

TEST_F(SkippedEntriesTest, WhatNobodyLooksForAmongPhotosIsPassedOver) {
    for (const char *name :
         {"._good.jpg", ".DS_Store", "notes.txt", "._good.xmp", "track.gpx", "inside/good.jpg"})
        file(name, "text");
    file("nothing.txt", "");
    link("inside", "linked folder");
    ASSERT_EQ(::mkfifo(disk.path("pipe").c_str(), 0600), 0);
    const ImportOutcome outcome = import();
    EXPECT_THAT(outcome.items, IsEmpty());
    EXPECT_THAT(skippedOf(outcome), IsEmpty());
}

TEST_F(SkippedEntriesTest, EverythingNamedByAPersonIsAnswered) {
    file("notes.txt", "text");
    file("good.gpx", "text");
    file("._good.jpg", "text");
    file("inside/deep.jpg", "text");
    dated("good.jpg");
    dated("other.jpg");

    const ImportOutcome outcome = import({"good.jpg", "notes.txt", "good.gpx", "._good.jpg",
                                          "inside", "inside/deep.jpg", "absent.jpg", "good.jpg"});

    EXPECT_THAT(namesOf(outcome.items), ElementsAre("good.jpg"));
    EXPECT_THAT(skippedOf(outcome),
                UnorderedElementsAre("notes.txt notAMedium", "good.gpx notAMedium",
                                     "._good.jpg notAMedium", "inside notAMedium",
                                     "deep.jpg unreadable", "absent.jpg unreadable"));
}

TEST_F(SkippedEntriesTest, AFileWithoutPermissionIsUnreadable) {
    if (::geteuid() == 0)
        GTEST_SKIP() << "root may read every file";
    std::filesystem::permissions(dated("locked.jpg"), std::filesystem::perms::none);
    EXPECT_THAT(skippedOf(import()), ElementsAre("locked.jpg unreadable"));
}

TEST_F(SkippedEntriesTest, AFolderThatIsGoneIsSaid) {
    openFolder();
    std::filesystem::remove_all(disk.path());
    const ImportOutcome outcome = import();
    EXPECT_THAT(outcome.items, IsEmpty());
    ASSERT_EQ(outcome.skipped.size(), 1U);
    EXPECT_EQ(outcome.skipped[0].path, disk.path());
    EXPECT_EQ(outcome.skipped[0].reason, SkipReason::Unreadable);
}

TEST_F(SkippedEntriesTest, OneFileUnderTwoNamesIsOneItem) {
    const std::string path = dated("IMG_2.jpg");
    std::filesystem::create_hard_link(path, disk.path("IMG_10.jpg"));
    std::filesystem::create_hard_link(path, disk.path("IMG_1.jpg"));
    dated("IMG_3.jpg");
    const ImportOutcome outcome = import();
    EXPECT_THAT(namesOf(outcome.items), ElementsAre("IMG_1.jpg", "IMG_3.jpg"));
    EXPECT_THAT(skippedOf(outcome),
                ElementsAre("IMG_2.jpg sameFileTwice", "IMG_10.jpg sameFileTwice"));
    EXPECT_TRUE(outcome.items[0]->importState.isExtraHardLink);
    EXPECT_FALSE(outcome.items[1]->importState.isExtraHardLink);
}

TEST_F(SkippedEntriesTest, OneFileInTwoFoldersOfASessionIsOneItem) {
    SessionFiles files;
    sessionFiles = &files;
    const std::string path = dated("a.jpg");
    EXPECT_EQ(import().items.size(), 1U);

    const little::TemporaryFolder second;
    std::filesystem::create_hard_link(path, second.path("b.jpg"));
    folder = MySingleFolder::initWithFolder(second.path(), FolderReference::open(second.path()),
                                            EditMode::Together);
    EXPECT_THAT(skippedOf(import()), ElementsAre("b.jpg sameFileTwice"));
}

TEST_F(SkippedEntriesTest, EveryReasonHasItsText) {
    loadTexts("en");
    for (int reason = 0; reason <= static_cast<int>(SkipReason::Cancelled); ++reason) {
        const char *key = textKey(static_cast<SkipReason>(reason));
        EXPECT_NE(text(key), key);
    }
    for (const auto id : {ImportErrorId::SidecarUnreadable, ImportErrorId::SidecarOfSeveral,
                          ImportErrorId::SidecarOfNone})
        EXPECT_NE(text(textKey(id)), textKey(id));
}

class ContentTest : public ImportTest {};

TEST_F(ContentTest, ContentWinsOverTheExtensionWhichCountsWhereItSaysNothing) {
    const little::PhotoFields fields{.original = "2024:05:06 07:08:09"};
    const std::string jpeg = little::jpegPhoto(fields).bytes,
                      tiff = little::tiffPhoto(fields).bytes, noise = "nothing that anybody knows";
    const std::tuple<const char *, std::string, FileFormatType> table[]{
        {"a.jpg", tiff, FileFormatTiff},
        {"b.tif", jpeg, FileFormatJpeg},
        {"c.png", jpeg, FileFormatJpeg},
        {"d.txt", jpeg, FileFormatJpeg},
        {"e", jpeg, FileFormatJpeg},
        {"f.NEF", tiff, FileFormatRaw},
        {"g.dng", jpeg, FileFormatJpeg},
        {"h.jpg", noise, FileFormatJpeg},
        {"i.CR3", noise, FileFormatRaw},
        {"j.heic", noise, FileFormatHeif},
        {"k.gif", noise, FileFormatGif},
        {"l.pict", noise, FileFormatPict},
        {"m.mov", noise, FileFormatQuickTime},
        {"n.3gp", noise, FileFormatMpeg4},
        {"o.MTS", noise, FileFormatOtherMovie},
        {"p.avi", noise, FileFormatOtherMovie},
        {"q.mkv", noise, FileFormatOtherMovie}};
    for (const auto &[name, bytes, format] : table)
        file(name, bytes);
    const auto items = import().items;
    ASSERT_EQ(items.size(), std::size(table));
    for (std::size_t i = 0; i < items.size(); ++i) {
        const auto &[name, bytes, format] = table[i];
        EXPECT_EQ(items[i]->fileFormatType, format) << name;
        EXPECT_EQ(items[i]->spType, bytes != noise          ? SpTypeExifOriginal
                                    : isMovieFormat(format) ? SpTypeMovieFileDate
                                                            : SpTypeNoTagsFileDate)
            << name;
    }
}

TEST_F(ContentTest, IgnoredDataLeavesTheExtensionToDecide) {
    const std::string jpeg = little::jpegPhoto({.original = "2024:05:06 07:08:09"}).bytes;
    for (const char *name : {"a.tif", "b.mov", "c.unknown", "d"})
        file(name, jpeg);
    openFolder();
    folder->isEXIFIgnored = true;
    const auto items = import().items;
    ASSERT_THAT(namesOf(items), ElementsAre("a.tif", "b.mov", "c.unknown"));
    EXPECT_EQ(items[0]->fileFormatType, FileFormatTiff);
    EXPECT_EQ(items[0]->spType, SpTypeUnsupported);
    EXPECT_EQ(items[1]->spType, SpTypeMovieIgnored);
    EXPECT_EQ(items[2]->fileFormatType, FileFormatJpeg);
    for (const MySinglePicPtr &pic : items)
        EXPECT_FALSE(pic->singlePicAttributes.exifDateTimeOriginal) << pic->spName;
    EXPECT_EQ(questions.askedAboutMovies, 0);
}

TEST_F(ContentTest, FilesOfManyGigabytesThatHoldNothing) {
    for (const char *name : {"huge.jpg", "huge.dng", "huge.tif", "huge.bin"}) {
        file(name, "x");
        std::filesystem::resize_file(disk.path(name), std::uintmax_t{64} << 30);
    }
    const ImportOutcome outcome = import();
    EXPECT_THAT(namesOf(outcome.items), ElementsAre("huge.dng", "huge.jpg", "huge.tif"));
    for (const MySinglePicPtr &pic : outcome.items)
        EXPECT_EQ(pic->spType, SpTypeNoTagsFileDate) << pic->spName;
}

TEST(FolderNamesTest, LibrariesOfOtherProgramsAreRefused) {
    for (const char *path :
         {"/home/a/Photos.photoslibrary", "/home/Photos.photoslibrary/originals/0",
          "Old.aplibrary/", "/x/Catalog Previews.lrdata", "/x/Trip.mending"})
        EXPECT_TRUE(isRefusedFolder(path)) << path;
    for (const char *path : {"/home/a/photoslibrary", "/x/Trip.mending.old", "", "/"})
        EXPECT_FALSE(isRefusedFolder(path)) << path;
}

} // namespace
} // namespace chronomender
