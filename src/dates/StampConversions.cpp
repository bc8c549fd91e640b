// SPDX-License-Identifier: GPL-3.0-or-later
#include "StampConversions.h"

#include <array>

namespace chronomender {
namespace {

constexpr std::size_t stampLength = 19; ///< "yyyy:MM:dd HH:mm:ss"
constexpr std::size_t separatorPosition = 10;
constexpr std::int32_t longestZoneOffset = 18 * 3600;

using StampCharacters = std::array<char, stampLength>;

/// Writes `value` with exactly `digits` digits.
void putNumber(char *place, int value, int digits) {
    for (int position = digits - 1; position >= 0; --position, value /= 10)
        place[position] = static_cast<char>('0' + value % 10);
}

bool hasWritableYear(const absl::CivilSecond &civil) {
    return civil.year() >= 1 && civil.year() <= 9999;
}

/// Written by hand: a save builds tens of thousands of stamps, and general formatting is slow.
StampCharacters stampCharacters(const absl::CivilSecond &civil) {
    StampCharacters stamp{'0', '0', '0', '0', ':', '0', '0', ':', '0', '0',
                          ' ', '0', '0', ':', '0', '0', ':', '0', '0'};
    putNumber(&stamp[0], static_cast<int>(civil.year()), 4);
    putNumber(&stamp[5], civil.month(), 2);
    putNumber(&stamp[8], civil.day(), 2);
    putNumber(&stamp[11], civil.hour(), 2);
    putNumber(&stamp[14], civil.minute(), 2);
    putNumber(&stamp[17], civil.second(), 2);
    return stamp;
}

Bytes zeroTerminated(const char *characters, std::size_t length) {
    Bytes bytes;
    bytes.reserve(length + 1);
    bytes.append(characters, length).push_back('\0');
    return bytes;
}

std::optional<absl::TimeZone::CivilInfo> writableCivil(Date date, const absl::TimeZone &zone) {
    if (isMarker(date))
        return std::nullopt;
    const absl::TimeZone::CivilInfo info = zone.At(date);
    return hasWritableYear(info.cs) ? std::optional(info) : std::nullopt;
}

absl::CivilSecond civilSecond(const CivilFields &fields) {
    return absl::CivilSecond(fields.year, fields.month, fields.day, fields.hour, fields.minute,
                             fields.second);
}

/// The instant of a wall clock that runs a fixed time ahead of UTC.
Date instantAtOffset(const CivilFields &fields, std::int32_t secondsEastOfUtc) {
    const absl::CivilSecond epoch(1970, 1, 1);
    return absl::FromUnixSeconds(civilSecond(fields) - epoch - secondsEastOfUtc);
}

Date dateFromFields(const std::optional<CivilFields> &fields,
                    const std::optional<std::int32_t> &secondsEastOfUtc,
                    const absl::TimeZone &zone) {
    if (!fields)
        return InfinitePast();
    return secondsEastOfUtc ? instantAtOffset(*fields, *secondsEastOfUtc)
                            : instantFromCivil(*fields, zone);
}

} // namespace

absl::TimeZone::TimeInfo meaningsOfCivil(const CivilFields &fields, const absl::TimeZone &zone) {
    return zone.At(civilSecond(fields));
}

Date instantFromCivil(const CivilFields &fields, const absl::TimeZone &zone) {
    const absl::TimeZone::TimeInfo info = meaningsOfCivil(fields, zone);
    return info.kind == absl::TimeZone::TimeInfo::SKIPPED ? info.pre : info.post;
}

CivilFields civilFromInstant(Date date, const absl::TimeZone &zone) {
    const absl::CivilSecond civil = zone.At(date).cs;
    return {static_cast<int>(civil.year()),
            civil.month(),
            civil.day(),
            civil.hour(),
            civil.minute(),
            civil.second()};
}

Date dateFromEXIFTimeStamp(std::string_view stamp, const absl::TimeZone &zone) {
    return dateFromFields(civilFromExifTimeStamp(stamp), std::nullopt, zone);
}

Date dateFromEXIFTimeStampAndOffset(std::string_view stamp,
                                    const std::optional<std::string> &offset,
                                    const absl::TimeZone &zone) {
    const auto seconds = offset ? secondsFromExifOffset(*offset) : std::nullopt;
    return dateFromFields(civilFromExifTimeStamp(stamp), seconds, zone);
}

OptionalDate dateFromExifData(const Bytes &stamp, const Bytes *offset, const absl::TimeZone &zone) {
    const auto fields = civilFromExifData(stamp);
    if (!fields && !exifTimeStampFromData(stamp))
        return std::nullopt;
    const auto zoneStamp = offset ? exifOffsetFromData(*offset) : std::nullopt;
    return dateFromFields(fields, zoneStamp ? secondsFromExifOffset(*zoneStamp) : std::nullopt,
                          zone);
}

std::optional<Bytes> exifDataFromDate(Date date, const absl::TimeZone &zone) {
    const auto civil = writableCivil(date, zone);
    if (!civil)
        return std::nullopt;
    return zeroTerminated(stampCharacters(civil->cs).data(), stampLength);
}

std::optional<Bytes> exifOffsetDataFromSeconds(std::int32_t secondsEastOfUtc) {
    if (secondsEastOfUtc % 60 != 0 || std::abs(secondsEastOfUtc) > longestZoneOffset)
        return std::nullopt;
    const int minutes = std::abs(secondsEastOfUtc) / 60;
    std::array<char, 6> stamp{secondsEastOfUtc < 0 ? '-' : '+', '0', '0', ':', '0', '0'};
    putNumber(&stamp[1], minutes / 60, 2);
    putNumber(&stamp[4], minutes % 60, 2);
    return zeroTerminated(stamp.data(), stamp.size());
}

std::optional<ExifWithOffset> exifWithOffsetDatasFromDate(Date date, const absl::TimeZone &zone) {
    const auto civil = writableCivil(date, zone);
    auto offset = civil ? exifOffsetDataFromSeconds(civil->offset) : std::nullopt;
    if (!offset)
        return std::nullopt;
    return ExifWithOffset{zeroTerminated(stampCharacters(civil->cs).data(), stampLength),
                          *std::move(offset)};
}

Bytes keepingSeparator(Bytes built, const Bytes &present) {
    if (built.size() > separatorPosition && present.size() > separatorPosition &&
        present[separatorPosition] == ':')
        built[separatorPosition] = ':';
    return built;
}

std::string gpsTimeStampFromDate(Date date) {
    const auto civil = writableCivil(date, absl::UTCTimeZone());
    if (!civil)
        return {};
    const StampCharacters stamp = stampCharacters(civil->cs);
    return std::string(stamp.data(), stamp.size());
}

OptionalDate dateFromGpsTimeStamp(std::string_view stamp) {
    const auto fields = civilFromExifTimeStamp(stamp);
    if (!fields)
        return std::nullopt;
    return instantAtOffset(*fields, 0);
}

} // namespace chronomender
