// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace chronomender {

enum class PredicateOperator : std::uint8_t {
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    Contains,
    BeginsWith,
    EndsWith,
};

/// `[c]` takes letters of both cases as one, `[cd]` letters with and without accents, too.
struct ComparisonFlags {
    bool ignoresCase = false, ignoresDiacritics = false;
    bool operator==(const ComparisonFlags &) const = default;
};

using PredicateValue = std::variant<std::string, double, Date>;

/// `KEY OPERATOR[FLAGS] VALUE`
struct Comparison {
    std::string key;
    PredicateOperator comparison = PredicateOperator::Equal;
    ComparisonFlags flags;
    PredicateValue value;
    bool operator==(const Comparison &) const = default;
};

/// A condition on items as the user edits it: a comparison, or several conditions joined. A value
/// without rules of its own; texts are made and read by the functions below.
struct Predicate {
    enum class Kind : std::uint8_t { Comparison, And, Or, Not } kind = Kind::And;
    Comparison comparison;           ///< of kind Comparison
    std::vector<Predicate> operands; ///< of the others; an AND of nothing is true, an OR false

    bool operator==(const Predicate &) const = default;
};

/// Why a text is no predicate.
struct PredicateError {
    std::size_t position = 0; ///< in bytes from the start of the text
    std::string textKey;      ///< of the reason in the user's language
    std::string found;        ///< the word or value in question; may be empty
};

/// Reads a text; the keys must be known filter keys. Never throws; deep nesting is an error.
std::variant<Predicate, PredicateError> parsePredicate(std::string_view text);
/// The text of a predicate. Reading it gives an equal predicate again.
std::string predicateFormat(const Predicate &predicate);

} // namespace chronomender
