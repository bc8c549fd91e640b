// SPDX-License-Identifier: GPL-3.0-or-later
#include "MyCompoundFolder.h"

#include "LittleItem.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;

class CompoundFolder : public testing::Test {
protected:
    MySingleFolderPtr canon = makeFolder(), nikon = makeFolder();
    MyCompoundFolder both{{canon, nikon}};
};

TEST_F(CompoundFolder, AddsUpCountsAndJoinsLists) {
    const auto first = addItem(canon, SpTypeExifOriginal, utc(2024, 6, 1));
    const auto second = addItem(nikon, SpTypeExifOriginal, utc(2024, 6, 2));
    makeDependent(addItem(nikon, SpTypeMovieMdta, utc(2024, 6, 2)), second);
    second->location.hasLocationChange = true;
    EXPECT_EQ(both.count(), 2);
    EXPECT_EQ(both.fullMediaCount(), 3);
    EXPECT_EQ(both.unsavedImagesCount(), 1);
    EXPECT_TRUE(both.isUnsavedFolder());
    EXPECT_EQ(both.sfPicDetails_fullArray(), (std::vector{first, second}));
    EXPECT_EQ(both.sfFolder(), "Compound folder with 2 \"subfolders\"");
}

TEST_F(CompoundFolder, SpansFromTheEarliestToTheLatest) {
    EXPECT_EQ(both.sfFrom(), std::nullopt);
    canon->sfFrom = utc(2024, 6, 2);
    canon->sfTill = utc(2024, 6, 9);
    EXPECT_EQ(both.sfFrom(), canon->sfFrom);
    nikon->sfFrom = utc(2024, 6, 1);
    nikon->sfTill = utc(2024, 6, 3);
    EXPECT_EQ(both.sfFrom(), nikon->sfFrom);
    EXPECT_EQ(both.sfTill(), canon->sfTill);
    EXPECT_EQ(MyCompoundFolder({}).sfFrom(), InfiniteFuture());
    EXPECT_EQ(MyCompoundFolder({}).sfTill(), std::nullopt);
}

TEST_F(CompoundFolder, CombinesMediaTypes) {
    using enum MediaTypesState;
    const std::tuple<MediaTypesState, MediaTypesState, MediaTypesState> rows[] = {
        {Nothing, Nothing, Nothing}, {Photos, Nothing, Photos}, {Photos, Photos, Photos},
        {Photos, Movies, Both},      {Nothing, Both, Both},     {Both, Movies, Both}};
    for (const auto &[first, second, together] : rows) {
        canon->mediaTypesState = first;
        nikon->mediaTypesState = second;
        EXPECT_EQ(both.mediaTypesState(), together);
    }
}

TEST_F(CompoundFolder, FoldersThatDifferGiveAMixedAnswer) {
    EXPECT_EQ(both.sfDateModificationsTimeInterval().value, absl::ZeroDuration());
    EXPECT_FALSE(both.isQuicktimeMVHDTimezoneCorrectionMixed());
    nikon->sfDateModificationsTimeInterval = absl::Hours(1);
    nikon->isQuicktimeMVHDTimezoneCorrectionEnabled = true;
    nikon->isDisconnected = true;
    EXPECT_TRUE(both.sfDateModificationsTimeInterval().isMixed());
    EXPECT_EQ(both.sfDateModificationsTimeInterval().value, std::nullopt);
    EXPECT_TRUE(both.isQuicktimeMVHDTimezoneCorrectionMixed());
    EXPECT_TRUE(both.isDateModified());
    EXPECT_TRUE(both.isDisconnected());
    EXPECT_EQ(both.sfEditMode().value, EditMode::Together);

    // The third folder agrees with the first: the answer stays mixed.
    const MyCompoundFolder three{{canon, nikon, makeFolder()}};
    EXPECT_TRUE(three.sfDateModificationsTimeInterval().isMixed());
    EXPECT_EQ(MyCompoundFolder({}).sfEditMode().kind, Combined<EditMode>::Kind::NoFolder);
}

} // namespace
} // namespace chronomender
