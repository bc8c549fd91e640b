// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateModifications.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace chronomender {
namespace {

constexpr absl::Duration day = absl::Hours(24);

/// The number at the start of the text; 0 without one, and for numbers no shift could have.
template<class Number>
Number leadingNumber(std::string_view text) {
    constexpr Number most = 1'000'000'000;
    text.remove_prefix(std::min(text.find_first_not_of(" +"), text.size()));
    Number number{};
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return result.ec == std::errc() && number > -most && number < most ? number : Number{};
}

/// Takes as many whole units as fit out of `rest` and writes their number.
std::string takeUnits(absl::Duration &rest, absl::Duration unit) {
    return std::to_string(absl::IDivDuration(rest, unit, &rest));
}

} // namespace

DateModificationFields fieldsFromTimeInterval(absl::Duration shift, bool isDirectionNegative) {
    const bool isNegative =
        shift < absl::ZeroDuration() || (shift == absl::ZeroDuration() && isDirectionNegative);
    absl::Duration rest = absl::AbsDuration(shift);
    DateModificationFields fields;
    fields.dmDirection = isNegative ? "-" : "+";
    fields.dmDays = takeUnits(rest, day);
    fields.dmHours = takeUnits(rest, absl::Hours(1));
    fields.dmMinutes = takeUnits(rest, absl::Minutes(1));
    fields.dmSeconds = takeUnits(rest, absl::Seconds(1));
    return fields;
}

absl::Duration timeIntervalFromFields(const DateModificationFields &fields) {
    const absl::Duration total = day * leadingNumber<double>(fields.dmDays) +
                                 absl::Hours(leadingNumber<std::int64_t>(fields.dmHours)) +
                                 absl::Minutes(leadingNumber<std::int64_t>(fields.dmMinutes)) +
                                 absl::Seconds(leadingNumber<std::int64_t>(fields.dmSeconds));
    return fields.dmDirection == "-" ? -total : total;
}

DateModificationFields keepingOwnParts(const MySingleFolder &folder,
                                       const CompoundFields &changes) {
    const DateModificationFields &own = folder.sfDateModifications;
    return {changes.dmDirection.value_or(own.dmDirection), changes.dmDays.value_or(own.dmDays),
            changes.dmHours.value_or(own.dmHours), changes.dmMinutes.value_or(own.dmMinutes),
            changes.dmSeconds.value_or(own.dmSeconds)};
}

} // namespace chronomender
