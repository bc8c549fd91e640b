// SPDX-License-Identifier: GPL-3.0-or-later
#include "GpsTimePlan.h"

#include "ByteOrder.h"
#include "GpsFormat.h"
#include "StampConversions.h"
#include "StampSyntax.h"

#include <absl/time/civil_time.h>

#include <array>
#include <limits>
#include <optional>

namespace chronomender {
namespace {

/// Hour, minute and second of a GPS time, each an unsigned rational.
constexpr std::size_t kParts = 3;
constexpr std::size_t kNumberLength = 4;
constexpr std::size_t kSecondPart = 2;

void append32(Bytes &bytes, std::uint32_t number, ByteOrder order) {
    for (std::size_t i = 0; i < kNumberLength; ++i) {
        const std::size_t place = order == ByteOrder::Motorola ? kNumberLength - 1 - i : i;
        bytes.push_back(static_cast<char>(number >> (8 * place)));
    }
}

/// The rational that tells `whole` with the fraction of the present one; only seconds have one.
std::optional<std::uint32_t> numeratorFor(std::uint32_t whole, std::uint32_t numerator,
                                          std::uint32_t denominator, std::size_t part) {
    if (denominator == 0)
        return std::nullopt;
    const std::uint32_t fraction = numerator % denominator;
    if (fraction != 0 && part != kSecondPart)
        return std::nullopt;
    const std::uint64_t wanted = std::uint64_t{whole} * denominator + fraction;
    if (wanted > std::numeric_limits<std::uint32_t>::max())
        return std::nullopt;
    return static_cast<std::uint32_t>(wanted);
}

bool tellsTime(const GpsTimeStamp &stamp, const std::array<std::uint32_t, kParts> &time) {
    const ByteOrder order = stamp.needsConv ? ByteOrder::Motorola : ByteOrder::Intel;
    const std::string_view data = stamp.value.data;
    for (std::size_t part = 0; part < kParts; ++part) {
        const std::string_view rational = data.substr(part * kGpsRationalLength);
        const std::uint32_t denominator = number32(rational.substr(kNumberLength), order);
        const bool isWhole = denominator != 0 &&
                             (number32(rational, order) % denominator == 0 || part == kSecondPart);
        if (!isWhole || number32(rational, order) / denominator != time[part])
            return false;
    }
    return true;
}

std::optional<Bytes> timeBytes(const GpsTimeStamp &stamp,
                               const std::array<std::uint32_t, kParts> &time) {
    const ByteOrder order = stamp.needsConv ? ByteOrder::Motorola : ByteOrder::Intel;
    const std::string_view data = stamp.value.data;
    Bytes bytes;
    for (std::size_t part = 0; part < kParts; ++part) {
        const std::string_view rational = data.substr(part * kGpsRationalLength);
        const std::uint32_t denominator = number32(rational.substr(kNumberLength), order);
        const auto numerator =
            numeratorFor(time[part], number32(rational, order), denominator, part);
        if (!numerator)
            return std::nullopt;
        append32(bytes, *numerator, order);
        append32(bytes, denominator, order);
    }
    return bytes;
}

bool planTime(const GpsTimeStamp &stamp, const CivilFields &civil,
              std::vector<ValuePatch> &patches) {
    const std::array time{static_cast<std::uint32_t>(civil.hour),
                          static_cast<std::uint32_t>(civil.minute),
                          static_cast<std::uint32_t>(civil.second)};
    if (stamp.value.data.size() != kGpsTripleLength)
        return false;
    if (tellsTime(stamp, time))
        return true;
    const auto bytes = timeBytes(stamp, time);
    if (!bytes || !stamp.value.hasRoomFor(kGpsTripleLength))
        return false;
    patches.push_back({&stamp.value, Patch(stamp.value.offset, stamp.value.data, *bytes)});
    return true;
}

bool planDate(const LocatedBytes &stamp, Date newDate, std::vector<ValuePatch> &patches) {
    Bytes bytes = gpsTimeStampFromDate(newDate).substr(0, kGpsDateLength - 1);
    bytes.push_back('\0');
    if (bytes == stamp.data)
        return true;
    if (!verifyGpsDateStampData(bytes) || !stamp.hasRoomFor(kGpsDateLength))
        return false;
    patches.push_back({&stamp, Patch(stamp.offset, stamp.data, bytes)});
    return true;
}

} // namespace

bool planGpsStamps(const MySinglePic &pic, Date newDate, std::vector<ValuePatch> &patches) {
    const std::size_t before = patches.size();
    const auto &time = pic.singlePicAttributes.gpsTimeStamp;
    const auto &date = pic.singlePicAttributes.gpsDateStamp;
    const CivilFields civil = civilFromInstant(newDate, absl::UTCTimeZone());
    const bool isDone =
        (!time || planTime(*time, civil, patches)) && (!date || planDate(*date, newDate, patches));
    if (!isDone)
        patches.erase(patches.begin() + static_cast<std::ptrdiff_t>(before), patches.end());
    return isDone && (time || date);
}

} // namespace chronomender
