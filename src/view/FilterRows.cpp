// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterRows.h"

#include <algorithm>
#include <optional>

namespace chronomender {
namespace {

/// Between the left side of a row, its key and operator, and its value.
constexpr std::string_view kMiddle = "[cd] ";

/// The left side of one row with the value of another; none where they don't suit each other.
std::optional<Predicate> joined(const std::string &left, const std::string &right) {
    const std::size_t leftEnd = left.find(kMiddle), rightStart = right.find(kMiddle);
    if (leftEnd == left.npos || rightStart == right.npos)
        return std::nullopt;
    auto parsed = parsePredicate(left.substr(0, leftEnd) + right.substr(rightStart));
    auto *predicate = std::get_if<Predicate>(&parsed);
    return predicate ? std::optional(std::move(*predicate)) : std::nullopt;
}

bool hasSameLeftSide(const std::string &a, const std::string &b) {
    return a.substr(0, a.find(kMiddle)) == b.substr(0, b.find(kMiddle));
}

} // namespace

Predicate rowPredicate(FilterRowKind kind, const std::vector<PredicateValue> &values) {
    const auto row = std::ranges::find(kFilterRowTemplates, kind, &FilterRowTemplate::kind);
    auto parsed = predicateWithFormat(row->format, values);
    auto *predicate = std::get_if<Predicate>(&parsed);
    return predicate ? std::move(*predicate) : Predicate();
}

FilterEditorRow::Edited FilterEditorRow::edited(const Predicate &shown) {
    Edited edited{shown};
    const std::string format = predicateFormat(shown);
    if (!m_oldPredicateFormat.empty() && !hasSameLeftSide(format, m_oldPredicateFormat))
        if (auto kept = joined(format, m_oldPredicateFormat))
            edited.predicate = *std::move(kept);
    edited.needsChangePredicateRefresh = edited.predicate != shown;
    m_oldPredicateFormat = predicateFormat(edited.predicate);
    return edited;
}

} // namespace chronomender
