// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneAssignments.h"

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

struct Marker {
    ZoneChoice::Kind kind;
    std::string_view name;
};
constexpr std::array markers{
    Marker{ZoneChoice::Kind::System, "_SYSTEM"},
    Marker{ZoneChoice::Kind::Unchanged, "_UNCHANGED"},
    Marker{ZoneChoice::Kind::UnchangedLeft, "_UNCHANGED_LEFT"},
    Marker{ZoneChoice::Kind::UnchangedLeftFolder, "_UNCHANGED_LEFT_FOLDER"},
    Marker{ZoneChoice::Kind::Own, "_OWN"},
    Marker{ZoneChoice::Kind::Multiple, "_MULTIPLE"},
};

} // namespace

std::string ZoneChoice::persistedName() const {
    if (m_zone)
        return m_zone->name;
    return std::string(std::ranges::find(markers, m_kind, &Marker::kind)->name);
}

std::optional<ZoneChoice> ZoneChoice::fromPersistedName(std::string_view name, const Zones &zones) {
    const auto *const found = std::ranges::find(markers, name, &Marker::name);
    if (found != markers.end())
        return marker(found->kind);
    auto zone = zones.zoneWithName(name);
    return zone ? std::optional(named(*std::move(zone))) : std::nullopt;
}

} // namespace chronomender
