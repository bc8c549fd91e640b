// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReaderSteps.h"

namespace chronomender::steps {
namespace {

constexpr const char *kStamp = "2024:05:06 07:08:09";
const std::string kPacket = "<?xpacket begin=\"\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?><x:xmpmeta/>";

std::string littleExif() {
    return Tiff().text(Directory::Exif, 36867, kStamp).build().bytes;
}

class WholePhoto : public ::testing::TestWithParam<Endian> {};

TEST_P(WholePhoto, GivesEveryValueAtItsPlaceInJpegAndTiff) {
    const auto fields = little::fullPhotoFields(GetParam());
    for (const bool isJpeg : {true, false}) {
        const BuiltPhoto photo = isJpeg ? jpegPhoto(fields) : tiffPhoto(fields);
        const DatesData dates = isJpeg ? readJpeg(photo.bytes) : readTiff(photo.bytes);
        std::map<std::string, std::size_t> offsets;
        for (const auto &[name, value] : valuesByName(dates))
            offsets[name] = value.offset;
        EXPECT_EQ(offsets, photo.offsets);
        EXPECT_TRUE(standsInFile(dates, photo.bytes));
        EXPECT_EQ(text(dates.exifDateTimeDigitized), "2024:05:06 07:08:10");
        EXPECT_EQ(text(dates.exifOffsetTiffTime), "+02:00");
        EXPECT_EQ(dates.make + "/" + dates.model, "Little/Little One");
        EXPECT_EQ(dates.tiffHeaderStartOffset, isJpeg ? 12u : 0u);
        EXPECT_EQ(dates.isHeaderIntel, GetParam() == Endian::Intel);
        EXPECT_EQ(dates.gpsLocation->needsConv, GetParam() == Endian::Motorola);
        EXPECT_THAT(dates.findings, IsEmpty());
    }
}

INSTANTIATE_TEST_SUITE_P(BothOrders, WholePhoto,
                         ::testing::Values(Endian::Intel, Endian::Motorola));

struct SegmentsCase {
    const char *name;
    std::function<void(Jpeg &)> before; ///< what stands in front of the Exif segment
    bool isFound;
};

class Segments : public ::testing::TestWithParam<SegmentsCase> {};

TEST_P(Segments, DecideWhetherTheHeaderIsFound) {
    Jpeg jpeg;
    GetParam().before(jpeg);
    jpeg.exif(littleExif()).frame().body(10);
    const DatesData dates = readJpeg(jpeg.bytes());
    EXPECT_EQ(text(dates.exifDateTimeOriginal), GetParam().isFound ? kStamp : "absent");
    EXPECT_EQ(dates.tiffHeaderStartOffset.has_value(), GetParam().isFound);
}

INSTANTIATE_TEST_SUITE_P(
    InFront, Segments,
    ::testing::Values(
        SegmentsCase{"nothing", [](Jpeg &) {}, true},
        SegmentsCase{"JFIF", [](Jpeg &jpeg) { jpeg.segment(0xE0, "JFIF"); }, true},
        SegmentsCase{"a segment of full length",
                     [](Jpeg &jpeg) { jpeg.segment(0xFE, std::string(65533, 'c')); }, true},
        SegmentsCase{"fill bytes", [](Jpeg &jpeg) { jpeg.raw("\xFF\xFF\xFF"); }, true},
        SegmentsCase{"a frame of another kind", [](Jpeg &jpeg) { jpeg.frame(0xC1); }, true},
        SegmentsCase{"a baseline frame", [](Jpeg &jpeg) { jpeg.frame(0xC0); }, false},
        SegmentsCase{"a progressive frame", [](Jpeg &jpeg) { jpeg.frame(0xC2); }, false},
        SegmentsCase{"the end of the image", [](Jpeg &jpeg) { jpeg.raw("\xFF\xD9"); }, false},
        SegmentsCase{"a length below two",
                     [](Jpeg &jpeg) { jpeg.raw(std::string_view("\xFF\xE0\0\1", 4)); }, false},
        SegmentsCase{"bytes that are no marker", [](Jpeg &jpeg) { jpeg.raw("junk"); }, false}),
    [](const auto &segments) {
        std::string name = segments.param.name;
        std::ranges::replace(name, ' ', '_');
        return name;
    });

TEST(JpegXmp, TheLastPacketInFrontOfTheExifSegmentCounts) {
    Jpeg jpeg;
    jpeg.xmp("<x:xmpmeta xmlns:x='adobe:ns:meta/'/>").xmp(kPacket);
    const std::size_t second = jpeg.xmpStart();
    jpeg.segment(0xE1, "http://ns.adobe.com/xmp/extension/").exif(littleExif()).xmp(kPacket);
    EXPECT_EQ(readJpeg(jpeg.bytes()).jpgXmpOffset, second);
}

TEST(JpegXmp, IsReportedWithoutAnyExif) {
    const DatesData dates = readJpeg(Jpeg().xmp(kPacket).frame().body(9).bytes());
    EXPECT_EQ(dates.jpgXmpOffset, 35u);
    EXPECT_EQ(dates.tiffHeaderStartOffset, std::nullopt);
}

TEST(JpegValues, LieFarBehindTheFirstBlock) {
    const BuiltTiff tiff = Tiff().gap(60000).text(Directory::Exif, 36867, kStamp).build();
    const Jpeg jpeg = Jpeg().segment(0xEE, std::string(40000, 'a')).exif(tiff.bytes);
    const DatesData dates = readJpeg(jpeg.bytes());
    EXPECT_EQ(text(dates.exifDateTimeOriginal), kStamp);
    EXPECT_EQ(dates.exifDateTimeOriginal->offset,
              jpeg.tiffStart() + tiff.at(Directory::Exif, 36867));
}

} // namespace
} // namespace chronomender::steps
