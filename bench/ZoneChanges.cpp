// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneChanges.h"

#include "StampConversions.h"
#include "ZoneLookup.h"

#include <algorithm>
#include <atomic>
#include <barrier>
#include <thread>
#include <vector>

namespace chronomender::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t itemCount = 50'000;
constexpr int threshold = 2;

/// Pictures of one summer, every three minutes; the zone has a change of the clock before and
/// behind it.
absl::CivilSecond takenAt(std::size_t item) {
    return absl::CivilSecond(2024, 5, 1) + static_cast<absl::civil_diff_t>(item) * 180;
}

MySinglePicPtr makePhoto(const MySingleFolderPtr &folder, std::size_t item, const Zone &zone) {
    const Date date = absl::FromCivil(takenAt(item), zone.rules);
    auto pic = MySinglePic::create("IMG.JPG", folder, SpTypeExifOriginal, date);
    const auto record = [&](StampSlot slot, std::optional<LocatedBytes> &value, Date of) {
        value = LocatedBytes{100, 20, *exifDataFromDate(of, zone.rules)};
        pic->slots.*description(slot).oldDate = of;
    };
    SinglePicAttributes &read = pic->singlePicAttributes;
    record(StampSlot::Original, read.exifDateTimeOriginal, date);
    record(StampSlot::Digitized, read.exifDateTimeDigitized, date);
    record(StampSlot::Modification, read.tiffDateTime, date);
    return pic;
}

MySingleFolderPtr makeFolder(const Zone &zone) {
    auto folder = MySingleFolder::initWithFolder("/bench", nullptr, EditMode::Together);
    for (std::size_t i = 0; i < itemCount; ++i)
        folder->sfPicDetails_fullArray.push_back(makePhoto(folder, i, zone));
    return folder;
}

bool isConvertedRightly(std::size_t first, std::size_t count, const absl::TimeZone &zone) {
    for (std::size_t i = first; i < first + count; ++i) {
        const Date date = absl::FromCivil(takenAt(i), zone);
        const auto stamp = exifDataFromDate(date, zone);
        if (!stamp || dateFromExifData(*stamp, nullptr, zone) != date)
            return false;
    }
    return true;
}

/// The same conversions on each thread, with one zone for all.
Conversions oneParallelRun(std::size_t threads) {
    // Long enough that the waking of a second processor does not count.
    constexpr std::size_t rounds = 100, count = 10'000;
    const absl::TimeZone zone = Zones().zoneWithName("Europe/Berlin")->rules;
    std::atomic<bool> isRight = true;
    Clock::time_point begin;
    std::barrier start(static_cast<std::ptrdiff_t>(threads),
                       [&]() noexcept { begin = Clock::now(); });
    std::vector<std::jthread> workers;
    for (std::size_t t = 0; t < threads; ++t)
        workers.emplace_back([&, t] {
            start.arrive_and_wait();
            for (std::size_t round = 0; round < rounds; ++round)
                if (!isConvertedRightly(t * count, count, zone))
                    isRight = false;
        });
    workers.clear();
    // Three conversions for each date: from a clock, to a stamp, and back.
    return {Clock::now() - begin, isRight ? 3 * rounds * count : 0};
}

} // namespace

Conversions rereadAfterZoneChange() {
    Zones zones;
    const Zone home = *zones.zoneWithName("Europe/Berlin"),
               away = *zones.zoneWithName("Asia/Tokyo");
    zones.setSystemZone(home);
    static const MySingleFolderPtr folder = makeFolder(home);
    const bool isHome = !folder->sourceTimeZones.folderDefault ||
                        *folder->sourceTimeZones.folderDefault == ZoneChoice::named(home);
    folder->sourceTimeZones.folderDefault = ZoneChoice::named(isHome ? away : home);
    const auto begin = Clock::now();
    const std::size_t changed = updateAllDatesAfterUpdatingTimezone(folder->sfPicDetails_fullArray,
                                                                    *folder, zones, threshold);
    const auto time = Clock::now() - begin;
    return {time, changed == itemCount ? stampSlots.size() * itemCount : 0};
}

Conversions parallelConversions(std::size_t threads) {
    // The fastest of some runs: other tenants of the machine only ever add to one.
    constexpr int runs = 9;
    Conversions fastest = oneParallelRun(threads);
    for (int run = 1; run < runs && fastest.count > 0; ++run)
        if (const Conversions next = oneParallelRun(threads);
            next.count == 0 || next.time < fastest.time)
            fastest = next;
    return fastest;
}

} // namespace chronomender::bench
