// SPDX-License-Identifier: GPL-3.0-or-later
#include "SourceBuilder.h"

#include "LittleItem.h"

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using namespace little;
using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const Date noon = utc(2024, 6, 1, 12);
const absl::Duration second = absl::Seconds(1);

/// Shows every item at the pixel of its own index, and notes what it is told.
class NotingViews : public SourceViews {
public:
    std::optional<FocusPlace> focusPlace(const MySinglePic &pic) const override {
        return FocusPlace{static_cast<double>(pic.positions.indexInSource_filtered), 0};
    }
    MySinglePicPtr picToKeepFocusedDuringFilterAction() const override { return focused; }
    void sourceChanged() override { ++changes; }
    void focusPic(const MySinglePicPtr &pic, std::optional<FocusPlace> place) override {
        focused = pic;
        focusedAt = place ? place->focusX : -1;
    }
    void selectionIndexChanged() override { ++indexChanges; }
    void showFilterStatus(std::size_t hidden) override { toldHidden.push_back(hidden); }
    bool isArrowsLiveMoveEnabled() const override { return isMovingByArrows; }

    MySinglePicPtr focused;
    double focusedAt = -1;
    int changes = 0, indexChanges = 0;
    std::vector<std::size_t> toldHidden;
    bool isMovingByArrows = false;
};

class SourceBuilderTest : public testing::Test {
protected:
    SourceBuilderTest() {
        folders.append(canon);
        folders.append(nikon);
    }

    static MySinglePicPtr add(const MySingleFolderPtr &folder, const char *name, Date date) {
        return addItem(folder, SpTypeExifOriginal, date, name);
    }
    /// Five shots, a second apart; the second and the fourth by the other camera.
    std::vector<MySinglePicPtr> fiveShots() {
        std::vector<MySinglePicPtr> shots;
        for (const char *name : {"0.jpg", "1.jpg", "2.jpg", "3.jpg", "4.jpg"})
            shots.push_back(add(shots.size() % 2 ? nikon : canon, name,
                                noon + static_cast<double>(shots.size()) * second));
        build();
        return shots;
    }
    const std::vector<MySinglePicPtr> &build() {
        builder.buildNewSource();
        return builder.source_full();
    }
    /// Filters so that these are hidden, as a change of a filter does.
    void hide(const std::vector<MySinglePicPtr> &pics) {
        const auto &all = builder.source_full();
        shownByMap = PicSet(all.begin(), all.end());
        for (const MySinglePicPtr &pic : pics)
            shownByMap.erase(pic);
        if (shownByMap.empty()) // which would be no restriction
            shownByMap.insert(MySinglePic::create("away", canon, SpTypeExifOriginal, noon));
        refilter();
    }
    void refilter() {
        builder.buildNewSourceWithNewSelectionOption(NewSelection::Choose, Refilter::RefilterOnly);
    }
    void filterBy(const char *text) {
        filter = std::get<Predicate>(parsePredicate(text));
        compiled.emplace(*filter, FilterContext{zones});
        refilter();
    }
    const std::vector<MySinglePicPtr> &shown() const { return timelines.source_filtered(); }
    PicSelection &selection() { return timelines.mainTimeline().selection; }

    const MySingleFolderPtr canon = makeFolder(), nikon = makeFolder();
    UndoManager undo;
    NotingViews views;
    MyDroppedFolders folders;
    MyTimelinesController timelines{undo, [this] { build(); }};
    Zones zones;
    std::optional<Predicate> filter;
    std::optional<CompiledPredicate> compiled;
    PicSet shownByMap;
    std::optional<std::vector<MySingleFolderPtr>> openFolders;
    SourceBuilder builder{folders, timelines, views, [this] {
                              return SourceRestrictions{compiled ? &*compiled : nullptr,
                                                        &shownByMap, openFolders,
                                                        filter ? &*filter : nullptr};
                          }};
};

/// Places in the order of ListPositions: all, visible, of the folder's, of its visible.
std::vector<std::int64_t> placesOf(const MySinglePicPtr &pic) {
    const ListPositions &at = pic->positions;
    return {at.indexInSource_full, at.indexInSource_filtered, at.indexInFolder_full,
            at.indexInFolder_filtered};
}

