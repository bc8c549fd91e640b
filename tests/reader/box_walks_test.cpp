// SPDX-License-Identifier: GPL-3.0-or-later
#include "Cr3Walk.h"
#include "HeifWalk.h"
#include "ReaderSteps.h"

namespace chronomender::steps {
namespace {

using little::BuiltHeif;
using little::Heif;
using little::HeifForm;

constexpr const char *kStamp = "2024:05:06 07:08:09";
const std::string kPacket = "<x:xmpmeta xmlns:x='adobe:ns:meta/'></x:xmpmeta>";

class BoxedPhoto : public ::testing::TestWithParam<std::tuple<FileFormatType, Endian>> {};

TEST_P(BoxedPhoto, GivesEveryValueAtItsPlace) {
    const auto &[format, endian] = GetParam();
    auto fields = little::fullPhotoFields(endian);
    fields.xmp = kPacket;
    fields.bodyLength = 300;
    const BuiltPhoto photo = photoOf(format, fields);
    EXPECT_EQ(fileFormatTypeForContent(photo.bytes, ""), format);
    const DatesData dates = readBytes(photo.bytes, format);
    std::map<std::string, std::size_t> offsets;
    for (const auto &[name, value] : valuesByName(dates))
        offsets[name] = value.offset;
    EXPECT_EQ(offsets, photo.offsets);
    EXPECT_TRUE(standsInFile(dates, photo.bytes));
    EXPECT_EQ(dates.make + "/" + dates.model, "Little/Little One");
    EXPECT_EQ(dates.isHeaderIntel, endian == Endian::Intel);
    EXPECT_EQ(dates.gpsLocation->needsConv, endian == Endian::Motorola);
    EXPECT_EQ(dates.tiffHeaderStartOffset.has_value(), format != FileFormatRaw);
    EXPECT_EQ(dates.cr3XmpOffset.has_value(), format == FileFormatRaw);
    for (const auto &xmp : {dates.cr3XmpOffset, dates.xmpHeaderStartOffset}) {
        if (xmp) {
            EXPECT_EQ(photo.bytes.substr(*xmp, kPacket.size()), kPacket);
        }
    }
    EXPECT_THAT(dates.findings, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(BothOrders, BoxedPhoto,
                         ::testing::Combine(::testing::Values(FileFormatHeif, FileFormatAvif,
                                                              FileFormatRaw, FileFormatPng,
                                                              FileFormatWebp),
                                            ::testing::Values(Endian::Intel, Endian::Motorola)));

constexpr auto heifBlocks = blocksOf<findHeifBlocks>;

TEST(HeifItems, AreFoundInEveryFormThatWritersUse) {
    const std::pair<const char *, HeifForm> forms[]{
        {"32-bit item numbers", {.locationVersion = 2, .itemVersion = 3}},
        {"64-bit places", {.offsetWidth = 8, .lengthWidth = 8}},
        {"a base", {.baseWidth = 4}},
        {"a wide base and an index",
         {.locationVersion = 1, .lengthWidth = 8, .baseWidth = 8, .indexWidth = 4}},
        {"data inside meta", {.locationVersion = 1, .baseWidth = 4, .method = 1}},
        {"meta without version", {.hasVersionedMeta = false}},
        {"several extents", {.extents = 3}},
        {"no Exif identifier", {.exifPrefix = ""}},
        {"named items", {.itemName = "metadata"}},
        {"many items", {.otherItems = 900}},
    };
    const std::string exif = littleExif();
    for (const auto &[name, form] : forms) {
        const BuiltHeif heif = Heif(form, exif, kPacket).build();
        const MetadataBlocks blocks = heifBlocks(heif.bytes);
        EXPECT_EQ(blocks.exif, (ByteBlock{heif.tiffAt, exif.size()})) << name;
        EXPECT_EQ(blocks.xmp, (ByteBlock{heif.xmpAt, kPacket.size()})) << name;
        EXPECT_FALSE(blocks.isBroken) << name;
        EXPECT_THAT(blocks.findings, IsEmpty()) << name;
    }
}

TEST(HeifItems, ThatCannotBeReadInPlaceAreAbsent) {
    const auto blocks = [](const HeifForm &form) {
        return heifBlocks(Heif(form, littleExif(), kPacket).build().bytes);
    };
    const MetadataBlocks compressed = blocks({.contentEncoding = "deflate"});
    EXPECT_TRUE(compressed.exif && !compressed.xmp);
    EXPECT_EQ(compressed.findings.at(0).reason, FindingReason::Compressed);
    EXPECT_FALSE(blocks({.contentType = "text/plain"}).xmp);
    EXPECT_EQ(blocks({.otherItems = 12000}).findings.at(0).reason, FindingReason::ScanLimit);
    EXPECT_TRUE(blocks({.extents = 0}).isBroken);
}

/// The file with the bytes of `with` from where `what` is found, `behind` bytes further on.
std::string changed(std::string bytes, std::string_view what, std::size_t behind,
                    std::string_view with) {
    return bytes.replace(bytes.find(what) + behind, with.size(), with);
}

TEST(HeifStructure, ThatIsBrokenLeavesTheExifToTheScan) {
    using std::string_literals::operator""s;
    const BuiltHeif good = Heif({}, littleExif(), kPacket).build();
    std::string dataFirst = good.bytes;
    dataFirst.insert(little::fileType("heic").size(), little::boxBytes("mdat", "data"));
    const std::pair<const char *, std::string> broken[]{
        {"data in front of meta", dataFirst},
        {"no item list", changed(good.bytes, "iinf", 0, "free")},
        {"a meta of size 4", changed(good.bytes, "meta", -4, "\0\0\0\4"s)},
        {"a meta beyond the file", changed(good.bytes, "meta", -4, "\x7F\0\0\0"s)},
        {"an item of size 0", changed(good.bytes, "infe", -4, "\0\0\0\0"s)},
        {"widths that do not exist", changed(good.bytes, "iloc", 8, "\x47"s)},
        {"a location version from the future", changed(good.bytes, "iloc", 4, "\3"s)},
        {"too few locations", changed(good.bytes, "iloc", 10, "\0\1"s)},
        {"a distance beyond the item", changed(good.bytes, "Exif\0\0"s, -4, "\0\0\7\0"s)},
    };
    EXPECT_FALSE(heifBlocks(good.bytes).isBroken);
    for (const auto &[name, bytes] : broken) {
        const DatesData dates = readBytes(bytes, FileFormatHeif);
        EXPECT_EQ(text(dates.exifDateTimeOriginal), kStamp) << name;
        EXPECT_FALSE(heifBlocks(bytes).exif) << name;
    }
    // A sound file without an Exif item is not searched, even where a header would be found.
    const std::string noExif = changed(good.bytes, "Exif", 0, "hvc1");
    EXPECT_EQ(readBytes(noExif, FileFormatHeif).tiffHeaderStartOffset, std::nullopt);
}

TEST(HeifValues, HaveNoRoomBehindTheirItem) {
    const BuiltTiff tiff = Tiff().text(Directory::Exif, 36867, kStamp, 5000).build();
    const DatesData dates = readBytes(Heif({}, tiff.bytes, kPacket).build().bytes, FileFormatHeif);
    EXPECT_EQ(dates.exifDateTimeOriginal->room, 20u);
}

TEST(Cr3Blocks, AreReadAsFarAsTheyExist) {
    auto fields = little::fullPhotoFields();
    const struct {
        little::Cr3Form form;
        bool hasModified, hasOriginal, hasGps;
    } cases[]{{{}, true, true, true},
              {{.hasFirst = false, .hasGps = false}, false, true, false},
              {{.hasExif = false}, true, false, true},
              {{.hasFirst = false, .hasExif = false, .hasGps = false}, false, false, false}};
    for (const auto &[form, hasModified, hasOriginal, hasGps] : cases) {
        const DatesData dates = readBytes(cr3Photo(fields, form).bytes, FileFormatRaw, "cr3");
        EXPECT_EQ(dates.tiffDateTime.has_value(), hasModified);
        EXPECT_EQ(dates.exifDateTimeOriginal.has_value(), hasOriginal);
        EXPECT_EQ(dates.gpsLocation.has_value(), hasGps);
        EXPECT_EQ(dates.cr3XmpOffset, std::nullopt);
    }
}

TEST(AppleStills, TellWhatJoinsThemWithTheirMovie) {
    const std::string identifier = "0C0F5A3E-2B5C-4C8A-9D7C-5F1E2D3C4B5A";
    for (const Endian endian : {Endian::Intel, Endian::Motorola}) {
        auto fields = little::fullPhotoFields(endian);
        fields.contentIdentifier = identifier;
        fields.make = "Apple";
        Tiff tiff = little::photoEntries(fields);
        tiff.text(Directory::Exif, 37521, "087")
            .value(Directory::Exif, 41985, 3, 1, little::number(7, 2, endian));
        const DatesData dates =
            readBytes(Heif({}, tiff.build().bytes).build().bytes, FileFormatHeif);
        EXPECT_EQ(dates.livePhoto, (LivePhotoMarks{identifier, 87, 7}));
        fields.make = "Pear";
        EXPECT_EQ(readBytes(heifPhoto(fields).bytes, FileFormatHeif).livePhoto, std::nullopt);
    }
}

TEST(AppleStills, WithAMakerNoteOfAnotherFormHaveNoIdentifier) {
    const std::string note = little::appleNote("0C0F5A3E");
    const std::string farText = changed(note, "MM", 12, "\x7F");
    for (const std::string &bad : {note.substr(1), note.substr(0, 20), farText}) {
        const auto length = static_cast<std::uint32_t>(bad.size());
        Tiff tiff;
        tiff.text(Directory::First, 271, "Apple").value(Directory::Exif, 37500, 7, length, bad);
        const DatesData dates = readTiff(tiff.text(Directory::Exif, 37521, "quick").build().bytes);
        EXPECT_EQ(dates.livePhoto, LivePhotoMarks());
    }
}

} // namespace
} // namespace chronomender::steps
