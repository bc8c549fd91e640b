// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"

namespace chronomender {

/// A change of zones that is still pending, as a picker shows it. A default of `_MULTIPLE` says
/// that the selection has mixed values, which the change leaves as they are.
struct ZoneProvider {
    ZoneAssignments sourceTimeZones, targetTimeZones;
};

/// The choices of one side (source or target) that a look-up goes by: one for each item with a
/// choice of its own, and one for all others (null: nothing was chosen for them). Refers to the
/// assignments it was made from; cheap to make and to copy.
class ZoneSide {
public:
    ZoneSide(const ZoneAssignments &assignments)
        : m_ofItems(&assignments.ofItems), m_folderDefault(defaultOf(assignments)) {}
    ZoneSide(ZoneAssignments &&) = delete;
    /// The provided choices, where `_MULTIPLE` gives way to the folder's own default.
    ZoneSide(const ZoneAssignments &provided, const ZoneAssignments &ofFolder)
        : ZoneSide(provided) {
        if (m_folderDefault && m_folderDefault->is(ZoneChoice::Kind::Multiple))
            m_folderDefault = defaultOf(ofFolder);
    }

    bool hasItems() const { return !m_ofItems->empty(); }
    const ZoneChoice *folderDefault() const { return m_folderDefault; }
    const ZoneChoice *ownChoice(std::uint32_t sessionUniqueId) const {
        const auto found = m_ofItems->find(sessionUniqueId);
        return found == m_ofItems->end() ? nullptr : &found->second;
    }

private:
    static const ZoneChoice *defaultOf(const ZoneAssignments &assignments) {
        return assignments.folderDefault ? &*assignments.folderDefault : nullptr;
    }
    const std::map<std::uint32_t, ZoneChoice> *m_ofItems;
    const ZoneChoice *m_folderDefault;
};

/// The folder's own choices of a side, or those of a pending change where there is one.
inline ZoneSide sourceTimeZonesFromProvider(const ZoneProvider *provider,
                                            const MySingleFolder &folder) {
    return provider ? ZoneSide(provider->sourceTimeZones, folder.sourceTimeZones)
                    : ZoneSide(folder.sourceTimeZones);
}
inline ZoneSide targetTimeZonesFromProvider(const ZoneProvider *provider,
                                            const MySingleFolder &folder) {
    return provider ? ZoneSide(provider->targetTimeZones, folder.targetTimeZones)
                    : ZoneSide(folder.targetTimeZones);
}

/// Both sides: what every look-up of a zone goes by. A folder stands for its own choices; both the
/// folder and the provider must live as long as the look-ups.
struct ZoneSides {
    ZoneSides(const MySingleFolder &folder) : ZoneSides(nullptr, folder) {}
    ZoneSides(const ZoneProvider *provider, const MySingleFolder &folder)
        : source(sourceTimeZonesFromProvider(provider, folder)),
          target(targetTimeZonesFromProvider(provider, folder)) {}

    ZoneSide source, target;
};

} // namespace chronomender
