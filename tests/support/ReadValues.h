// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DatesData.h"
#include "MovieData.h"
#include "XmpFormat.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace chronomender::little {

/// Every value that was found, by the name that findings and tests use for it.
inline std::map<std::string, LocatedBytes> valuesByName(const DatesData &dates) {
    std::map<std::string, LocatedBytes> values;
    const auto add = [&](const char *name, const std::optional<LocatedBytes> &value) {
        if (value)
            values[name] = *value;
    };
    add("ExifDateTimeOriginal", dates.exifDateTimeOriginal);
    add("ExifDateTimeDigitized", dates.exifDateTimeDigitized);
    add("TIFFDateTime", dates.tiffDateTime);
    add("ExifOffsetTimeOriginal", dates.exifOffsetTimeOriginal);
    add("ExifOffsetTimeDigitized", dates.exifOffsetTimeDigitized);
    add("TIFFOffsetTime", dates.exifOffsetTiffTime);
    add("GPSDateStamp", dates.gpsDateStamp);
    if (dates.gpsTimeStamp)
        add("GPSTimeStamp", dates.gpsTimeStamp->value);
    if (const auto &location = dates.gpsLocation) {
        add("latitudeRef", location->latitudeRef);
        add("latitude", location->latitude);
        add("longitudeRef", location->longitudeRef);
        add("longitude", location->longitude);
        add("altitudeRef", location->altitudeRef);
        add("altitude", location->altitude);
        add("hPositioningError", location->hPositioningError);
    }
    return values;
}

/// The same for a movie.
inline std::map<std::string, LocatedBytes> valuesByName(const MovieHeader &header) {
    std::map<std::string, LocatedBytes> values;
    const auto add = [&](std::string name, const std::optional<LocatedBytes> &value) {
        if (value)
            values[std::move(name)] = *value;
    };
    add("creaDate", header.creaDate);
    add("modDate", header.modDate);
    add("QtCreationdate", header.qtCreationDate);
    add("riffCreaDate", header.riffCreaDate);
    for (std::size_t i = 0; i < header.qtLocations.size(); ++i) {
        add("location" + std::to_string(i), header.qtLocations[i].value);
        add("accuracy" + std::to_string(i), header.qtLocations[i].hAccuracy);
    }
    return values;
}

/// The same for XMP, by the properties' names.
inline std::map<std::string, LocatedBytes> valuesByName(const XmpDateInfos &infos) {
    std::map<std::string, LocatedBytes> values;
    for (const XmpStamp &stamp : infos.stamps)
        values[std::string(xmpPropertyName(stamp.property))] = stamp.value;
    return values;
}
inline std::map<std::string, LocatedBytes> valuesByName(const XmpLocation &location) {
    std::map<std::string, LocatedBytes> values;
    for (const auto &[name, value] :
         {std::pair{"exif:GPSLatitude", &location.gpsLat},
          std::pair{"exif:GPSLatitudeRef", &location.gpsLatRef},
          std::pair{"exif:GPSLongitude", &location.gpsLon},
          std::pair{"exif:GPSLongitudeRef", &location.gpsLonRef},
          std::pair{"exif:GPSHPositioningError", &location.gpsPosError}})
        if (*value)
            values[name] = **value;
    return values;
}

/// The first value whose bytes do not stand in the file where the reader says, or that has room
/// behind the file's end. The zero byte that ends a full stamp is the reader's own.
template<class Read>
std::optional<std::string> firstUntruth(const Read &read, std::string_view file) {
    constexpr std::size_t kTerminatedStamp = 20;
    for (const auto &[name, value] : valuesByName(read)) {
        std::string_view data = value.data;
        if (data.size() == kTerminatedStamp && data.back() == '\0')
            data.remove_suffix(1);
        if (value.offset > file.size() || file.substr(value.offset, data.size()) != data)
            return name + " does not stand at " + std::to_string(value.offset);
        if (value.room > file.size() - value.offset)
            return name + " has room behind the end of the file";
    }
    return std::nullopt;
}

} // namespace chronomender::little
