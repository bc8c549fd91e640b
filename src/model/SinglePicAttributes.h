// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"
#include "DatesData.h"
#include "MovieData.h"
#include "XmpData.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace chronomender {

/// What was read from an item's file: each value with the place and a copy of its bytes. A slot
/// without a recorded value cannot be written in place.
struct SinglePicAttributes {
    // The file itself as it was read; part of the proof that nobody changed it since.
    Date fileCreationDate;     ///< on this system the modification date
    Date fileModificationDate; ///< exact, as stored on disk
    OptionalDate fileBirthDate;
    std::uint64_t fileSize = 0;
    std::uint64_t fileDevice = 0, fileInode = 0;

    std::optional<LocatedBytes> exifDateTimeOriginal, exifDateTimeDigitized, tiffDateTime;
    std::optional<LocatedBytes> exifOffsetTimeOriginal, exifOffsetTimeDigitized, tiffOffsetTime;
    std::optional<GpsTimeStamp> gpsTimeStamp;
    std::optional<LocatedBytes> gpsDateStamp;
    std::optional<GpsLocation> gpsLocation;
    XmpDateInfos xmpDateInfos;
    XmpLocation xmpLocation; ///< read late, where the file's tags gave no location

    // Movies
    std::optional<LocatedBytes> qtMvhdCreaDate, qtMvhdModDate, qtMetaDate, riffCreaDate;
    std::vector<QtLocation> qtLocations;

    std::optional<std::uint64_t> tiffHeaderStartOffset, xmpHeaderStartOffset, cr3XmpOffset;
};

/// One recorded value of the attributes, under the key that sessions and `mend info` know it by.
struct RecordedValue {
    std::string_view key;
    const LocatedBytes *(*find)(
        const SinglePicAttributes &); ///< null when the file has no such value
};

/// Every kind of value that is recorded once, in the order in which a proof compares them.
const std::array<RecordedValue, 24> &recordedValues();

/// The key of an XMP date, for example "xmp:CreateDate", and of a movie's location.
std::string_view key(XmpProperty property);
std::string_view key(QtLocation::Place place);

/// Calls `visit(key, value)` for each value that is present.
template<class Visit>
void forEachRecordedValue(const SinglePicAttributes &attributes, Visit visit) {
    for (const RecordedValue &kind : recordedValues())
        if (const LocatedBytes *value = kind.find(attributes))
            visit(kind.key, *value);
    for (const XmpStamp &stamp : attributes.xmpDateInfos.stamps)
        visit(key(stamp.property), stamp.value);
    for (const QtLocation &each : attributes.qtLocations) {
        visit(key(each.place), each.value);
        if (each.hAccuracy)
            visit(std::string_view("locationHAccuracy"), *each.hAccuracy);
    }
}

} // namespace chronomender
