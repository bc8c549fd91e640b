// SPDX-License-Identifier: GPL-3.0-or-later
#include "Grouping.h"
#include "GroupingPairs.h"
#include "LittleItem.h"
#include "WallClocks.h"
#include "ZoneLookup.h"

#include <gmock/gmock.h>
#include <sstream>

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;

/// A folder of items in memory, and the search for groups among them.
class GroupingTest : public testing::Test {
protected:
    /// The format is that of the extension; movies are dated by their metadata.
    MySinglePicPtr item(const std::string &name, std::optional<SpType> type = {}) {
        auto pic = MySinglePic::create(name, folder, SpTypeExifOriginal, utc(2024, 5, 6, 7));
        pic->fileFormatType = fileFormatTypeForExtension(pic->extension());
        const bool isMovie = isMovieFormat(pic->fileFormatType);
        pic->spType = type.value_or(isMovie ? SpTypeMovieMdta : SpTypeExifOriginal);
        pic->camera.pivMakeModel = "Little One";
        pic->importState.isPossibleBundlePic = pic->isRaw() || isMovie;
        pic->singlePicAttributes.exifDateTimeOriginal = located("2024:05:06 07:08:09");
        pic->slots.exifDateTimeOriginalOLD = pic->spDateTimeOriginal;
        items.push_back(pic);
        return pic;
    }
    /// "a.JPG>a.CR2 ", dependent and master, for each group.
    std::string groups() {
        std::set<std::string> names;
        for (const MySinglePicPtr &pic : items)
            names.insert(pic->spName);
        std::string words;
        for (const MergedGroup &each :
             checkForPossibleBundles(*folder, items, names, {zones, defaults}).merged)
            words += each.dependent->spName + '>' + each.master->spName + ' ';
        return words;
    }

    Zones zones;
    UserDefaults defaults;
    MySingleFolderPtr folder = makeFolder();
    std::vector<MySinglePicPtr> items;
};

TEST_F(GroupingTest, FindsTheGroupsOfOneBaseName) {
    const std::pair<const char *, const char *> cases[]{
        {"a.JPG a.CR2", "a.JPG>a.CR2 "},
        {"A.JPG a.CR2", ""},
        {"a.JPG a.HEIC a.PNG", ""},
        {"a.HEIC a.CR2", ""},
        {"a.JPG a.MOV a.NEF", "a.JPG>a.NEF "}, // the raw takes the JPEG before a movie can
        {"a.JPG a.jpeg a.CR2", "a.JPG>a.CR2 "},
        {"a.CR2 a.DNG a.JPG", "a.JPG>a.CR2 "},
    };
    for (const auto &[names, expected] : cases) {
        items.clear();
        std::istringstream words(names);
        for (std::string name; words >> name;)
            item(name)->livePhoto.UUID = "ID";
        EXPECT_EQ(groups(), expected) << names;
    }
}

TEST_F(GroupingTest, RawAndJpegNeedTheirTypesAndOneCameraAndNeverEqualDates) {
    const auto raw = item("a.CR2"), jpeg = item("a.JPG");
    const auto areOne = [&](SpType ofRaw, SpType ofJpeg, const char *camera) {
        raw->spType = ofRaw;
        jpeg->spType = ofJpeg;
        jpeg->camera.pivMakeModel = camera;
        return isRawToPic(*raw, *jpeg, *folder);
    };
    jpeg->spDateTimeOriginal += absl::Hours(1000);
    EXPECT_TRUE(areOne(SpTypeEmptyOriginalFixedDate, SpTypeNoTagsFileDate, "Little One"));
    EXPECT_TRUE(areOne(SpTypeExifOriginal, SpTypeExifOriginal, "-"));
    EXPECT_FALSE(areOne(SpTypeExifOriginal, SpTypeExifOriginal, "Another"));
    EXPECT_FALSE(areOne(SpTypeNoTagsFileDate, SpTypeExifOriginal, ""));
    EXPECT_FALSE(areOne(SpTypeExifOriginal, SpTypeUnsupported, ""));
    folder->isEXIFIgnored = true;
    EXPECT_TRUE(areOne(SpTypeUnsupported, SpTypeUnsupported, "Another"));
}

TEST_F(GroupingTest, StillAndMovieAreJoinedByIdentifierOrByClock) {
    const auto still = item("a.HEIC"), movie = item("a.MOV");
    const auto areOne = [&](const char *movieDate, const char *movieId, SpType type) {
        movie->singlePicAttributes.qtMetaDate = located(movieDate);
        movie->livePhoto.UUID = movieId;
        movie->spType = type;
        return isLiveMovieToPic(*movie, *still, *folder);
    };
    EXPECT_TRUE(areOne("2024-05-06T07:13:09-0800", "", SpTypeMovieMdta)) << "zones do not count";
    EXPECT_FALSE(areOne("2024-05-06T07:13:10-0800", "", SpTypeMovieMdta));
    EXPECT_FALSE(areOne("2024-05-06T07:08:09Z", "", SpTypeMovieMvhdCreation));
    still->livePhoto.UUID = "ID";
    EXPECT_TRUE(areOne("2024-05-06T16:00:00Z", "ID", SpTypeMovieMvhdCreation));
    EXPECT_FALSE(areOne("2024-05-06T16:00:00Z", "OTHER", SpTypeMovieMdta));
    EXPECT_FALSE(areOne("2024-05-06T16:00:00Z", "ID", SpTypeMovieFileDate));
    still->camera.pivMakeModel = "";
    EXPECT_FALSE(areOne("2024-05-06T07:08:09Z", "", SpTypeMovieMdta));
}

