// SPDX-License-Identifier: GPL-3.0-or-later
#include "CompoundMenuTag.h"
#include "CounterWalk.h"
#include "LittleItem.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace chronomender {
namespace {

using Folders = std::vector<MySingleFolderPtr>;
using Pics = std::vector<MySinglePicPtr>;

std::string told(const RenameScope &scope, const RenameChoices &choices) {
    std::string text;
    walkCounters(scope, choices, [&](const MySinglePicPtr &pic, std::int64_t counter) {
        text += (text.empty() ? "" : " ") + pic->spName + '=' + std::to_string(counter);
    });
    return text;
}

class CounterTest : public ::testing::Test {
protected:
    Folders folders{little::makeFolder(), little::makeFolder(), little::makeFolder()};
    Pics pics;

    CounterTest() {
        for (std::size_t i = 0; i < 6; ++i)
            pics.push_back(little::addItem(folders[i % 3], SpTypeExifOriginal,
                                           little::utc(2024, 5, 1),
                                           std::string(1, static_cast<char>('a' + i))));
    }
    RenameScope scope(const Folders &onlyFolders = {}, std::optional<Pics> onlyPics = {}) const {
        return {folders, pics, onlyFolders, std::move(onlyPics)};
    }
};

// Items a to f lie by turns in three folders.
TEST_F(CounterTest, CountsTheFullSequenceUnlessOnlyTheSelectionCounts) {
    const Folders second{folders[1]}, pair{folders[0], folders[1]};
    const Pics chosen{pics[1], pics[4]}, chosenTwo{pics[0], pics[3], pics[4]};
    const RenameChoices running;
    RenameChoices perFolder, compound, restricted, perFolderRestricted;
    perFolder.counterType = perFolderRestricted.counterType = CounterType::PerFolder;
    compound.wantsCompoundAltCounter = true;
    compound.firstCounter = 10;
    restricted.rename_restrictCounter = perFolderRestricted.rename_restrictCounter = true;
    const struct {
        RenameScope scope;
        const RenameChoices &choices;
        const char *expected;
    } cases[] = {
        {scope(), running, "a=1 b=2 c=3 d=4 e=5 f=6"},
        {scope(second), running, "b=2 e=5"},
        {scope(), perFolder, "a=1 b=1 c=1 d=2 e=2 f=2"},
        {scope(pair), compound, "a=10 b=11 d=12 e=13"},
        {scope(second), compound, "b=10 e=11"}, // one folder: as per folder
        {scope(second, chosen), running, "b=2 e=5"},
        {scope(second, chosen), restricted, "b=1 e=2"},
        {scope(pair, chosenTwo), perFolderRestricted, "a=1 d=2 e=1"},
        {scope(second, chosenTwo), restricted, "e=3"}, // the others are not of the folder
    };
    for (const auto &each : cases)
        EXPECT_EQ(told(each.scope, each.choices), each.expected);
}

TEST_F(CounterTest, NeverTellsAnItemTwiceOrOneThatIsNotTheSessions) {
    pics[1]->isMovedToTrash = true;
    little::makeDependent(pics[3], pics[0]);
    RenameScope odd = scope({}, Pics{pics[0], pics[0], pics[1], pics[2], pics[3], pics[4]});
    odd.folders.pop_back();
    RenameChoices restricted;
    restricted.rename_restrictCounter = true;
    EXPECT_EQ(told(odd, restricted), "a=1 e=5");
}

/// The place of an item as the list of a live row tells it, by looking at all before it.
std::int64_t placeOf(const MySinglePicPtr &pic, const Pics &list, const Folders &together,
                     const RenameChoices &choices) {
    const auto key = [&](const MySinglePicPtr &each) -> const MySingleFolder * {
        const MySingleFolderPtr folder = each->spSingleRealFolder();
        if (choices.counterType == CounterType::Running && !choices.wantsCompoundAltCounter)
            return nullptr;
        const bool isTogether = std::ranges::find(together, folder) != together.end();
        return choices.wantsCompoundAltCounter && together.size() > 1 && isTogether ? nullptr
                                                                                    : folder.get();
    };
    const auto end = std::ranges::find(list, pic);
    return std::count_if(list.begin(), end,
                         [&](const MySinglePicPtr &each) { return key(each) == key(pic); });
}

TEST_F(CounterTest, ShowsInLiveRowsWhatTheRunGives) {
    std::mt19937 random(7); // NOLINT: the same batches every time
    for (int round = 0; round < 300; ++round) {
        std::ranges::shuffle(pics, random);
        Folders together(folders.begin(), folders.begin() + static_cast<int>(random() % 4));
        RenameScope batch = scope(together);
        if (random() % 2)
            batch.onlyPics = Pics(pics.begin(), pics.begin() + static_cast<int>(random() % 7));
        RenameChoices choices;
        choices.counterType = static_cast<CounterType>(random() % 2);
        choices.wantsCompoundAltCounter =
            choices.counterType == CounterType::Running && random() % 2;
        choices.rename_restrictCounter = random() % 2;
        choices.firstCounter = static_cast<std::int64_t>(random() % 100);
        const Pics &counted =
            batch.onlyPics && choices.rename_restrictCounter ? *batch.onlyPics : pics;
        const LiveCounters live(batch, choices);
        walkCounters(batch, choices, [&](const MySinglePicPtr &pic, std::int64_t counter) {
            EXPECT_EQ(live.counterOfPic(*pic), counter) << round;
            EXPECT_EQ(counter, choices.firstCounter + placeOf(pic, counted, together, choices))
                << round;
        });
        for (const MySinglePicPtr &pic : pics)
            EXPECT_EQ(live.counterOfPic(*pic).has_value(), std::ranges::count(counted, pic) == 1);
    }
}

TEST(CompoundMenuTagTest, KeepsTheCompoundEntryWhileItIsHidden) {
    UserDefaults defaults;
    chooseMenuTag(counterTypeMenu, {3}, true, defaults);
    EXPECT_EQ(defaults.integerForKey("counterType"), 1);
    EXPECT_EQ(menuTag(counterTypeMenu, defaults).tag, 3);
    chooseMenuTag(counterTypeMenu, {0}, false, defaults);
    EXPECT_EQ(menuTag(counterTypeMenu, defaults).tag, 0);
    chooseMenuTag(counterTypeMenu, {1}, false, defaults);
    EXPECT_EQ(menuTag(counterTypeMenu, defaults).tag, 3) << "shown again with the folders";
    chooseMenuTag(counterTypeMenu, {1}, true, defaults);
    EXPECT_EQ(menuTag(counterTypeMenu, defaults).tag, 1);
}

} // namespace
} // namespace chronomender
