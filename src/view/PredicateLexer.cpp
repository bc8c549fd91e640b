// SPDX-License-Identifier: GPL-3.0-or-later
#include "PredicateLexer.h"

#include "PredicateSyntax.h"

#include <absl/strings/ascii.h>

#include <algorithm>
#include <charconv>

namespace chronomender {
namespace {

bool isOfWord(char each) {
    return absl::ascii_isalnum(static_cast<unsigned char>(each)) || each == '_' || each == '.';
}

char lowered(char each) {
    return absl::ascii_tolower(static_cast<unsigned char>(each));
}

bool isDigit(char each) {
    return absl::ascii_isdigit(static_cast<unsigned char>(each));
}

bool isSameWord(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, lowered, lowered);
}

/// Length of the decimal number that `text` begins with; 0 when it begins with none.
std::size_t decimalLength(std::string_view text) {
    std::size_t at = text.starts_with('-') ? 1 : 0;
    const std::size_t first = at;
    while (at < text.size() && isDigit(text[at]))
        ++at;
    if (at == first)
        return 0;
    if (at + 1 < text.size() && text[at] == '.' && isDigit(text[at + 1]))
        for (++at; at < text.size() && isDigit(text[at]);)
            ++at;
    return at;
}

} // namespace

std::size_t PredicateLexer::position() {
    while (m_at < m_text.size() && absl::ascii_isspace(static_cast<unsigned char>(m_text[m_at])))
        ++m_at;
    return m_at;
}

std::string_view PredicateLexer::wordAt(std::size_t position) const {
    const auto begin = m_text.begin() + static_cast<std::ptrdiff_t>(position);
    return {begin, std::find_if_not(begin, m_text.end(), isOfWord)};
}

/// A word, or everything up to the next blank, parenthesis or comma.
std::string_view PredicateLexer::foundAt(std::size_t position) const {
    const std::string_view word = wordAt(position);
    if (!word.empty() || position >= m_text.size())
        return word;
    const std::size_t end = m_text.find_first_of(" \t\r\n(),\"'", position + 1);
    return m_text.substr(position, end - position);
}

std::nullopt_t PredicateLexer::failAt(std::size_t position, const char *textKey) {
    if (!m_error)
        m_error = PredicateError{position, textKey, std::string(foundAt(position))};
    return std::nullopt;
}

std::string_view PredicateLexer::peekWord() {
    return wordAt(position());
}

bool PredicateLexer::take(char sign) {
    if (isAtEnd() || m_text[m_at] != sign)
        return false;
    ++m_at;
    return true;
}

bool PredicateLexer::takeWord(std::string_view word) {
    const bool isThere = isSameWord(peekWord(), word);
    if (isThere)
        skip(word.size());
    return isThere;
}

bool PredicateLexer::takeArgument() {
    constexpr std::string_view kArgument = "%@";
    const bool isThere = m_text.substr(position()).starts_with(kArgument);
    if (isThere)
        skip(kArgument.size());
    return isThere;
}

std::optional<PredicateOperator> PredicateLexer::takeOperator() {
    const std::string_view word = peekWord(), rest = m_text.substr(m_at);
    std::size_t longest = 0;
    PredicateOperator found{};
    for (std::size_t i = 0; i < kOperators.size(); ++i) {
        const std::string_view each = kOperators[i];
        const bool isThere = word.empty() ? rest.starts_with(each) : isSameWord(word, each);
        if (isThere && each.size() > longest) {
            longest = each.size();
            found = static_cast<PredicateOperator>(i);
        }
    }
    if (longest == 0)
        return fail("predicate_error_expectedOperator");
    skip(longest);
    return found;
}

std::optional<ComparisonFlags> PredicateLexer::takeFlags() {
    ComparisonFlags flags;
    if (!take('['))
        return flags;
    const std::size_t start = m_at - 1;
    for (bool ComparisonFlags::*flag :
         {&ComparisonFlags::ignoresCase, &ComparisonFlags::ignoresDiacritics}) {
        const char letter = flag == &ComparisonFlags::ignoresCase ? 'c' : 'd';
        flags.*flag = m_at < m_text.size() && lowered(m_text[m_at]) == letter;
        m_at += flags.*flag ? 1 : 0;
    }
    const bool isEmpty = flags == ComparisonFlags{};
    if (isEmpty || m_at >= m_text.size() || m_text[m_at] != ']')
        return failAt(start, "predicate_error_unknownFlags");
    ++m_at;
    return flags;
}

std::optional<PredicateValue> PredicateLexer::takeValue() {
    if (isAtEnd())
        return fail("predicate_error_expectedValue");
    const char first = m_text[m_at];
    if (first == '"' || first == '\'')
        return takeText(first);
    return takeWord("CAST") ? takeDate() : takeNumber();
}

std::optional<PredicateValue> PredicateLexer::takeText(char quote) {
    const std::size_t start = m_at++;
    std::string value;
    for (; m_at < m_text.size(); ++m_at) {
        const char each = m_text[m_at];
        if (each == quote) {
            ++m_at;
            return value;
        }
        if (each != '\\') {
            value += each;
            continue;
        }
        if (++m_at == m_text.size())
            break;
        const std::size_t escape = kEscapes.find(m_text[m_at]);
        if (escape == std::string_view::npos)
            return failAt(m_at - 1, "predicate_error_unknownEscape");
        value += kEscaped[escape];
    }
    return failAt(start, "predicate_error_openText");
}

std::optional<PredicateValue> PredicateLexer::takeNumber() {
    const std::string_view rest = m_text.substr(m_at);
    double number = 0;
    if (decimalLength(rest) == 0)
        return fail("predicate_error_expectedValue");
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
    const auto length = static_cast<std::size_t>(end - rest.data());
    if (error != std::errc() || (length < rest.size() && isOfWord(rest[length])))
        return fail("predicate_error_expectedValue");
    skip(length);
    return number;
}

/// What stands behind the word CAST. The fraction is exact: a double would lose the last digits.
std::optional<PredicateValue> PredicateLexer::takeDate() {
    constexpr std::size_t kLongest = 40;
    if (!take('('))
        return fail("predicate_error_badDate");
    const std::size_t start = position();
    const std::string_view digits = m_text.substr(start, decimalLength(m_text.substr(start)));
    absl::Duration since;
    if (digits.size() > kLongest || !absl::ParseDuration(std::string(digits) + 's', &since))
        return failAt(start, "predicate_error_badDate");
    skip(digits.size());
    const Date date = archiveEpoch() + since;
    const bool isTyped = take(',') && (take('"') || take('\'')) && takeWord("NSDate") &&
                         (take('"') || take('\'')) && take(')');
    if (!isTyped || isMarker(date))
        return failAt(start, "predicate_error_badDate");
    return date;
}

} // namespace chronomender
