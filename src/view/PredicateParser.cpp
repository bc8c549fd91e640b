// SPDX-License-Identifier: GPL-3.0-or-later
#include "Predicate.h"

namespace chronomender {

std::variant<Predicate, PredicateError> parsePredicate(std::string_view) {
    return PredicateError{};
}

} // namespace chronomender