TEST(GroupingDates, DaylightSavingStepsOfTheNight) {
    const struct {
        int stillHour, stillMinute, movieHour, movieMinute;
        bool isAllowed;
    } cases[]{{7, 0, 7, 5, true},   {7, 5, 7, 0, true},   {7, 0, 7, 6, false},
              {1, 59, 3, 0, true},  {3, 0, 1, 59, true},  {6, 59, 8, 0, false},
              {5, 59, 7, 0, true},  {2, 59, 2, 0, true},  {2, 0, 2, 59, true},
              {1, 58, 3, 0, false}, {6, 0, 6, 59, false}, {1, 59, 3, 5, false}};
    for (const auto &each : cases)
        EXPECT_EQ(isBundlingAllowedForUtcDates(utc(2024, 3, 31, each.stillHour, each.stillMinute),
                                               utc(2024, 3, 31, each.movieHour, each.movieMinute)),
                  each.isAllowed)
            << each.stillHour << ' ' << each.movieHour << ' ' << each.movieMinute;
}

TEST_F(GroupingTest, SecondImportCompletesAPairInEitherDirection) {
    item("a.CR2");
    const auto visible = item("b.JPG");
    visible->positions.indexInSource_full = 1;
    item("c.CR2");
    item("c.JPG");
    folder->sfPicDetails_fullArray = std::exchange(items, {});
    item("a.JPG");
    item("b.CR2");
    EXPECT_EQ(groups(), "a.JPG>a.CR2 b.JPG>b.CR2 ") << "c is not of this run";
    EXPECT_EQ(folder->count(), 3);
    EXPECT_EQ(folder->fullMediaCount(), 5);
    EXPECT_EQ(visible->positions.indexInSource_full, -1);
}

TEST_F(GroupingTest, MastersTellWhetherTheTwoSidesDeviate) {
    defaults.setForThisRun("harmonizingRawJpgsTypeDefault", "2");
    const auto a = item("a.CR2"), b = item("b.CR2");
    item("a.JPG")->spDateTimeOriginal += absl::Seconds(2); // made one by harmonising
    item("b.JPG")->spDateTimeOriginal += absl::Seconds(1);
    const auto movie = item("c.MOV"), still = item("c.JPG");
    still->livePhoto.UUID = movie->livePhoto.UUID = "one";
    movie->spDateTimeOriginal += absl::Hours(7);
    movie->zones.dstAmbiguityAtImportState = 1; // of the header time that it had before
    groups();
    EXPECT_EQ(a->zones.majorDateDifferenceType, kGroupDeviates);
    EXPECT_EQ(b->zones.majorDateDifferenceType, 0U);
    EXPECT_EQ(still->zones.majorDateDifferenceType, kGroupDeviates | kOnlyOneSideIsLocal);
    EXPECT_EQ(movie->zones.dstAmbiguityAtImportState, 0U);
}

TEST_F(GroupingTest, MasterTakesWhatAPersonDidToTheDependent) {
    folder->sfEditMode = EditMode::Single;
    folder->singlePicModeImages = 3;
    const auto a = item("a.CR2"), b = item("b.CR2"), ofA = item("a.JPG"), ofB = item("b.JPG");
    ofA->marks = {.isKeeper = true, .isRejected = false, .marker = 3};
    ofA->shift.singlePicModification = absl::Hours(1);
    b->shift.singlePicModification = absl::Hours(2);
    ofB->shift.singlePicModification = absl::Hours(3);
    addPicWithZone(*ofA, ZoneChoice::named(zone("Asia/Tokyo")), folder->sourceTimeZones);
    a->spSidecarExtensions = {"CR2.xmp"};
    ofA->spSidecarExtensions = {"AAE", "JPG.xmp"};
    for (const auto &pic : {ofA, b, ofB}) {
        pic->rename.hasRenameError = 1;
        pic->rename.wantedName = "x." + pic->extension();
        pic->rename.addonCounter = 3;
    }
    folder->renameErrors = 3;
    defaults.setForThisRun("harmonizingRawJpgsTypeDefault", "2");
    groups();
    EXPECT_TRUE(a->marks.isKeeper && a->marks.marker == 3 && !ofA->marks.isKeeper);
    EXPECT_EQ(a->shift.singlePicModification, absl::Hours(1));
    EXPECT_EQ(ofB->shift.singlePicModification, absl::Hours(2));
    EXPECT_EQ(folder->singlePicModeImages, 2) << "one shifted item less in the main list";
    EXPECT_EQ(a->rename.cachedTargetName(), "x.CR2000003");
    EXPECT_EQ(a->rename.hasRenameError, 1);
    EXPECT_EQ(ofA->rename.cachedTargetName(), std::nullopt);
    EXPECT_EQ(folder->renameErrors, 2);
    EXPECT_EQ(utcText(a->spDateTimeOriginal), "2024-05-05 22:08:09") << "read again";
    EXPECT_EQ(folder->sourceTimeZones.ofItems.count(a->sessionUniqueId), 1U);
    EXPECT_THAT(a->spSidecarExtensions, ElementsAre("CR2.xmp", "AAE", "JPG.xmp", "JPG"));
    EXPECT_THAT(ofA->spSidecarExtensions, ElementsAre("JPG.xmp"));
    EXPECT_EQ(a->spXMPPath(), "/trip/canon/a.CR2.xmp");
    a->spSidecarExtensions.erase(a->spSidecarExtensions.begin());
    EXPECT_FALSE(a->hasXMPSidecar()) << "that of the JPEG is not its own";
    EXPECT_EQ(folder->harmonizingRawJpgsType, 2);
}

} // namespace
} // namespace chronomender
