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

inline constexpr std::size_t kLongestPredicate = 1 << 16; ///< bytes that are read
inline constexpr int kDeepestPredicate = 50;              ///< levels of AND, OR and NOT

/// Why a text is no predicate.
struct PredicateError {
    std::size_t position = 0; ///< in bytes from the start of the text
    std::string textKey;      ///< of the reason in the user's language
    std::string found;        ///< the word or value in question; may be empty
};

/// Reads a text:
///
///     PREDICATE   COMPARISON | PREDICATE AND PREDICATE | PREDICATE OR PREDICATE | NOT PREDICATE
///                 | ( PREDICATE ) | TRUEPREDICATE | FALSEPREDICATE
///     COMPARISON  KEY OPERATOR [FLAGS] VALUE
///     OPERATOR    == != < <= > >= CONTAINS BEGINSWITH ENDSWITH
///     FLAGS       [c] [d] [cd]
///     VALUE       "text" 'text' -1.5 CAST(seconds since 2001-01-01 00:00 UTC, "NSDate")
///
/// Words count in both cases of letters; keys are those of filterKeys(), as they are spelled there,
/// and value and operator must suit the key. In a text `\` stands before a quote or itself, and in
/// \n, \r and \t. NOT binds closest, then AND, then OR. A whole text in parentheses is an AND of
/// one predicate; other parentheses only group. Never throws; a text that is too long (64 KiB) or
/// nested too deep (50 levels) is an error.
std::variant<Predicate, PredicateError> parsePredicate(std::string_view text);

/// The same with `%@` in place of values, which are taken from `values` in turn.
///
///     predicateWithFormat("filter_dateTimeModified >= %@", {date})
std::variant<Predicate, PredicateError>
predicateWithFormat(std::string_view format, const std::vector<PredicateValue> &values);

/// The text of a predicate: `KEY OP[flags] VALUE`, `(A) AND (B)`, `NOT (A)`, TRUEPREDICATE for an
/// AND of nothing, FALSEPREDICATE for an OR of nothing. Reading it gives an equal predicate again,
/// but that an OR of one is the same condition as an AND of one and printed as that.
std::string predicateFormat(const Predicate &predicate);

/// How an operator is written, without flags.
std::string_view operatorText(PredicateOperator comparison);
/// CONTAINS and its like: they need text on both sides.
constexpr bool isTextOperator(PredicateOperator comparison) {
    return comparison >= PredicateOperator::Contains;
}

} // namespace chronomender
