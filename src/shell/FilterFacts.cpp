// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterFacts.h"

#include "FilterEditor.h"
#include "FilterRows.h"
#include "FilterSourceController.h"
#include "FilterTemplateStore.h"

namespace chronomender {
namespace {

/// The words of a predicate that quickPredicate() makes; none for every other.
std::optional<std::string> wordsOf(const Predicate &predicate) {
    if (predicate.operands.empty())
        return std::nullopt;
    const auto *words = std::get_if<std::string>(&predicate.operands.front().comparison.value);
    return words && quickPredicate(*words) == predicate ? std::optional(*words) : std::nullopt;
}

RatingChoice ratingOf(const UserDefaults &defaults) {
    if (!defaults.boolForKey("isRatingFilterActive"))
        return RatingChoice::All;
    return defaults.boolForKey("ratingFilterSelectedOption") ? RatingChoice::Keepers
                                                             : RatingChoice::NotRejected;
}

void setRating(RatingChoice rating, UserDefaults &defaults) {
    defaults.set("isRatingFilterActive", rating == RatingChoice::All ? "0" : "1");
    if (rating == RatingChoice::All)
        return;
    defaults.set("areFiltersCombined", "0");
    defaults.set("ratingFilterSelectedOption", rating == RatingChoice::Keepers ? "1" : "0");
}

} // namespace

Predicate quickPredicate(const std::string &words) {
    Predicate either;
    either.kind = Predicate::Kind::Or;
    either.operands = {rowPredicate(FilterRowKind::Filename, {words}),
                       rowPredicate(FilterRowKind::CamAndFolder, {words})};
    return either;
}

void restoreFilter(FilterSourceController &filters, const UserDefaults &defaults) {
    filters.allSources = storedFilterTemplates(defaults);
    if (!filters.isAnyFilterActive())
        return;
    auto stored = parsePredicate(defaults.stringForKey("lastActiveFilterPredicate"));
    const auto *predicate = std::get_if<Predicate>(&stored);
    filters.didChangePredicate(predicate ? std::optional(*predicate) : std::nullopt);
}

QuickFilter quickFilter(const FilterSourceController &filters, const UserDefaults &defaults) {
    QuickFilter filter;
    filter.rating = ratingOf(defaults);
    if (const std::optional<Predicate> &shown = filters.filter_sourcePredicate()) {
        const std::optional<std::string> words = wordsOf(*shown);
        filter.words = words.value_or("");
        filter.isOther = !words;
    }
    return filter;
}

void setQuickFilter(const QuickFilter &wanted, FilterSourceController &filters,
                    UserDefaults &defaults) {
    setRating(wanted.rating, defaults);
    if (wanted.isOther) {
        filters.refreshFilter();
        return;
    }
    filterBy(wanted.words.empty() ? std::nullopt : std::optional(quickPredicate(wanted.words)),
             filters, defaults);
}

} // namespace chronomender
