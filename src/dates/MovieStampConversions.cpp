// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieStampConversions.h"

#include "ByteOrder.h"
#include "IsoStamp.h"
#include "MovieStampSyntax.h"
#include "StampConversions.h"

#include <absl/time/civil_time.h>

namespace chronomender {
namespace {

constexpr std::int64_t kUnixSecondsOf1904 = -2082844800;
constexpr std::int64_t kMostMvhdSeconds = 0xFFFFFFFF;
constexpr std::size_t kMvhdLength = 4;
constexpr std::size_t kIsoClockLength = 19; ///< "2024-05-06T07:08:09"
constexpr std::size_t kRiffLength = 26, kRiffTextLength = 24, kRiffDayAt = 8;
constexpr std::size_t kShortYear = 4;

bool isUpper(char c) {
    return c >= 'A' && c <= 'Z';
}
bool isLower(char c) {
    return c >= 'a' && c <= 'z';
}

/// The letter in the case of the one that stands there now.
char inCaseOf(char present, char letter) {
    constexpr int kCaseDistance = 'a' - 'A';
    if (isUpper(present) && isLower(letter))
        return static_cast<char>(letter - kCaseDistance);
    return isLower(present) && isUpper(letter) ? static_cast<char>(letter + kCaseDistance) : letter;
}

std::string_view dayName(const CivilFields &fields) {
    const absl::CivilDay day(fields.year, fields.month, fields.day);
    return kDayNames[static_cast<std::size_t>(absl::GetWeekday(day))];
}

} // namespace

OptionalDate dateFromMVHDData(const Bytes &data) {
    if (data.size() != kMvhdLength)
        return std::nullopt;
    return absl::FromUnixSeconds(kUnixSecondsOf1904 + number32(data, ByteOrder::Motorola));
}

Date correctedDateFromMVHDDate(Date date, const absl::TimeZone &zone) {
    return isMarker(date) ? date
                          : instantFromCivil(civilFromInstant(date, absl::UTCTimeZone()), zone);
}

Date mvhdDateFromCorrectedDate(Date date, const absl::TimeZone &zone) {
    return isMarker(date) ? date
                          : instantFromCivil(civilFromInstant(date, zone), absl::UTCTimeZone());
}

OptionalDate finalDateFromMVHDData(const Bytes &data, MvhdCorrection correction,
                                   const absl::TimeZone &zone) {
    const OptionalDate date = dateFromMVHDData(data);
    return date && correction == MvhdCorrection::On ? correctedDateFromMVHDDate(*date, zone) : date;
}

std::optional<Bytes> mvhdDataFromDate(Date date, MvhdCorrection correction,
                                      const absl::TimeZone &zone) {
    if (isMarker(date))
        return std::nullopt;
    if (correction == MvhdCorrection::On)
        date = mvhdDateFromCorrectedDate(date, zone);
    const std::int64_t seconds = absl::ToUnixSeconds(date) - kUnixSecondsOf1904;
    if (seconds <= 0 || seconds > kMostMvhdSeconds)
        return std::nullopt;
    Bytes data;
    for (int shift = 24; shift >= 0; shift -= 8)
        data.push_back(static_cast<char>(seconds >> shift & 0xFF));
    return data;
}

OptionalDate dateFromMDTATimeStamp(std::string_view stamp, const absl::TimeZone &zone) {
    const auto read = readIsoStamp(stamp);
    if (!read || read->fractionLength > 0)
        return std::nullopt;
    return instantFromIsoStamp(*read, zone);
}

OptionalDate dateIgnoringFromMDTATimeStamp(std::string_view stamp, const absl::TimeZone &zone) {
    return dateFromMDTATimeStamp(stamp.substr(0, kIsoClockLength), zone);
}

std::optional<Bytes> mdtaDataOfLength(std::size_t length, Date date, const absl::TimeZone &zone) {
    const auto form = isoFormOfLength(length);
    return form ? isoStampFromDate(date, zone, *form) : std::nullopt;
}

OptionalDate dateFromRIFFTimeStamp(std::string_view stamp, const absl::TimeZone &zone) {
    const auto fields = civilFromRiffTimeStamp(stamp);
    return fields ? OptionalDate(instantFromCivil(*fields, zone)) : std::nullopt;
}

std::optional<Bytes> riffTimeStampFromDate(Date date, const absl::TimeZone &zone,
                                           std::string_view present) {
    const auto exif = exifDataFromDate(date, zone);
    if (!exif || present.size() != kRiffLength)
        return std::nullopt;
    const CivilFields fields = civilFromInstant(date, zone);
    Bytes text(dayName(fields));
    text.append(1, ' ').append(kMonthNames[fields.month - 1]).append(1, ' ');
    text.append(*exif, kRiffDayAt, 2).append(1, ' ').append(*exif, 11, 8).append(1, ' ');
    text.append(*exif, 0, kShortYear).append(present.substr(kRiffTextLength));
    for (std::size_t i = 0; i < kRiffDayAt; ++i)
        text[i] = inCaseOf(present[i], text[i]);
    if (text[kRiffDayAt] == '0' && present[kRiffDayAt] == ' ')
        text[kRiffDayAt] = ' ';
    return text;
}

} // namespace chronomender
