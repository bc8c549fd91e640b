// SPDX-License-Identifier: GPL-3.0-or-later
#include "CameraExif.h"

#include <cmath>
#include <cstdio>
#include <initializer_list>

namespace chronomender::tools {

namespace {

using enum TiffWriter::Directory;

std::string formatted(const char *format, absl::CivilSecond time) {
    char text[32];
    std::snprintf(text, sizeof text, format, static_cast<int>(time.year()), time.month(),
                  time.day(), time.hour(), time.minute(), time.second());
    return text;
}

void addImageTags(TiffWriter &tiff, const CameraRecord &record) {
    tiff.ascii(Image, 0x010E, "made for trying and timing");
    tiff.ascii(Image, 0x010F, record.make);
    tiff.ascii(Image, 0x0110, record.model);
    tiff.shorts(Image, 0x0112, {1});
    tiff.rationals(Image, 0x011A, {{300, 1}});
    tiff.rationals(Image, 0x011B, {{300, 1}});
    tiff.shorts(Image, 0x0128, {2});
    tiff.ascii(Image, 0x0131, "Firmware 1.04");
    tiff.ascii(Image, 0x0132, exifStamp(record.edited.value_or(record.wallClock)));
    tiff.ascii(Image, 0x013B, "A. Photographer");
    tiff.shorts(Image, 0x0213, {2});
    tiff.ascii(Image, 0x8298, "no rights reserved");
}

void addDateTags(TiffWriter &tiff, const CameraRecord &record) {
    tiff.ascii(Exif, 0x9003, exifStamp(record.wallClock));
    tiff.ascii(Exif, 0x9004, exifStamp(record.wallClock));
    if (record.zoneStamp)
        for (const std::uint16_t tag : std::initializer_list<std::uint16_t>{0x9010, 0x9011, 0x9012})
            tiff.ascii(Exif, tag, *record.zoneStamp);
    if (record.fractionOfSecond)
        for (const std::uint16_t tag : std::initializer_list<std::uint16_t>{0x9290, 0x9291, 0x9292})
            tiff.ascii(Exif, tag, *record.fractionOfSecond);
}

void addExposureTags(TiffWriter &tiff, const CameraRecord &record) {
    tiff.rationals(Exif, 0x829A, {{1, 250}});
    tiff.rationals(Exif, 0x829D, {{56, 10}});
    tiff.shorts(Exif, 0x8822, {3});
    tiff.shorts(Exif, 0x8827, {200});
    tiff.shorts(Exif, 0x8830, {2});
    tiff.undefined(Exif, 0x9000, "0231");
    tiff.rationals(Exif, 0x9202, {{497, 100}});
    tiff.rationals(Exif, 0x9205, {{3, 1}});
    for (const auto &[tag, value] :
         std::initializer_list<std::pair<std::uint16_t, std::uint16_t>>{{0x9207, 5},
                                                                        {0x9208, 0},
                                                                        {0x9209, 16},
                                                                        {0xA001, 1},
                                                                        {0xA217, 2},
                                                                        {0xA401, 0},
                                                                        {0xA402, 0},
                                                                        {0xA403, 0},
                                                                        {0xA405, 35},
                                                                        {0xA406, 0}})
        tiff.shorts(Exif, tag, {value});
    tiff.rationals(Exif, 0x920A, {{35, 1}});
    tiff.undefined(Exif, 0x9286, std::string(8, '\0') + std::string(40, ' '));
    tiff.undefined(Exif, 0xA000, "0100");
    tiff.undefined(Exif, 0xA300, "\3");
    tiff.undefined(Exif, 0xA301, "\1");
    tiff.rationals(Exif, 0xA404, {{1, 1}});
    tiff.ascii(Exif, 0xA431, "012345678901");
    tiff.rationals(Exif, 0xA432, {{24, 1}, {105, 1}, {4, 1}, {4, 1}});
    tiff.ascii(Exif, 0xA434, record.lens);
    if (!record.makerNote.empty())
        tiff.undefined(Exif, 0x927C, record.makerNote);
}

void addCompressionTags(TiffWriter &tiff, const CameraRecord &record) {
    tiff.undefined(Exif, 0x9101, std::string_view("\1\2\3\0", 4));
    tiff.rationals(Exif, 0x9102, {{3, 1}});
    tiff.longs(Exif, 0xA002, {record.width});
    tiff.longs(Exif, 0xA003, {record.height});
}

void addCoordinate(TiffWriter &tiff, std::uint16_t refTag, double degrees, const char *refs) {
    tiff.ascii(Gps, refTag, std::string(1, refs[degrees < 0 ? 1 : 0]));
    const double size = std::fabs(degrees);
    const auto whole = static_cast<std::uint32_t>(size);
    const double minutes = (size - whole) * 60;
    const auto wholeMinutes = static_cast<std::uint32_t>(minutes);
    const auto seconds = static_cast<std::uint32_t>((minutes - wholeMinutes) * 6000);
    tiff.rationals(Gps, static_cast<std::uint16_t>(refTag + 1),
                   {{whole, 1}, {wholeMinutes, 1}, {seconds, 100}});
}

void addGpsTags(TiffWriter &tiff, const Position &position) {
    const auto part = [](int value) { return std::pair(static_cast<std::uint32_t>(value), 1U); };
    tiff.bytes(Gps, 0, {2, 3, 0, 0});
    addCoordinate(tiff, 1, position.latitude, "NS");
    addCoordinate(tiff, 3, position.longitude, "EW");
    tiff.bytes(Gps, 5, {0});
    tiff.rationals(Gps, 6, {{5125, 100}});
    tiff.rationals(
        Gps, 7,
        {part(position.utc.hour()), part(position.utc.minute()), part(position.utc.second())});
    tiff.ascii(Gps, 0x1D, formatted("%04d:%02d:%02d", position.utc));
}

void addThumbnailTags(TiffWriter &tiff, const std::string &thumbnail) {
    tiff.shorts(Thumbnail, 0x0103, {6});
    tiff.rationals(Thumbnail, 0x011A, {{72, 1}});
    tiff.rationals(Thumbnail, 0x011B, {{72, 1}});
    tiff.shorts(Thumbnail, 0x0128, {2});
    tiff.offsetOf(Thumbnail, 0x0201, thumbnail);
    tiff.longs(Thumbnail, 0x0202, {static_cast<std::uint32_t>(thumbnail.size())});
}

} // namespace

std::string exifStamp(absl::CivilSecond time) {
    return formatted("%04d:%02d:%02d %02d:%02d:%02d", time);
}

void addCameraTags(TiffWriter &tiff, const CameraRecord &record) {
    addImageTags(tiff, record);
    addDateTags(tiff, record);
    addExposureTags(tiff, record);
    if (record.isCompressed)
        addCompressionTags(tiff, record);
    if (record.position)
        addGpsTags(tiff, *record.position);
    if (!record.thumbnail.empty())
        addThumbnailTags(tiff, record.thumbnail);
}

} // namespace chronomender::tools
