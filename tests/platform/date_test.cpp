// SPDX-License-Identifier: GPL-3.0-or-later
#include "Date.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

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
    const std::pair<absl::Duration, std::int64_t> rows[] = {
        {absl::Seconds(6) - absl::Nanoseconds(1), 5},
        {absl::Seconds(-5) + absl::Nanoseconds(1), -5},
        {absl::Nanoseconds(-1), -1}};
    for (const auto &[sinceEpoch, seconds] : rows)
        EXPECT_EQ(cleanDate(absl::UnixEpoch() + sinceEpoch), absl::FromUnixSeconds(seconds));
}

} // namespace
} // namespace chronomender
