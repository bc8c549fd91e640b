// SPDX-License-Identifier: GPL-3.0-or-later
#include "ExifGps.h"

#include <array>

namespace chronomender {

namespace {

const Exiv2::Exifdatum *find(const Exiv2::ExifData &exif, const char *key) {
    const auto found = exif.findKey(Exiv2::ExifKey(key));
    return found == exif.end() || found->count() == 0 ? nullptr : &*found;
}

/// A rational as a number; 0/0, as written for unused seconds, is 0, and any other zero denominator
/// none.
std::optional<double> number(const Exiv2::Rational &rational) {
    if (rational.second == 0)
        return rational.first == 0 ? std::optional(0.0) : std::nullopt;
    return static_cast<double>(rational.first) / static_cast<double>(rational.second);
}

std::optional<double> degrees(const Exiv2::ExifData &exif, const char *key) {
    constexpr std::array<double, 3> unitsPerDegree{1, 60, 3600};
    const Exiv2::Exifdatum *datum = find(exif, key);
    if (datum == nullptr)
        return std::nullopt;
    double sum = 0;
    for (long i = 0; i < std::min<long>(datum->count(), 3); ++i) {
        const auto part = number(datum->toRational(i));
        if (!part)
            return std::nullopt;
        sum += *part / unitsPerDegree[static_cast<std::size_t>(i)];
    }
    return sum;
}

/// Signed degrees; a reference other than the positive one turns to the south or west.
std::optional<double> coordinate(const Exiv2::ExifData &exif, const char *key, const char *refKey,
                                 char positiveReference, float limit) {
    const auto value = degrees(exif, key);
    const Exiv2::Exifdatum *reference = find(exif, refKey);
    if (!value || reference == nullptr)
        return std::nullopt;
    // Single precision, so that rationals of exactly 90 or 180 degrees stay inside.
    if (static_cast<float>(*value) > limit || static_cast<float>(*value) < -limit)
        return std::nullopt;
    const std::string letter = reference->toString();
    return !letter.empty() && letter.front() == positiveReference ? *value : -*value;
}

} // namespace

std::optional<PropertyDictionary::Gps> gpsOfExif(const Exiv2::ExifData &exif) {
    const auto latitude =
        coordinate(exif, "Exif.GPSInfo.GPSLatitude", "Exif.GPSInfo.GPSLatitudeRef", 'N', 90.0F);
    const auto longitude =
        coordinate(exif, "Exif.GPSInfo.GPSLongitude", "Exif.GPSInfo.GPSLongitudeRef", 'E', 180.0F);
    if (!latitude || !longitude || (*latitude == 0 && *longitude == 0))
        return std::nullopt;
    PropertyDictionary::Gps gps{*latitude, *longitude, {}};
    if (const auto *error = find(exif, "Exif.GPSInfo.GPSHPositioningError"))
        gps.hPositioningError = number(error->toRational(0));
    return gps;
}

} // namespace chronomender
