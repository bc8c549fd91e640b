// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FilterRows.h"
#include "MySinglePic.h"
#include "UserDefaults.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace chronomender {

class FilterSourceController;

/// One condition as a person edits it. Of the values only those of its kind count.
struct FilterCondition {
    FilterRowKind kind = FilterRowKind::Filename;
    PredicateOperator comparison = PredicateOperator::Contains; ///< not of a range
    std::string text = {};                                      ///< of names and cameras
    int number = 0;                                             ///< a kind of media, or a state
    Date from = {}, till = {}; ///< of a date `from` alone; a range ends before `till`

    bool operator==(const FilterCondition &) const = default;
};

/// What the editor of filters shows: at least one condition.
struct FilterConditions {
    enum class Match : bool { All, Any } match = Match::All;
    std::vector<FilterCondition> rows = std::vector<FilterCondition>(1);

    bool operator==(const FilterConditions &) const = default;
};

/// A value or an operator, and what it is called.
struct FilterChoice {
    int value;
    const char *textKey;
};
std::span<const FilterChoice> filterKinds();
/// The operators that suit a kind; none of a range.
std::span<const FilterChoice> filterOperators(FilterRowKind kind);
/// What a row of this kind chooses from; none of texts and dates.
std::span<const FilterChoice> filterValues(FilterRowKind kind);

/// The range that a new condition about dates begins with.
struct FilterDates {
    Date from, till;
};
/// The days of the items, which are in display order; this day where they have no dates.
FilterDates filterDates(const std::vector<MySinglePicPtr> &items, Date now,
                        const absl::TimeZone &zone);
/// The condition after another kind was chosen for it: a text stays, and the operator among kinds
/// that have the same ones.
FilterCondition withKind(FilterCondition row, FilterRowKind kind, const FilterDates &dates);

/// The first instant of a day.
Date startOfDay(absl::CivilDay day, const absl::TimeZone &zone);

/// The predicate of the conditions; none for no condition. A name that may be anything says nothing
/// and is left out.
std::optional<Predicate> predicateOf(const FilterConditions &conditions);
/// What the editor shows for a predicate, or for none. Nothing where rows cannot say it, as with
/// conditions inside conditions. A range that does not consist of days in the zone is shown as two
/// dates, where all must hold.
std::optional<FilterConditions> conditionsOf(const std::optional<Predicate> &predicate,
                                             const absl::TimeZone &zone);

/// Filters by a predicate, or without one no more, and keeps that for the next session.
void filterBy(const std::optional<Predicate> &predicate, FilterSourceController &filters,
              UserDefaults &defaults);

} // namespace chronomender
