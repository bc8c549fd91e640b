// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Predicate.h"

namespace chronomender {

/// Takes a predicate's text apart, from front to back. What it does not find it leaves; blanks in
/// front of anything are passed over. Only the first error is kept.
class PredicateLexer {
public:
    explicit PredicateLexer(std::string_view text) : m_text(text) {}

    const std::optional<PredicateError> &error() const { return m_error; }
    std::nullopt_t fail(const char *textKey) { return failAt(position(), textKey); }
    /// Names the word or sign at that place.
    std::nullopt_t failAt(std::size_t position, const char *textKey);

    /// Of what comes next.
    std::size_t position();
    bool isAtEnd() { return position() == m_text.size(); }
    /// The word that comes next: letters, digits, "_" and "."; "" before anything else.
    std::string_view peekWord();
    void skip(std::size_t length) { m_at += length; }

    bool take(char sign);
    /// In both cases of letters.
    bool takeWord(std::string_view word);
    /// `%@`
    bool takeArgument();
    // These fail where they find nothing fit.
    std::optional<PredicateOperator> takeOperator();
    std::optional<ComparisonFlags> takeFlags(); ///< right behind the operator; without, none is set
    std::optional<PredicateValue> takeValue();

private:
    std::string_view wordAt(std::size_t position) const;
    std::string_view foundAt(std::size_t position) const;
    std::optional<PredicateValue> takeText(char quote);
    std::optional<PredicateValue> takeNumber();
    std::optional<PredicateValue> takeDate();

    std::string_view m_text;
    std::size_t m_at = 0;
    std::optional<PredicateError> m_error;
};

} // namespace chronomender
