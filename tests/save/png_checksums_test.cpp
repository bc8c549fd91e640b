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
        for (const Patch &patch : patches)
            bytes.replace(patch.offset(), patch.after().size(), patch.after());
        return bytes;
    }
    /// A file with both chunks behind as many image chunks.
    static Png png(const std::string &exif, const std::string &packet, std::size_t images) {
        Png png;
        return png.images(images, 3).exif(exif).xmp(packet).images(1, 3).end();
    }
    static std::string marked(std::string text, std::size_t at) { return text.replace(at, 1, "!"); }

    TemporaryFolder disk;
};

TEST_F(PngChecksums, AreThoseOfAFileBuiltWithTheNewValues) {
    // Data that begin like a chunk which claims to hold what follows.
    const std::string exif = number(20, 4, Endian::Motorola) + "iTXt" + kExif;
    for (const std::size_t images : {1, 3000}) {
        const Png before = png(exif, kPacket, images);
        const std::uint64_t inExif = before.tiffStart() + 12, inXmp = before.xmpStart() + 7;
        const std::string both = png(marked(exif, 12), marked(kPacket, 7), images).bytes();
        const std::string one = png(marked(exif, 12), kPacket, images).bytes();
        for (const std::uint64_t hint : {std::uint64_t{0}, inExif, inXmp, ~std::uint64_t{0}}) {
            EXPECT_EQ(written(before.bytes(), {inExif, inXmp}, hint), both) << hint;
            EXPECT_EQ(written(before.bytes(), {inExif}, hint), one) << hint;
        }
    }
}

TEST_F(PngChecksums, NothingIsWrittenWithoutAChunkAroundAllOfIt) {
    const Png good = png(kExif, kPacket, 1);
    const std::uint64_t exif = good.tiffStart(), end = good.bytes().size();
    const auto withLength = [&](std::uint32_t length) {
        return std::string(good.bytes()).replace(exif - 8, 4, number(length, 4, Endian::Motorola));
    };
    const struct {
        const char *what;
        std::string bytes;
        std::vector<std::uint64_t> places;
    } table[] = {
        {"type", good.bytes(), {exif - 1}},
        {"checksum", good.bytes(), {exif + kExif.size()}},
        {"picture", good.bytes(), {exif + 1, end - 12 - 5}},
        {"behind the end", good.bytes() + "trailer", {end + 3}},
        {"longer than the file", withLength(0x40000000), {exif + 5}},
        {"longest", withLength(0xFFFFFFFF), {exif + 5}},
        {"too short for the value", withLength(4), {exif + 5}},
        {"another file", "GIF89a" + good.bytes().substr(6), {exif + 5}},
        {"cut off", good.bytes().substr(0, exif + kExif.size() + 2), {exif + 5}},
    };
    for (const auto &row : table)
        EXPECT_EQ(written(row.bytes, row.places), std::nullopt) << row.what;
}

} // namespace
} // namespace chronomender
