// SPDX-License-Identifier: GPL-3.0-or-later
#include "ShiftSpec.h"

#include "StampConversions.h"
#include "StampSyntax.h"

#include <cstdint>
#include <string>

namespace chronomender {
namespace {

// Far beyond the bounds of all dates, and far below what a duration can hold.
constexpr std::size_t mostDigits = 12;

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Takes text from the left as long as it fits; each `take…` answers none and takes nothing where
/// it does not.
class Cursor {
public:
    explicit Cursor(std::string_view text) : m_rest(text) {}

    bool isAtEnd() const { return m_rest.empty(); }
    std::string_view rest() const { return m_rest; }
    bool take(char wanted) {
        if (m_rest.empty() || m_rest.front() != wanted)
            return false;
        m_rest.remove_prefix(1);
        return true;
    }
    std::optional<std::int64_t> takeNumber(std::size_t fewest = 1, std::size_t most = mostDigits) {
        std::size_t count = 0;
        std::int64_t value = 0;
        while (count < m_rest.size() && isDigit(m_rest[count])) {
            if (++count > most)
                return std::nullopt;
            value = value * 10 + (m_rest[count - 1] - '0');
        }
        if (count < fewest)
            return std::nullopt;
        m_rest.remove_prefix(count);
        return value;
    }
    std::optional<std::int64_t> takeSixtieth() {
        const auto value = takeNumber(2, 2);
        return value && *value < 60 ? value : std::nullopt;
    }

private:
    std::string_view m_rest;
};

absl::Duration clock(std::int64_t hours, std::int64_t minutes, std::int64_t seconds) {
    return absl::Hours(hours) + absl::Minutes(minutes) + absl::Seconds(seconds);
}

enum class SecondsPart { Optional, Required };

/// H:MM[:SS] up to the end of the text, the hours being read already.
std::optional<absl::Duration> parseClock(std::int64_t hours, Cursor cursor, SecondsPart part) {
    const auto minutes = cursor.take(':') ? cursor.takeSixtieth() : std::nullopt;
    if (!minutes)
        return std::nullopt;
    if (cursor.isAtEnd() && part == SecondsPart::Optional)
        return clock(hours, *minutes, 0);
    const auto seconds = cursor.take(':') ? cursor.takeSixtieth() : std::nullopt;
    return seconds && cursor.isAtEnd() ? std::optional(clock(hours, *minutes, *seconds))
                                       : std::nullopt;
}

/// The digits behind a decimal point, exact to the nanosecond.
std::optional<absl::Duration> parseFraction(std::string_view digits) {
    Cursor cursor(digits);
    const auto value = cursor.takeNumber(1, 9);
    if (!value || !cursor.isAtEnd())
        return std::nullopt;
    std::int64_t nanoseconds = *value;
    for (std::size_t i = digits.size(); i < 9; ++i)
        nanoseconds *= 10;
    return absl::Nanoseconds(nanoseconds);
}

std::optional<absl::Duration> parseUnsignedShift(Cursor cursor) {
    auto number = cursor.takeNumber();
    if (!number)
        return std::nullopt;
    if (cursor.isAtEnd())
        return absl::Seconds(*number);
    if (cursor.take('.')) {
        const auto fraction = parseFraction(cursor.rest());
        return fraction ? std::optional(absl::Seconds(*number) + *fraction) : std::nullopt;
    }
    absl::Duration days = absl::ZeroDuration();
    if (cursor.take('d')) {
        days = absl::Hours(24 * *number);
        if (cursor.isAtEnd())
            return days;
        number = cursor.takeNumber();
        if (!number)
            return std::nullopt;
    }
    const auto time = parseClock(*number, cursor, SecondsPart::Optional);
    return time ? std::optional(days + *time) : std::nullopt;
}

std::optional<absl::CivilSecond> takeDate(Cursor &cursor) {
    const auto year = cursor.takeNumber(4, 4);
    const auto month = year && cursor.take('-') ? cursor.takeNumber(2, 2) : std::nullopt;
    const auto day = month && cursor.take('-') ? cursor.takeNumber(2, 2) : std::nullopt;
    const auto hour = day && cursor.take('T') ? cursor.takeNumber(2, 2) : std::nullopt;
    const auto minute = hour && cursor.take(':') ? cursor.takeSixtieth() : std::nullopt;
    std::optional<std::int64_t> second = 0;
    if (minute && cursor.take(':'))
        second = cursor.takeSixtieth();
    if (!minute || !second || *hour > 23 || *year < 1)
        return std::nullopt;
    const absl::CivilSecond date(*year, static_cast<int>(*month), static_cast<int>(*day),
                                 static_cast<int>(*hour), static_cast<int>(*minute),
                                 static_cast<int>(*second));
    // The class carries a 31 April over into May.
    return date.month() == *month && date.day() == *day ? std::optional(date) : std::nullopt;
}

/// "Z" or "±HH:MM", but not the begin of a step such as "+02:00:00".
std::optional<absl::Duration> takeOffset(Cursor &cursor) {
    if (cursor.take('Z'))
        return absl::ZeroDuration();
    constexpr std::size_t length = 6;
    const std::string_view rest = cursor.rest();
    if (rest.size() > length && rest[length] == ':')
        return std::nullopt;
    const auto seconds = secondsFromExifOffset(rest.substr(0, length));
    if (!seconds)
        return std::nullopt;
    cursor = Cursor(rest.substr(length));
    return absl::Seconds(*seconds);
}

std::optional<absl::Duration> parseStep(std::string_view text) {
    Cursor cursor(text);
    const auto number = cursor.takeNumber();
    if (!number)
        return std::nullopt;
    return cursor.isAtEnd() ? std::optional(absl::Seconds(*number))
                            : parseClock(*number, cursor, SecondsPart::Required);
}

} // namespace

std::optional<absl::Duration> parseShift(std::string_view text) {
    Cursor cursor(text);
    const bool isNegative = cursor.take('-');
    if (!isNegative)
        cursor.take('+');
    const auto size = parseUnsignedShift(cursor);
    return size && isNegative ? std::optional(-*size) : size;
}

std::optional<EmptyTagsSpec> parseEmptyTags(std::string_view text) {
    using EmptyTags = PerFolderImportOptions::EmptyTags;
    EmptyTagsSpec spec;
    if (text == "leave" || text == "file") {
        spec.choice = text == "leave" ? EmptyTags::LeaveAlone : EmptyTags::FileDate;
        return spec;
    }
    spec.choice = EmptyTags::FixedDate;
    Cursor cursor(text);
    const auto date = takeDate(cursor);
    if (!date)
        return std::nullopt;
    spec.date = *date;
    spec.offset = takeOffset(cursor);
    if (cursor.isAtEnd())
        return spec;
    const auto step = cursor.take('+') ? parseStep(cursor.rest()) : std::nullopt;
    if (!step)
        return std::nullopt;
    spec.step = *step;
    return spec;
}

PerFolderImportOptions importOptions(const EmptyTagsSpec &spec, const absl::TimeZone &zone) {
    PerFolderImportOptions options;
    options.withEmptyExifFixDate = spec.choice;
    options.step = spec.step;
    if (spec.choice != PerFolderImportOptions::EmptyTags::FixedDate)
        return options;
    if (spec.offset) {
        options.prefFixDateDate = absl::FromCivil(spec.date, absl::UTCTimeZone()) - *spec.offset;
        return options;
    }
    const absl::CivilSecond &date = spec.date;
    options.prefFixDateDate =
        instantFromCivil({static_cast<int>(date.year()), date.month(), date.day(), date.hour(),
                          date.minute(), date.second()},
                         zone);
    return options;
}

} // namespace chronomender
