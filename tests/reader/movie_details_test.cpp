// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieSteps.h"

namespace chronomender {
namespace {

using namespace steps;
using little::metadataTrack;
using little::movie;
using ::testing::DoubleEq;
using ::testing::Optional;

const std::string kStill = "com.apple.quicktime.still-image-time";
const std::string kLivePhoto = "com.apple.quicktime.live-photo-info";

TEST(MovieDetails, durationComesFromTheHeader) {
    MovieFields fields;
    fields.duration = 1762;
    EXPECT_DOUBLE_EQ(details(movie(fields).bytes).movDuration, 1762 / 600.0);
    fields.duration = 0xFFFFFFFF; // nobody knows
    EXPECT_EQ(details(movie(fields).bytes).movDuration, -1);
    fields.version = 1;
    EXPECT_DOUBLE_EQ(details(movie(fields).bytes).movDuration, 0xFFFFFFFF / 600.0);
}

TEST(MovieDetails, sizeComesFromTheFirstPicture) {
    MovieFields fields;
    fields.tracks = {metadataTrack(kLivePhoto), little::videoTrack(1440, 1080),
                     little::videoTrack(160, 120)};
    const MovieDetails found = details(movie(fields).bytes);
    EXPECT_EQ(found.width, 1440);
    EXPECT_EQ(found.height, 1080);
}

TEST(MovieDetails, cameraWordsComeFromTheKeysFirst) {
    MovieFields fields;
    fields.itemMake = "Items";
    EXPECT_EQ(details(movie(fields).bytes).make, "Items");
    fields.userMake = "User";
    fields.userModel = "U1" + little::zeros(1) + "rest";
    EXPECT_EQ(details(movie(fields).bytes).make, "User");
    EXPECT_EQ(details(movie(fields).bytes).model, "U1");
    fields.make = "Keys";
    fields.model = "K1";
    fields.contentIdentifier = "1EA799FF-8384";
    const MovieDetails found = details(movie(fields).bytes);
    EXPECT_EQ(found.make + found.model + found.contentIdentifier, "KeysK11EA799FF-8384");
}

TEST(MovieDetails, theStillsMomentIsWhereTheEditsPutItsSample) {
    const auto timeOf = [](const std::vector<little::LittleEdit> &edits, std::uint8_t version = 0) {
        MovieFields fields;
        fields.tracks = {metadataTrack(kStill, edits, version)};
        return details(movie(fields).bytes).stillImageTime;
    };
    EXPECT_THAT(timeOf({{801, -1}, {1, 0}}), Optional(DoubleEq(1.335)));
    EXPECT_THAT(timeOf({{600, -1}, {201, -1}, {1, 0}}, 1), Optional(DoubleEq(1.335)));
    EXPECT_THAT(timeOf({{0, 1}}, 1), Optional(DoubleEq(0)));
    EXPECT_THAT(timeOf({}), Optional(DoubleEq(0)));
}

TEST(MovieDetails, onlyTheRightKeysMarkALivePhoto) {
    MovieFields fields;
    fields.tracks = {metadataTrack("test.key", {{600, -1}, {1, 0}}),
                     metadataTrack(kStill, {{600, -1}, {1, 0}}, 0, 2)};
    const MovieDetails plain = details(movie(fields).bytes);
    EXPECT_FALSE(plain.hasLivePhotoInfo);
    EXPECT_FALSE(plain.stillImageTime);
    fields.tracks.push_back(metadataTrack(kLivePhoto));
    EXPECT_TRUE(details(movie(fields).bytes).hasLivePhotoInfo);
}

TEST(MovieDetails, aBrokenTrackLeavesTheOthers) {
    MovieFields fields;
    fields.tracks = {little::box("trak", little::box("mdia", "xx")),
                     little::box("trak", little::handlerBox("vide")), little::videoTrack(320, 240)};
    EXPECT_EQ(details(movie(fields).bytes).width, 320);
}

} // namespace
} // namespace chronomender
