// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleItem.h"
#include "MyDroppedFolders.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;

constexpr int none = noColorIndex;

class FolderColors : public testing::Test {
protected:
    MyDroppedFolders session{5};

    void drop(int count) {
        for (int index = 0; index < count; ++index)
            session.append(makeFolder());
    }
    MySingleFolderPtr at(std::size_t place) const { return session.droppedFolders()[place]; }
    std::vector<int> colors() const {
        std::vector<int> result;
        for (const auto &folder : session.droppedFolders())
            result.push_back(folder->colorIndex);
        return result;
    }
};

TEST_F(FolderColors, ADeletedFolderPassesItsColorToTheFirstWithoutOne) {
    drop(7);
    EXPECT_THAT(colors(), ElementsAre(0, 1, 2, 3, 4, none, none));
    session.remove({at(2)});
    EXPECT_THAT(colors(), ElementsAre(0, 1, 3, 4, 2, none));
    session.remove({at(5)}); // had no color to give
    EXPECT_THAT(colors(), ElementsAre(0, 1, 3, 4, 2));
}

TEST_F(FolderColors, TheLowestColorInThePoolComesNext) {
    drop(4);
    session.remove({at(1)});
    session.remove({at(0)});
    drop(3);
    EXPECT_THAT(colors(), ElementsAre(2, 3, 0, 1, 4));
}

TEST_F(FolderColors, SeveralDeletedFoldersGiveTheirsOnInListOrderAndANewPaletteItsOwn) {
    drop(8);
    session.remove({at(4), at(0)});
    EXPECT_THAT(colors(), ElementsAre(1, 2, 3, 0, 4, none));
    session.setColorCount(6);
    session.possiblyUseNewlyAddedColors();
    EXPECT_THAT(colors(), ElementsAre(1, 2, 3, 0, 4, 5));
}

TEST_F(FolderColors, RedistributingFollowsTheList) {
    drop(6);
    EXPECT_FALSE(session.canReDistributeColors());
    session.remove({at(0)});
    EXPECT_THAT(colors(), ElementsAre(1, 2, 3, 4, 0));
    EXPECT_TRUE(session.canReDistributeColors());
    session.reDistributeColors();
    drop(1);
    EXPECT_THAT(colors(), ElementsAre(0, 1, 2, 3, 4, none));
    EXPECT_FALSE(session.canReDistributeColors()); // the sixth place has no color to differ from
}

TEST_F(FolderColors, ASubfolderStandsBehindItsParentWithAYoungerRank) {
    drop(2);
    const auto subfolder = makeFolder();
    session.insertBehind(subfolder, at(0));
    EXPECT_EQ(at(1), subfolder);
    EXPECT_EQ(subfolder->folderSortGeneral, 2);
    const auto orphan = makeFolder();
    session.insertBehind(orphan, nullptr);
    EXPECT_EQ(at(3), orphan);
}

TEST_F(FolderColors, AFolderIsFoundByItsExactPathAndByItsIdentity) {
    const TemporaryFolder temporary;
    const auto reference = FolderReference::open(temporary.path());
    session.append(MySingleFolder::initWithFolder(temporary.path(), reference, EditMode::Together));
    EXPECT_EQ(session.folderWithPath(temporary.path()), at(0));
    EXPECT_EQ(session.folderWithPath(temporary.path() + "/"), nullptr);
    EXPECT_EQ(session.folderWithIdentity(*reference->attributes()), at(0));
    EXPECT_EQ(session.folderWithIdentity(FileAttributes{}), nullptr);
}

} // namespace
} // namespace chronomender
