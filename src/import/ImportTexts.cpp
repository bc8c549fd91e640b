// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImportRun.h"

#include <array>

namespace chronomender {

const char *textKey(SkipReason reason) {
    static constexpr std::array keys{
        "skipReason_symbolicLink", "skipReason_nameNotUtf8", "skipReason_unreadable",
        "skipReason_empty",        "skipReason_notAMedium",  "skipReason_sameFileTwice",
        "skipReason_noDate",       "skipReason_cancelled",
    };
    static_assert(keys.size() == static_cast<std::size_t>(SkipReason::Cancelled) + 1);
    return keys[static_cast<std::size_t>(reason)];
}

const char *textKey(ImportErrorId id) {
    switch (id) {
    case ImportErrorId::SidecarUnreadable:
        return "errorPanelDescriptionText_ID1";
    case ImportErrorId::SidecarOfSeveral:
        return "errorPanelDescriptionText_ID16";
    case ImportErrorId::SidecarOfNone:
        break;
    }
    return "errorPanelDescriptionText_ID17";
}

} // namespace chronomender
