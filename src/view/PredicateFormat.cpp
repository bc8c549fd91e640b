// SPDX-License-Identifier: GPL-3.0-or-later
#include "Predicate.h"

namespace chronomender {

std::string predicateFormat(const Predicate &) {
    return {};
}

} // namespace chronomender
