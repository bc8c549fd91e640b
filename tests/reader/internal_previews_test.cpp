// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReaderSteps.h"

namespace chronomender::steps {
namespace {

std::string jpegOf(std::size_t width, std::size_t height, unsigned marker = 0xC0,
                   const std::string &thumbnail = {}) {
    Jpeg jpeg;
    if (!thumbnail.empty())
        jpeg.segment(0xE1, "Exif" + thumbnail);
    return jpeg.frame(marker, width, height).body(50).bytes();
}

std::optional<InternalPreview> previewIn(std::string_view bytes,
                                         std::uint64_t mostBytes = 1 << 24) {
    const little::MemoryFile file(bytes);
    FileWindow window(file.descriptor(), bytes.size(), false);
    return savereadInternalJPGs(window, mostBytes);
}

TEST(InternalPreview, IsTheFirstLargeJpegElseTheLargest) {
    const std::string small = jpegOf(160, 120), middle = jpegOf(640, 480), wide = jpegOf(700, 100),
                      large = jpegOf(1620, 1080, 0xC2, small), larger = jpegOf(6000, 4000),
                      lossless = jpegOf(6000, 4000, 0xC3);
    const struct {
        const char *name;
        std::vector<std::string> parts;
        std::size_t chosen; ///< index of the part, or beyond them for none
    } cases[]{
        {"the first of two large ones", {"raw", small, large, larger}, 2},
        {"the larger of two small ones", {"raw", middle, small, "raw"}, 1},
        {"larger in both directions only", {"raw", small, wide}, 1},
        {"in front of a lossless picture", {small, lossless, larger}, 0},
        {"no end", {"raw", large.substr(0, large.size() - 2)}, 2},
        {"four starts inside each other",
         {"\xFF\xD8\xFF", "\xFF\xD8\xFF", "\xFF\xD8\xFF", large},
         4},
    };
    for (const auto &[name, parts, chosen] : cases) {
        std::string bytes;
        std::optional<ByteBlock> expected;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            if (i == chosen)
                expected = ByteBlock{bytes.size(), parts[i].size()};
            bytes += parts[i];
        }
        const auto preview = previewIn(bytes);
        EXPECT_EQ(preview ? std::optional(preview->bytes) : std::nullopt, expected) << name;
    }
    const auto preview = previewIn("raw" + large);
    EXPECT_EQ(preview->width, 1620);
    EXPECT_EQ(preview->height, 1080);
}

TEST(InternalPreview, MayLieAcrossBlocks) {
    const std::string large = jpegOf(1620, 1080);
    constexpr std::size_t kBlock = FileWindow::kScanBlock;
    for (std::size_t back = 0; back <= large.size() + 2; ++back) {
        const std::string bytes = std::string(kBlock - back, 'r') + large + "raw";
        const auto preview = previewIn(bytes);
        ASSERT_TRUE(preview) << back;
        EXPECT_EQ(preview->bytes, (ByteBlock{kBlock - back, large.size()})) << back;
    }
}

TEST(InternalPreview, IsSearchedWithinALimitAndNotInHoles) {
    const std::string large = jpegOf(1620, 1080);
    EXPECT_FALSE(previewIn(std::string(400000, 'r') + large, 300000));
    constexpr off_t kHuge = off_t{20} << 30;
    little::MemoryFile file("II*");
    ASSERT_TRUE(file.stretch(kHuge));
    ASSERT_GT(::pwrite(file.descriptor(), large.data(), large.size(), kHuge - 5000), 0);
    MySingleFolderDataReader reader;
    ASSERT_TRUE(reader.borrow(file.descriptor()));
    EXPECT_EQ(reader.readInternalPreview()->bytes.offset, std::uint64_t{kHuge - 5000});
}

} // namespace
} // namespace chronomender::steps
