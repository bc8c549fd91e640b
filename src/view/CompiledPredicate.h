// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySinglePic.h"
#include "Predicate.h"
#include "Zones.h"

#include <functional>

namespace chronomender {

/// What keys of the filter ask beside the item. The references outlive the compiled predicate.
struct FilterContext {
    const Zones &zones;
    bool highlightEmptyMetaTags = true;
};

/// A predicate made ready to be asked of very many items: keys looked up, texts folded. Asking
/// changes nothing. Main thread.
class CompiledPredicate {
public:
    CompiledPredicate(const Predicate &predicate, const FilterContext &context);

    bool matches(const MySinglePic &pic) const { return m_matches(pic); }

private:
    std::function<bool(const MySinglePic &)> m_matches;
};

} // namespace chronomender
