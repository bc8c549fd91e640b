// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieSteps.h"

namespace chronomender {
namespace {

using namespace steps;
using little::avi;
using little::AviFields;

std::optional<MovieHeader> riffHeader(const std::string &bytes) {
    return header(bytes, FileFormatOtherMovie);
}

TEST(RiffWalk, findsTheDateAndTheMakersWords) {
    AviFields fields;
    fields.software = "Maker"; // an odd length, padded
    const Part built = avi(fields);
    const auto found = riffHeader(built.bytes);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->movieType, MovieType::Riff);
    EXPECT_TRUE(standsAt(found->riffCreaDate, built, "date"));
    EXPECT_EQ(found->infoString, "Maker");
}

TEST(RiffWalk, datesInOtherFormsCountAsAbsent) {
    for (const std::string &date : {std::string("2009/10/27 12:14:34"), little::zeros(27)})
        EXPECT_FALSE(riffHeader(avi({.date = date}).bytes));
    EXPECT_FALSE(riffHeader(avi({.date = std::nullopt}).bytes));
}

TEST(RiffWalk, aDateOutsideTheHeaderListIsNone) {
    const Part date = little::chunk("IDIT", little::zeros(26));
    EXPECT_FALSE(riffHeader(little::list("AVI ", date + little::list("hdrl", ""), "RIFF").bytes));
    EXPECT_FALSE(riffHeader(little::list("WAVE", little::list("hdrl", date), "RIFF").bytes));
    EXPECT_TRUE(riffHeader(little::list("AVI ", little::list("hdrl", date), "RIFF").bytes));
}

TEST(RiffWalk, noCutLeavesAValueOutsideTheFile) {
    const std::string whole = avi().bytes;
    for (std::size_t length = 0; length < whole.size(); ++length)
        if (const auto found = riffHeader(whole.substr(0, length))) {
            EXPECT_LE(found->riffCreaDate->offset + 26, length);
        }
}

TEST(RiffWalk, sizeAndDurationComeFromTheStream) {
    const MovieDetails found = details(avi().bytes);
    EXPECT_EQ(found.width, 320);
    EXPECT_EQ(found.height, 240);
    EXPECT_DOUBLE_EQ(found.movDuration, 3);
    EXPECT_EQ(details(avi({.rate = 0}).bytes).movDuration, -1);
}

} // namespace
} // namespace chronomender
