// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpRewrite.h"

#include "IsoStamp.h"
#include "StampConversions.h"
#include "XmpStampConversions.h"
#include "XmpValues.h"

#include <array>

namespace chronomender {
namespace {

struct ShapeMark {
    std::size_t position;
    char character;
};
constexpr std::array kShapeMarks{ShapeMark{4, '-'}, ShapeMark{7, '-'}, ShapeMark{10, 'T'},
                                 ShapeMark{13, ':'}, ShapeMark{16, ':'}};

/// The last mark stands in front of the seconds.
bool seemsValidXMPString(std::string_view text, unsigned subtype) {
    return text.size() >= xmpClockLength(subtype) &&
           std::ranges::all_of(kShapeMarks, [&](const ShapeMark &mark) {
               return mark.position >= xmpClockLength(subtype) ||
                      text[mark.position] == mark.character;
           });
}

/// The zone whose wall clock a stamp of this type tells.
const absl::TimeZone &clockZone(const XmpStamp &stamp, const absl::TimeZone &zone) {
    static const absl::TimeZone utc = absl::UTCTimeZone();
    return stamp.type == XmpStampType::Utc ? utc : zone;
}

/// `date` as far as the form can say it.
Date inPrecision(Date date, const absl::TimeZone &zone, unsigned subtype) {
    const Date whole = cleanDate(date).value_or(date);
    return subtype & kXmpWithoutSeconds ? whole - absl::Seconds(zone.At(whole).cs.second()) : whole;
}

/// The present offset text where it tells the wanted offset already ("-00:00" is "+00:00").
std::string offsetText(const XmpStamp &stamp, std::string_view built) {
    const std::string_view present =
        std::string_view(stamp.value.data).substr(stamp.value.data.size() - built.size());
    const auto after = readIsoStamp("2000-01-01T00:00" + std::string(built));
    const bool isSaidAlready = after && secondsFromXmpStamp(&stamp) == after->secondsEastOfUtc;
    return std::string(isSaidAlready ? present : built);
}

/// The whole text of the stamp once it tells `date`, with seconds if `subtype` has them.
std::optional<std::string> textTelling(const XmpStamp &stamp, Date date, const absl::TimeZone &zone,
                                       unsigned subtype) {
    const bool isZoned = stamp.type == XmpStampType::Zoned;
    const auto built = xmpTimeStampFromDate(date, clockZone(stamp, zone), !isZoned, subtype);
    const std::string_view present = stamp.value.data;
    const std::size_t clock = xmpClockLength(stamp.subtype), offset = xmpOffsetLength(stamp);
    const std::size_t newClock = xmpClockLength(subtype);
    if (!built || built->size() < newClock + offset || present.size() < clock + offset)
        return std::nullopt;
    std::string text = built->substr(0, newClock);
    text.append(present.substr(clock, present.size() - clock - offset));
    if (isZoned)
        text += offsetText(stamp, built->substr(built->size() - offset));
    return seemsValidXMPString(text, subtype) ? std::optional(text) : std::nullopt;
}

std::string zoneChange(const XmpStamp &before, const XmpStamp &after) {
    const auto from = secondsFromXmpStamp(&before), to = secondsFromXmpStamp(&after);
    if (!from || !to || from == to)
        return {};
    const auto text = [](std::int32_t seconds) {
        const auto offset = exifOffsetDataFromSeconds(seconds);
        return offset ? std::string(offset->c_str()) : std::string();
    };
    return text(*from) + " → " + text(*to);
}

/// The stamp with another text, as the reader would see it; none where it would be another form.
std::optional<XmpStamp> readAgain(const XmpStamp &stamp, const std::string &text,
                                  unsigned subtype) {
    XmpStamp again = stamp;
    if (text == stamp.value.data)
        return again;
    again.value.data = text;
    again.type = verifiedXmpDateDataType(text, again.subtype);
    const bool isOfForm = again.type == stamp.type && again.subtype == subtype &&
                          isXmpZoneInRange(text, again.type, subtype);
    return isOfForm ? std::optional(again) : std::nullopt;
}

} // namespace

Date dateBesideWallClock(Date date, const absl::TimeZone &tagZone, const absl::TimeZone &own) {
    return instantFromCivil(civilFromInstant(date, tagZone), own);
}

std::optional<absl::TimeZone> ownZone(const XmpStamp &stamp) {
    const auto seconds =
        stamp.type == XmpStampType::Zoned ? secondsFromXmpStamp(&stamp) : std::nullopt;
    return seconds ? std::optional(absl::FixedTimeZone(*seconds)) : std::nullopt;
}

std::size_t xmpOffsetLength(const XmpStamp &stamp) {
    return stamp.type == XmpStampType::Zoned ? xmpZoneLength(stamp.subtype) : 0;
}

std::optional<RewrittenStamp> rewrittenStamp(const XmpStamp &stamp, Date date,
                                             const absl::TimeZone &zone, unsigned subtype) {
    const auto text = stamp.type == XmpStampType::Invalid ? std::nullopt
                                                          : textTelling(stamp, date, zone, subtype);
    if (!text)
        return std::nullopt;
    RewrittenStamp made{*text, {}, false, false, {}};
    const auto again = readAgain(stamp, *text, subtype);
    if (!again)
        return made;
    const Date wanted = inPrecision(date, clockZone(stamp, zone), subtype);
    made.readBack = xmpDateFromStampInfos(&*again, zone);
    made.isWanted = made.readBack == wanted;
    made.isAmbiguous = !made.isWanted && stamp.type == XmpStampType::Local &&
                       wallClockOfXmpStamp(&*again) == civilFromInstant(wanted, zone);
    made.zoneChange = zoneChange(stamp, *again);
    return made;
}

} // namespace chronomender
