// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Predicate.h"

#include <optional>
#include <string_view>

namespace chronomender {

// From the predicate that an editor shows to the one that runs.

/// A predicate of the same meaning that is cheap to ask: one key for each state, and for live
/// photos that join each other. A row of the editor (its comparisons carry [cd]) shows one name of
/// a key and runs by another:
///
///     filter_miscState ==[cd] 6          filter_miscState_6 ==[cd] 1
///     filter_mediaType !=[cd] 4          filter_mediaType_2 !=[cd] 1
///     pivMakeModel CONTAINS[cd] "Canon"  filter_pivMakeModel CONTAINS[cd] "Canon"
Predicate optimizedAlternative(Predicate predicate);

/// A row without a text asks whether there is any value; in a text that is looked for, accents
/// count and case does not.
///
///     spName CONTAINS[cd] ""             spName !=[cd] ""
///     spName CONTAINS[cd] "IMG"          spName CONTAINS[c] "IMG"
Predicate completeFilterPredicate(Predicate predicate);

/// What an editor without a condition shows: an AND with an empty row for names.
Predicate emptyPredicate();

enum class RatingFilter : bool { NotRejected, Keepers };
Predicate ratingPredicate(RatingFilter filter);
/// The rating filter in front of a predicate, or alone.
Predicate combined(RatingFilter filter, std::optional<Predicate> predicate);

/// Some comparison is of this key.
bool hasKey(const Predicate &predicate, std::string_view key);
/// Some key of the predicate has this text in its name.
bool mentions(const Predicate &predicate, std::string_view key);
/// Some row is about the rating.
bool doesIncludeRating(const Predicate &predicate);
/// It asks values that an import does not read at once: cameras, lenses, locations.
bool needsLateValues(const Predicate &predicate);

} // namespace chronomender
