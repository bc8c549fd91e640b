// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextModification.h"

namespace chronomender {

const TextModifications &factoryModifications() {
    static const TextModifications rows;
    return rows;
}

TextModifications modificationsForTag(ModificationTag, const UserDefaults &) {
    return factoryModifications();
}

} // namespace chronomender
