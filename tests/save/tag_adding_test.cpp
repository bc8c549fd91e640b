// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittlePhotos.h"
#include "LittleXmp.h"
#include "SaveTest.h"
#include "ToolWitness.h"

#include <sys/xattr.h>

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto dateTags = "-DateTimeOriginal -CreateDate -ModifyDate -OffsetTimeOriginal "
                          "-OffsetTimeDigitized -OffsetTime";

class TagAdding : public SaveTest {
protected:
    void SetUp() override {
        if (!session.tool.program())
            GTEST_SKIP() << "there is no exiftool on this machine";
    }
    /// Imports a photo, an hour too early, that shall get the tags that it lacks.
    MySinglePic &imported(const std::string &name, const BuiltPhoto &photo) {
        session.folder().sfEditMode = EditMode::Together;
        session.write(name, photo.bytes);
        session.import();
        shift(absl::Hours(1));
        MySinglePic &pic = session.item(name);
        EXPECT_TRUE(setShouldAddExifDateTimeTags(pic, true)) << name;
        return pic;
    }
    void withStandIn() { session.toolProgram = CHRONOMENDER_STANDIN_TOOL; }

    static constexpr auto original = "2024:05:06 07:08:09";
    const BuiltPhoto bare = jpegPhoto({}), dated = jpegPhoto({.original = original});
};

TEST_F(TagAdding, MissingTagsAreThereAndTheRestIsCorrectedAsWell) {
    const struct {
        const char *name;
        FileFormatType format;
    } rows[]{{"a.jpg", FileFormatJpeg},
             {"a.png", FileFormatPng},
             {"a.webp", FileFormatWebp},
             {"a.tif", FileFormatTiff}};
    for (const auto &[name, format] : rows) {
        const MySinglePic &pic =
            imported(name, photoOf(format, {.original = original, .location = PhotoLocation{}}));
        saves();
        // The modification tag takes the file's date.
        EXPECT_EQ(witness(pic.spPath(), dateTags), "2024:05:06 08:08:09\n2024:05:06 08:08:09\n"
                                                   "2024:05:06 22:00:00\n+02:00\n+02:00\n")
            << name;
        EXPECT_FALSE(pic.isUnsavedOrGroupHarmonized()) << name;
        std::filesystem::remove(pic.spPath());
    }
}

TEST_F(TagAdding, AFileWithoutAnyTagGetsAllFromItsFileDate) {
    const MySinglePic &pic = imported("a.jpg", bare);
    ::setxattr(pic.spPath().c_str(), "user.rating", "5", 1, 0);
    const bool hasAttributes = ::getxattr(pic.spPath().c_str(), "user.rating", nullptr, 0) == 1;
    saves();
    EXPECT_EQ(::getxattr(pic.spPath().c_str(), "user.rating", nullptr, 0) == 1, hasAttributes);
    EXPECT_EQ(pic.spType, SpTypeExifOriginal);
    EXPECT_EQ(pic.spDateTimeOriginal, utc(2024, 5, 6, 21));
    EXPECT_FALSE(pic.isUnsavedOrGroupHarmonized());
}

TEST_F(TagAdding, AShortXmpStampIsWidened) {
    const auto packet = [](const std::string &stamp) {
        return Xmp().attribute("exif:DateTimeOriginal", stamp).end().bytes();
    };
    session.photo("a.jpg", {.xmp = packet("2024-05-06T07:08")});
    session.import();
    shift(absl::Seconds(61));
    saves();
    EXPECT_THAT(content(), testing::HasSubstr("2024-05-06T07:09:01"));
}

TEST_F(TagAdding, WhatTheToolDoesNotWriteIsAsItWas) {
    const std::pair<const char *, const char *> rows[]{{"errs.jpg", "Error: no good"},
                                                       {"dies.jpg", "Out of memory!"}};
    withStandIn();
    for (const auto &[name, words] : rows) {
        const MySinglePic &pic = imported(name, dated);
        const SaveRunResult run = session.save();
        EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::ToolFailed));
        EXPECT_THAT(run.errors.at(0).systemText, testing::HasSubstr(words));
        EXPECT_EQ(content(name), dated.bytes);
        EXPECT_TRUE(pic.hasSaveErrorTagAdd() && pic.save.shouldAddExifDateTimeTags);
        EXPECT_EQ(attributesOf(pic.spPath()).modificationDate, session.fileDate);
        std::filesystem::remove(pic.spPath());
    }
}

TEST_F(TagAdding, AToolThatWritesAndDoesNotSaySoHasWritten) {
    withStandIn();
    const MySinglePic &pic = imported("writesAndDies.jpg", dated);
    saves();
    EXPECT_FALSE(pic.isUnsavedOrGroupHarmonized());
}

TEST_F(TagAdding, ATagThatOnlyTheToolCanReadIsNeverOverwritten) {
    const BuiltPhoto unread = jpegPhoto({.original = original, .modified = "2024-05-06T07:08:09"});
    imported("a.jpg", unread);
    EXPECT_THAT(ids(session.save()), ElementsAre(SaveErrorId::NotWrittenUnreadableBack));
    EXPECT_EQ(content(), unread.bytes);
}

TEST_F(TagAdding, AFileThatTheToolSpoilsIsPutBack) {
    withStandIn();
    const std::string path = imported("plain.jpg", dated).spPath();
    std::filesystem::permissions(path, std::filesystem::perms::owner_read |
                                           std::filesystem::perms::owner_write);
    const SaveRunResult run = session.save();
    EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::NotWrittenUnreadableBack));
    EXPECT_EQ(run.errors.at(0).systemText, text("saveObstacle_toolWroteOtherwise"));
    EXPECT_EQ(content("plain.jpg"), dated.bytes);
    EXPECT_EQ(attributesOf(path).modificationDate, session.fileDate);
    EXPECT_EQ(std::filesystem::status(path).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    session.toolProgram.clear();
    saves();
}

TEST_F(TagAdding, WithoutToolOnlyTheItemsThatNeedItFail) {
    session.toolProgram = session.disk.path("nowhere");
    session.photo("b.jpg", {.original = original});
    const MySinglePic &pic = imported("a.jpg", dated);
    EXPECT_THAT(ids(session.save()), ElementsAre(SaveErrorId::ToolMissing));
    EXPECT_EQ(content(), dated.bytes);
    EXPECT_TRUE(pic.hasSaveErrorTagAdd());
    EXPECT_NE(content("b.jpg"), dated.bytes);
}

TEST_F(TagAdding, ACopyThatStandsInTheWayKeepsTheFileFromBeingTouched) {
    imported("a.jpg", dated);
    session.write("a.jpg_exiftool_tmp", "somebody's");
    const SaveRunResult run = session.save();
    EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::ToolFailed));
    EXPECT_EQ(run.errors.at(0).systemText, text("saveObstacle_copyInTheWay"));
    EXPECT_EQ(session.files.writes, 0);
    EXPECT_EQ(content("a.jpg_exiftool_tmp"), "somebody's");
}

TEST_F(TagAdding, TheOtherHalfOfAGroupIsOnlyWrittenWithIt) {
    withStandIn();
    const BuiltPhoto raw = tiffPhoto({.original = original});
    session.write("errs.CR2", raw.bytes);
    imported("errs.JPG", dated);
    EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Failed, ItemResult::Refused));
    EXPECT_TRUE(content("errs.CR2") == raw.bytes && content("errs.JPG") == dated.bytes);
}

} // namespace
} // namespace chronomender
