// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterKeys.h"
#include "FolderAccess.h"
#include "PredicateLexer.h"
#include "PredicateSyntax.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace chronomender {
namespace {

/// Parentheses that only group make no level of the predicate; the printer writes up to two for
/// each level.
constexpr int kDeepestText = 4 * kDeepestPredicate;

/// A predicate on its way up through the grammar.
struct Parsed {
    Predicate predicate;
    int depth = 0;        ///< levels of AND, OR and NOT in it
    bool isGroup = false; ///< it stands in parentheses
};
using MaybeParsed = std::optional<Parsed>;

class Parser {
public:
    Parser(std::string_view text, const std::vector<PredicateValue> &values)
        : m_lexer(text), m_values(values) {}

    std::variant<Predicate, PredicateError> parse() {
        MaybeParsed whole = parseWhole();
        if (whole && !m_lexer.isAtEnd())
            whole = fail("predicate_error_expectedJoin");
        if (whole)
            return std::move(whole->predicate);
        return *m_lexer.error();
    }

private:
    std::nullopt_t fail(const char *textKey) { return m_lexer.fail(textKey); }

    MaybeParsed parseWhole() {
        MaybeParsed parsed = parseJoined(Predicate::Kind::Or);
        if (!parsed || !parsed->isGroup)
            return parsed;
        return join(Predicate::Kind::And, {*std::move(parsed)});
    }

    MaybeParsed parseJoined(Predicate::Kind kind) {
        const bool isOr = kind == Predicate::Kind::Or;
        std::vector<Parsed> operands;
        do {
            MaybeParsed operand = isOr ? parseJoined(Predicate::Kind::And) : parseUnary();
            if (!operand)
                return std::nullopt;
            operands.push_back(*std::move(operand));
        } while (m_lexer.takeWord(isOr ? "OR" : "AND"));
        return operands.size() == 1 ? std::move(operands.front()) : join(kind, std::move(operands));
    }

    MaybeParsed join(Predicate::Kind kind, std::vector<Parsed> operands) {
        Parsed joined;
        joined.predicate.kind = kind;
        for (Parsed &operand : operands) {
            joined.depth = std::max(joined.depth, operand.depth + 1);
            joined.predicate.operands.push_back(std::move(operand.predicate));
        }
        if (joined.depth > kDeepestPredicate)
            return fail("predicate_error_tooDeep");
        return joined;
    }

    MaybeParsed parseUnary() {
        if (m_nesting > kDeepestText)
            return fail("predicate_error_tooDeep");
        ++m_nesting;
        MaybeParsed parsed = m_lexer.takeWord("NOT") ? parseNot()
                             : m_lexer.take('(')     ? parseGroup()
                                                     : parseComparison();
        --m_nesting;
        return parsed;
    }

    MaybeParsed parseNot() {
        MaybeParsed operand = parseUnary();
        if (!operand)
            return std::nullopt;
        return join(Predicate::Kind::Not, {*std::move(operand)});
    }

    MaybeParsed parseGroup() {
        MaybeParsed inside = parseWhole();
        if (inside && !m_lexer.take(')'))
            return fail(m_lexer.isAtEnd() ? "predicate_error_missingParenthesis"
                                          : "predicate_error_expectedJoin");
        if (inside)
            inside->isGroup = true;
        return inside;
    }

    MaybeParsed parseComparison() {
        Parsed parsed;
        parsed.predicate.kind = Predicate::Kind::And;
        if (m_lexer.takeWord(kTrueWord))
            return parsed;
        parsed.predicate.kind = Predicate::Kind::Or;
        if (m_lexer.takeWord(kFalseWord))
            return parsed;
        parsed.predicate.kind = Predicate::Kind::Comparison;
        Comparison &comparison = parsed.predicate.comparison;
        const FilterKey *key = takeKey();
        if (!key || !takeOperator(*key, comparison) || !takeValue(*key, comparison))
            return std::nullopt;
        comparison.key = key->name;
        return parsed;
    }

    const FilterKey *takeKey() {
        const std::string_view word = m_lexer.peekWord();
        const FilterKey *key = findFilterKey(word);
        if (key)
            m_lexer.skip(word.size());
        else
            fail(word.empty() ? "predicate_error_expectedKey" : "predicate_error_unknownKey");
        return key;
    }

    bool takeOperator(const FilterKey &key, Comparison &comparison) {
        const std::size_t start = m_lexer.position();
        const auto found = m_lexer.takeOperator();
        const auto flags = found ? m_lexer.takeFlags() : std::nullopt;
        if (!flags)
            return false;
        comparison.comparison = *found;
        comparison.flags = *flags;
        const bool suits =
            key.kind == FilterValueKind::Text ||
            (key.kind == FilterValueKind::State ? *found <= PredicateOperator::NotEqual
                                                : !isTextOperator(*found));
        if (!suits)
            m_lexer.failAt(start, "predicate_error_operatorNotForKey");
        return suits;
    }

    bool takeValue(const FilterKey &key, Comparison &comparison) {
        const std::size_t start = m_lexer.position();
        auto value = m_lexer.takeArgument() ? nextArgument() : m_lexer.takeValue();
        if (!value)
            return false;
        comparison.value = *std::move(value);
        const bool suits = isValueFor(key.kind, comparison.value);
        if (!suits)
            m_lexer.failAt(start, key.kind == FilterValueKind::Instant
                                      ? "predicate_error_badDate"
                                      : "predicate_error_valueNotForKey");
        return suits;
    }

    std::optional<PredicateValue> nextArgument() {
        if (m_nextValue == m_values.size())
            return fail("predicate_error_expectedValue");
        return m_values[m_nextValue++];
    }

    static bool isValueFor(FilterValueKind kind, const PredicateValue &value) {
        const auto *number = std::get_if<double>(&value);
        const auto *text = std::get_if<std::string>(&value);
        switch (kind) {
        case FilterValueKind::Text:
            return text;
        case FilterValueKind::Number:
            return number;
        case FilterValueKind::State:
            return number && *number >= 0 && *number <= kLastFilterState &&
                   std::trunc(*number) == *number;
        case FilterValueKind::Instant:
            return text ? readFilterDate(*text).has_value() : !number;
        }
        return false;
    }

    PredicateLexer m_lexer;
    const std::vector<PredicateValue> &m_values;
    std::size_t m_nextValue = 0;
    int m_nesting = 0;
};

} // namespace

std::variant<Predicate, PredicateError>
predicateWithFormat(std::string_view format, const std::vector<PredicateValue> &values) {
    if (format.size() > kLongestPredicate)
        return PredicateError{kLongestPredicate, "predicate_error_tooLong", {}};
    if (!isValidUtf8(format))
        return PredicateError{0, "predicate_error_notUtf8", {}};
    return Parser(format, values).parse();
}

std::variant<Predicate, PredicateError> parsePredicate(std::string_view text) {
    return predicateWithFormat(text, {});
}

} // namespace chronomender
