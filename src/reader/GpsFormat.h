// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

namespace chronomender {

// Tags and value lengths of the GPS directory (CIPA DC-008, 4.6.6).

inline constexpr std::uint16_t kGpsTagLatitudeRef = 1;
inline constexpr std::uint16_t kGpsTagLatitude = 2;
inline constexpr std::uint16_t kGpsTagLongitudeRef = 3;
inline constexpr std::uint16_t kGpsTagLongitude = 4;
inline constexpr std::uint16_t kGpsTagAltitudeRef = 5;
inline constexpr std::uint16_t kGpsTagAltitude = 6;
inline constexpr std::uint16_t kGpsTagTimeStamp = 7;
inline constexpr std::uint16_t kGpsTagDateStamp = 29;
inline constexpr std::uint16_t kGpsTagPositioningError = 31;

inline constexpr std::size_t kGpsRefLength = 2; ///< a letter and a zero byte
inline constexpr std::size_t kGpsAltitudeRefLength = 1;
inline constexpr std::size_t kGpsRationalLength = 8;
inline constexpr std::size_t kGpsTripleLength = 24; ///< three rationals
inline constexpr std::size_t kGpsDateLength = 11;   ///< "2024:05:06" and a zero byte

} // namespace chronomender
