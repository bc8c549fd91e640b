// SPDX-License-Identifier: GPL-3.0-or-later
#include "Grouping.h"
#include "GroupingPairs.h"
#include "LittleItem.h"
#include "WallClocks.h"
#include "ZoneLookup.h"

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using namespace little;

/// A folder of items in memory, and the search for groups among them.
class GroupingTest : public testing::Test {
protected:
    MySinglePicPtr item(const std::string &name, FileFormatType format,
                        SpType type = SpTypeExifOriginal,
                        const std::string &camera = "Little One") {
        auto pic = MySinglePic::create(name, folder, type, utc(2024, 5, 6, 7));
        pic->fileFormatType = format;
        pic->camera.pivMakeModel = camera;
        pic->importState.isPossibleBundlePic = format == FileFormatRaw || isMovieFormat(format);
        items.push_back(pic);
        return pic;
    }
    MySinglePicPtr raw(const std::string &name) { return item(name, FileFormatRaw); }
    MySinglePicPtr jpeg(const std::string &name) { return item(name, FileFormatJpeg); }
    MySinglePicPtr movie(const std::string &name, SpType type = SpTypeMovieMdta) {
        return item(name, FileFormatQuickTime, type);
    }
    /// What stands in the folder since an earlier import.
    void makeVisible() {
        for (const MySinglePicPtr &pic : items)
            folder->sfPicDetails_fullArray.push_back(pic);
        items.clear();
    }
    GroupingResult group(GroupingOccasion occasion = GroupingOccasion::Import) {
        std::set<std::string> names;
        for (const MySinglePicPtr &pic : items)
            names.insert(pic->spName);
        return checkForPossibleBundles(*folder, items, names, {zones, defaults, occasion});
    }
    /// "a.JPG>a.CR2" for each group: dependent and master.
    std::vector<std::string> groups(GroupingOccasion occasion = GroupingOccasion::Import) {
        std::vector<std::string> words;
        for (const MergedGroup &each : group(occasion).merged)
            words.push_back(each.dependent->spName + '>' + each.master->spName);
        return words;
    }
    static std::vector<std::string> names(const std::vector<MySinglePicPtr> &pics) {
        std::vector<std::string> words;
        for (const MySinglePicPtr &pic : pics)
            words.push_back(pic->spName);
        return words;
    }

    Zones zones;
    UserDefaults defaults;
    MySingleFolderPtr folder = makeFolder();
    std::vector<MySinglePicPtr> items;
};

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(GroupingTest, FindsTheGroupsOfOneBaseName) {
    struct File {
        const char *name;
        FileFormatType format;
        SpType type = SpTypeExifOriginal;
    };
    struct Case {
        const char *what;
        std::vector<File> files;
        std::vector<std::string> expected;
    };
    const Case cases[]{
        {"raw and JPEG", {{"a.JPG", FileFormatJpeg}, {"a.CR2", FileFormatRaw}}, {"a.JPG>a.CR2"}},
        {"letter case counts", {{"A.JPG", FileFormatJpeg}, {"a.CR2", FileFormatRaw}}, {}},
        {"two names", {{"a.JPG", FileFormatJpeg}, {"b.CR2", FileFormatRaw}}, {}},
        {"no raw", {{"a.JPG", FileFormatJpeg}, {"a.HEIC", FileFormatHeif}}, {}},
        {"no JPEG", {{"a.HEIC", FileFormatHeif}, {"a.CR2", FileFormatRaw}}, {}},
        {"the raw takes the JPEG before a movie can",
         {{"a.JPG", FileFormatJpeg},
          {"a.MOV", FileFormatQuickTime, SpTypeMovieMdta},
          {"a.NEF", FileFormatRaw}},
         {"a.JPG>a.NEF"}},
        {"the first of two JPEGs",
         {{"a.JPG", FileFormatJpeg}, {"a.jpeg", FileFormatJpeg}, {"a.CR2", FileFormatRaw}},
         {"a.JPG>a.CR2"}},
        {"two raws, one JPEG",
         {{"a.CR2", FileFormatRaw}, {"a.DNG", FileFormatRaw}, {"a.JPG", FileFormatJpeg}},
         {"a.JPG>a.CR2"}},
        {"a JPEG without dates",
         {{"a.JPG", FileFormatJpeg, SpTypeNoTagsFileDate}, {"a.CR2", FileFormatRaw}},
         {"a.JPG>a.CR2"}},
        {"an unread JPEG",
         {{"a.JPG", FileFormatJpeg, SpTypeUnsupported}, {"a.CR2", FileFormatRaw}},
         {}},
        {"a raw without dates",
         {{"a.JPG", FileFormatJpeg}, {"a.CR2", FileFormatRaw, SpTypeNoTagsFileDate}},
         {}},
    };
    for (const Case &each : cases) {
        folder = makeFolder();
        items.clear();
        for (const File &file : each.files)
            item(file.name, file.format, file.type);
        EXPECT_EQ(groups(), each.expected) << each.what;
    }
}

