// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleItem.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;

TEST(ItemNames, BaseNameAndExtensionAreSplitAtTheLastDot) {
    const struct {
        const char *name, *base, *extension;
    } rows[] = {
        {"IMG_1.JPG", "IMG_1", "JPG"},
        {"a.b.cr2", "a.b", "cr2"},
        {"noextension", "noextension", ""},
        {".hidden", ".hidden", ""},
        {"ends.", "ends", ""},
        {"überall.heic", "überall", "heic"},
    };
    const auto folder = makeFolder();
    for (const auto &row : rows) {
        const auto pic = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1), row.name);
        EXPECT_EQ(pic->spBaseName(), row.base);
        EXPECT_EQ(pic->extension(), row.extension) << row.name;
        EXPECT_EQ(pic->spPath(), std::string("/trip/canon/") + row.name);
    }
}

TEST(ItemNames, SidecarsStandBesideTheirItemAsSpelledOnDisk) {
    const struct {
        std::vector<std::string> extensions;
        const char *xmpPath;
    } rows[] = {
        {{}, ""},
        {{"AAE"}, ""},
        {{"AAE", "XMP"}, "/trip/canon/IMG_1.XMP"},
        {{"CR2.xmp"}, "/trip/canon/IMG_1.CR2.xmp"},
        {{"axmp"}, ""},
    };
    const auto folder = makeFolder();
    for (const auto &row : rows) {
        const auto pic = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1), "IMG_1.CR2");
        pic->spSidecarExtensions = row.extensions;
        EXPECT_EQ(pic->spXMPPath(), row.xmpPath);
        EXPECT_EQ(pic->hasXMPSidecar(), *row.xmpPath != '\0');
        EXPECT_EQ(pic->spSidecarPaths().size(), row.extensions.size());
    }
}

TEST(ItemNames, EveryNewItemTakesAFreshIdAndKeepsItsFolderWeakly) {
    auto folder = makeFolder();
    folder->folderSortGeneral = 7;
    const auto first = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1));
    const auto second = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1));
    EXPECT_LT(first->sessionUniqueId, second->sessionUniqueId);
    EXPECT_EQ(first->spCategory(), 7);
    folder.reset();
    EXPECT_EQ(first->spSingleRealFolder(), nullptr);
    EXPECT_EQ(first->spPath(), "IMG_1.JPG");
}

TEST(ItemNames, CameraTextLeavesOutARepeatedMake) {
    const struct {
        const char *make, *model, *text;
    } rows[] = {
        {"Canon", "Canon EOS R5", "Canon EOS R5"},
        {"NIKON CORPORATION", "NIKON D5000", "NIKON CORPORATION NIKON D5000"},
        {" SONY ", " ILCE-7M3 ", "SONY ILCE-7M3"},
        {"Apple", "", "Apple"},
        {"", "X100", "X100"},
        {" ", " ", ""},
    };
    for (const auto &row : rows)
        EXPECT_EQ(completeMakerModelString(row.make, row.model), row.text);
}

} // namespace
} // namespace chronomender
