// SPDX-License-Identifier: GPL-3.0-or-later
#include "PredicateRewriting.h"

#include "FilterKeys.h"
#include "FilterRows.h"

#include <algorithm>

namespace chronomender {
namespace {

constexpr ComparisonFlags kOfRows{.ignoresCase = true, .ignoresDiacritics = true};

template<class Rewrite>
void rewriteEach(Predicate &predicate, Rewrite rewrite) {
    if (predicate.kind == Predicate::Kind::Comparison)
        rewrite(predicate.comparison);
    for (Predicate &operand : predicate.operands)
        rewriteEach(operand, rewrite);
}

template<class Question>
bool isTrueOfAny(const Predicate &predicate, const Question &isTrue) {
    if (predicate.kind == Predicate::Kind::Comparison && isTrue(predicate.comparison.key))
        return true;
    return std::ranges::any_of(
        predicate.operands, [&](const Predicate &operand) { return isTrueOfAny(operand, isTrue); });
}

bool isEquality(PredicateOperator comparison) {
    return comparison == PredicateOperator::Equal || comparison == PredicateOperator::NotEqual;
}

void ask(Comparison &comparison, std::string key) {
    comparison.key = std::move(key);
    comparison.value = 1.0;
    comparison.flags = kOfRows;
}

void optimize(Comparison &comparison) {
    constexpr double kLivePhotosInARow = 4;
    const double *number = std::get_if<double>(&comparison.value);
    if (number && isEquality(comparison.comparison)) {
        if (comparison.key == "filter_mediaType" && *number == kLivePhotosInARow)
            ask(comparison, "filter_mediaType_2");
        else if (comparison.key == "filter_miscState" && *number >= 0 &&
                 *number <= kLastFilterState)
            ask(comparison, "filter_miscState_" + std::to_string(static_cast<int>(*number)));
        return;
    }
    const auto found =
        std::ranges::find(kFilterRowTemplates, comparison.key, &FilterRowTemplate::shownKey);
    if (found != kFilterRowTemplates.end() && comparison.flags == kOfRows)
        comparison.key = found->runningKey;
}

void complete(Comparison &comparison) {
    const auto *text = std::get_if<std::string>(&comparison.value);
    if (!text || comparison.flags != kOfRows)
        return;
    const bool looksForText = isTextOperator(comparison.comparison);
    if (text->empty() && (looksForText || comparison.comparison == PredicateOperator::Equal))
        comparison.comparison = PredicateOperator::NotEqual;
    else if (looksForText)
        comparison.flags.ignoresDiacritics = false;
}

} // namespace

Predicate optimizedAlternative(Predicate predicate) {
    rewriteEach(predicate, optimize);
    return predicate;
}

Predicate completeFilterPredicate(Predicate predicate) {
    rewriteEach(predicate, complete);
    return predicate;
}

Predicate emptyPredicate() {
    return {Predicate::Kind::And, {}, {rowPredicate(FilterRowKind::Filename, {std::string()})}};
}

Predicate ratingPredicate(RatingFilter filter) {
    const bool isKeepers = filter == RatingFilter::Keepers;
    Comparison comparison{"filter_rating", PredicateOperator::Equal, {}, isKeepers ? 1.0 : -1.0};
    if (!isKeepers)
        comparison.comparison = PredicateOperator::NotEqual;
    return {Predicate::Kind::Comparison, std::move(comparison), {}};
}

Predicate combined(RatingFilter filter, std::optional<Predicate> predicate) {
    Predicate rating = ratingPredicate(filter);
    if (!predicate)
        return rating;
    return {Predicate::Kind::And, {}, {std::move(rating), *std::move(predicate)}};
}

bool hasKey(const Predicate &predicate, std::string_view key) {
    return isTrueOfAny(predicate, [&](const std::string &each) { return each == key; });
}

bool mentions(const Predicate &predicate, std::string_view key) {
    return isTrueOfAny(predicate,
                       [&](const std::string &each) { return each.find(key) != each.npos; });
}

bool doesIncludeRating(const Predicate &predicate) {
    return isTrueOfAny(predicate,
                       [](const std::string &key) { return key.starts_with("filter_rating"); });
}

bool needsLateValues(const Predicate &predicate) {
    return isTrueOfAny(optimizedAlternative(predicate), [](const std::string &name) {
        const FilterKey *key = findFilterKey(name);
        return key && key->isReadLate;
    });
}

} // namespace chronomender
