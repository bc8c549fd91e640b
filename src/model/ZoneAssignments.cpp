// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneAssignments.h"

namespace chronomender {

std::string ZoneChoice::persistedName() const {
    switch (m_kind) {
    case Kind::System:
        return "_SYSTEM";
    case Kind::Unchanged:
        return "_UNCHANGED";
    case Kind::UnchangedLeft:
        return "_UNCHANGED_LEFT";
    case Kind::UnchangedLeftFolder:
        return "_UNCHANGED_LEFT_FOLDER";
    case Kind::Own:
        return "_OWN";
    case Kind::Named:
        break;
    }
    return m_zone ? m_zone->name : std::string();
}

} // namespace chronomender
