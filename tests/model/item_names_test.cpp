// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleItem.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;

TEST(ItemNames, BaseNameAndExtensionAreSplitAtTheLastDot) {
    const std::tuple<const char *, const char *, const char *> rows[] = {
        {"IMG_1.JPG", "IMG_1", "JPG"},
        {"a.b.cr2", "a.b", "cr2"},
        {"noextension", "noextension", ""},
        {".hidden", ".hidden", ""},
        {"ends.", "ends", ""},
        {"überall.heic", "überall", "heic"},
    };
    const auto folder = makeFolder();
    for (const auto &[name, base, extension] : rows) {
        const auto pic = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1), name);
        EXPECT_EQ(pic->spBaseName(), base);
        EXPECT_EQ(pic->extension(), extension) << name;
        EXPECT_EQ(pic->spPath(), std::string("/trip/canon/") + name);
    }
}

TEST(ItemNames, SidecarsStandBesideTheirItemAsSpelledOnDisk) {
    const std::pair<std::vector<std::string>, std::string> rows[] = {
        {{}, ""},
        {{"AAE"}, ""},
        {{"AAE", "XMP"}, "/trip/canon/IMG_1.XMP"},
        {{"CR2.xmp"}, "/trip/canon/IMG_1.CR2.xmp"},
        {{"axmp"}, ""},
    };
    const auto folder = makeFolder();
    for (const auto &[extensions, xmpPath] : rows) {
        const auto pic = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1), "IMG_1.CR2");
        pic->spSidecarExtensions = extensions;
        EXPECT_EQ(pic->spXMPPath(), xmpPath);
        EXPECT_EQ(pic->hasXMPSidecar(), !xmpPath.empty());
        EXPECT_EQ(pic->spSidecarPaths().size(), extensions.size());
    }
}

TEST(ItemNames, EveryNewItemTakesAFreshIdAndOutlivesItsFolder) {
    auto folder = makeFolder();
    const auto first = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1));
    EXPECT_LT(first->sessionUniqueId,
              addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1))->sessionUniqueId);
    folder->folderSortGeneral = 7;
    EXPECT_EQ(first->spCategory(), 7);
    folder.reset();
    EXPECT_EQ(first->spSingleRealFolder(), nullptr);
    EXPECT_EQ(first->spPath(), "IMG_1.JPG");
}

TEST(ItemNames, CameraTextLeavesOutARepeatedMake) {
    const std::tuple<const char *, const char *, const char *> rows[] = {
        {"Canon", "Canon EOS R5", "Canon EOS R5"},
        {"NIKON CORPORATION", "NIKON D5000", "NIKON CORPORATION NIKON D5000"},
        {" SONY ", " ILCE-7M3 ", "SONY ILCE-7M3"},
        {"Apple", "", "Apple"},
        {"", "X100", "X100"},
        {" ", " ", ""},
    };
    for (const auto &[make, model, text] : rows)
        EXPECT_EQ(completeMakerModelString(make, model), text);
}

} // namespace
} // namespace chronomender
