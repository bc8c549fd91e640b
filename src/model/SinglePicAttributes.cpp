// SPDX-License-Identifier: GPL-3.0-or-later
#include "SinglePicAttributes.h"

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

const LocatedBytes *gpsTime(const Attributes &attributes) {
    return attributes.gpsTimeStamp ? &attributes.gpsTimeStamp->value : nullptr;
}

constexpr std::array<RecordedValue, 15> kinds{{
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
}};

} // namespace

const std::array<RecordedValue, 15> &recordedValues() {
    return kinds;
}

} // namespace chronomender
