// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReaderSteps.h"

namespace chronomender::steps {
namespace {

using little::Png;

const std::string kPacket = "<x:xmpmeta xmlns:x='adobe:ns:meta/'></x:xmpmeta>";
constexpr std::uint32_t kMostReads = 200;
constexpr std::uint64_t kMostBytes = 512 * 1024;

struct CountedRead {
    DatesData dates;
    ReadCount count;
};

/// Reads dates and XMP as an import does, from a file that goes on with a hole up to `length`.
CountedRead countedRead(std::string_view bytes, FileFormatType format, std::size_t length = 0) {
    little::MemoryFile file(bytes);
    if (length > bytes.size()) {
        EXPECT_TRUE(file.stretch(static_cast<off_t>(length)));
    }
    MySingleFolderDataReader reader;
    EXPECT_TRUE(reader.borrow(file.descriptor()));
    CountedRead read{reader.readDates(format, ""), {}};
    (void)reader.readXmpDates(format, read.dates);
    read.count = reader.readCount();
    EXPECT_LE(read.count.reads, kMostReads);
    EXPECT_LE(read.count.bytes, kMostBytes);
    return read;
}

little::PhotoFields fieldsWithXmp() {
    auto fields = little::fullPhotoFields();
    fields.xmp = kPacket;
    return fields;
}

TEST(ReadLimits, HoldForBoxesWhateverTheFilesLength) {
    constexpr std::size_t kHuge = std::size_t{5} << 30;
    for (const FileFormatType format : {FileFormatHeif, FileFormatAvif, FileFormatRaw}) {
        std::string bytes = photoOf(format, fieldsWithXmp()).bytes;
        const std::size_t data = bytes.rfind("mdat") - 4;
        bytes.replace(data, 4, std::string(4, '\0')); // the data reach to the end of the file
        const CountedRead read = countedRead(bytes, format, kHuge);
        EXPECT_TRUE(read.dates.exifDateTimeOriginal && read.dates.gpsDateStamp);
        EXPECT_LE(read.count.bytes, 64u * 1024) << "an ordinary file needs little";
    }
    const std::string exif = little::photoEntries(fieldsWithXmp()).build().bytes;
    const auto tiles = little::Heif({.otherItems = 2000}, exif, kPacket).build();
    EXPECT_TRUE(countedRead(tiles.bytes, FileFormatHeif).dates.gpsLocation);
}

TEST(ReadLimits, HoldForThousandsOfImageChunks) {
    constexpr std::size_t kChunks = 3000, kLength = 8192;
    const std::string exif = little::photoEntries(fieldsWithXmp()).build().bytes;
    const Png even = Png().images(kChunks, kLength).images(1, 777).exif(exif).xmp(kPacket).end();
    const CountedRead read = countedRead(even.bytes(), FileFormatPng);
    EXPECT_EQ(read.dates.tiffHeaderStartOffset, even.tiffStart());
    EXPECT_EQ(read.dates.xmpHeaderStartOffset, even.xmpStart());
    EXPECT_THAT(read.dates.findings, IsEmpty());

    Png uneven;
    for (std::size_t i = 0; i < 3000; ++i)
        uneven.images(1, 5000 + i % 7);
    const CountedRead given = countedRead(uneven.exif(exif).end().bytes(), FileFormatPng);
    EXPECT_EQ(given.dates.tiffHeaderStartOffset, std::nullopt);
    ASSERT_EQ(given.dates.findings.size(), 1u);
    EXPECT_EQ(given.dates.findings[0].reason, FindingReason::ScanLimit);
}

TEST(ReadLimits, OneReadIsEnoughForAnOrdinaryJpeg) {
    auto fields = little::fullPhotoFields();
    fields.bodyLength = 3000000;
    EXPECT_EQ(countedRead(jpegPhoto(fields).bytes, FileFormatJpeg).count.reads, 1u);
}

} // namespace
} // namespace chronomender::steps
