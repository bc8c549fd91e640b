// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterEditor.h"

#include "FilterKeys.h"
#include "FilterSourceController.h"

#include <algorithm>
#include <utility>

namespace chronomender {
namespace {

using enum FilterRowKind;
using enum PredicateOperator;

constexpr FilterChoice choice(FilterRowKind kind, const char *key) {
    return {static_cast<int>(kind), key};
}
constexpr FilterChoice choice(PredicateOperator comparison, const char *key) {
    return {static_cast<int>(comparison), key};
}

constexpr FilterChoice kinds[] = {
    choice(Filename, "filter_kindName"),   choice(CamAndFolder, "filter_kindCamera"),
    choice(MediaType, "filter_kindMedia"), choice(State, "filter_kindState"),
    choice(SingleDate, "filter_kindDate"), choice(DateRange, "filter_kindRange")};
constexpr FilterChoice textOperators[] = {
    choice(Contains, "filter_contains"), choice(BeginsWith, "filter_beginsWith"),
    choice(EndsWith, "filter_endsWith"), choice(Equal, "filter_is"),
    choice(NotEqual, "filter_isNot")};
constexpr FilterChoice equalities[] = {choice(Equal, "filter_is"),
                                       choice(NotEqual, "filter_isNot")};
constexpr FilterChoice dateOperators[] = {choice(GreaterOrEqual, "filter_dateFrom"),
                                          choice(LessOrEqual, "filter_dateUpTo"),
                                          choice(Greater, "filter_dateAfter"),
                                          choice(Less, "filter_dateBefore"),
                                          choice(Equal, "filter_dateIs"),
                                          choice(NotEqual, "filter_dateIsNot")};
constexpr FilterChoice media[] = {{0, "filter_mediaPhoto"},
                                  {1, "filter_mediaMovie"},
                                  {2, "filter_mediaLivePhoto"},
                                  {3, "filter_mediaRawAndJpeg"},
                                  {4, "filter_mediaLivePhotosInARow"}};
constexpr FilterChoice states[] = {{0, "filter_stateUnsaved"}, {1, "filter_stateLocation"},
                                   {2, "filter_stateZone"},    {3, "filter_stateError"},
                                   {6, "filter_stateAlert"},   {4, "filter_stateChanged"},
                                   {5, "filter_stateMissing"}, {7, "filter_stateReadAgain"}};
static_assert(std::size(states) == kLastFilterState + 1, "each state has its words");

bool contains(std::span<const FilterChoice> choices, int value) {
    return std::ranges::find(choices, value, &FilterChoice::value) != choices.end();
}

bool isAboutDates(FilterRowKind kind) {
    return kind == SingleDate || kind == DateRange;
}

/// Nothing is asked of the name.
bool saysNothing(const FilterCondition &row) {
    return row.kind == Filename && row.text.empty();
}

Predicate predicateOf(const FilterCondition &row) {
    if (row.kind == DateRange)
        return rowPredicate(row.kind, {row.from, row.till});
    PredicateValue value = row.text;
    if (row.kind == SingleDate)
        value = row.from;
    else if (!filterValues(row.kind).empty())
        value = static_cast<double>(row.number);
    Predicate predicate = rowPredicate(row.kind, {std::move(value)});
    predicate.comparison.comparison = row.comparison;
    return predicate;
}

OptionalDate dateIn(const PredicateValue &value, const absl::TimeZone &zone) {
    const Date *date = std::get_if<Date>(&value);
    if (date)
        return isCleanDate(*date) ? OptionalDate(*date) : std::nullopt;
    const auto *text = std::get_if<std::string>(&value);
    const auto stamp = text ? readFilterDate(*text) : std::nullopt;
    return stamp ? OptionalDate(instantFromIsoStamp(*stamp, zone)) : std::nullopt;
}

/// False where the kind has not this value.
bool takeValue(const Comparison &from, const absl::TimeZone &zone, FilterCondition &to) {
    if (to.kind == SingleDate) {
        const OptionalDate date = dateIn(from.value, zone);
        to.from = date.value_or(Date());
        return date.has_value();
    }
    if (const auto *text = std::get_if<std::string>(&from.value)) {
        to.text = *text;
        return from.flags == ComparisonFlags{.ignoresCase = true, .ignoresDiacritics = true};
    }
    const double *number = std::get_if<double>(&from.value);
    const auto values = filterValues(to.kind);
    const auto chosen = std::ranges::find_if(
        values, [number](const FilterChoice &each) { return number && each.value == *number; });
    if (chosen == values.end())
        return false;
    to.number = chosen->value;
    return true;
}

std::optional<FilterCondition> conditionOf(const Comparison &comparison,
                                           const absl::TimeZone &zone) {
    const auto kind =
        std::ranges::find(kFilterRowTemplates, comparison.key, &FilterRowTemplate::shownKey);
    if (kind == kFilterRowTemplates.end() ||
        !contains(filterOperators(kind->kind), static_cast<int>(comparison.comparison)))
        return std::nullopt;
    FilterCondition row{.kind = kind->kind, .comparison = comparison.comparison};
    return takeValue(comparison, zone, row) ? std::optional(row) : std::nullopt;
}

bool isStartOfDay(Date date, const absl::TimeZone &zone) {
    return startOfDay(absl::ToCivilDay(date, zone), zone) == date;
}

/// The rows of one operand: usually one, two dates for a range that has no days; none where rows
/// cannot say it.
std::vector<FilterCondition> rowsOf(const Predicate &operand, const absl::TimeZone &zone) {
    if (operand.kind == Predicate::Kind::Comparison) {
        const auto row = conditionOf(operand.comparison, zone);
        return row ? std::vector{*row} : std::vector<FilterCondition>();
    }
    if (operand.kind != Predicate::Kind::And || operand.operands.size() != 2)
        return {};
    std::vector<FilterCondition> ends;
    for (const Predicate &end : operand.operands)
        if (const auto row = conditionOf(end.comparison, zone);
            row && end.kind == Predicate::Kind::Comparison && row->kind == SingleDate)
            ends.push_back(*row);
    if (ends.size() != 2 || ends[0].comparison != GreaterOrEqual || ends[1].comparison != Less)
        return {};
    if (!isStartOfDay(ends[0].from, zone) || !isStartOfDay(ends[1].from, zone))
        return ends;
    return {{.kind = DateRange, .from = ends[0].from, .till = ends[1].from}};
}

} // namespace

std::span<const FilterChoice> filterKinds() {
    return kinds;
}

std::span<const FilterChoice> filterOperators(FilterRowKind kind) {
    switch (kind) {
    case Filename:
    case CamAndFolder:
        return textOperators;
    case MediaType:
    case State:
        return equalities;
    case SingleDate:
        return dateOperators;
    case DateRange:
        break;
    }
    return {};
}

std::span<const FilterChoice> filterValues(FilterRowKind kind) {
    if (kind == MediaType)
        return media;
    return kind == State ? std::span<const FilterChoice>(states) : std::span<const FilterChoice>();
}

Date startOfDay(absl::CivilDay day, const absl::TimeZone &zone) {
    const absl::TimeZone::TimeInfo midnight = zone.At(absl::CivilSecond(day));
    return midnight.kind == absl::TimeZone::TimeInfo::SKIPPED ? midnight.trans : midnight.pre;
}

FilterDates filterDates(const std::vector<MySinglePicPtr> &items, Date now,
                        const absl::TimeZone &zone) {
    const auto hasDate = [](const MySinglePicPtr &pic) {
        return pic->hasCorrectableDate() && isCleanDate(pic->spDateTimeModified());
    };
    Date first = now, last = now;
    const auto front = std::ranges::find_if(items, hasDate);
    if (front != items.end()) {
        first = (*front)->spDateTimeModified();
        last = (*std::find_if(items.rbegin(), items.rend(), hasDate))->spDateTimeModified();
    }
    return {startOfDay(absl::ToCivilDay(first, zone), zone),
            startOfDay(absl::ToCivilDay(last, zone) + 1, zone)};
}

FilterCondition withKind(FilterCondition row, FilterRowKind kind, const FilterDates &dates) {
    FilterCondition changed{
        .kind = kind, .comparison = row.comparison, .text = std::move(row.text)};
    const auto operators = filterOperators(kind);
    if (!operators.empty() && operators.data() != filterOperators(row.kind).data())
        changed.comparison = static_cast<PredicateOperator>(operators.front().value);
    if (isAboutDates(kind)) {
        changed.from = dates.from;
        changed.till = dates.till;
    }
    return changed;
}

std::optional<Predicate> predicateOf(const FilterConditions &conditions) {
    Predicate joined;
    joined.kind = conditions.match == FilterConditions::Match::Any ? Predicate::Kind::Or
                                                                   : Predicate::Kind::And;
    for (const FilterCondition &row : conditions.rows)
        if (!saysNothing(row))
            joined.operands.push_back(predicateOf(row));
    return joined.operands.empty() ? std::nullopt : std::optional(std::move(joined));
}

std::optional<FilterConditions> conditionsOf(const std::optional<Predicate> &predicate,
                                             const absl::TimeZone &zone) {
    using Match = FilterConditions::Match;
    if (!predicate)
        return FilterConditions();
    FilterConditions conditions{Match::All, {}};
    if (predicate->kind == Predicate::Kind::Not)
        return std::nullopt;
    if (predicate->kind == Predicate::Kind::Or)
        conditions.match = Match::Any;
    const bool isOne = predicate->kind == Predicate::Kind::Comparison;
    const std::vector<Predicate> operands = isOne ? std::vector{*predicate} : predicate->operands;
    for (const Predicate &operand : operands) {
        const std::vector<FilterCondition> rows = rowsOf(operand, zone);
        if (rows.empty() || (rows.size() > 1 && conditions.match == Match::Any))
            return std::nullopt;
        conditions.rows.insert(conditions.rows.end(), rows.begin(), rows.end());
    }
    return conditions.rows.empty() ? std::nullopt : std::optional(std::move(conditions));
}

void filterBy(const std::optional<Predicate> &predicate, FilterSourceController &filters,
              UserDefaults &defaults) {
    defaults.set("isFilterActive", predicate ? "1" : "0");
    filters.didChangePredicate(predicate);
}

} // namespace chronomender
