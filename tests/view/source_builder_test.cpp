// SPDX-License-Identifier: GPL-3.0-or-later
#include "SourceBuilder.h"
#include "ViewSteps.h"

#include <algorithm>

namespace chronomender {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Date noon = absl::UnixEpoch() + absl::Hours(12);

class SourceBuilderTest : public testing::Test {
protected:
    const std::vector<MySinglePicPtr> &build(const std::vector<MySingleFolderPtr> &folders) {
        m_builder.buildNewSource(folders);
        return m_builder.source_full();
    }
    std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (const MySinglePicPtr &pic : m_builder.source_full())
            names.push_back(pic->spName);
        return names;
    }
    SourceBuilder m_builder;
    const MySingleFolderPtr canon = folderOfRank(0), nikon = folderOfRank(1);
};

TEST_F(SourceBuilderTest, DatesOfAllFoldersComeFirst) {
    add(canon, "a.jpg", noon + absl::Seconds(2));
    add(canon, "b.jpg", noon);
    add(nikon, "0.jpg", noon + absl::Milliseconds(1500));
    build({canon, nikon});
    EXPECT_THAT(names(), ElementsAre("b.jpg", "0.jpg", "a.jpg"));
}

TEST_F(SourceBuilderTest, AShiftedFolderTakesItsPlace) {
    add(canon, "canon.jpg", noon);
    add(nikon, "nikon.jpg", noon + absl::Minutes(30));
    canon->sfDateModificationsTimeInterval = absl::Hours(1);
    build({canon, nikon});
    EXPECT_THAT(names(), ElementsAre("nikon.jpg", "canon.jpg"));

    canon->sfEditMode = EditMode::Single; // the folder's shift does not count any more
    nikon->sfEditMode = EditMode::Single;
    nikon->sfPicDetails_fullArray[0]->shift.singlePicModification = -absl::Hours(2);
    build({canon, nikon});
    EXPECT_THAT(names(), ElementsAre("nikon.jpg", "canon.jpg"));
    EXPECT_EQ(canon->sfPicDetails_fullArray[0]->spDateTimeModified(), noon);
}

TEST_F(SourceBuilderTest, ALivePhotoTakesThePlaceOfItsMovieWhereTheFolderSaysSo) {
    const auto still = add(canon, "live.heic", noon);
    add(canon, "other.jpg", noon + absl::Seconds(1));
    const auto movie =
        MySinglePic::create("live.mov", canon, SpTypeMovieMdta, noon + absl::Seconds(2));
    still->group.bundleDependentImage = movie;
    movie->group.bundleMasterImage = still;
    build({canon});
    EXPECT_THAT(names(), ElementsAre("live.heic", "other.jpg"));
    canon->sortFolderLPsByMov = true;
    build({canon});
    EXPECT_THAT(names(), ElementsAre("other.jpg", "live.heic"));
}

TEST_F(SourceBuilderTest, TiesGoByNameThenFolderThenCreation) {
    add(nikon, "IMG_10.jpg", noon);
    add(nikon, "IMG_9.jpg", noon);
    const auto older = add(nikon, "IMG_11.jpg", noon);
    const auto younger = add(nikon, "IMG_11.jpg", noon);
    add(canon, "img_8.jpg", noon);
    const auto lower = add(canon, "IMG_9.jpg", noon);
    const auto &source = build({nikon, canon});
    EXPECT_THAT(names(), ElementsAre("img_8.jpg", "IMG_9.jpg", "IMG_9.jpg", "IMG_10.jpg",
                                     "IMG_11.jpg", "IMG_11.jpg"));
    EXPECT_EQ(source[1], lower);
    EXPECT_EQ(source[4], older);
    EXPECT_EQ(source[5], younger);
}

TEST_F(SourceBuilderTest, ItemsKnowTheirPlaces) {
    const auto second = add(canon, "b.jpg", noon + absl::Seconds(1));
    const auto first = add(canon, "a.jpg", noon);
    const auto third = add(nikon, "c.jpg", noon + absl::Milliseconds(500));
    const auto &source = build({canon, nikon});
    for (std::size_t i = 0; i < source.size(); ++i) {
        EXPECT_EQ(source[i]->positions.indexInSource_full, static_cast<std::int64_t>(i));
        EXPECT_EQ(source[i]->positions.indexInSource_filtered, static_cast<std::int64_t>(i));
    }
    EXPECT_EQ(first->positions.indexInFolder_full, 0);
    EXPECT_EQ(second->positions.indexInFolder_full, 1);
    EXPECT_EQ(third->positions.indexInFolder_full, 0);
}

TEST_F(SourceBuilderTest, AnItemThatLeftIsGoneAfterTheNextBuild) {
    add(canon, "a.jpg", noon);
    build({canon});
    canon->sfPicDetails_fullArray.clear();
    EXPECT_THAT(build({canon}), IsEmpty());
    EXPECT_THAT(build({}), IsEmpty());
}

} // namespace
} // namespace chronomender
