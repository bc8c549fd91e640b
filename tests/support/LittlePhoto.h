// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleJpeg.h"
#include "LittleTiff.h"

namespace chronomender::little {

struct PhotoLocation {
    std::string latitudeRef = "N", longitudeRef = "E";
    std::vector<Rational> latitude{{48, 1}, {51, 1}, {2430, 100}};
    std::vector<Rational> longitude{{2, 1}, {17, 1}, {4020, 100}};
    std::optional<std::string> date = "2024:05:06";
    std::optional<std::vector<Rational>> time = std::vector<Rational>{{5, 1}, {8, 1}, {9, 1}};
    std::optional<Rational> altitude = Rational{3500, 100};
};

/// What a photo shall hold; an absent text means that the tag does not exist. Stamps may be of any
/// length and form.
struct PhotoFields {
    Endian endian = Endian::Intel;
    std::string make = "Little", model = "Little One";
    std::optional<std::string> original = {}, digitized = {}, modified = {};
    std::optional<std::string> zoneOriginal = {}, zoneDigitized = {}, zoneModified = {};
    std::optional<PhotoLocation> location = {};
    std::string xmp = {}; ///< an XMP packet in front of the Exif segment of a JPEG
    std::size_t bodyLength = 0;
    std::string contentIdentifier = {}; ///< of a live photo, in an Apple maker note
};

/// The maker note of an Apple camera with nothing but the content identifier.
inline std::string appleNote(const std::string &contentIdentifier) {
    constexpr std::size_t kTextAt = 14 + 2 + 12 + 4;
    const auto big = [](std::size_t value, std::size_t width) {
        return number(value, width, Endian::Motorola);
    };
    return std::string("Apple iOS\0\0\1MM", 14) + big(1, 2) + big(17, 2) + big(2, 2) +
           big(contentIdentifier.size() + 1, 4) + big(kTextAt, 4) + big(0, 4) + contentIdentifier +
           std::string(1, '\0');
}

/// A finished file and where its values stand in it, by the names of `kNamedTags`.
struct BuiltPhoto {
    std::string bytes;
    std::map<std::string, std::size_t> offsets;
};

struct NamedTag {
    const char *name;
    Directory directory;
    std::uint16_t tag;
    std::optional<std::string> PhotoFields::*field = nullptr;
};
inline constexpr NamedTag kNamedTags[]{
    {"TIFFDateTime", Directory::First, 306, &PhotoFields::modified},
    {"ExifDateTimeOriginal", Directory::Exif, 36867, &PhotoFields::original},
    {"ExifDateTimeDigitized", Directory::Exif, 36868, &PhotoFields::digitized},
    {"TIFFOffsetTime", Directory::Exif, 36880, &PhotoFields::zoneModified},
    {"ExifOffsetTimeOriginal", Directory::Exif, 36881, &PhotoFields::zoneOriginal},
    {"ExifOffsetTimeDigitized", Directory::Exif, 36882, &PhotoFields::zoneDigitized},
    {"latitudeRef", Directory::Gps, 1},
    {"latitude", Directory::Gps, 2},
    {"longitudeRef", Directory::Gps, 3},
    {"longitude", Directory::Gps, 4},
    {"altitudeRef", Directory::Gps, 5},
    {"altitude", Directory::Gps, 6},
    {"GPSTimeStamp", Directory::Gps, 7},
    {"GPSDateStamp", Directory::Gps, 29},
};

inline void addLocation(Tiff &tiff, const PhotoLocation &location) {
    tiff.text(Directory::Gps, 1, location.latitudeRef)
        .rationals(Directory::Gps, 2, location.latitude)
        .text(Directory::Gps, 3, location.longitudeRef)
        .rationals(Directory::Gps, 4, location.longitude);
    if (location.altitude)
        tiff.value(Directory::Gps, 5, 1, 1, std::string(1, '\0'))
            .rationals(Directory::Gps, 6, {*location.altitude});
    if (location.time)
        tiff.rationals(Directory::Gps, 7, *location.time);
    if (location.date)
        tiff.text(Directory::Gps, 29, *location.date);
}

/// The entries of a photo, for a test that goes on to add its own.
inline Tiff photoEntries(const PhotoFields &fields) {
    Tiff tiff(fields.endian);
    if (!fields.make.empty())
        tiff.text(Directory::First, 271, fields.make);
    if (!fields.model.empty())
        tiff.text(Directory::First, 272, fields.model);
    for (const NamedTag &named : kNamedTags) {
        if (named.field && fields.*named.field)
            tiff.text(named.directory, named.tag, *(fields.*named.field));
    }
    if (!fields.contentIdentifier.empty()) {
        const std::string note = appleNote(fields.contentIdentifier);
        tiff.value(Directory::Exif, 37500, 7, static_cast<std::uint32_t>(note.size()), note);
    }
    if (fields.location)
        addLocation(tiff, *fields.location);
    return tiff;
}

inline std::map<std::string, std::size_t> namedOffsets(const BuiltTiff &tiff, std::size_t start) {
    std::map<std::string, std::size_t> offsets;
    for (const NamedTag &named : kNamedTags) {
        const auto found = tiff.values.find({named.directory, named.tag});
        if (found != tiff.values.end())
            offsets[named.name] = found->second + start;
    }
    return offsets;
}

/// A JPEG with an Exif segment, a frame and a body that cannot be decoded.
inline BuiltPhoto jpegPhoto(const PhotoFields &fields) {
    const BuiltTiff tiff = photoEntries(fields).build();
    Jpeg jpeg;
    if (!fields.xmp.empty())
        jpeg.xmp(fields.xmp);
    jpeg.exif(tiff.bytes).frame().body(fields.bodyLength);
    return {jpeg.bytes(), namedOffsets(tiff, jpeg.tiffStart())};
}

/// A TIFF of the same fields, without picture; the body is appended at the end.
inline BuiltPhoto tiffPhoto(const PhotoFields &fields) {
    const BuiltTiff tiff = photoEntries(fields).build();
    return {tiff.bytes + std::string(fields.bodyLength, '\x55'), namedOffsets(tiff, 0)};
}

/// All stamps set and all zones at "+02:00", with a location: what a phone writes.
inline PhotoFields fullPhotoFields(Endian endian = Endian::Intel) {
    return {.endian = endian,
            .original = "2024:05:06 07:08:09",
            .digitized = "2024:05:06 07:08:10",
            .modified = "2024:05:06 07:08:11",
            .zoneOriginal = "+02:00",
            .zoneDigitized = "+02:00",
            .zoneModified = "+02:00",
            .location = PhotoLocation{}};
}

} // namespace chronomender::little
