// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Predicate.h"
#include "UserDefaults.h"

#include <cstdint>
#include <optional>
#include <string>

namespace chronomender {

class FilterSourceController;

enum class RatingChoice : std::uint8_t { All, NotRejected, Keepers };

/// The quick filter above a list: words that stand in a name or a camera, and a rating.
struct QuickFilter {
    std::string words;
    RatingChoice rating = RatingChoice::All;
    /// The filter that runs is another one than these words can say.
    bool isOther = false;

    bool isAnything() const { return !words.empty() || rating != RatingChoice::All || isOther; }
    bool operator==(const QuickFilter &) const = default;
};

/// The condition that a name or a camera holds the words.
Predicate quickPredicate(const std::string &words);
/// Reads the templates, and filters again by what the last session was filtered by. Once, at the
/// start.
void restoreFilter(FilterSourceController &filters, const UserDefaults &defaults);
/// What the filters of the session are now.
QuickFilter quickFilter(const FilterSourceController &filters, const UserDefaults &defaults);
/// Filters by it, and keeps it for the next session. Words and rating are told apart; a filter of
/// another kind stays while only the rating changes.
void setQuickFilter(const QuickFilter &wanted, FilterSourceController &filters,
                    UserDefaults &defaults);

} // namespace chronomender
