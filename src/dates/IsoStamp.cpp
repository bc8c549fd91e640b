// SPDX-License-Identifier: GPL-3.0-or-later
#include "IsoStamp.h"

#include "StampConversions.h"

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

constexpr std::string_view kShape = "0000-00-00T00:00:00";
constexpr std::size_t kShapeWithoutSeconds = 16;
constexpr std::size_t kZoneColon = 3; ///< in "+02:00"

constexpr std::array<IsoForm, 8> kForms{{
    {false, IsoZone::None},
    {false, IsoZone::Letter},
    {true, IsoZone::None},
    {true, IsoZone::Letter},
    {false, IsoZone::Basic},
    {false, IsoZone::Extended},
    {true, IsoZone::Basic},
    {true, IsoZone::Extended},
}};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Digits where the shape has zeros, its own characters elsewhere.
bool hasShape(std::string_view text, std::string_view shape) {
    return text.size() >= shape.size() &&
           std::equal(shape.begin(), shape.end(), text.begin(), [](char wanted, char present) {
               return wanted == '0' ? isDigit(present) : wanted == present;
           });
}

/// Both forms differ from an Exif stamp in their separators only.
std::string withSeparators(std::string_view text, char inDate, char beforeTime) {
    std::string stamp(text);
    stamp[4] = stamp[7] = inDate;
    stamp[10] = beforeTime;
    return stamp;
}

/// Takes ".123" off the front of the text.
std::size_t takeFraction(std::string_view &text, absl::Duration &fraction) {
    if (text.size() < 2 || text[0] != '.' || !isDigit(text[1]))
        return 0;
    std::size_t length = 1;
    absl::Duration unit = absl::Seconds(1) / 10;
    for (; length < text.size() && isDigit(text[length]); ++length, unit /= 10)
        fraction += unit * (text[length] - '0');
    text.remove_prefix(length);
    return length;
}

/// Reads what is left of a stamp as its zone.
bool readZone(std::string_view text, IsoStamp &stamp) {
    if (text.empty())
        return true;
    std::string offset(text == "Z" ? "+00:00" : text);
    stamp.form.zone = text == "Z" ? IsoZone::Letter : IsoZone::Extended;
    if (offset.size() == 5) {
        offset.insert(kZoneColon, 1, ':');
        stamp.form.zone = IsoZone::Basic;
    }
    stamp.secondsEastOfUtc = secondsFromExifOffset(offset);
    return stamp.secondsEastOfUtc.has_value();
}

std::string zoneText(std::string offset, IsoZone form) {
    if (form == IsoZone::Letter)
        return "Z";
    offset.pop_back(); // the terminating zero byte
    if (form == IsoZone::Basic)
        offset.erase(kZoneColon, 1);
    return offset;
}

} // namespace

std::optional<IsoStamp> readIsoStamp(std::string_view text) {
    IsoStamp stamp;
    stamp.form.hasSeconds = hasShape(text, kShape);
    if (!stamp.form.hasSeconds && !hasShape(text, kShape.substr(0, kShapeWithoutSeconds)))
        return std::nullopt;
    const std::size_t length = stamp.form.length();
    const std::string clock =
        withSeparators(text.substr(0, length), ':', ' ') + (stamp.form.hasSeconds ? "" : ":00");
    const auto fields = civilFromExifTimeStamp(clock);
    text.remove_prefix(length);
    if (stamp.form.hasSeconds)
        stamp.fractionLength = takeFraction(text, stamp.fraction);
    if (!fields || !readZone(text, stamp))
        return std::nullopt;
    stamp.fields = *fields;
    return stamp;
}

Date instantFromIsoStamp(const IsoStamp &stamp, const absl::TimeZone &zone) {
    if (!stamp.secondsEastOfUtc)
        return instantFromCivil(stamp.fields, zone) + stamp.fraction;
    return instantFromCivil(stamp.fields, absl::UTCTimeZone()) + stamp.fraction -
           absl::Seconds(*stamp.secondsEastOfUtc);
}

std::optional<std::string> isoStampFromDate(Date date, const absl::TimeZone &zone, IsoForm form) {
    const auto clock = [&](const Bytes &stamp) {
        return withSeparators(stamp.substr(0, IsoForm{form.hasSeconds}.length()), '-', 'T');
    };
    if (form.zone == IsoZone::None) {
        const auto stamp = exifDataFromDate(date, zone);
        return stamp ? std::optional(clock(*stamp)) : std::nullopt;
    }
    const bool isUtc = form.zone == IsoZone::Letter;
    const auto both = exifWithOffsetDatasFromDate(date, isUtc ? absl::UTCTimeZone() : zone);
    return both ? std::optional(clock(both->stamp) + zoneText(both->offset, form.zone))
                : std::nullopt;
}

std::optional<IsoForm> isoFormOfLength(std::size_t length) {
    const auto found = std::ranges::find(kForms, length, &IsoForm::length);
    return found == kForms.end() ? std::nullopt : std::optional(*found);
}

} // namespace chronomender