TEST_F(GroupingTest, RawAndJpegNeedOneCameraWhereBothNameOneAndNeverEqualDates) {
    struct Case {
        const char *raw, *jpeg;
        bool areOne;
    };
    for (const Case &each : {Case{"Canon", "Canon", true},
                             {"Canon", "Nikon", false},
                             {"", "Nikon", true},
                             {"Canon", "-", true}}) {
        const auto a = item("a.CR2", FileFormatRaw, SpTypeExifOriginal, each.raw);
        const auto b = item("a.JPG", FileFormatJpeg, SpTypeExifOriginal, each.jpeg);
        b->spDateTimeOriginal = a->spDateTimeOriginal + absl::Hours(1000);
        EXPECT_EQ(isRawToPic(*a, *b, *folder), each.areOne) << each.raw << each.jpeg;
        a->save.saveErrorType = 4;
        EXPECT_FALSE(isRawToPic(*a, *b, *folder)) << "an unwritten error";
    }
}

TEST_F(GroupingTest, ContentIdentifierJoinsAcrossHours) {
    struct Case {
        SpType movieType;
        const char *stillId, *movieId;
        bool areOne;
    };
    for (const Case &each : {Case{SpTypeMovieMdta, "ID", "ID", true},
                             {SpTypeMovieMvhdCreation, "ID", "ID", true},
                             {SpTypeMovieFileDate, "ID", "ID", false},
                             {SpTypeMovieRiff, "ID", "ID", false},
                             {SpTypeMovieMdta, "ID", "OTHER", false},
                             {SpTypeMovieMdta, "", "", false}}) {
        const auto still = item("a.HEIC", FileFormatHeif);
        const auto moving = movie("a.MOV", each.movieType);
        still->livePhoto.UUID = each.stillId;
        moving->livePhoto.UUID = each.movieId;
        moving->spDateTimeOriginal += absl::Hours(9);
        EXPECT_EQ(isLiveMovieToPic(*moving, *still, *folder), each.areOne)
            << static_cast<int>(each.movieType) << each.stillId << each.movieId;
    }
}