TEST_F(SourceBuilderTest, CorrectedDatesOfAllFoldersComeFirstAndItemsKnowTheirPlaces) {
    const auto a = add(canon, "a.jpg", noon + 2 * second), b = add(canon, "b.jpg", noon);
    const auto c = add(nikon, "0.jpg", noon + 1.5 * second);
    EXPECT_THAT(build(), ElementsAre(b, c, a));
    EXPECT_THAT(placesOf(b), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(placesOf(c), ElementsAre(1, 1, 0, 0));
    EXPECT_THAT(placesOf(a), ElementsAre(2, 2, 1, 1));
    canon->sfDateModificationsTimeInterval = absl::Hours(1);
    EXPECT_THAT(build(), ElementsAre(c, b, a));
    // By themselves, items pay no heed to the folder's shift.
    canon->sfEditMode = nikon->sfEditMode = EditMode::Single;
    c->shift.singlePicModification = second;
    EXPECT_THAT(build(), ElementsAre(b, a, c));
    canon->sfPicDetails_fullArray.clear(); // an item that left is gone, and what is saved is listed
    EXPECT_THAT(build(), ElementsAre(c));
    EXPECT_THAT(placesOf(a), Each(-1));
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
    nine->spName = "IMG_12.jpg"; // the key of the old name is of no use
    EXPECT_THAT(build(), ElementsAre(eight, lower, ten, older, younger, nine));
}

TEST_F(SourceBuilderTest, WhatARestrictionHidesHasNoPlaceAmongTheVisible) {
    const auto shot = fiveShots();
    hide({shot[0], shot[3]});
    EXPECT_THAT(shown(), ElementsAre(shot[1], shot[2], shot[4]));
    EXPECT_THAT(builder.allFilteredImages(), ElementsAre(shot[0], shot[3]));
    EXPECT_EQ(builder.filteredImagesCount(), 2U);
    EXPECT_TRUE(builder.isHiddenByFilter(*shot[0]) && !builder.isVisible(*shot[0]));
    EXPECT_THAT(placesOf(shot[0]), ElementsAre(0, -1, 0, -1));
    EXPECT_THAT(placesOf(shot[4]), ElementsAre(4, 2, 2, 1));
    openFolders = {{nikon}};
    refilter();
    EXPECT_THAT(shown(), ElementsAre(shot[1]));
    // Nothing is told to the views of a list that stayed the same.
    const int changes = views.changes;
    refilter();
    EXPECT_EQ(views.changes, changes);
    // An order that changed comes with the next full build, under the same restrictions.
    openFolders.reset();
    shot[1]->spDateTimeOriginal += absl::Hours(1);
    build();
    EXPECT_THAT(shown(), ElementsAre(shot[2], shot[4], shot[1]));
    shownByMap.clear();
    refilter();
    EXPECT_THAT(shown(), ElementsAre(shot[0], shot[2], shot[3], shot[4], shot[1]));
    EXPECT_EQ(builder.filteredImagesCount(), 0U);
}

TEST_F(SourceBuilderTest, ANewFilterTellsHowManyItHides) {
    const auto shot = fiveShots();
    shot[2]->marks.isRejected = true;
    filterBy("filter_rating != -1");
    EXPECT_THAT(shown(), ElementsAre(shot[0], shot[1], shot[3], shot[4]));
    shot[3]->marks.isRejected = true;
    refilter(); // the same filter
    filterBy("spName != \"\"");
    EXPECT_THAT(shown(), ElementsAreArray(shot));
    filterBy("filter_rating == 1");
    EXPECT_THAT(shown(), IsEmpty());
    EXPECT_THAT(views.toldHidden, ElementsAre(1, 5));
}

TEST_F(SourceBuilderTest, AShelfTakesItemsOutOfTheListAndNotOutOfTheFilter) {
    const auto shot = fiveShots();
    selection() = {shot[0], {shot[0], shot[2]}};
    timelines.addTimelineOfMode(TimelineKind::Shelf, false);
    timelines.addSelectionFromToShelf(timelines.mainTimeline(), true);
    const auto &shelf = timelines.secondTimeline()->theSource;
    EXPECT_THAT(shown(), ElementsAre(shot[1], shot[3], shot[4]));
    EXPECT_THAT(shelf, ElementsAre(shot[0], shot[2]));
    EXPECT_EQ(builder.filteredImagesCount(), 0U);
    EXPECT_THAT(placesOf(shot[2]), ElementsAre(2, -1, 1, 1));

    timelines.secondTimeline()->selection = {shot[0], {}};
    hide({shot[0], shot[1]});
    EXPECT_THAT(shelf, ElementsAre(shot[2]));
    EXPECT_THAT(builder.allFilteredImages(), ElementsAre(shot[0], shot[1]));
    EXPECT_THAT(placesOf(shot[2]), ElementsAre(2, -1, 1, 0));
    EXPECT_EQ(timelines.secondTimeline()->selection.picSelection, shot[2]);
    views.changes = 0;
    hide({shot[1]}); // of the shelf alone
    EXPECT_EQ(views.changes, 1);
    EXPECT_EQ(timelines.secondTimeline()->selection.picSelection, shot[0]);
    std::erase(canon->sfPicDetails_fullArray, shot[0]);
    build();
    EXPECT_THAT(timelines.source_allShelfs(), UnorderedElementsAre(shot[2]));
}

TEST_F(SourceBuilderTest, ArrowKeysKeepTheMembersWhileTheOrderChanges) {
    const auto shot = fiveShots();
    hide({shot[0], shot[3]});
    views.isMovingByArrows = true;
    shownByMap = {shot[0], shot[2]};
    shot[1]->spDateTimeOriginal += absl::Hours(1);
    build();
    EXPECT_THAT(shown(), ElementsAre(shot[2], shot[4], shot[1]));
    views.isMovingByArrows = false;
    build();
    EXPECT_THAT(shown(), ElementsAre(shot[0], shot[2]));
}

TEST_F(SourceBuilderTest, TooManyBuildsWaitForTheLastWhereDatesOfAFolderAreIgnored) {
    const auto shot = fiveShots();
    canon->isEXIFIgnored = true;
    const auto isBuilt = [&](std::uint32_t waiting, const MySingleFolderPtr &sender) {
        const int changes = views.changes;
        builder.isBlockedThroughExpress = waiting;
        builder.buildNewSource(sender.get());
        return views.changes > changes;
    };
    EXPECT_TRUE(isBuilt(24, canon));
    EXPECT_FALSE(isBuilt(25, canon));
    EXPECT_FALSE(isBuilt(2, canon)); // the pause lasts
    EXPECT_TRUE(isBuilt(2, nikon));
    EXPECT_TRUE(isBuilt(1, canon));
    EXPECT_TRUE(isBuilt(2, canon));
}

TEST_F(SourceBuilderTest, NeighboursAreCountedByWhatIsVisible) {
    const auto shot = fiveShots();
    hide({shot[2]});
    const auto nearest = [&](const MySinglePicPtr &pic, const PicSet &candidates) {
        return builder.nearestVisibleTo(pic, candidates);
    };
    EXPECT_EQ(nearest(shot[2], {shot[0], shot[1], shot[3]}), shot[3]); // the later first
    EXPECT_EQ(nearest(shot[2], {shot[0], shot[4]}), shot[4]);
    EXPECT_EQ(nearest(shot[4], {shot[0], shot[1]}), shot[1]);
    EXPECT_EQ(nearest(shot[0], {shot[2]}), shot[2]); // the only one, hidden as it is
    EXPECT_EQ(nearest(shot[0], {}), nullptr);
    EXPECT_EQ(builder.nextVisibleAfter(shot[1], false), shot[3]);
    EXPECT_EQ(builder.nextVisibleAfter(shot[4], false), nullptr);
    EXPECT_EQ(builder.nextVisibleAfter(shot[4], true), shot[0]);
}

TEST_F(SourceBuilderTest, AHiddenSelectionReturnsWithItsPlace) {
    const auto shot = fiveShots();
    selection() = {shot[1], {shot[0], shot[1]}};
    hide({shot[0], shot[1], shot[2]});
    EXPECT_EQ(selection().picSelection, shot[3]); // the next one takes over, alone
    EXPECT_THAT(selection().multiSelectionNEW, IsEmpty());
    EXPECT_EQ(std::pair(views.focused, views.focusedAt), std::pair(shot[3], 1.0));
    EXPECT_EQ(views.indexChanges, 1);
    hide(shot); // an empty list
    EXPECT_EQ(selection().picSelection, nullptr);
    hide({shot[1]});
    EXPECT_EQ(selection().picSelection, shot[2]);
    hide({shot[2]});
    EXPECT_EQ(selection().picSelection, shot[1]);
    EXPECT_THAT(selection().multiSelectionNEW, UnorderedElementsAre(shot[0], shot[1]));
    EXPECT_EQ(std::pair(views.focused, views.focusedAt), std::pair(shot[1], 1.0));

    hide({shot[1]}); // what is left of several keeps together
    EXPECT_EQ(selection().picSelection, shot[0]);
    EXPECT_THAT(selection().multiSelectionNEW, IsEmpty());
    selection().picSelection = shot[4]; // the user's choice: the old one is forgotten
    hide({});
    EXPECT_EQ(selection().picSelection, shot[4]);
}

TEST_F(SourceBuilderTest, WhatIsOnlyFocusedIsNotSelected) {
    const auto shot = fiveShots();
    views.focused = shot[1];
    hide({shot[1]});
    EXPECT_EQ(views.focused, shot[2]);
    hide({});
    EXPECT_EQ(std::pair(views.focused, views.focusedAt), std::pair(shot[1], 1.0));
    EXPECT_EQ(selection().picSelection, nullptr);
}

TEST_F(SourceBuilderTest, WhatLeftTheSessionLeavesTheSelection) {
    const auto shot = fiveShots();
    selection() = {shot[1], {shot[1], shot[2], shot[3]}};
    nikon->sfPicDetails_fullArray = {shot[3]};
    build();
    EXPECT_EQ(selection().picSelection, shot[3]); // of several, the nearest
    EXPECT_THAT(selection().multiSelectionNEW, UnorderedElementsAre(shot[2], shot[3]));
    selection() = {shot[4], {}};
    std::erase(canon->sfPicDetails_fullArray, shot[4]);
    builder.buildNewSourceWithNewSelectionOption(NewSelection::Choose, Refilter::FullBuild);
    EXPECT_EQ(selection().picSelection, shot[3]); // the last one, where the last one was
    nikon->sfPicDetails_fullArray.clear();
    build();
    EXPECT_EQ(selection().picSelection, nullptr);
}

} // namespace
} // namespace chronomender
