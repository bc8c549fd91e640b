// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"
#include "StampSyntax.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace chronomender {

// Dates in the written form of ISO 8601, as movies and XMP keep them: "2024-05-06T07:08:09+02:00".

/// How a stamp says its zone.
enum class IsoZone : std::uint8_t {
    None,     ///< not at all: a wall clock
    Letter,   ///< "Z": UTC
    Basic,    ///< "+0200"; UTC is "+0000"
    Extended, ///< "+02:00"; UTC is "+00:00"
};

/// The form of a stamp. Without a fraction each of the eight forms has a length of its own.
struct IsoForm {
    bool hasSeconds = true;
    IsoZone zone = IsoZone::None;

    constexpr std::size_t length() const {
        constexpr std::size_t kZoneLengths[]{0, 1, 5, 6};
        return (hasSeconds ? 19U : 16U) + kZoneLengths[static_cast<std::size_t>(zone)];
    }
    bool operator==(const IsoForm &) const = default;
};

/// What a stamp says.
struct IsoStamp {
    CivilFields fields;                             ///< second 0 in a form without seconds
    absl::Duration fraction = absl::ZeroDuration(); ///< of a second, from 0 to below 1
    std::optional<std::int32_t> secondsEastOfUtc;   ///< none for a wall clock
    IsoForm form;
    std::size_t fractionLength = 0; ///< characters of ".123"; 0 without
};

/// Reads a stamp of any of the forms by position: digits only, ranges checked, nothing behind it.
/// Seconds may have a fraction. None for anything else and for zones beyond ±18:00.
std::optional<IsoStamp> readIsoStamp(std::string_view text);

/// The instant of a stamp; `zone` is asked only where the stamp says none.
Date instantFromIsoStamp(const IsoStamp &stamp, const absl::TimeZone &zone);

/// Writes an instant as the wall clock of `zone`, cut to the form's precision. A form with the
/// letter is UTC whatever the zone. None for markers, outside the years 1 to 9999, and where the
/// form names a zone whose offset at that date has seconds or lies beyond ±18:00.
std::optional<std::string> isoStampFromDate(Date date, const absl::TimeZone &zone, IsoForm form);

/// The form without a fraction of a stamp that long; none for other lengths.
std::optional<IsoForm> isoFormOfLength(std::size_t length);

} // namespace chronomender
