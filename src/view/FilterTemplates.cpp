// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterTemplates.h"

#include "FreeName.h"
#include "NaturalCompare.h"
#include "PredicateRewriting.h"
#include "Texts.h"

#include <algorithm>
#include <set>

namespace chronomender {
namespace {

bool hasRatingRow(const FilterTemplate &filter) {
    const auto predicate = parsePredicate(filter.predicate);
    const auto *parsed = std::get_if<Predicate>(&predicate);
    return parsed && doesIncludeRating(*parsed);
}

} // namespace

std::vector<FilterTemplate> templatesForMenu(std::vector<FilterTemplate> all,
                                             bool areFiltersCombined) {
    if (!areFiltersCombined)
        std::erase_if(all, hasRatingRow);
    std::ranges::sort(all, {}, &FilterTemplate::key);
    std::set<std::string> taken;
    for (FilterTemplate &each : all) {
        each.name =
            freeName(each.name.empty() ? text("renameModTemplate_unnamed") : each.name, taken);
        taken.insert(each.name);
    }
    const NaturalCompare order;
    std::ranges::stable_sort(
        all, [&](const std::string &a, const std::string &b) { return order.less(a, b); },
        &FilterTemplate::name);
    return all;
}

} // namespace chronomender
