// SPDX-License-Identifier: GPL-3.0-or-later
#include "AlternativeReading.h"

namespace chronomender {

std::size_t useAmbiguityAlternative(const std::vector<MySinglePicPtr> &, AlternativeTarget, bool,
                                    const Zones &, UndoManager &) {
    return 0;
}

bool changeAmbiguityCorrectionStateTo(MySinglePic &, bool, const Zones &, UndoManager &) {
    return false;
}

} // namespace chronomender
