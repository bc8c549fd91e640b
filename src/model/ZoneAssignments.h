// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Zones.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace chronomender {

/// What a folder or an item says about a zone: a named zone or one of the markers.
class ZoneChoice {
public:
    enum class Kind : std::uint8_t {
        System,              ///< "_SYSTEM": the system's zone at the moment of asking
        Unchanged,           ///< "_UNCHANGED", target only: the item's source zone
        UnchangedLeft,       ///< "_UNCHANGED_LEFT", target of an item: stays in its source zone
        UnchangedLeftFolder, ///< "_UNCHANGED_LEFT_FOLDER", target default: the source default
        Own,                 ///< "_OWN", target: each zone stamp keeps its offset
        Multiple,            ///< "_MULTIPLE", default of a pending change: mixed values stay
        Named,
    };

    static ZoneChoice system() { return {Kind::System, {}}; }
    static ZoneChoice marker(Kind kind) { return {kind, {}}; }
    static ZoneChoice named(Zone zone) { return {Kind::Named, std::move(zone)}; }

    Kind kind() const { return m_kind; }
    bool is(Kind kind) const { return m_kind == kind; }
    /// The zone of a named choice; none for markers.
    const std::optional<Zone> &zone() const { return m_zone; }
    /// The zone's name or the marker, as sessions store it.
    std::string persistedName() const;
    /// The choice of that name; none for a name that the zone database does not know.
    static std::optional<ZoneChoice> fromPersistedName(std::string_view name, const Zones &zones);

    bool operator==(const ZoneChoice &) const = default;

private:
    ZoneChoice(Kind kind, std::optional<Zone> zone) : m_kind(kind), m_zone(std::move(zone)) {}
    Kind m_kind;
    std::optional<Zone> m_zone;
};

/// The zone choices of one side (source or target) of a folder: one for the folder, and exceptions
/// by item (key: `sessionUniqueId` of the master). An item has one choice at most. Main thread, and
/// read by workers while no one writes.
struct ZoneAssignments {
    std::optional<ZoneChoice> folderDefault;
    std::map<std::uint32_t, ZoneChoice> ofItems;

    bool isEmpty() const { return !folderDefault && ofItems.empty(); }
};

} // namespace chronomender
