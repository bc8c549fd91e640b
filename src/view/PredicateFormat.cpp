// SPDX-License-Identifier: GPL-3.0-or-later
#include "PredicateSyntax.h"

#include <array>
#include <charconv>

namespace chronomender {
namespace {

std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char each : text) {
        const std::size_t escaped = kEscaped.find(each);
        if (each == '\'' || escaped == std::string_view::npos)
            result += each;
        else
            (result += '\\') += kEscapes[escaped];
    }
    return result += '"';
}

std::string numberText(double number) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.begin(), buffer.end(), number).ptr;
    return {buffer.begin(), end};
}

/// Exact, in decimals: "736000000.500000".
std::string archivedSeconds(Date date) {
    constexpr std::size_t kDigits = 11, kFewest = 6; // quarters of a nanosecond, and what is usual
    constexpr std::int64_t kUnitsInQuarter = 25;
    const absl::Duration since = date - archiveEpoch();
    absl::Duration rest;
    const std::int64_t whole =
        absl::IDivDuration(absl::AbsDuration(since), absl::Seconds(1), &rest);
    const std::int64_t quarters = absl::IDivDuration(rest, absl::Nanoseconds(1) / 4, &rest);
    std::string fraction = std::to_string(quarters * kUnitsInQuarter);
    fraction.insert(0, kDigits - fraction.size(), '0');
    while (fraction.size() > kFewest && fraction.back() == '0')
        fraction.pop_back();
    return (since < absl::ZeroDuration() ? "-" : "") + std::to_string(whole) + '.' + fraction;
}

std::string valueText(const PredicateValue &value) {
    if (const auto *text = std::get_if<std::string>(&value))
        return quoted(*text);
    if (const auto *number = std::get_if<double>(&value))
        return numberText(*number);
    return "CAST(" + archivedSeconds(std::get<Date>(value)) + ", \"NSDate\")";
}

std::string flagsText(ComparisonFlags flags) {
    constexpr std::string_view kTexts[]{"", "[c]", "[d]", "[cd]"};
    return std::string(kTexts[(flags.ignoresCase ? 1 : 0) + (flags.ignoresDiacritics ? 2 : 0)]);
}

std::string joined(const std::vector<Predicate> &operands, std::string_view word) {
    std::string result;
    for (const Predicate &operand : operands) {
        if (!result.empty())
            result += word;
        result += '(' + predicateFormat(operand) + ')';
    }
    return result;
}

} // namespace

std::string_view operatorText(PredicateOperator comparison) {
    return kOperators[static_cast<std::size_t>(comparison)];
}

std::string predicateFormat(const Predicate &predicate) {
    const std::vector<Predicate> &operands = predicate.operands;
    switch (predicate.kind) {
    case Predicate::Kind::Comparison: {
        const Comparison &own = predicate.comparison;
        return own.key + ' ' + std::string(operatorText(own.comparison)) + flagsText(own.flags) +
               ' ' + valueText(own.value);
    }
    case Predicate::Kind::And:
        return operands.empty() ? std::string(kTrueWord) : joined(operands, " AND ");
    case Predicate::Kind::Or:
        return operands.empty() ? std::string(kFalseWord) : joined(operands, " OR ");
    case Predicate::Kind::Not:
        return "NOT " + joined(operands, " AND ");
    }
    return {};
}

} // namespace chronomender
