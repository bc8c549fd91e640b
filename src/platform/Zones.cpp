// SPDX-License-Identifier: GPL-3.0-or-later
#include "Zones.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace chronomender {
namespace {

Zone currentSystemZone(const zoneDatabase::SystemPlaces &places) {
    const auto name = zoneDatabase::systemZoneName(places);
    if (const auto seconds = zoneDatabase::offsetSeconds(name))
        return {name, absl::FixedTimeZone(*seconds)};
    absl::TimeZone rules;
    return absl::LoadTimeZone(name, &rules) ? Zone{name, rules} : Zones::utc();
}

/// Lower case, and blanks as the database writes them: "new york" looks for "new_york".
std::string folded(std::string_view name) {
    std::string result(name);
    for (char &c : result) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
        else if (c == ' ')
            c = '_';
    }
    return result;
}

std::string_view cityOf(std::string_view name) {
    const auto slash = name.rfind('/');
    return slash == std::string_view::npos ? name : name.substr(slash + 1);
}

/// How many letters must be added, taken away or replaced to turn `a` into `b`.
std::size_t editDistance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t replaced = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

/// How badly `candidate` fits `wanted` (both folded), 0 best; none when it does not look like it.
std::optional<std::size_t> misfit(std::string_view wanted, std::string_view candidate) {
    const auto wantedCity = cityOf(wanted);
    const auto city = cityOf(candidate);
    if (candidate == wanted)
        return 0;
    if (city == wantedCity)
        return 1;
    if (city.starts_with(wantedCity))
        return 2;
    if (city.find(wantedCity) != std::string_view::npos)
        return 3;
    const auto edits = editDistance(wantedCity, city);
    if (edits <= std::max<std::size_t>(1, wantedCity.size() / 3))
        return 3 + edits;
    return std::nullopt;
}

} // namespace

Zones::Zones(zoneDatabase::SystemPlaces places)
    : m_places(std::move(places)), m_systemZone(currentSystemZone(m_places)) {}

bool Zones::refreshSystemZone() {
    if (m_isGiven)
        return false;
    Zone present = currentSystemZone(m_places);
    const bool isChanged = present != m_systemZone;
    m_systemZone = std::move(present);
    return isChanged;
}

std::optional<Zone> Zones::zoneWithName(std::string_view name) const {
    if (const auto seconds = zoneDatabase::offsetSeconds(name))
        return Zone{zoneDatabase::offsetName(*seconds), absl::FixedTimeZone(*seconds)};
    Zone zone{std::string(name), {}};
    if (!zoneDatabase::hasName(name) || !absl::LoadTimeZone(zone.name, &zone.rules))
        return std::nullopt;
    return zone;
}

const std::vector<std::string> &Zones::zoneNames() const {
    return zoneDatabase::names();
}

std::vector<std::string> Zones::namesNear(std::string_view name, std::size_t most) const {
    if (cityOf(name).empty())
        return {};
    const std::string wanted = folded(name);
    std::vector<std::pair<std::size_t, std::string_view>> ranked;
    for (const std::string &candidate : zoneNames())
        if (const auto rank = misfit(wanted, folded(candidate)))
            ranked.emplace_back(*rank, candidate);
    std::ranges::sort(ranked);
    std::vector<std::string> best;
    for (const auto &[rank, candidate] : ranked)
        if (best.size() < most)
            best.emplace_back(candidate);
    return best;
}

Zone Zones::utc() {
    return {"UTC", absl::UTCTimeZone()};
}

} // namespace chronomender
