// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleItem.h"
#include "TemporaryFolder.h"
#include "UserDefaults.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace chronomender {
namespace {

using namespace little;

TEST(Folder, TakesItsNameFromThePathWithoutSlashesBehind) {
    const auto folder = MySingleFolder::initWithFolder("/trip/canon//", nullptr, EditMode::Single);
    EXPECT_EQ(folder->sfFolder, "canon");
    EXPECT_EQ(folder->sfFolderPath(), "/trip/canon");
    EXPECT_FALSE(folder->unlockedSecUrl());
    EXPECT_EQ(MySingleFolder::initWithFolder("/", nullptr, EditMode::Single)->sfFolder, "/");
}

TEST(Folder, IsFoundAgainAfterItMovedAndKeepsItsLastPathAfterItWent) {
    const TemporaryFolder temporary;
    const std::string before = temporary.path("before"), after = temporary.path("after");
    std::filesystem::create_directory(before);
    const auto folder =
        MySingleFolder::initWithFolder(before, FolderReference::open(before), EditMode::Together);
    EXPECT_EQ(folder->sfFolderPath(), before);
    std::filesystem::rename(before, after);
    EXPECT_EQ(folder->sfFolderPath(), after);
    EXPECT_EQ(folder->unlockedSecUrl(), after);
    std::filesystem::remove(after);
    EXPECT_EQ(folder->sfFolderPath(), after);
    EXPECT_FALSE(folder->unlockedSecUrl());
}

TEST(Folder, InATrashIsWritableOnlyForThoseWhoDoNotMind) {
    const TemporaryFolder temporary;
    for (const auto &[name, isTrash] :
         {std::pair("photos", false), std::pair(".Trash-1000/files/photos", true),
          std::pair(".local/share/Trash/files/photos", true), std::pair("my.Trash-bin", false)}) {
        const std::string path = temporary.path(name);
        std::filesystem::create_directories(path);
        const auto folder =
            MySingleFolder::initWithFolder(path, FolderReference::open(path), EditMode::Together);
        EXPECT_TRUE(folder->isWriteableCheckingTrashed(false)) << path;
        EXPECT_EQ(folder->isWriteableCheckingTrashed(true), !isTrash) << path;
    }
}

TEST(Folder, TakesTheHarmonisingDefaultWithItsFirstRawAndJpegAndKeepsIt) {
    UserDefaults defaults;
    defaults.setForThisRun("harmonizingRawJpgsTypeDefault", "2");
    const auto folder = makeFolder();
    EXPECT_EQ(folder->takeHarmonizingRawJpgsType(defaults), 0);
    EXPECT_EQ(folder->harmonizingRawJpgsType, -1);
    const auto raw = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1));
    makeDependent(addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1)), raw);
    EXPECT_EQ(folder->takeHarmonizingRawJpgsType(defaults), 2);
    defaults.setForThisRun("harmonizingRawJpgsTypeDefault", "1");
    EXPECT_EQ(folder->takeHarmonizingRawJpgsType(defaults), 2);
    EXPECT_EQ(folder->count(), 1);
    EXPECT_EQ(folder->fullMediaCount(), 2);
}

TEST(Folder, AShownMinusAtAZeroShiftIsToBeResetAndIsNoShift) {
    const auto folder = makeFolder();
    folder->hasChangedDirection = true;
    EXPECT_TRUE(folder->isTogetherDateUIModified());
    EXPECT_FALSE(folder->isDateModified());
    folder->sfDateModificationsTimeInterval = absl::Milliseconds(500);
    EXPECT_TRUE(folder->isDateModified());
    folder->sfEditMode = EditMode::Single;
    EXPECT_FALSE(folder->isDateModified());
    folder->singlePicModeImages = 1;
    EXPECT_TRUE(folder->isDateModified());
}

} // namespace
} // namespace chronomender
