// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReaderSteps.h"

namespace chronomender::steps {
namespace {

using std::string_literals::operator""s;

constexpr const char *kStamp = "2024:05:06 07:08:09";
constexpr const char *kOther = "2001:02:03 04:05:06";
constexpr std::uint16_t kAscii = 2;

std::vector<FindingReason> reasons(const DatesData &dates) {
    std::vector<FindingReason> list;
    for (const Finding &finding : dates.findings)
        list.push_back(finding.reason);
    return list;
}

/// A TIFF with one value, and `behind` right after it.
BuiltTiff withValue(std::uint16_t tag, std::uint16_t type, std::uint32_t count, std::string data,
                    const std::string &behind = std::string(64, '\x7F')) {
    BuiltTiff tiff = Tiff().value(Directory::Exif, tag, type, count, std::move(data)).build();
    tiff.bytes += behind;
    return tiff;
}

struct FieldCase {
    std::uint16_t type;
    std::uint32_t count;
    std::string data;
    std::string read; ///< the bytes that are reported
    std::uint32_t room;
    std::vector<FindingReason> reasons;
};

void expectField(const FieldCase &field, std::uint16_t tag,
                 std::optional<LocatedBytes> DatesData::*slot) {
    const BuiltTiff tiff = withValue(tag, field.type, field.count, field.data);
    const DatesData dates = readTiff(tiff.bytes);
    const std::string shown =
        ::testing::PrintToString(field.data) + " x " + std::to_string(field.count);
    const LocatedBytes value = (dates.*slot).value_or(LocatedBytes{});
    EXPECT_EQ(value.data, field.read) << shown;
    EXPECT_EQ(value.room, field.room) << shown;
    EXPECT_EQ(value.offset, field.read.empty() ? 0 : tiff.at(Directory::Exif, tag)) << shown;
    EXPECT_EQ(reasons(dates), field.reasons) << shown;
}

TEST(StampField, IsReadWhateverItDeclaresAndKeepsItsRoom) {
    const std::string stamp = kStamp, whole = stamp + '\0';
    using enum FindingReason;
    const FieldCase cases[]{
        {kAscii, 20, whole, whole, 20, {}},
        {kAscii, 19, stamp, whole, 19, {}},
        {7, 20, whole, whole, 20, {}},
        {kAscii, 40, whole + "and some more text\0\0"s, whole, 40, {}},
        {kAscii, 10, whole, whole, 10, {NoRoom}},
        {kAscii, 4, whole, whole, 0, {NoRoom}}, // such a value would stand in the entry
        {kAscii, 0, whole, whole, 0, {NoRoom}},
        {99, 20, whole, whole, 0, {NoRoom}},   // no such type
        {5, 0x20000000, whole, whole, 84, {}}, // room ends with the file
        {kAscii, 20, "2024:05:06 07:08:0\0\0"s, "2024:05:06 07:08:0\0\0"s, 20, {}},
        {kAscii, 20, "2024:05:06 07:08:\0\0\0"s, "2024:05:06 07:08:\0\0\0"s, 20, {}},
        {kAscii, 18, "2024:05:06 07:08:\0"s, "2024:05:06 07:08:\0"s, 18, {NoRoom}},
        {kAscii, 17, "2024:05:06 07:08:"s, "2024:05:06 07:08:"s, 17, {NoRoom}},
        {kAscii, 25, "2024:05:06 07:08:\0\0\0note\0"s, "", 0, {NotAStamp}},
        {kAscii, 20, "2024:05:06 07:08:0x\0"s, "", 0, {NotAStamp}},
        {kAscii, 25, "2024-05-06T07:08:09+02:00"s, "", 0, {NotAStamp}},
        {kAscii, 20, "0000:00:00 00:00:00\0"s, "0000:00:00 00:00:00\0"s, 20, {}},
        {kAscii, 20, "    :  :     :  :  \0"s, "    :  :     :  :  \0"s, 20, {}},
        {kAscii, 20, std::string(20, '\0'), "", 0, {NotAStamp}},
    };
    for (const FieldCase &field : cases) {
        FieldCase adjusted = field;
        if (field.read.size() == 20) // the last byte is the reader's own zero
            adjusted.read[19] = '\0';
        expectField(adjusted, 36867, &DatesData::exifDateTimeOriginal);
    }
}

TEST(ZoneField, NeedsSixCharactersAndAnOffsetThatExists) {
    using enum FindingReason;
    const FieldCase cases[]{
        {kAscii, 7, "+02:00\0"s, "+02:00\0"s, 7, {}},
        {kAscii, 6, "-11:30"s, "-11:30"s, 6, {}}, // the byte behind belongs to another value
        {kAscii, 7, "+02:00 "s, "+02:00 "s, 7, {}},
        {kAscii, 5, "+02:00\0"s, "+02:00\0"s, 5, {NoRoom}},
        {kAscii, 7, "+19:00\0"s, "", 0, {ZoneOutOfRange}},
        {kAscii, 7, "+01:75\0"s, "", 0, {ZoneOutOfRange}},
        {kAscii, 7, "   :  \0"s, "", 0, {NotAZoneStamp}},
        {kAscii, 7, "UTC\0\0\0\0"s, "", 0, {NotAZoneStamp}},
    };
    for (const FieldCase &field : cases)
        expectField(field, 36881, &DatesData::exifOffsetTimeOriginal);
}

TEST(StampField, MayEndWithTheFile) {
    const std::string stamp = kStamp;
    const auto read = [](const std::string &data) {
        return readTiff(withValue(36867, kAscii, 20, data, "").bytes);
    };
    EXPECT_EQ(read(stamp).exifDateTimeOriginal->room, 19u);
    EXPECT_EQ(text(read(stamp.substr(0, 16)).exifDateTimeOriginal), "absent");
    EXPECT_THAT(reasons(read(stamp.substr(0, 16))), ElementsAre(FindingReason::OutsideFile));
}

TEST(SharedTags, ExifDirectoryWinsAndFirstDirectoryFillsIn) {
    const auto tiff = Tiff()
                          .text(Directory::First, 36867, kOther)
                          .text(Directory::First, 36868, kOther) // behind both pointers
                          .text(Directory::First, 36880, "+01:00")
                          .text(Directory::Exif, 36867, kStamp)
                          .text(Directory::Exif, 36867, kOther) // the first of two counts
                          .text(Directory::Exif, 306, kOther)   // not looked for here
                          .build();
    const DatesData dates = readTiff(tiff.bytes);
    EXPECT_EQ(text(dates.exifDateTimeOriginal), kStamp);
    EXPECT_EQ(text(dates.exifDateTimeDigitized), kOther);
    EXPECT_EQ(text(dates.exifOffsetTiffTime), "+01:00");
    EXPECT_EQ(text(dates.tiffDateTime), "absent");
}

TEST(CameraText, EndsAtTheFirstZeroByte) {
    const auto make = [](std::string data, std::uint32_t count) {
        const auto length = static_cast<std::uint32_t>(data.size());
        return readTiff(Tiff()
                            .value(Directory::First, 271, kAscii, count ? count : length, data)
                            .build()
                            .bytes)
            .make;
    };
    EXPECT_EQ(make("Little Cameras\0rest"s, 0), "Little Cameras");
    EXPECT_EQ(make("GE\0"s, 0), "GE");
    EXPECT_EQ(make(std::string(300, 'm'), 0), std::string(128, 'm'));
    EXPECT_EQ(make("Little"s, 60000), "Little"); // the file ends before the field
}

TEST(EmbeddedJpeg, GivesTheModificationStampThatTheRawLacks) {
    const auto outer = [](bool hasOwn, Endian innerEndian = Endian::Intel) {
        const BuiltTiff exif = Tiff(innerEndian).text(Directory::First, 306, kOther).build();
        const std::string jpeg = Jpeg().exif(exif.bytes).bytes();
        Tiff tiff;
        tiff.value(Directory::First, 46, 7, static_cast<std::uint32_t>(jpeg.size()), jpeg);
        if (hasOwn)
            tiff.text(Directory::First, 306, kStamp);
        return tiff.build();
    };
    const auto otherOrder = outer(false, Endian::Motorola);
    EXPECT_EQ(text(readBytes(otherOrder.bytes, FileFormatRaw, "rw2").tiffDateTime), "absent");
    const BuiltTiff raw = outer(false);
    const DatesData dates = readBytes(raw.bytes, FileFormatRaw, "rw2");
    EXPECT_EQ(text(dates.tiffDateTime), kOther);
    EXPECT_EQ(raw.bytes.substr(dates.tiffDateTime->offset, 19), kOther);
    EXPECT_EQ(dates.tiffHeaderStartOffset, 0u);
    EXPECT_EQ(text(readBytes(outer(true).bytes, FileFormatRaw, "rw2").tiffDateTime), kStamp);
}

TEST(HeaderSearch, DependsOnTheFormat) {
    const std::string tiff =
        Tiff(Endian::Motorola).text(Directory::Exif, 36867, kStamp).build().bytes;
    std::string version = Tiff().text(Directory::Exif, 36867, kStamp).build().bytes;
    version.replace(2, 2, "U\0"s); // Panasonic's version in place of 42
    const std::string behind = "RAWHEADER" + tiff;
    const struct {
        const std::string &bytes;
        FileFormatType format;
        const char *extension;
        bool isFound;
    } cases[]{
        {tiff, FileFormatTiff, "tif", true},    {tiff, FileFormatRaw, "nef", true},
        {tiff, FileFormatNone, "", true},       {version, FileFormatRaw, "rw2", true},
        {version, FileFormatTiff, "tif", true}, {behind, FileFormatRaw, "RAF", true},
        {behind, FileFormatNone, "xyz", true},  {behind, FileFormatTiff, "tif", false},
        {behind, FileFormatJpeg, "jpg", false}, {behind, FileFormatRaw, "CR3", false},
        {tiff, FileFormatPict, "pct", false},   {tiff, FileFormatGif, "gif", false},
        {behind, FileFormatPng, "png", true},   {tiff, FileFormatMpeg4, "mp4", false},
        {behind, FileFormatHeif, "hif", true},  {tiff, FileFormatRaw, "CR3", true},
        {tiff, FileFormatWebp, "webp", false},
    };
    for (const auto &[bytes, format, extension, isFound] : cases)
        EXPECT_EQ(text(readBytes(bytes, format, extension).exifDateTimeOriginal),
                  isFound ? kStamp : "absent")
            << formatName(format) << ' ' << extension;
}

TEST(HeaderSearch, FindsAMagicAcrossTwoBlocks) {
    const std::string tiff =
        Tiff(Endian::Motorola).text(Directory::Exif, 36867, kStamp).build().bytes;
    for (std::size_t before = 128 * 1024 - 4; before <= 128 * 1024 + 1; ++before) {
        const DatesData dates = readBytes(std::string(before, '*') + tiff, FileFormatRaw, "raf");
        EXPECT_EQ(dates.tiffHeaderStartOffset, before);
    }
}

TEST(HeaderSearch, TakesAKnownPlace) {
    const std::string tiff = Tiff().text(Directory::Exif, 36867, kStamp).build().bytes;
    const std::string file = "four" + tiff + "Exif\0\0"s + tiff;
    const auto found = [&](std::uint64_t start) {
        return readBytes(file, FileFormatWebp, "webp", start).tiffHeaderStartOffset;
    };
    EXPECT_EQ(found(4), 4u);
    EXPECT_EQ(found(4 + tiff.size()), 10 + tiff.size());
    EXPECT_EQ(found(5), std::nullopt);
    EXPECT_EQ(found(1 << 30), std::nullopt);
}

} // namespace
} // namespace chronomender::steps
