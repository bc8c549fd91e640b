// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpScan.h"

#include "XmpTexts.h"

namespace chronomender {

namespace {

constexpr std::size_t kLongestCoordinate = 32, kLongestReference = 1;

bool isLatitude(std::string_view text) {
    return isXmpReference(text, XmpAxis::Latitude);
}
bool isLongitude(std::string_view text) {
    return isXmpReference(text, XmpAxis::Longitude);
}
/// Degrees with minutes may have their hemisphere in a property of its own.
bool isCoordinate(std::string_view text, XmpAxis axis) {
    const std::string_view anyReference = axis == XmpAxis::Latitude ? "N" : "E";
    return degreesFromXmpCoordinate(text, {}, axis) ||
           degreesFromXmpCoordinate(text, anyReference, axis);
}
bool isLatitudeValue(std::string_view text) {
    return isCoordinate(text, XmpAxis::Latitude);
}
bool isLongitudeValue(std::string_view text) {
    return isCoordinate(text, XmpAxis::Longitude);
}
bool isNumber(std::string_view text) {
    return xmpNumber(text).has_value();
}

struct LocationName {
    XmpName name;
    std::optional<LocatedBytes> XmpLocation::*slot;
    bool (*isValid)(std::string_view);
};

constexpr std::array kLocationNames{
    LocationName{
        {"exif:GPSLatitude", 0, kLongestCoordinate}, &XmpLocation::gpsLat, isLatitudeValue},
    LocationName{
        {"exif:GPSLatitudeRef", 0, kLongestReference}, &XmpLocation::gpsLatRef, isLatitude},
    LocationName{
        {"exif:GPSLongitude", 0, kLongestCoordinate}, &XmpLocation::gpsLon, isLongitudeValue},
    LocationName{
        {"exif:GPSLongitudeRef", 0, kLongestReference}, &XmpLocation::gpsLonRef, isLongitude},
    LocationName{
        {"exif:GPSHPositioningError", 0, kLongestCoordinate}, &XmpLocation::gpsPosError, isNumber},
};

constexpr auto kNames = [] {
    std::array<XmpName, kLocationNames.size()> names{};
    std::ranges::transform(kLocationNames, names.begin(), &LocationName::name);
    return names;
}();

} // namespace

XmpLocation scanXmpLocation(FileWindow &window, const ByteBlock &packet) {
    XmpLocation location;
    for (XmpText &text : scanXmpTexts(window, packet, kNames).texts) {
        const LocationName &name = kLocationNames[text.name];
        if (name.isValid(text.value.data))
            location.*name.slot = std::move(text.value);
    }
    return location;
}

} // namespace chronomender