TEST_F(GroupingTest, ClocksThatAgreeJoinStillAndMovieOfOneCamera) {
    const auto still = item("a.JPG", FileFormatJpeg);
    const auto moving = movie("a.MOV");
    still->singlePicAttributes.exifDateTimeOriginal = located("2024:05:06 07:08:09");
    const auto areOne = [&] { return isLiveMovieToPic(*moving, *still, *folder); };
    EXPECT_FALSE(areOne()) << "a movie without a date of its own";
    moving->singlePicAttributes.qtMetaDate = located("2024-05-06T07:13:09-0800");
    EXPECT_TRUE(areOne()) << "the wall clock counts, not the zone";
    moving->singlePicAttributes.qtMetaDate = located("2024-05-06T07:13:10-0800");
    EXPECT_FALSE(areOne());
    moving->singlePicAttributes.qtMetaDate = located("2024-05-06T07:08:10Z");
    EXPECT_TRUE(areOne());
    moving->singlePicAttributes.qtMetaDate = located("2024-05-06 07:08:10Z");
    EXPECT_FALSE(areOne()) << "no such stamp";
    moving->singlePicAttributes.qtMetaDate = located("2024-05-06T07:08:10Z");
    still->camera.pivMakeModel = "Another";
    EXPECT_FALSE(areOne());
    still->camera.pivMakeModel = moving->camera.pivMakeModel = "";
    EXPECT_FALSE(areOne()) << "nothing says that the cameras are one";
    still->fileFormatType = FileFormatPng;
    folder->isEXIFIgnored = true;
    EXPECT_FALSE(areOne()) << "the format counts even with embedded data ignored";
    still->fileFormatType = FileFormatHeif;
    EXPECT_TRUE(areOne());
}

TEST(GroupingDates, DaylightSavingStepsOfTheNight) {
    struct Case {
        int stillHour, stillMinute, movieHour, movieMinute;
        bool isAllowed;
    };
    const Case cases[]{
        {7, 0, 7, 5, true},    {7, 5, 7, 0, true},   {7, 0, 7, 6, false},   {1, 59, 3, 0, true},
        {3, 0, 1, 59, true},   {6, 59, 8, 0, false}, {5, 59, 7, 0, true},   {2, 59, 2, 0, true},
        {2, 0, 2, 59, true},   {1, 58, 3, 0, false}, {2, 10, 3, 10, false}, {1, 59, 3, 5, false},
        {23, 58, 24, 2, true}, {6, 0, 6, 59, false},
    };
    for (const Case &each : cases) {
        const Date still = utc(2024, 3, 31, each.stillHour, each.stillMinute);
        const Date movie =
            utc(2024, 3, 31) + absl::Hours(each.movieHour) + absl::Minutes(each.movieMinute);
        EXPECT_EQ(isBundlingAllowedForUtcDates(still, movie), each.isAllowed)
            << utcText(still) << ' ' << utcText(movie);
    }
}

TEST_F(GroupingTest, SecondImportCompletesAPairInEitherDirection) {
    const auto master = raw("a.CR2");
    const auto dependent = jpeg("b.JPG");
    const auto other = raw("c.CR2");
    dependent->positions.indexInSource_full = 1;
    makeVisible();
    jpeg("a.JPG");
    raw("b.CR2");
    const GroupingResult result = group();
    EXPECT_THAT(names(folder->sfPicDetails_fullArray), ElementsAre("a.CR2", "c.CR2"));
    EXPECT_THAT(names(folder->bundleDependentsRawAndJPG), ElementsAre("a.JPG", "b.JPG"));
    EXPECT_THAT(names(result.newDependents), ElementsAre("a.JPG"));
    EXPECT_EQ(dependent->positions.indexInSource_full, -1);
    items.clear();
    jpeg("c.jpg");
    EXPECT_THAT(checkForPossibleBundles(*folder, items, {"d.jpg"}, {zones, defaults}).merged,
                IsEmpty())
        << "neither name is of the run";
    EXPECT_THAT(groups(), ElementsAre("c.jpg>c.CR2"));
    EXPECT_EQ(folder->fullMediaCount(), 5);
}

TEST_F(GroupingTest, MoveLooksAtWhatWasMoved) {
    const auto moved = raw("a.CR2");
    jpeg("a.JPG");
    moved->importState.isPossibleBundlePic = false;
    EXPECT_THAT(groups(GroupingOccasion::Move), IsEmpty());
    moved->importState.isPossibleBundlePicTemp = true;
    EXPECT_THAT(groups(GroupingOccasion::Move), ElementsAre("a.JPG>a.CR2"));
    EXPECT_FALSE(moved->importState.isPossibleBundlePicTemp);
}

