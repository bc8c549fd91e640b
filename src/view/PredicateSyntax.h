// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Predicate.h"

#include <array>
#include <string_view>

namespace chronomender {

// The written form of predicates, shared by the parser and the printer.

/// By the number of their PredicateOperator.
inline constexpr std::array<std::string_view, 9> kOperators{
    "==", "!=", "<", "<=", ">", ">=", "CONTAINS", "BEGINSWITH", "ENDSWITH"};

inline constexpr std::string_view kTrueWord = "TRUEPREDICATE", kFalseWord = "FALSEPREDICATE";

/// Letters behind a backslash, and what each stands for. The printer leaves the last one alone.
inline constexpr std::string_view kEscapes = "\\\"nrt'", kEscaped = "\\\"\n\r\t'";

/// What archived dates are counted from.
inline Date archiveEpoch() {
    return absl::FromUnixSeconds(978307200); // 2001-01-01 00:00:00 UTC
}

} // namespace chronomender
