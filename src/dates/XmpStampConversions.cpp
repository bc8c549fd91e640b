// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpStampConversions.h"

#include "IsoStamp.h"
#include "XmpValues.h"

namespace chronomender {
namespace {

IsoForm formOf(bool isLocalStamp, unsigned subtype) {
    const IsoZone zone = subtype & kXmpZoneWithoutColon ? IsoZone::Basic : IsoZone::Extended;
    return {!(subtype & kXmpWithoutSeconds), isLocalStamp ? IsoZone::None : zone};
}

/// A stamp without its fraction, which stays in the file as it is. A wall clock's zone was refused
/// by the reader if there is one.
std::optional<IsoStamp> wholeSeconds(const XmpStamp *stamp) {
    if (!stamp || stamp->type == XmpStampType::Invalid)
        return std::nullopt;
    const std::string_view text = stamp->value.data;
    const std::string_view clock = text.substr(0, xmpClockLength(stamp->subtype));
    const std::size_t zoneLength = stamp->type == XmpStampType::Local ? 0
                                   : stamp->type == XmpStampType::Utc
                                       ? 1
                                       : xmpZoneLength(stamp->subtype);
    if (text.size() < clock.size() + zoneLength)
        return std::nullopt;
    return readIsoStamp(std::string(clock).append(text.substr(text.size() - zoneLength)));
}

} // namespace

OptionalDate xmpDateFromStampInfos(const XmpStamp *stamp, const absl::TimeZone &zone) {
    const auto read = wholeSeconds(stamp);
    return read ? OptionalDate(instantFromIsoStamp(*read, zone)) : std::nullopt;
}

std::optional<CivilFields> wallClockOfXmpStamp(const XmpStamp *stamp) {
    const auto read = wholeSeconds(stamp);
    return read ? std::optional(read->fields) : std::nullopt;
}

std::optional<std::int32_t> secondsFromXmpStamp(const XmpStamp *stamp) {
    const auto read = wholeSeconds(stamp);
    return read ? read->secondsEastOfUtc : std::nullopt;
}

std::optional<std::string> xmpTimeStampFromDate(Date date, const absl::TimeZone &zone,
                                                bool isLocalStamp, unsigned subtype) {
    return isoStampFromDate(date, zone, formOf(isLocalStamp, subtype));
}

OptionalDate dateFromXmpTimeStamp(std::string_view text, const absl::TimeZone &zone,
                                  bool isLocalStamp, unsigned subtype) {
    const auto stamp = readIsoStamp(text);
    const bool isOfForm =
        stamp && stamp->fractionLength == 0 && stamp->form == formOf(isLocalStamp, subtype);
    return isOfForm ? OptionalDate(instantFromIsoStamp(*stamp, zone)) : std::nullopt;
}

} // namespace chronomender
