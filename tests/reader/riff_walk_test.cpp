// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieSteps.h"

namespace chronomender::steps {
namespace {

using little::avi;

std::optional<MovieHeader> riffHeader(const std::string &bytes) {
    return header(bytes, FileFormatOtherMovie);
}

TEST(RiffWalk, findsTheDateAndTheMakersWords) {
    const Part built = avi({.software = "Maker"}); // an odd length, padded
    const auto found = riffHeader(built.bytes);
    ASSERT_TRUE(found);
    EXPECT_TRUE(standsAt(found->riffCreaDate, built, "date"));
    EXPECT_EQ(found->infoString, "Maker");
    EXPECT_DOUBLE_EQ(details(built.bytes).movDuration, 3);
    EXPECT_EQ(details(built.bytes).height, 240);
    EXPECT_EQ(details(avi({.rate = 0}).bytes).movDuration, -1);
    for (std::size_t length = 0; length < built.bytes.size(); ++length)
        if (const auto cut = riffHeader(built.bytes.substr(0, length))) {
            EXPECT_LE(cut->riffCreaDate->offset + 26, length);
        }
}

TEST(RiffWalk, datesInOtherFormsAndPlacesCountAsAbsent) {
    EXPECT_FALSE(riffHeader(avi({.date = "2009/10/27 12:14:34"}).bytes));
    const Part date = little::chunk("IDIT", little::zeros(26));
    EXPECT_FALSE(riffHeader(little::list("AVI ", date + little::list("hdrl", ""), "RIFF").bytes));
    EXPECT_FALSE(riffHeader(little::list("WAVE", little::list("hdrl", date), "RIFF").bytes));
    EXPECT_TRUE(riffHeader(little::list("AVI ", little::list("hdrl", date), "RIFF").bytes));
}

} // namespace
} // namespace chronomender::steps
