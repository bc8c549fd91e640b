// SPDX-License-Identifier: GPL-3.0-or-later
#include "Date.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

Date secondsAndNanoseconds(std::int64_t seconds, std::int64_t nanoseconds) {
    return absl::FromUnixSeconds(seconds) + absl::Nanoseconds(nanoseconds);
}

TEST(DateTest, MarkersAreNeverShifted) {
    for (const Date marker : {InfinitePast(), InfiniteFuture()}) {
        EXPECT_EQ(shifted(marker, absl::Hours(1)), marker);
        EXPECT_EQ(shifted(marker, -absl::Hours(1)), marker);
        EXPECT_FALSE(isCleanDate(marker));
        EXPECT_EQ(cleanDate(marker), std::nullopt);
    }
    EXPECT_EQ(cleanDate(std::nullopt), std::nullopt);
    EXPECT_EQ(shifted(absl::UnixEpoch(), -absl::Hours(1)), absl::FromUnixSeconds(-3600));
}

TEST(DateTest, CleaningCutsTowardsThePastOnBothSidesOfTheEpoch) {
    EXPECT_EQ(cleanDate(secondsAndNanoseconds(5, 999'999'999)), absl::FromUnixSeconds(5));
    EXPECT_EQ(cleanDate(secondsAndNanoseconds(-5, 1)), absl::FromUnixSeconds(-5));
    EXPECT_EQ(cleanDate(secondsAndNanoseconds(0, -1)), absl::FromUnixSeconds(-1));
    EXPECT_EQ(cleanDate(absl::FromUnixSeconds(-62'135'596'800)),
              absl::FromUnixSeconds(-62'135'596'800)); // 0001-01-01
}

} // namespace
} // namespace chronomender