TEST_F(GroupingTest, MasterTakesWhatAPersonDidToTheDependent) {
    folder->sfEditMode = EditMode::Single;
    folder->singlePicModeImages = 3;
    const auto first = raw("a.CR2"), second = raw("b.CR2");
    const auto ofFirst = jpeg("a.JPG"), ofSecond = jpeg("b.JPG");
    ofFirst->marks = {.isKeeper = true, .isRejected = false, .marker = 3};
    second->marks = {.isKeeper = false, .isRejected = true, .marker = 2};
    ofFirst->shift.singlePicModification = absl::Hours(1);
    second->shift.singlePicModification = absl::Hours(2);
    ofSecond->shift.singlePicModification = absl::Hours(3);
    group();
    EXPECT_TRUE(first->marks.isKeeper && !ofFirst->marks.isKeeper);
    EXPECT_EQ(first->marks.marker, 3);
    EXPECT_TRUE(second->marks.isRejected);
    EXPECT_EQ(second->marks.marker, 2);
    EXPECT_EQ(first->shift.singlePicModification, absl::Hours(1));
    EXPECT_EQ(ofSecond->shift.singlePicModification, absl::Hours(2));
    EXPECT_EQ(folder->singlePicModeImages, 2) << "one shifted item less in the main list";
}

TEST_F(GroupingTest, MasterTakesTheZoneOfTheDependentAndItsCompanions) {
    const auto master = raw("a.CR2"), dependent = jpeg("a.JPG");
    for (const auto &pic : {master, dependent}) {
        pic->singlePicAttributes.exifDateTimeOriginal = located("2024:05:06 07:08:09");
        pic->slots.exifDateTimeOriginalOLD = pic->spDateTimeOriginal;
    }
    addPicWithZone(*dependent, ZoneChoice::named(zone("Asia/Tokyo")), folder->sourceTimeZones);
    master->spSidecarExtensions = {"CR2.xmp"};
    dependent->spSidecarExtensions = {"xmp", "AAE", "JPG.xmp"};
    group();
    EXPECT_EQ(utcText(master->spDateTimeOriginal), "2024-05-05 22:08:09");
    EXPECT_EQ(utcText(dependent->slots.exifDateTimeOriginalOLD.value()), "2024-05-05 22:08:09");
    EXPECT_THAT(master->spSidecarExtensions,
                ElementsAre("CR2.xmp", "xmp", "AAE", "JPG.xmp", "JPG"));
    EXPECT_THAT(dependent->spSidecarExtensions, ElementsAre("xmp", "JPG.xmp"));
    EXPECT_EQ(master->spXMPPath(), "/trip/canon/a.CR2.xmp");
    EXPECT_EQ(folder->sourceTimeZones.ofItems.size(), 1U);
}

TEST_F(GroupingTest, FolderTakesItsWaysWithGroupsFromThePreferences) {
    EXPECT_EQ(defaults.setForThisRun("harmonizingRawJpgsTypeDefault", "2"),
              UserDefaults::Outcome::Done);
    EXPECT_EQ(defaults.setForThisRun("sortLPsByMovModifierDefault", "2"),
              UserDefaults::Outcome::Done);
    const auto master = raw("a.CR2"), dependent = jpeg("a.JPG");
    group();
    EXPECT_EQ(folder->harmonizingRawJpgsType, 2);
    EXPECT_EQ(folder->sortLPsByMovModifier, -1) << "no live photo yet";
    EXPECT_EQ(&dependent->sortPic(), master.get());
    items.clear();
    const auto still = item("b.HEIC", FileFormatHeif), moving = movie("b.MOV");
    still->livePhoto.UUID = moving->livePhoto.UUID = "ID";
    EXPECT_THAT(groups(), ElementsAre("b.MOV>b.HEIC"));
    EXPECT_EQ(&still->sortPic(), moving.get());
    EXPECT_EQ(&master->sortPic(), master.get());
}

} // namespace
} // namespace chronomender
