// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittlePng.h"
#include "PngChecksums.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;

const std::string kExif(40000, 'e'), kPacket(300, 'x');

class PngChecksums : public testing::Test {
protected:
    /// The file once the patches, each one letter "!", and the checksums are written; none where
    /// nothing may be.
    std::optional<std::string> written(std::string bytes, const std::vector<std::uint64_t> &places,
                                       std::uint64_t hint = 0) {
        std::vector<Patch> patches;
        for (const std::uint64_t place : places)
            patches.emplace_back(place, bytes.substr(place, 1), "!");
        const auto file = makeSystemFileLayer()->open(disk.write("a.png", bytes), OpenMode::Read);
        const auto checksums = checksumPatches(*file, patches, hint);
        if (!checksums)
            return std::nullopt;
        patches.insert(patches.end(), checksums->begin(), checksums->end());
        for (const Patch &patch : patches) {
            EXPECT_EQ(bytes.substr(patch.offset(), patch.before().size()), patch.before());
            bytes.replace(patch.offset(), patch.after().size(), patch.after());
        }
        return bytes;
    }
    /// A file with both chunks behind as many image chunks.
    static Png png(const std::string &exif, const std::string &packet, std::size_t images) {
        Png png;
        png.images(images, 3).exif(exif).xmp(packet);
        return png.images(1, 3).end();
    }
    static std::string marked(std::string text, std::size_t at) { return text.replace(at, 1, "!"); }

    TemporaryFolder disk;
};

TEST_F(PngChecksums, AreThoseOfAFileBuiltWithTheNewValues) {
    for (const std::size_t images : {0, 3000}) {
        const Png before = png(kExif, kPacket, images);
        const std::uint64_t exif = before.tiffStart(), xmp = before.xmpStart();
        const std::string both = png(marked(kExif, 39999), marked(kPacket, 7), images).bytes();
        const std::string exifOnly = png(marked(kExif, 39999), kPacket, images).bytes();
        for (const std::uint64_t hint :
             {std::uint64_t{0}, exif, xmp, exif + 9, ~std::uint64_t{0}}) {
            EXPECT_EQ(written(before.bytes(), {exif + 39999, xmp + 7}, hint), both) << hint;
            EXPECT_EQ(written(before.bytes(), {exif + 39999}, hint), exifOnly) << hint;
        }
    }
}

TEST_F(PngChecksums, AChunkIsNotTakenForOneByItsNameAlone) {
    // In front of the real data stand the bytes of a header that claims to hold them too.
    const std::string trap = number(20, 4, Endian::Motorola) + "iTXt" + std::string(40, 'd');
    const auto build = [](const std::string &exif) {
        Png png;
        png.exif(exif);
        return png.end();
    };
    const Png before = build(trap);
    EXPECT_EQ(written(before.bytes(), {before.tiffStart() + 12}, before.tiffStart() + 12),
              build(marked(trap, 12)).bytes());
}

TEST_F(PngChecksums, NothingIsWrittenWithoutAChunkAroundAllOfIt) {
    const Png good = png(kExif, kPacket, 1);
    const std::uint64_t exif = good.tiffStart(), xmp = good.xmpStart();
    const std::uint64_t end = good.bytes().size();
    const auto withLength = [&](std::uint32_t length) {
        return std::string(good.bytes()).replace(exif - 8, 4, number(length, 4, Endian::Motorola));
    };
    const struct {
        const char *what;
        std::string bytes;
        std::vector<std::uint64_t> places;
    } table[] = {
        {"header", good.bytes(), {8 + 25 + 9}},
        {"type", good.bytes(), {exif - 1}},
        {"checksum", good.bytes(), {exif + kExif.size()}},
        {"picture", good.bytes(), {exif + 1, end - 12 - 5}},
        {"behind the end", good.bytes() + "trailer", {end + 3}},
        {"longer than the file", withLength(0x40000000), {exif + 5}},
        {"longest", withLength(0xFFFFFFFF), {exif + 5}},
        {"too short for the value", withLength(4), {exif + 5}},
        {"into the next chunk", withLength(39000), {xmp + 5}},
        {"another file", "GIF89a" + good.bytes().substr(6), {exif + 5}},
        {"cut off", good.bytes().substr(0, exif + kExif.size() + 2), {exif + 5}},
    };
    for (const auto &row : table)
        EXPECT_EQ(written(row.bytes, row.places), std::nullopt) << row.what;
}

} // namespace
} // namespace chronomender
