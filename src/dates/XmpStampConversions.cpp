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

/// Fractions stay in the file as they are, so a date never has them.
OptionalDate wholeSeconds(const std::optional<IsoStamp> &read, const absl::TimeZone &zone) {
    if (!read)
        return std::nullopt;
    IsoStamp stamp = *read;
    stamp.fraction = absl::ZeroDuration();
    return instantFromIsoStamp(stamp, zone);
}

} // namespace

OptionalDate xmpDateFromStampInfos(const XmpStamp *stamp, const absl::TimeZone &zone) {
    if (!stamp || stamp->type == XmpStampType::Invalid)
        return std::nullopt;
    const std::string_view text = stamp->value.data;
    const std::string_view clock = text.substr(0, xmpClockLength(stamp->subtype));
    if (stamp->type == XmpStampType::Local)
        return wholeSeconds(readIsoStamp(clock), zone);
    const std::size_t zoneLength =
        stamp->type == XmpStampType::Utc ? 1 : xmpZoneLength(stamp->subtype);
    if (text.size() < clock.size() + zoneLength)
        return std::nullopt;
    return wholeSeconds(
        readIsoStamp(std::string(clock).append(text.substr(text.size() - zoneLength))), zone);
}

std::optional<std::string> xmpTimeStampFromDate(Date date, const absl::TimeZone &zone,
                                                bool isLocalStamp, unsigned subtype) {
    return isoStampFromDate(date, zone, formOf(isLocalStamp, subtype));
}

OptionalDate dateFromXmpTimeStamp(std::string_view text, const absl::TimeZone &zone,
                                  bool isLocalStamp, unsigned subtype) {
    const auto stamp = readIsoStamp(text);
    return stamp && stamp->form == formOf(isLocalStamp, subtype) ? wholeSeconds(stamp, zone)
                                                                 : std::nullopt;
}

} // namespace chronomender
