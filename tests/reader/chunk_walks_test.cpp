// SPDX-License-Identifier: GPL-3.0-or-later
#include "PngWalk.h"
#include "ReaderSteps.h"
#include "WebpWalk.h"

namespace chronomender::steps {
namespace {

using little::Png;
using little::RiffFill;
using little::Webp;
using std::string_literals::operator""s;

const std::string kPacket = "<x:xmpmeta xmlns:x='adobe:ns:meta/'></x:xmpmeta>";

constexpr auto pngBlocks = blocksOf<findPngBlocks>;
constexpr auto webpBlocks = blocksOf<findWebpBlocks>;

TEST(PngChunks, AreFoundInFrontOfThePictureAndBehind) {
    const std::string exif = littleExif();
    for (const std::size_t images : {0, 1, 2, 3, 4, 5, 8, 17, 4000}) {
        for (const std::size_t lastLength : {100, 99}) {
            Png png;
            png.images(images + 1, 100).images(1, lastLength).xmp(kPacket).images(2, 100);
            png.exif(exif).exif("second").end();
            const MetadataBlocks blocks = pngBlocks(png.bytes());
            EXPECT_EQ(blocks.xmp, (ByteBlock{png.xmpStart(), kPacket.size()})) << images;
            EXPECT_EQ(blocks.exif->length, exif.size()) << images;
            EXPECT_FALSE(blocks.isBroken);
        }
    }
}

TEST(PngText, GivesThePacketOfPlainXmpOnly) {
    const struct {
        const char *name;
        std::string fields;
        std::optional<FindingReason> finding;
    } cases[]{
        {"no further fields", "\0\0\0\0"s, {}},
        {"a language and a translated keyword", "\0\0en-GB\0metadata\0"s, {}},
        {"compressed", "\1\0\0\0"s, FindingReason::Compressed},
        {"fields that do not end", "\0\0"s + std::string(300, 'x'), FindingReason::BrokenStructure},
    };
    for (const auto &[name, fields, finding] : cases) {
        Png png;
        png.chunk("iTXt", "Comment\0\0\0\0\0nothing"s).xmp(kPacket, fields).end();
        const MetadataBlocks blocks = pngBlocks(png.bytes());
        EXPECT_EQ(blocks.xmp.has_value(), !finding) << name;
        ASSERT_EQ(blocks.findings.size(), finding ? 1u : 0u) << name;
        if (finding) {
            EXPECT_EQ(blocks.findings[0].reason, *finding) << name;
        } else {
            EXPECT_EQ(blocks.xmp, (ByteBlock{png.xmpStart(), kPacket.size()})) << name;
        }
    }
}

TEST(PngStructure, ThatIsBrokenKeepsWhatWasFound) {
    Png png;
    png.exif(littleExif()).images(1, 10);
    const std::string hugeLength =
        png.bytes() + "\xFF\xFF\xFF\xFFiTXtXML:com.adobe.xmp\0\0\0\0\0<x"s;
    for (const std::string &bytes : {png.bytes(), hugeLength}) {
        EXPECT_TRUE(pngBlocks(bytes).isBroken);
        EXPECT_TRUE(pngBlocks(bytes).exif);
        EXPECT_TRUE(readBytes(bytes, FileFormatPng).exifDateTimeOriginal);
    }
    // A sound file without Exif is not searched for a header.
    const std::string sound = Png().chunk("zzZz", littleExif()).end().bytes();
    EXPECT_EQ(readBytes(sound, FileFormatPng).tiffHeaderStartOffset, std::nullopt);
}

TEST(WebpChunks, AreFoundHoweverOddLengthsAreFilled) {
    for (const RiffFill fill : {RiffFill::Padded, RiffFill::CountedAsData, RiffFill::LeftOut}) {
        for (const std::string &prefix : {""s, "Exif\0\0"s}) {
            const std::string exif = littleExif() + "odd";
            Webp webp(fill);
            webp.chunk("VP8 ", std::string(33, 'p')).exif(exif, prefix).xmp(kPacket + "\n");
            const DatesData dates = readBytes(webp.bytes(), FileFormatWebp);
            EXPECT_EQ(text(dates.exifDateTimeOriginal), "2024:05:06 07:08:09");
            EXPECT_EQ(dates.tiffHeaderStartOffset, webp.tiffStart());
            EXPECT_EQ(dates.xmpHeaderStartOffset, webp.xmpStart());
            EXPECT_THAT(dates.findings, IsEmpty());
        }
    }
}

TEST(WebpStructure, ThatIsBrokenIsAFinding) {
    Webp webp;
    webp.exif(littleExif()).chunk("ANMF", std::string(40, 'f')).xmp(kPacket);
    const std::string cut = webp.bytes().substr(0, webp.tiffStart() + littleExif().size() + 20);
    std::string other = webp.bytes();
    other.replace(0, 4, "RIFX");
    for (const std::string &bytes : {cut, other}) {
        const DatesData dates = readBytes(bytes, FileFormatWebp);
        EXPECT_EQ(dates.exifDateTimeOriginal.has_value(), bytes == cut);
        EXPECT_EQ(dates.xmpHeaderStartOffset, std::nullopt);
        ASSERT_EQ(dates.findings.size(), 1u);
        EXPECT_EQ(dates.findings[0].reason, FindingReason::BrokenStructure);
    }
}

} // namespace
} // namespace chronomender::steps
