// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"
#include "LocatedBytes.h"

#include <optional>
#include <string_view>

namespace chronomender {

// The dates inside movies as instants, and back. Pure functions, safe on all threads; zones are
// always given.

/// Header times are UTC by the standard (ISO/IEC 14496-12, 8.2.2), yet many cameras put their wall
/// clock there. With the correction such a time is read and written as local time of the zone.
enum class MvhdCorrection : bool { Off, On };

/// 4 bytes, big-endian seconds since 1904 in UTC; none for any other length.
OptionalDate dateFromMVHDData(const Bytes &data);
/// The instant at which a clock of the zone showed what the date shows in UTC; and the reverse.
Date correctedDateFromMVHDDate(Date date, const absl::TimeZone &zone);
Date mvhdDateFromCorrectedDate(Date date, const absl::TimeZone &zone);
OptionalDate finalDateFromMVHDData(const Bytes &data, MvhdCorrection correction,
                                   const absl::TimeZone &zone);
/// None for markers and for what 32 bits cannot say: up to the beginning of 1904, whose number 0
/// means an empty time, and after 2040-02-06 06:28:15 UTC.
std::optional<Bytes> mvhdDataFromDate(Date date, MvhdCorrection correction,
                                      const absl::TimeZone &zone);

/// A stamp of the metadata, one of the eight forms without a fraction; `zone` is asked where the
/// stamp says none. None for other texts.
OptionalDate dateFromMDTATimeStamp(std::string_view stamp, const absl::TimeZone &zone);
/// The stamp's wall clock read in the zone, whatever zone it says itself.
OptionalDate dateIgnoringFromMDTATimeStamp(std::string_view stamp, const absl::TimeZone &zone);
/// A stamp of exactly that length; one of 20 characters is UTC whatever the zone. None where no
/// form has that length, or where it cannot say the date.
std::optional<Bytes> mdtaDataOfLength(std::size_t length, Date date, const absl::TimeZone &zone);

/// "Thu Jan 20 08:16:08 2022" and what follows it, read in the zone; none for other texts.
OptionalDate dateFromRIFFTimeStamp(std::string_view stamp, const absl::TimeZone &zone);
/// 26 bytes in the manner of those at present: the case of the names' letters, a blank before a
/// short day, and all that stands behind the year are kept. None for markers, years of other than
/// four digits, and a present value of another length.
std::optional<Bytes> riffTimeStampFromDate(Date date, const absl::TimeZone &zone,
                                           std::string_view present);

} // namespace chronomender
