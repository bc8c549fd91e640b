// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LocatedBytes.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// Why a value was refused, or which damage was tolerated.
enum class FindingReason : std::uint8_t {
    NotAStamp,         ///< the bytes do not have the form of a date stamp
    NotAZoneStamp,     ///< the bytes do not have the form of a zone stamp
    ZoneOutOfRange,    ///< beyond ±18:00, or minutes above 59
    NoRoom,            ///< read, but the field is too short to be written in place
    OutsideFile,       ///< the file ends before the value does
    NotAGpsDate,       ///< the bytes do not have the form of a GPS date
    CoordinateMissing, ///< the GPS directory has some of the four coordinate tags only
    DirectoryLoop,     ///< a directory is reached a second time
    ScanLimit,         ///< no header within the part of the file that is searched
    BrokenStructure,   ///< boxes, atoms or chunks that contradict themselves
    PacketNotUtf8,     ///< an XMP packet in UTF-16 or UTF-32
    DateWithoutTime,   ///< an XMP date of a day, a month or a year only
    Compressed,        ///< a compressed block, which cannot be written in place
};

/// Something the reader refused or tolerated; shown by `mend info`, never fatal.
struct Finding {
    std::string what; ///< the value's name, for example "ExifDateTimeOriginal"
    std::uint64_t offset = 0;
    FindingReason reason{};

    bool operator==(const Finding &) const = default;
};

/// Short English words for a reason, for example "the field is too short to be written in place".
const char *findingText(FindingReason reason);

/// The three unsigned rationals hour, minute, second of a GPS time: 24 bytes in file byte order.
struct GpsTimeStamp {
    LocatedBytes value;
    bool needsConv = false; ///< the rationals are big-endian

    bool operator==(const GpsTimeStamp &) const = default;
};

/// The location bytes of a GPS directory. The four coordinate values appear together or not at all,
/// altitude needs both its values. Reference values stand inside the directory entry.
struct GpsLocation {
    bool needsConv = false; ///< the rationals are big-endian
    std::optional<LocatedBytes> latitudeRef, latitude, longitudeRef, longitude;
    std::optional<LocatedBytes> altitudeRef, altitude;
    std::optional<LocatedBytes> hPositioningError;

    bool operator==(const GpsLocation &) const = default;
};

/// What joins the still of a live photo with its movie, from the Exif and maker note tags of Apple
/// cameras.
struct LivePhotoMarks {
    std::string contentIdentifier; ///< "" if absent
    std::optional<int> subsecTimeOriginal, customRendered;

    bool operator==(const LivePhotoMarks &) const = default;
};

/// What one read of a still image found. Everything is optional, and nothing found is a valid
/// result. Stamps hold 20 bytes: the 19 of the file and a zero byte. A stamp of 17 or 18 characters
/// whose field ends before byte 19 holds exactly that field, without a zero byte added. Zone stamps
/// hold 7 bytes, or 6 where the field (or the file) has no more; only the first six are text.
/// A stamp of zeros or blanks is reported like any other: it marks an empty tag.
struct DatesData {
    std::optional<LocatedBytes> exifDateTimeOriginal, exifDateTimeDigitized, tiffDateTime;
    std::optional<LocatedBytes> exifOffsetTimeOriginal, exifOffsetTimeDigitized, exifOffsetTiffTime;
    std::optional<GpsTimeStamp> gpsTimeStamp;
    std::optional<LocatedBytes> gpsDateStamp; ///< 11 bytes
    std::optional<GpsLocation> gpsLocation;
    std::optional<std::uint64_t> tiffHeaderStartOffset;
    bool isHeaderIntel = false; ///< little-endian; meaningful with a header only
    std::optional<std::uint64_t> jpgXmpOffset, cr3XmpOffset, xmpHeaderStartOffset;
    std::string make,
        model; ///< as in IFD0, up to the first zero byte, at most 128 bytes; "" if absent
    std::optional<LivePhotoMarks> livePhoto; ///< files of Apple cameras only
    std::vector<Finding> findings;
};

} // namespace chronomender
