// SPDX-License-Identifier: GPL-3.0-or-later
#include "CompiledPredicate.h"

namespace chronomender {

CompiledPredicate::CompiledPredicate(const Predicate &, const FilterContext &)
    : m_matches([](const MySinglePic &) { return true; }) {}

} // namespace chronomender
