// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittlePhoto.h"
#include "MemoryFile.h"
#include "MySingleFolderDataReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// The words in which the reader's tests are told.
namespace chronomender::steps {

using little::BuiltPhoto;
using little::BuiltTiff;
using little::Directory;
using little::Endian;
using little::Jpeg;
using little::Tiff;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

inline DatesData readBytes(std::string_view bytes, FileFormatType format,
                           std::string_view extension = "", std::uint64_t startOffset = 0) {
    const little::MemoryFile file(bytes);
    MySingleFolderDataReader reader;
    EXPECT_TRUE(reader.borrow(file.descriptor()));
    return reader.readDates(format, extension, startOffset);
}

inline DatesData readJpeg(std::string_view bytes) {
    return readBytes(bytes, FileFormatJpeg, "jpg");
}
inline DatesData readTiff(std::string_view bytes) {
    return readBytes(bytes, FileFormatTiff, "tif");
}

inline std::string text(const std::optional<LocatedBytes> &value) {
    return value ? value->data.substr(0, value->data.find('\0')) : std::string("absent");
}

inline LocatedBytes locationValue(const DatesData &dates,
                                  std::optional<LocatedBytes> GpsLocation::*value) {
    return dates.gpsLocation ? (*dates.gpsLocation.*value).value_or(LocatedBytes{})
                             : LocatedBytes{};
}

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

/// True when each value's bytes stand in the file where the reader says. The zero byte that ends a
/// full stamp is the reader's own.
inline ::testing::AssertionResult standsInFile(const DatesData &dates, std::string_view file) {
    for (const auto &[name, value] : valuesByName(dates)) {
        const std::size_t length = value.data.size() == 20 ? 19 : value.data.size();
        if (value.offset > file.size() ||
            file.substr(value.offset, length) != std::string_view(value.data).substr(0, length))
            return ::testing::AssertionFailure() << name << " at " << value.offset;
        if (value.room > file.size() - value.offset)
            return ::testing::AssertionFailure() << name << " has room behind the end of the file";
    }
    return ::testing::AssertionSuccess();
}

} // namespace chronomender::steps
