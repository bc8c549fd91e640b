// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LocatedBytes.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// The date properties that are looked for in an XMP packet.
enum class XmpProperty : std::uint8_t {
    ExifDateTimeOriginal,
    ExifDateTimeDigitized,
    XmpCreateDate,
    XmpModifyDate,
    XmpMetadataDate, ///< when the packet was written; feeds no date of the item
    TiffDateTime,
    PhotoshopDateCreated,
    GpsTimeStamp,
};

/// How a stamp says its zone. The numbers stand in saved sessions and never change.
enum class XmpStampType : std::uint8_t {
    Invalid = 0,
    Utc = 1,   ///< ends with the letter Z
    Zoned = 2, ///< ends with ±hh:mm or ±hhmm
    Local = 3, ///< no zone
};

/// Bits of a stamp's subtype: a stamp is written back in the form that it had.
inline constexpr unsigned kXmpZoneWithoutColon = 1, kXmpWithoutSeconds = 2;

/// One date property with its stamp; `value.room` is the stamp's own length, since a text in XML
/// can never be longer than it is without moving what follows.
struct XmpStamp {
    XmpProperty property{};
    LocatedBytes value;
    XmpStampType type = XmpStampType::Invalid;
    unsigned subtype = 0;

    bool operator==(const XmpStamp &) const = default;
};

/// The date properties of one packet, each at most once, in the order of the file.
struct XmpDateInfos {
    std::vector<XmpStamp> stamps;

    bool isEmpty() const { return stamps.empty(); }
    const XmpStamp *find(XmpProperty property) const {
        const auto found = std::ranges::find(stamps, property, &XmpStamp::property);
        return found == stamps.end() ? nullptr : &*found;
    }
    const XmpStamp *find(XmpProperty first, XmpProperty second) const {
        const XmpStamp *stamp = find(first);
        return stamp != nullptr ? stamp : find(second);
    }

    // Which property feeds which date of the item; null when the packet has neither.
    const XmpStamp *xmpCreaDict() const {
        return find(XmpProperty::PhotoshopDateCreated, XmpProperty::ExifDateTimeOriginal);
    }
    const XmpStamp *xmpDigiDict() const {
        return find(XmpProperty::XmpCreateDate, XmpProperty::ExifDateTimeDigitized);
    }
    const XmpStamp *xmpModDict() const {
        return find(XmpProperty::XmpModifyDate, XmpProperty::TiffDateTime);
    }
    const XmpStamp *xmpGpsDict() const { return find(XmpProperty::GpsTimeStamp); }

    bool operator==(const XmpDateInfos &) const = default;
};

/// The location values of one packet, as texts: "DDD,MM.mmmmK", "DDD,MM,SSK" or decimal degrees,
/// with the references where a writer keeps them apart.
struct XmpLocation {
    std::optional<LocatedBytes> gpsLatRef, gpsLonRef, gpsLat, gpsLon, gpsPosError;

    bool isEmpty() const { return !gpsLat && !gpsLon && !gpsPosError && !gpsLatRef && !gpsLonRef; }
    bool operator==(const XmpLocation &) const = default;
};

/// What a sidecar says: dates, location, and the media files that it names as its own.
struct XmpSidecar {
    XmpDateInfos dates;
    XmpLocation location;
    std::vector<std::string> extensions; ///< lower case, without the dot
};

} // namespace chronomender
