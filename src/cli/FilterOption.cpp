// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterOption.h"

#include "FilterKeys.h"
#include "FilterSourceController.h"
#include "Texts.h"
#include "Utf8Text.h"

namespace chronomender {
namespace {

std::string keyNames() {
    std::string names;
    for (const FilterKey &key : filterKeys())
        names += (names.empty() ? "" : ", ") + std::string(key.name);
    return names;
}

std::string complaint(const std::string &typed, const PredicateError &error) {
    return text("cli_error_badFilter", {std::to_string(columnOfByte(typed, error.position) + 1),
                                        text(error.textKey, {printable(error.found)})}) +
           pointedAt(typed, error.position) + '\n' + text("cli_filterKeys", {keyNames()});
}

} // namespace

std::variant<Predicate, std::string> readFilter(const std::string &typed) {
    auto result = parsePredicate(typed);
    if (const auto *error = std::get_if<PredicateError>(&result))
        return complaint(typed, *error);
    return std::get<Predicate>(std::move(result));
}

void forgetStoredFilters(UserDefaults &defaults) {
    for (const char *key : {"isFilterActive", "isRatingFilterActive", "areFiltersCombined"})
        defaults.setForThisRun(key, "0");
}

void filterBy(const FilterWish &wish, FilterSourceController &filters, UserDefaults &defaults) {
    if (!wish.isAnything())
        return;
    if (wish.predicate)
        defaults.setForThisRun("isFilterActive", "1");
    if (wish.rating) {
        defaults.setForThisRun("isRatingFilterActive", "1");
        defaults.setForThisRun("areFiltersCombined", "0");
        defaults.setForThisRun("ratingFilterSelectedOption",
                               *wish.rating == RatingFilter::Keepers ? "1" : "0");
    }
    filters.didChangePredicate(wish.predicate, FilterMemory::ThisRun);
}

} // namespace chronomender
