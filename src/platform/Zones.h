// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ZoneDatabase.h"

#include <absl/time/time.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

/// A time zone with the name under which the user and saved sessions know it, for example
/// "Europe/Berlin", or "+05:30" for a fixed offset. A small value, cheap to copy.
struct Zone {
    std::string name;
    absl::TimeZone rules;

    bool operator==(const Zone &other) const { return name == other.name; }
};

/// The zone database and the system's zone. Shared by all threads: a const Zones is safe to use
/// everywhere; `setSystemZone` and `refreshSystemZone` are for the main thread while no worker
/// runs.
class Zones {
public:
    /// Takes the system's zone from its places: TZ, else the link /etc/localtime, else
    /// /etc/timezone, else UTC.
    explicit Zones(zoneDatabase::SystemPlaces places = zoneDatabase::systemPlaces());

    const Zone &systemZone() const { return m_systemZone; }
    const zoneDatabase::SystemPlaces &systemPlaces() const { return m_places; }
    /// Stands in for the system's zone from now on (tests, `--system-zone`).
    void setSystemZone(Zone zone) {
        m_systemZone = std::move(zone);
        m_isGiven = true;
    }
    /// Reads the system's zone again, unless another one stands in for it; true when it changed.
    bool refreshSystemZone();

    /// The zone of that exact name, accepted only from the list of the zone database or as ±HH:MM
    /// up to ±18:00; none otherwise. An unknown name never falls back to anything.
    std::optional<Zone> zoneWithName(std::string_view name) const;
    /// Names of the database, sorted.
    const std::vector<std::string> &zoneNames() const;
    /// Up to `most` names of the database that look like `name`, best first.
    std::vector<std::string> namesNear(std::string_view name, std::size_t most) const;

    static Zone utc();

private:
    zoneDatabase::SystemPlaces m_places;
    Zone m_systemZone;
    bool m_isGiven = false;
};

} // namespace chronomender
