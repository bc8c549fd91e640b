// SPDX-License-Identifier: GPL-3.0-or-later
#include "SavedZones.h"

#include "ZoneLookup.h"

namespace chronomender {
namespace {

/// `_MULTIPLE` belongs to a pending change and is never stored.
std::optional<ZoneChoice> savedChoice(const std::string &name, const Zones &zones) {
    auto choice = ZoneChoice::fromPersistedName(name, zones);
    return choice && !choice->is(ZoneChoice::Kind::Multiple) ? choice : std::nullopt;
}

} // namespace

SavedTimeZones saveableTimeZones(const ZoneAssignments &assignments, const MySingleFolder &folder) {
    SavedTimeZones saved;
    if (assignments.folderDefault)
        saved.folderDefault = assignments.folderDefault->persistedName();
    for (std::int64_t i = 0; i < folder.count(); ++i) {
        const MySinglePic &pic = *folder.sfPicDetails_fullArray[static_cast<std::size_t>(i)];
        if (const ZoneChoice *choice = choiceForPicIgnoringDefault(pic, assignments))
            saved.positions[choice->persistedName()].push_back(i);
    }
    return saved;
}

ZoneAssignments timeZonesFromSavedData(const SavedTimeZones &saved, const MySingleFolder &folder,
                                       const Zones &zones) {
    ZoneAssignments assignments;
    if (saved.folderDefault)
        assignments.folderDefault = savedChoice(*saved.folderDefault, zones);
    for (const auto &[name, positions] : saved.positions) {
        const auto choice = savedChoice(name, zones);
        if (!choice)
            continue;
        for (const std::int64_t position : positions) {
            if (position < 0 || position >= folder.count())
                continue;
            const auto &pic = folder.sfPicDetails_fullArray[static_cast<std::size_t>(position)];
            assignments.ofItems.emplace(pic->sessionUniqueId, *choice);
        }
    }
    return assignments;
}

} // namespace chronomender
