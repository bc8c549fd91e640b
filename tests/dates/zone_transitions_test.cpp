// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaylightSavingChecks.h"
#include "LittleItem.h"
#include "StampConversions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>
#include <vector>

namespace chronomender {
namespace {

using namespace little;

constexpr std::int64_t kHour = 3600, kWindow = 7200, kTolerance = 10;

/// One change of a zone's offset from UTC. Times are Unix seconds, offsets seconds east of UTC.
struct Step {
    std::int64_t at, before, after;
    std::int64_t length() const { return after - before; }
};

/// What must be true, from a zone's offsets alone: nothing here reads or formats a stamp.
class Offsets {
public:
    explicit Offsets(const absl::TimeZone &zone) : m_first(zone.At(kBegin).offset) {
        Date instant = kBegin;
        std::int64_t offset = m_first;
        for (absl::TimeZone::CivilTransition change; zone.NextTransition(instant, &change);) {
            const std::int64_t at = change.from - absl::CivilSecond(1970, 1, 1) - offset;
            const std::int64_t after = offset + (change.to - change.from);
            instant = absl::FromUnixSeconds(at);
            if (instant > kEnd)
                break;
            if (after != offset) // a zone can also change nothing but its name
                m_steps.push_back({at, offset, after});
            offset = after;
        }
    }
    const std::vector<Step> &steps() const { return m_steps; }

    std::int64_t at(std::int64_t instant) const {
        const auto next = std::ranges::upper_bound(m_steps, instant, {}, &Step::at);
        return next == m_steps.begin() ? m_first : std::prev(next)->after;
    }
    /// All instants at which a clock of the zone shows `clock`, earliest first.
    std::vector<std::int64_t> instantsOf(std::int64_t clock) const {
        std::vector<std::int64_t> candidates{clock - m_first};
        for (const Step &step : m_steps)
            candidates.push_back(clock - step.after);
        std::erase_if(candidates, [&](std::int64_t each) { return each + at(each) != clock; });
        std::ranges::sort(candidates);
        candidates.erase(std::unique(candidates.begin(), candidates.end()), candidates.end());
        return candidates;
    }
    /// The instant that a stamp means: the later of two, or by the offset before a gap.
    std::int64_t meaningOf(std::int64_t clock) const {
        if (const auto instants = instantsOf(clock); !instants.empty())
            return instants.back();
        const auto gap = std::ranges::find_if(m_steps, [&](const Step &step) {
            return clock >= step.at + step.before && clock < step.at + step.after;
        });
        return clock - gap->before;
    }
    bool isNearStep(std::int64_t instant) const {
        return std::ranges::any_of(
            m_steps, [&](const Step &step) { return std::abs(step.at - instant) < kWindow; });
    }

private:
    // Some years more on both sides than are looked at.
    static inline const Date kBegin = utc(1965, 1, 1), kEnd = utc(2041, 1, 1);
    std::int64_t m_first;
    std::vector<Step> m_steps;
};

struct Found {
    int steps = 0;
    bool ambiguity = false, divergence = false, danger = false;
};

/// Asks the program about stamps of one zone and compares with the offsets.
class Prober {
public:
    explicit Prober(absl::TimeZone rules) : m_zone(rules), m_offsets(rules) {}
    const Offsets &offsets() const { return m_offsets; }

    /// The stamps one second before, at, inside and after a step, and the window around it.
    void probe(const Step &step, Found &found) {
        const std::int64_t low = step.at + std::min(step.before, step.after);
        const std::int64_t high = step.at + std::max(step.before, step.after);
        for (const std::int64_t clock : {low - 1, low, (low + high) / 2, high - 1, high})
            probeStamp(clock, found);
        for (const std::int64_t away : {-kWindow, 1 - kWindow, kWindow - 1, kWindow})
            EXPECT_EQ(isPossible(step.at + away), m_offsets.isNearStep(step.at + away))
                << step.at << ' ' << away;
        ++found.steps;
    }

private:
    bool isPossible(std::int64_t instant) const {
        return isDSTAmbiguityAtExportPossibleForDate(absl::FromUnixSeconds(instant), m_zone);
    }

