// SPDX-License-Identifier: GPL-3.0-or-later
#include "ItemFilling.h"
#include "LittleItem.h"
#include "LittleMovie.h"
#include "MemoryFile.h"
#include "MovieFilling.h"
#include "MySingleFolderDataReader.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;

/// A movie of a given type, filled as import fills it, in a folder that reads in Berlin.
class MovieFilling : public testing::Test {
protected:
    MovieFilling() { zones.setSystemZone(zone("Europe/Berlin")); }

    MySinglePicPtr filled(const std::string &bytes, SpType type) {
        const MemoryFile memory(bytes);
        MySingleFolderDataReader reader;
        EXPECT_TRUE(reader.borrow(memory.descriptor()));
        auto header = reader.readMovieHeader(FileFormatQuickTime);
        EXPECT_TRUE(header);
        auto pic = MySinglePic::create("a.mov", folder, type, mainDate);
        setMovieAttributes(*pic, *std::move(header), reader.readMovieDetails(), *folder, zones);
        setImageAttributesFromFileAttributes(
            *pic, {.size = 7, .modificationDate = fileDate, .birthDate = {}}, 3);
        return pic;
    }

    Zones zones;
    MySingleFolderPtr folder = makeFolder();
    Date mainDate = utc(2020, 4, 17, 16, 3, 47), fileDate = utc(2020, 4, 18);
};

TEST_F(MovieFilling, slotsComeFromTheValuesOfTheType) {
    const Date modification = mainDate + absl::Seconds(2);
    const absl::Duration berlin = absl::Hours(2);
    const MovieFields fields{.date = "2020-04-17T10:03:40-0600"};
    const std::string bytes = movie(fields).bytes;
    const struct {
        SpType type;
        bool isCorrected;
        OptionalDate original, modified;
    } table[] = {
        {SpTypeMovieMvhdCreation, false, mainDate, modification},
        {SpTypeMovieMvhdCreation, true, mainDate - berlin, modification - berlin},
        {SpTypeMovieMdta, true, utc(2020, 4, 17, 16, 3, 40), modification},
        {SpTypeMovieEmptyFileDate, false, std::nullopt, fileDate},
        {SpTypeMovieEmptyFixedDate, false, std::nullopt, std::nullopt},
    };
    for (const auto &row : table) {
        folder->isQuicktimeMVHDTimezoneCorrectionEnabled = row.isCorrected;
        const auto pic = filled(bytes, row.type);
        EXPECT_EQ(pic->slots.exifDateTimeOriginalOLD, row.original) << int(row.type);
        EXPECT_EQ(pic->slots.tiffDateTimeOLD, row.modified) << int(row.type);
        EXPECT_EQ(qTMetaDateString(*pic), *fields.date);
        EXPECT_FALSE(isMdtaUtc(*pic));
    }
}

TEST_F(MovieFilling, detailsReachTheItem) {
    MovieFields fields{.make = "Apple", .model = "iPhone 8", .contentIdentifier = "1EA799FF"};
    fields.tracks = {videoTrack(1440, 1080), metadataTrack("com.apple.quicktime.live-photo-info"),
                     metadataTrack("com.apple.quicktime.still-image-time", {{801, -1}, {1, 0}})};
    const auto pic = filled(movie(fields).bytes, SpTypeMovieMvhdCreation);
    EXPECT_EQ(pic->camera.pivMakeModel, "Apple iPhone 8");
    EXPECT_EQ(pic->livePhoto.UUID, "1EA799FF");
    EXPECT_EQ(pic->movie.seemsRealLivePhotoType, 2);
    EXPECT_EQ(pic->movie.livePhotoStillImageTime, 1.335);
    EXPECT_EQ(pic->movie.movDuration, 3);
    EXPECT_EQ(pic->camera.pivImageHeight, 1080);
    EXPECT_EQ(filled(movie().bytes, SpTypeMovieMvhdCreation)->camera.pivMakeModel, "-");
}

TEST_F(MovieFilling, theFirstPlaceOnEarthIsTheLocation) {
    const auto pic = filled(
        movie({.location = "+48.1234-011.5678+520.3/", .userLocation = "+12.5+013.5/"}).bytes,
        SpTypeMovieMvhdCreation);
    EXPECT_EQ(pic->location.gpsLat, 48.1234);
    EXPECT_EQ(pic->location.gpsLong, -11.5678);
    for (const char *text : {"+00.0000+000.0000/", "+90.0001+011.5/", "+48.1-180.5/", "+48+011/"}) {
        const MovieFields fields{.location = text, .itemLocation = "-12.5+013.5/"};
        EXPECT_EQ(filled(movie(fields).bytes, SpTypeMovieMvhdCreation)->location.gpsLat, -12.5)
            << text;
    }
}

TEST_F(MovieFilling, theMovieOfALivePhotoIsDatedByItsMetadata) {
    folder->isQuicktimeMVHDTimezoneCorrectionEnabled = true;
    const MovieFields fields{.date = "2020-04-17T10:03:40-0600"};
    const auto pic = filled(movie(fields).bytes, SpTypeMovieMvhdCreation);
    transformToLivePhotoMovie(*pic);
    EXPECT_EQ(pic->spType, SpTypeMovieMdta);
    EXPECT_EQ(pic->spDateTimeOriginal, utc(2020, 4, 17, 16, 3, 40));
    EXPECT_EQ(pic->slots.exifDateTimeOriginalOLD, pic->spDateTimeOriginal);
    EXPECT_EQ(pic->slots.tiffDateTimeOLD, utc(2020, 4, 17, 16, 3, 49)) << "UTC beside such a date";
}

} // namespace
} // namespace chronomender
