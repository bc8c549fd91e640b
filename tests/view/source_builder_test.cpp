// SPDX-License-Identifier: GPL-3.0-or-later
#include "SourceBuilder.h"

#include "LittleItem.h"

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;

const Date noon = utc(2024, 6, 1, 12);
const absl::Duration second = absl::Seconds(1);

class SourceBuilderTest : public testing::Test {
protected:
    SourceBuilderTest() {
        m_folders.append(canon);
        m_folders.append(nikon);
    }

    static MySinglePicPtr add(const MySingleFolderPtr &folder, const char *name, Date date) {
        return addItem(folder, SpTypeExifOriginal, date, name);
    }
    const std::vector<MySinglePicPtr> &build() {
        m_builder.buildNewSource();
        return m_builder.source_full();
    }
    const MySingleFolderPtr canon = makeFolder(), nikon = makeFolder();

private:
    UndoManager m_undo;
    SourceViews m_views;
    MyDroppedFolders m_folders;
    MyTimelinesController m_timelines{m_undo, [] {}};
    SourceBuilder m_builder{m_folders, m_timelines, m_views, [] { return SourceRestrictions(); }};
};

TEST_F(SourceBuilderTest, CorrectedDatesOfAllFoldersComeFirstAndItemsKnowTheirPlaces) {
    const auto a = add(canon, "a.jpg", noon + 2 * second), b = add(canon, "b.jpg", noon);
    const auto c = add(nikon, "0.jpg", noon + 1.5 * second);
    EXPECT_THAT(build(), ElementsAre(b, c, a));
    for (const auto &[pic, inSource, inFolder] :
         {std::tuple(b, 0, 0), std::tuple(c, 1, 0), std::tuple(a, 2, 1)}) {
        EXPECT_EQ(pic->positions.indexInSource_full, inSource);
        EXPECT_EQ(pic->positions.indexInSource_filtered, inSource);
        EXPECT_EQ(pic->positions.indexInFolder_full, inFolder);
    }
    canon->sfDateModificationsTimeInterval = absl::Hours(1);
    EXPECT_THAT(build(), ElementsAre(c, b, a));
    // By themselves, items pay no heed to the folder's shift.
    canon->sfEditMode = nikon->sfEditMode = EditMode::Single;
    c->shift.singlePicModification = second;
    EXPECT_THAT(build(), ElementsAre(b, a, c));
    canon->sfPicDetails_fullArray.clear(); // an item that left is gone
    EXPECT_THAT(build(), ElementsAre(c));
}

TEST_F(SourceBuilderTest, ALivePhotoTakesThePlaceOfItsMovieWhereTheFolderSaysSo) {
    const auto still = add(canon, "live.heic", noon), other = add(canon, "a.jpg", noon + second);
    makeDependent(addItem(canon, SpTypeMovieMdta, noon + 2 * second, "live.mov"), still);
    EXPECT_THAT(build(), ElementsAre(still, other));
    canon->sortFolderLPsByMov = true;
    EXPECT_THAT(build(), ElementsAre(other, still));
}

TEST_F(SourceBuilderTest, TiesGoByNameThenFolderThenCreation) {
    const auto ten = add(nikon, "IMG_10.jpg", noon), nine = add(nikon, "IMG_9.jpg", noon);
    const auto older = add(nikon, "IMG_11.jpg", noon), younger = add(nikon, "IMG_11.jpg", noon);
    const auto eight = add(canon, "img_8.jpg", noon), lower = add(canon, "IMG_9.jpg", noon);
    EXPECT_THAT(build(), ElementsAre(eight, lower, nine, ten, older, younger));
}

} // namespace
} // namespace chronomender