    void probeStamp(std::int64_t clock, Found &found) {
        const std::string text = absl::FormatTime(
            "%E4Y:%m:%d %H:%M:%S", absl::FromUnixSeconds(clock), absl::UTCTimeZone());
        const LocatedBytes stamp = located(text);
        const auto date = dateFromExifData(stamp.data, nullptr, m_zone);
        const std::int64_t meaning = m_offsets.meaningOf(clock);
        ASSERT_EQ(date, absl::FromUnixSeconds(meaning)) << text;
        m_pic->singlePicAttributes.exifDateTimeOriginal = stamp;
        m_pic->slots.exifDateTimeOriginalOLD = m_pic->spDateTimeOriginal = *date;

        const std::vector<std::int64_t> instants = m_offsets.instantsOf(clock);
        const bool wasAnHourAgo = m_offsets.at(meaning - kHour) - m_offsets.at(meaning) == kHour;
        const DSTState state = checkDSTDivergence(*m_pic, m_zone);
        EXPECT_EQ(state.divergence, instants.empty() ? 1U : 0U) << text;
        EXPECT_EQ(state.ambiguity, wasAnHourAgo ? 1U : 0U) << text;
        EXPECT_EQ(hasImportAmbiguityForDate(*m_pic, date, m_zone), wasAnHourAgo) << text;
        found.divergence |= state.divergence != 0;
        found.ambiguity |= state.ambiguity != 0;
        for (const std::int64_t instant : instants)
            probeExport(instant, instants.back() - instant > kTolerance, found);
    }

    void probeExport(std::int64_t instant, bool isOther, Found &found) {
        const auto isInDanger = [&](DSTPreFilter filter) {
            return hasDSTAmbiguityForDate(*m_pic, absl::FromUnixSeconds(instant), ExportDate::Main,
                                          m_zone, filter);
        };
        const bool isDanger = isInDanger(DSTPreFilter::On);
        EXPECT_EQ(isDanger, isOther && m_offsets.isNearStep(instant)) << instant;
        EXPECT_EQ(isInDanger(DSTPreFilter::Off), isOther) << instant;
        found.danger |= isDanger;
    }

    absl::TimeZone m_zone;
    Offsets m_offsets;
    MySingleFolderPtr m_folder = makeFolder();
    MySinglePicPtr m_pic = addItem(m_folder, SpTypeExifOriginal, InfinitePast());
};

void print(const std::string &zone, std::int64_t length, const Found &found) {
    std::cout << zone << ": " << found.steps << " of " << (length < 0 ? "" : "+") << length
              << " s:" << (found.ambiguity ? " ambiguity" : "")
              << (found.divergence ? " divergence" : "") << (found.danger ? " export" : "") << '\n';
}

TEST(ZoneTransitions, AreSeenAsTheOffsetsOfAllZonesSay) {
    const std::int64_t first = absl::ToUnixSeconds(utc(1970, 1, 1)),
                       last = absl::ToUnixSeconds(utc(2037, 12, 31, 23, 59, 59));
    Found hours[2];
    std::size_t zonesWithOthers = 0;
    const Zones zones;
    for (const std::string &name : zones.zoneNames()) {
        SCOPED_TRACE(name);
        Prober prober(zones.zoneWithName(name)->rules);
        std::map<std::int64_t, Found> others;
        for (const Step &step : prober.offsets().steps())
            if (step.at >= first && step.at <= last)
                prober.probe(step, std::abs(step.length()) == kHour ? hours[step.length() > 0]
                                                                    : others[step.length()]);
        for (const auto &[length, found] : others)
            print(name, length, found);
        zonesWithOthers += others.empty() ? 0 : 1;
        if (testing::Test::HasFailure())
            return; // one zone tells enough
    }
    std::cout << zones.zoneNames().size() << " zones; " << hours[0].steps
              << " steps of an hour back, " << hours[1].steps << " forward; " << zonesWithOthers
              << " zones with others\n";
    EXPECT_GT(std::min(hours[0].steps, hours[1].steps), 10000);
    EXPECT_TRUE(hours[0].ambiguity && hours[0].danger && !hours[0].divergence);
    EXPECT_TRUE(hours[1].divergence && !hours[1].ambiguity && !hours[1].danger);
}

} // namespace
} // namespace chronomender
