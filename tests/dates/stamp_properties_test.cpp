// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaylightSavingChecks.h"
#include "LittleItem.h"
#include "StampConversions.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace chronomender {
namespace {

using namespace little;

const Date first = utc(1970, 1, 1), last = utc(2038, 1, 1);

/// The instants between 1970 and 2037 at which the zone's offset changes, by bisection: an answer
/// of its own, independent of the zone's table of changes.
std::vector<Date> changesOf(const absl::TimeZone &rules) {
    std::vector<Date> changes;
    const auto offsetAt = [&](Date date) { return rules.At(date).offset; };
    for (Date from = first; from < last; from += absl::Hours(24 * 5)) {
        Date before = from, after = from + absl::Hours(24 * 5);
        if (offsetAt(before) == offsetAt(after))
            continue;
        while (after - before > absl::Seconds(1)) {
            const Date middle = before + absl::Seconds(absl::ToInt64Seconds(after - before) / 2);
            (offsetAt(middle) == offsetAt(before) ? before : after) = middle;
        }
        changes.push_back(after);
    }
    return changes;
}

template<class Visit>
void forEachZone(Visit visit) {
    int count = 0;
    const Zones zones;
    for (const std::string &name : zones.zoneNames()) {
        const auto found = zones.zoneWithName(name);
        ASSERT_TRUE(found) << name;
        visit(*found);
        ++count;
    }
    EXPECT_GT(count, 300);
}

TEST(AllZones, AStampReadAgainGivesTheSameStampAndNeverAnEarlierInstant) {
    forEachZone([](const Zone &place) {
        for (Date change : changesOf(place.rules)) {
            for (int seconds : {-3601, -3600, -1, 0, 1, 1799, 1800, 3599, 3600, 7200}) {
                const Date date = change + absl::Seconds(seconds);
                const auto written = exifDataFromDate(date, place.rules);
                ASSERT_TRUE(written);
                const auto readAgain = dateFromExifData(*written, nullptr, place.rules);
                ASSERT_TRUE(readAgain);
                EXPECT_GE(*readAgain, date) << place.name << ' ' << utcText(date);
                EXPECT_EQ(exifDataFromDate(*readAgain, place.rules), written) << place.name;
                const auto withOffset = exifWithOffsetDatasFromDate(date, place.rules);
                if (withOffset) { // an offset says exactly which instant is meant
                    EXPECT_EQ(dateFromExifData(withOffset->stamp, &withOffset->offset, {}), date);
                }
            }
        }
    });
}

TEST(AllZones, ExportIsInDangerOnlyWithinTwoHoursOfAChange) {
    const auto pic = addItem(makeFolder(), SpTypeExifOriginal, first);
    forEachZone([&](const Zone &place) {
        for (Date change : changesOf(place.rules)) {
            for (int seconds : {-7200, -7199, -3600, -1, 0, 3599, 7199, 7200}) {
                const Date date = change + absl::Seconds(seconds);
                const bool isNear = std::abs(seconds) < 7200;
                EXPECT_EQ(isDSTAmbiguityAtExportPossibleForDate(date, place.rules), isNear)
                    << place.name << ' ' << utcText(change) << ' ' << seconds;
            }
        }
    });
}

} // namespace
} // namespace chronomender
