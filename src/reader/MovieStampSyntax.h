// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "StampSyntax.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace chronomender {

/// The form of "com.apple.quicktime.creationdate" that can be written in place:
/// "2024-05-06T07:08:09Z", "…+0200" or "…+02:00". The numbers are not judged.
bool isValidQtCreationDateData(std::string_view data);

/// Looks like an ISO 6709 text: begins with a sign, ends with a slash or a digit.
bool isValidQtLocationData(std::string_view data);

/// Where the numbers of an ISO 6709 text of decimal degrees stand, such as "+48.1234+011.5678/".
struct QTMovLocDataMeasure {
    std::size_t longitudeStart = 0; ///< the second sign; the latitude begins the text
    std::size_t longitudeEnd = 0;   ///< behind the longitude: a sign, the slash, or the end
    std::size_t latitudeDot = 0, longitudeDot = 0;

    // How many digits each number has in front of its dot and behind it.
    std::size_t int1() const { return latitudeDot - 1; }
    std::size_t frac1() const { return longitudeStart - latitudeDot - 1; }
    std::size_t int2() const { return longitudeDot - longitudeStart - 1; }
    std::size_t frac2() const { return longitudeEnd - longitudeDot - 1; }
    /// Two and three digits of whole degrees: a new place can be written in the same form.
    bool isEditable() const { return int1() == 2 && int2() == 3; }

    bool operator==(const QTMovLocDataMeasure &) const = default;
};

/// Measures a text of two signed numbers, each with digits around a dot; none for other forms.
std::optional<QTMovLocDataMeasure> measureData(std::string_view text);

/// Reads "Thu Jan 20 08:16:08 2022" by position, in any case, with a blank or a zero before a short
/// day; the day's name is not looked at. None for anything else.
std::optional<CivilFields> civilFromRiffTimeStamp(std::string_view text);

/// The English names that such a date is written with.
inline constexpr std::string_view kDayNames[]{"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
inline constexpr std::string_view kMonthNames[]{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

} // namespace chronomender
