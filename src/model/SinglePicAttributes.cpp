// SPDX-License-Identifier: GPL-3.0-or-later
#include "SinglePicAttributes.h"

#include "XmpFormat.h"

#include <algorithm>

namespace chronomender {
namespace {

using Attributes = SinglePicAttributes;

template<std::optional<LocatedBytes> Attributes::*member>
const LocatedBytes *plain(const Attributes &attributes) {
    const auto &value = attributes.*member;
    return value ? &*value : nullptr;
}

template<std::optional<LocatedBytes> GpsLocation::*member>
const LocatedBytes *location(const Attributes &attributes) {
    if (!attributes.gpsLocation)
        return nullptr;
    const auto &value = *attributes.gpsLocation.*member;
    return value ? &*value : nullptr;
}

template<std::optional<LocatedBytes> XmpLocation::*member>
const LocatedBytes *xmpLocation(const Attributes &attributes) {
    const auto &value = attributes.xmpLocation.*member;
    return value ? &*value : nullptr;
}

const LocatedBytes *gpsTime(const Attributes &attributes) {
    return attributes.gpsTimeStamp ? &attributes.gpsTimeStamp->value : nullptr;
}

constexpr std::array<RecordedValue, 24> kinds{{
    {"TIFFDateTime", plain<&Attributes::tiffDateTime>},
    {"TIFFOffsetTime", plain<&Attributes::tiffOffsetTime>},
    {"ExifDateTimeOriginal", plain<&Attributes::exifDateTimeOriginal>},
    {"ExifOffsetTimeOriginal", plain<&Attributes::exifOffsetTimeOriginal>},
    {"ExifDateTimeDigitized", plain<&Attributes::exifDateTimeDigitized>},
    {"ExifOffsetTimeDigitized", plain<&Attributes::exifOffsetTimeDigitized>},
    {"GPSTimeStamp", gpsTime},
    {"GPSDateStamp", plain<&Attributes::gpsDateStamp>},
    {"latitudeRef", location<&GpsLocation::latitudeRef>},
    {"latitude", location<&GpsLocation::latitude>},
    {"longitudeRef", location<&GpsLocation::longitudeRef>},
    {"longitude", location<&GpsLocation::longitude>},
    {"altitudeRef", location<&GpsLocation::altitudeRef>},
    {"altitude", location<&GpsLocation::altitude>},
    {"hPositioningError", location<&GpsLocation::hPositioningError>},
    {"QTMetaDate", plain<&Attributes::qtMetaDate>},
    {"QTMvhdCreaDate", plain<&Attributes::qtMvhdCreaDate>},
    {"QTMvhdModDate", plain<&Attributes::qtMvhdModDate>},
    {"riffCreaDate", plain<&Attributes::riffCreaDate>},
    {"exif:GPSLatitudeRef", xmpLocation<&XmpLocation::gpsLatRef>},
    {"exif:GPSLatitude", xmpLocation<&XmpLocation::gpsLat>},
    {"exif:GPSLongitudeRef", xmpLocation<&XmpLocation::gpsLonRef>},
    {"exif:GPSLongitude", xmpLocation<&XmpLocation::gpsLon>},
    {"exif:GPSHPositioningError", xmpLocation<&XmpLocation::gpsPosError>},
}};

struct PlaceKey {
    QtLocation::Place place;
    std::string_view key;
};

constexpr std::array placeKeys{
    PlaceKey{QtLocation::Place::MetadataKeys, "locationISO6709"},
    PlaceKey{QtLocation::Place::UserData, "locationISO6709_2"},
    PlaceKey{QtLocation::Place::UserDataItems, "locationISO6709_3"},
};

} // namespace

const std::array<RecordedValue, 24> &recordedValues() {
    return kinds;
}

std::string_view key(XmpProperty property) {
    return xmpPropertyName(property);
}

std::string_view key(QtLocation::Place place) {
    return std::ranges::find(placeKeys, place, &PlaceKey::place)->key;
}

} // namespace chronomender
