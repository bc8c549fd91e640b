// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace chronomender {

/// What the image library tells of a picture besides its dates: the values in use, typed. Absent
/// values are empty.
struct PropertyDictionary {
    std::string make, model, lens, serialNumber;
    std::int32_t pixelWidth = 0, pixelHeight = 0; ///< as stored, without orientation; 0 unknown
    std::int32_t exifWidth = 0, exifHeight = 0;   ///< as Exif states them, turned upright
    int orientation = 1;                          ///< Exif orientation 1 to 8
    std::string objectName;                       ///< IPTC: the picture's title
    struct Gps {
        double latitude = 0, longitude = 0;      ///< degrees, south and west negative
        std::optional<double> hPositioningError; ///< metres
    };
    std::optional<Gps> gps;
    std::string mimeType;
};

/// To be called once on the main thread before the first read.
void initialiseImaging();

/// Reads the dictionaries of a file; none when the library cannot read it. Never throws, any
/// thread. Dates never depend on this.
std::optional<PropertyDictionary> readPropertyDictionary(const std::string &path);

/// The same for a picture in memory, such as the beginning of a raw file's preview.
std::optional<PropertyDictionary> readPropertyDictionaryOf(std::string_view bytes);

/// What an XMP sidecar says of camera and position; none when it cannot be read. Any thread.
std::optional<PropertyDictionary> readSidecarDictionary(const std::string &path);

} // namespace chronomender
