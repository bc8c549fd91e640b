// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleHeif.h"
#include "LittlePng.h"
#include "LittleWebp.h"
#include "LittleXmp.h"
#include "ReaderSteps.h"

namespace chronomender::steps {
namespace {

using little::xmpWith;

const std::string kFirst = xmpWith("xmp:CreateDate", "2001-01-01T01:01:01");
const std::string kSecond = xmpWith("xmp:CreateDate", "2002-02-02T02:02:02");

/// The creation date of the packet that is chosen; "none" without a packet.
std::string readFrom(std::string_view bytes, FileFormatType format) {
    const little::MemoryFile file(bytes);
    MySingleFolderDataReader reader;
    EXPECT_TRUE(reader.borrow(file.descriptor()));
    DatesData known = reader.readDates(format, "");
    const auto dates = reader.readXmpDates(format, "", known);
    if (!dates)
        return "none";
    EXPECT_EQ(little::firstUntruth(*dates, bytes), std::nullopt);
    return dates->stamps.at(0).value.data.substr(0, 4);
}

std::string exif() {
    return Tiff().text(Directory::First, 306, "2024:05:06 07:08:09").build().bytes;
}

TEST(XmpStart, OfAJpegIsTheLastPacketBeforeTheExifSegmentElseTheFirst) {
    const struct {
        Jpeg jpeg;
        const char *year;
    } rows[] = {
        {Jpeg().xmp(kFirst).xmp(kSecond).exif(exif()).frame(), "2002"},
        {Jpeg().exif(exif()).xmp(kFirst).xmp(kSecond).frame(), "2001"},
        {Jpeg().xmp(kFirst).exif(exif()).xmp(kSecond).frame(), "2001"},
        {Jpeg().xmp(kFirst).xmp(kSecond).frame(), "2002"},
        {Jpeg().exif(exif()).frame().xmp(kFirst), "none"},
        {Jpeg().exif(exif()).segment(0xE1, "http://ns.adobe.com/xmp/extension/").frame(), "none"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(readFrom(row.jpeg.bytes(), FileFormatJpeg), row.year);
}

TEST(XmpStart, AScanEndsWithItsContainer) {
    // No end of the packet, and dates behind its segment, chunk, item or box.
    const std::string open = "<?xpacket begin=''?><x:xmpmeta >", behind = kFirst;
    EXPECT_EQ(readFrom(Jpeg().xmp(open).segment(0xED, behind).bytes(), FileFormatJpeg), "none");
    EXPECT_EQ(readFrom(little::Png().xmp(open).chunk("tEXt", behind).bytes(), FileFormatPng),
              "none");
    EXPECT_EQ(readFrom(little::Webp().xmp(open).chunk("JUNK", behind).bytes(), FileFormatWebp),
              "none");
    EXPECT_EQ(readFrom(little::Heif({}, exif(), open).build().bytes + behind, FileFormatHeif),
              "none");
    EXPECT_EQ(readFrom(little::cr3Photo({.xmp = open}).bytes + behind, FileFormatRaw), "none");
}

TEST(XmpStart, OfBoxesAndChunksIsTheirPacket) {
    EXPECT_EQ(readFrom(little::Png().xmp(kFirst).bytes(), FileFormatPng), "2001");
    EXPECT_EQ(readFrom(little::Webp().xmp(kFirst).bytes(), FileFormatWebp), "2001");
    for (const FileFormatType format : {FileFormatHeif, FileFormatAvif})
        EXPECT_EQ(readFrom(little::Heif({}, exif(), kFirst).build().bytes, format), "2001");
    EXPECT_EQ(readFrom(little::cr3Photo({.xmp = kFirst}).bytes, FileFormatRaw), "2001");
    EXPECT_EQ(readFrom("GIF89a" + kFirst, FileFormatGif), "none");
}

/// A TIFF whose tag 700 says `offset` and `count`, with both packets behind it.
std::string tiffWithTag700(std::uint32_t offset, std::uint32_t count, std::size_t firstAt) {
    std::string bytes = Tiff().field(Directory::First, 700, 1, count, offset).build().bytes;
    bytes.resize(firstAt, '\0');
    return bytes + kFirst + kSecond;
}

TEST(XmpStart, OfATiffIsWhereTag700PointsAtAPacket) {
    const auto length = static_cast<std::uint32_t>(kFirst.size());
    EXPECT_EQ(readFrom(tiffWithTag700(200, length, 200), FileFormatTiff), "2001");
    EXPECT_EQ(readFrom(tiffWithTag700(200 + length, length, 200), FileFormatTiff), "2002");
    EXPECT_EQ(readFrom(tiffWithTag700(200, 60, 200), FileFormatTiff), "none") << "ends in front";
    for (const std::uint32_t elsewhere : {0U, 199U, 201U, 0xFFFFFFFFU})
        EXPECT_EQ(readFrom(tiffWithTag700(elsewhere, length, 200), FileFormatTiff), "none");
    // Behind something else the offset may count from the header.
    EXPECT_EQ(readFrom("FUJIFILM" + tiffWithTag700(200, length, 200), FileFormatRaw), "2001");
    EXPECT_EQ(readFrom("FUJIFILM" + tiffWithTag700(208, length, 200), FileFormatRaw), "2001");
}

} // namespace
} // namespace chronomender::steps
