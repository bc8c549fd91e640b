// SPDX-License-Identifier: GPL-3.0-or-later
#include "GpsWalk.h"

#include "ExifValues.h"
#include "GpsFormat.h"
#include "StampSyntax.h"

#include <algorithm>
#include <array>

namespace chronomender {

namespace {

enum class Place : std::uint8_t { Inline, Elsewhere };

struct LocationValue {
    const char *name;
    std::size_t length;
    Place place;
    std::optional<LocatedBytes> GpsLocation::*slot;
};

constexpr std::array kLocationValues{
    LocationValue{"latitudeRef", kGpsRefLength, Place::Inline, &GpsLocation::latitudeRef},
    LocationValue{"latitude", kGpsTripleLength, Place::Elsewhere, &GpsLocation::latitude},
    LocationValue{"longitudeRef", kGpsRefLength, Place::Inline, &GpsLocation::longitudeRef},
    LocationValue{"longitude", kGpsTripleLength, Place::Elsewhere, &GpsLocation::longitude},
    LocationValue{"altitudeRef", kGpsAltitudeRefLength, Place::Inline, &GpsLocation::altitudeRef},
    LocationValue{"altitude", kGpsRationalLength, Place::Elsewhere, &GpsLocation::altitude},
    LocationValue{"hPositioningError", kGpsRationalLength, Place::Elsewhere,
                  &GpsLocation::hPositioningError},
};

enum Wanted : std::size_t {
    LatitudeRef,
    Latitude,
    LongitudeRef,
    Longitude,
    AltitudeRef,
    Altitude,
    PositioningError,
    TimeStamp,
    DateStamp,
    kAllTags
};

// In the order of Wanted, which begins with that of kLocationValues.
constexpr std::array<std::uint16_t, kAllTags> kTags{
    kGpsTagLatitudeRef,      kGpsTagLatitude,    kGpsTagLongitudeRef,
    kGpsTagLongitude,        kGpsTagAltitudeRef, kGpsTagAltitude,
    kGpsTagPositioningError, kGpsTagTimeStamp,   kGpsTagDateStamp,
};

using Entries = std::array<std::optional<TiffEntry>, kAllTags>;

/// Values `first` to `last` of the table, all of them or none.
void readTogether(const TiffBlock &block, const Entries &entries, std::size_t first,
                  std::size_t last, GpsLocation &location, Findings &findings) {
    GpsLocation values;
    for (std::size_t i = first; i <= last; ++i) {
        const LocationValue &value = kLocationValues[i];
        const auto read = value.place == Place::Inline ? readInline : readElsewhere;
        if (entries[i])
            values.*value.slot = read(block, *entries[i], value.length, value.name, findings);
        if (!(values.*value.slot))
            return;
    }
    for (std::size_t i = first; i <= last; ++i)
        location.*kLocationValues[i].slot = std::move(values.*kLocationValues[i].slot);
}

void readLocation(const TiffBlock &block, const Entries &entries, std::uint32_t directory,
                  DatesData &dates) {
    const auto present = std::count_if(entries.begin(), entries.begin() + AltitudeRef,
                                       [](const auto &entry) { return entry.has_value(); });
    if (present != AltitudeRef) {
        if (present > 0)
            dates.findings.push_back({"GPSLocation", block.range().absolute(directory),
                                      FindingReason::CoordinateMissing});
        return;
    }
    GpsLocation &location = dates.gpsLocation.emplace();
    location.needsConv = block.order() == ByteOrder::Motorola;
    readTogether(block, entries, LatitudeRef, Longitude, location, dates.findings);
    readTogether(block, entries, AltitudeRef, Altitude, location, dates.findings);
    readTogether(block, entries, PositioningError, PositioningError, location, dates.findings);
}

void readTimeStamp(const TiffBlock &block, const TiffEntry &entry, DatesData &dates) {
    auto value = readElsewhere(block, entry, kGpsTripleLength, "GPSTimeStamp", dates.findings);
    if (value)
        dates.gpsTimeStamp = {std::move(*value), block.order() == ByteOrder::Motorola};
}

void readDateStamp(const TiffBlock &block, const TiffEntry &entry, DatesData &dates) {
    Findings findings;
    auto value = readElsewhere(block, entry, kGpsDateLength, "GPSDateStamp", findings);
    if (value && !verifyGpsDateStampData(value->data)) {
        dates.findings.push_back({"GPSDateStamp", value->offset, FindingReason::NotAGpsDate});
        return;
    }
    dates.findings.insert(dates.findings.end(), findings.begin(), findings.end());
    dates.gpsDateStamp = std::move(value);
}

} // namespace

void readGps(const TiffBlock &block, std::uint32_t directory, DatesData &dates) {
    Entries entries;
    if (!block.findEntries(directory, std::span(kTags), std::span(entries)))
        return;
    readLocation(block, entries, directory, dates);
    if (entries[TimeStamp])
        readTimeStamp(block, *entries[TimeStamp], dates);
    if (entries[DateStamp])
        readDateStamp(block, *entries[DateStamp], dates);
}

} // namespace chronomender
