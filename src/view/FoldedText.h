// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Predicate.h"

#include <string>
#include <string_view>

namespace chronomender {

/// `text` (UTF-8) in the one form in which texts are compared: composed (Unicode's form C), as file
/// names of other systems come decomposed; without case, and without accents, as the flags say.
///
///     "É" and "E" with U+0301     the same, always
///     "É" and "é"                 the same by [c];   "É" and "E" by [d];   "É" and "e" by [cd]
std::string foldedText(std::string_view text, ComparisonFlags flags);

/// One text comparison made ready for very many values.
///
/// An empty value is no value: it is equal to an empty text and different from every other one; it
/// neither contains, begins nor ends with anything, not even with an empty text, and has no order.
class TextTest {
public:
    TextTest(std::string_view wanted, PredicateOperator comparison, ComparisonFlags flags);

    /// Without memory of its own for values in ASCII.
    bool matches(std::string_view value) const;

private:
    bool isEqualAt(std::string_view value, std::size_t position) const;
    bool isContainedIn(std::string_view value) const;
    int order(std::string_view value) const;

    std::string m_wanted;
    PredicateOperator m_comparison;
    ComparisonFlags m_flags;
};

} // namespace chronomender
