// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieSteps.h"

namespace chronomender::steps {
namespace {

using little::metadataTrack;
using little::movie;

const std::string kStill = "com.apple.quicktime.still-image-time";
const std::string kLivePhoto = "com.apple.quicktime.live-photo-info";

TEST(MovieDetails, durationComesFromTheHeaderAndSizeFromTheFirstPicture) {
    MovieFields fields{.duration = 0xFFFFFFFF}; // nobody knows
    EXPECT_EQ(details(movie(fields).bytes).movDuration, -1);
    fields.version = 1;
    fields.tracks = {little::box("trak", little::box("mdia", "xx")), metadataTrack(kLivePhoto),
                     little::videoTrack(1440, 1080), little::videoTrack(160, 120)};
    const MovieDetails found = details(movie(fields).bytes);
    EXPECT_DOUBLE_EQ(found.movDuration, 0xFFFFFFFF / 600.0);
    EXPECT_EQ(found.width, 1440);
    EXPECT_EQ(found.height, 1080);
}

TEST(MovieDetails, cameraWordsComeFromTheKeysFirst) {
    MovieFields fields{.itemMake = "Items"};
    const auto words = [&] {
        const MovieDetails found = details(movie(fields).bytes);
        return found.make + '/' + found.model + '/' + found.contentIdentifier;
    };
    EXPECT_EQ(words(), "Items//");
    fields.userMake = "User";
    fields.userModel = "U1" + little::zeros(1) + "rest";
    EXPECT_EQ(words(), "User/U1/");
    fields.make = "Keys";
    fields.model = "K1";
    fields.contentIdentifier = "1EA799FF";
    EXPECT_EQ(words(), "Keys/K1/1EA799FF");
}

TEST(MovieDetails, theStillsMomentIsWhereTheEditsPutItsSample) {
    const auto timeOf = [](const std::vector<little::LittleEdit> &edits, std::uint8_t version = 0,
                           std::uint32_t keyNumber = 1) {
        const MovieFields fields{.tracks = {metadataTrack("test.key", {{60, -1}, {1, 0}}),
                                            metadataTrack(kStill, edits, version, keyNumber)}};
        return details(movie(fields).bytes).stillImageTime;
    };
    EXPECT_EQ(timeOf({{801, -1}, {1, 0}}), 1.335);
    EXPECT_EQ(timeOf({{600, -1}, {201, -1}, {1, 0}}, 1), 1.335);
    EXPECT_EQ(timeOf({{0, 1}}, 1), 0);
    EXPECT_EQ(timeOf({}), 0);
    EXPECT_EQ(timeOf({{801, -1}, {1, 0}}, 0, 2), std::nullopt); // another key of the samples
}

} // namespace
} // namespace chronomender::steps
