// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleHeif.h"
#include "LittlePng.h"
#include "LittleWebp.h"
#include "LittleXmp.h"
#include "ReaderSteps.h"

namespace chronomender::steps {
namespace {

using little::xmpWith;
using std::string_literals::operator""s;

const std::string kFirst = xmpWith("xmp:CreateDate", "2001-01-01T01:01:01");
const std::string kSecond = xmpWith("xmp:CreateDate", "2002-02-02T02:02:02");

/// The creation date of the packet that is chosen; "none" without a packet.
std::string readFrom(std::string_view bytes, FileFormatType format) {
    const little::MemoryFile file(bytes);
    MySingleFolderDataReader reader;
    EXPECT_TRUE(reader.borrow(file.descriptor()));
    DatesData known = reader.readDates(format, "");
    const auto dates = reader.readXmpDates(format, known);
    if (!dates)
        return "none";
    EXPECT_EQ(little::firstUntruth(*dates, bytes), std::nullopt);
    return dates->stamps.at(0).value.data.substr(0, 4);
}

std::string exif() {
    return Tiff().text(Directory::First, 306, "2024:05:06 07:08:09").build().bytes;
}

TEST(XmpStart, OfAJpegIsTheLastPacketBeforeTheExifSegmentElseTheFirst) {
    const std::pair<Jpeg, const char *> rows[] = {
        {Jpeg().xmp(kFirst).xmp(kSecond).exif(exif()).frame(), "2002"},
        {Jpeg().exif(exif()).xmp(kFirst).xmp(kSecond).frame(), "2001"},
        {Jpeg().xmp(kFirst).exif(exif()).xmp(kSecond).frame(), "2001"},
        {Jpeg().exif(exif()).frame().xmp(kFirst), "none"},
    };
    for (const auto &[jpeg, year] : rows)
        EXPECT_EQ(readFrom(jpeg.bytes(), FileFormatJpeg), year);
}

TEST(XmpStart, OfBoxesAndChunksIsTheirPacketAndTheScanEndsWithThem) {
    // No end of the packet, and dates behind its segment, chunk, item or box.
    const std::string open = "<?xpacket begin=''?><x:xmpmeta >";
    EXPECT_EQ(readFrom(Jpeg().xmp(open).segment(0xED, kFirst).bytes(), FileFormatJpeg), "none");
    for (const auto &[packet, year] : {std::pair{open, "none"}, std::pair{kSecond, "2002"}}) {
        EXPECT_EQ(readFrom(little::Png().xmp(packet).bytes() + kFirst, FileFormatPng), year);
        EXPECT_EQ(readFrom(little::Webp().xmp(packet).bytes() + kFirst, FileFormatWebp), year);
        EXPECT_EQ(readFrom(little::Webp().chunk("XMP\0"s, packet).bytes(), FileFormatWebp), year);
        const std::string heif = little::Heif({}, exif(), packet).build().bytes + kFirst;
        EXPECT_EQ(readFrom(heif, FileFormatHeif), year);
        EXPECT_EQ(readFrom(heif, FileFormatAvif), year);
        EXPECT_EQ(readFrom(little::cr3Photo({.xmp = packet}).bytes + kFirst, FileFormatRaw), year);
    }
}

TEST(XmpStart, OfATiffIsWhereTag700PointsAtAPacket) {
    const auto length = static_cast<std::uint32_t>(kFirst.size());
    const auto tiff = [](std::uint32_t offset, std::uint32_t count) {
        std::string bytes = Tiff().field(Directory::First, 700, 1, count, offset).build().bytes;
        bytes.resize(200, '\0');
        return bytes + kFirst + kSecond;
    };
    EXPECT_EQ(readFrom(tiff(200, length), FileFormatTiff), "2001");
    EXPECT_EQ(readFrom(tiff(200 + length, length), FileFormatTiff), "2002");
    EXPECT_EQ(readFrom(tiff(200, 60), FileFormatTiff), "none") << "ends in front";
    for (const std::uint32_t elsewhere : {0U, 199U, 201U, 0xFFFFFFFFU})
        EXPECT_EQ(readFrom(tiff(elsewhere, length), FileFormatTiff), "none");
    // Behind something else the offset may count from the header.
    for (const std::uint32_t offset : {200U, 208U})
        EXPECT_EQ(readFrom("FUJIFILM" + tiff(offset, length), FileFormatRaw), "2001");
}

} // namespace
} // namespace chronomender::steps
