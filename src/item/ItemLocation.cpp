// SPDX-License-Identifier: GPL-3.0-or-later
#include "ItemFilling.h"

#include "ByteOrder.h"

#include <array>
#include <cmath>

namespace chronomender {
namespace {

constexpr std::size_t kRationalLength = 8;
constexpr std::array<double, 3> kPartsOfDegree{1, 60, 3600};
constexpr float kMostLatitude = 90;
constexpr float kMostLongitude = 180;

/// Degrees, minutes and seconds as one number; none where a part divides by zero.
std::optional<double> coordinate(std::string_view rationals, std::string_view reference,
                                 char negativeReference, ByteOrder order) {
    if (rationals.size() < kPartsOfDegree.size() * kRationalLength || reference.empty())
        return std::nullopt;
    double degrees = 0;
    for (std::size_t i = 0; i < kPartsOfDegree.size(); ++i) {
        const std::uint32_t numerator = number32(rationals.substr(i * kRationalLength), order);
        const std::uint32_t denominator =
            number32(rationals.substr(i * kRationalLength + 4), order);
        if (denominator == 0 && numerator != 0)
            return std::nullopt;
        if (denominator != 0)
            degrees += numerator / static_cast<double>(denominator) / kPartsOfDegree[i];
    }
    return reference[0] == negativeReference ? -degrees : degrees;
}

bool isWithin(double degrees, float most) {
    return std::fabs(static_cast<float>(degrees)) <= most;
}

} // namespace

bool isUsableLocation(double latitude, double longitude) {
    return (latitude != 0 || longitude != 0) && isWithin(latitude, kMostLatitude) &&
           isWithin(longitude, kMostLongitude);
}

void setLocationFromData(MySinglePic &pic) {
    pic.location.gpsLat.reset();
    pic.location.gpsLong.reset();
    const auto &recorded = pic.singlePicAttributes.gpsLocation;
    if (!recorded || !recorded->latitude || !recorded->latitudeRef || !recorded->longitude ||
        !recorded->longitudeRef)
        return;
    const ByteOrder order = recorded->needsConv ? ByteOrder::Motorola : ByteOrder::Intel;
    const auto latitude =
        coordinate(recorded->latitude->data, recorded->latitudeRef->data, 'S', order);
    const auto longitude =
        coordinate(recorded->longitude->data, recorded->longitudeRef->data, 'W', order);
    if (latitude && longitude && isUsableLocation(*latitude, *longitude)) {
        pic.location.gpsLat = latitude;
        pic.location.gpsLong = longitude;
    }
}

} // namespace chronomender
