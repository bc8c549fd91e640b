// SPDX-License-Identifier: GPL-3.0-or-later
#include "Corpus.h"
#include "HeaderSearch.h"
#include "ReaderSteps.h"
#include "TemporaryFolder.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>

namespace chronomender::steps {
namespace {

using TagList = std::initializer_list<std::uint16_t>;

constexpr const char *kStamp = "2024:05:06 07:08:09";

BuiltPhoto goodPhoto(FileFormatType format) {
    auto fields = little::fullPhotoFields(Endian::Motorola);
    fields.bodyLength = 40;
    fields.xmp = "<x:xmpmeta xmlns:x='adobe:ns:meta/'/>";
    return photoOf(format, fields);
}

class DamagedPhoto : public ::testing::TestWithParam<FileFormatType> {};

TEST_P(DamagedPhoto, CutAtEachByteGivesTrueValuesOnly) {
    const BuiltPhoto photo = goodPhoto(GetParam());
    const DatesData whole = readBytes(photo.bytes, GetParam());
    const auto all = valuesByName(whole);
    for (std::size_t length = 0; length < photo.bytes.size(); ++length) {
        const std::string cut = photo.bytes.substr(0, length);
        const DatesData dates = readBytes(cut, GetParam());
        ASSERT_TRUE(standsInFile(dates, cut)) << length;
        for (const auto &[name, value] : valuesByName(dates))
            ASSERT_EQ(value.offset, all.at(name).offset) << name << " cut at " << length;
    }
}

TEST_P(DamagedPhoto, WithOneByteChangedNeverGivesWhatTheFileHasNot) {
    constexpr int kMutations = 10000;
    const std::string good = goodPhoto(GetParam()).bytes;
    std::mt19937 random(20240506);
    little::MemoryFile file;
    MySingleFolderDataReader reader;
    int changed = 0;
    const auto before = valuesByName(readBytes(good, GetParam()));
    for (int i = 0; i < kMutations; ++i) {
        std::string bytes = good;
        bytes[random() % bytes.size()] = static_cast<char>(random() % 256);
        ASSERT_TRUE(file.fill(bytes));
        ASSERT_TRUE(reader.borrow(file.descriptor()));
        const DatesData dates = reader.readDates(GetParam(), "");
        ASSERT_TRUE(standsInFile(dates, bytes)) << "mutation " << i;
        changed += valuesByName(dates) == before ? 0 : 1;
    }
    EXPECT_GT(changed, kMutations / 10) << "the mutations do not reach the values";
}

INSTANTIATE_TEST_SUITE_P(EachFormat, DamagedPhoto,
                         ::testing::Values(FileFormatJpeg, FileFormatTiff, FileFormatHeif,
                                           FileFormatAvif, FileFormatRaw, FileFormatPng,
                                           FileFormatWebp),
                         [](const auto &format) { return std::string(formatName(format.param)); });

TEST(HostileDirectory, EachIsReadOnce) {
    constexpr std::uint16_t kLong = 4;
    const auto looping = Tiff()
                             .text(Directory::First, 36867, kStamp)
                             .field(Directory::First, 34665, kLong, 1, 8)
                             .field(Directory::First, 34853, kLong, 1, 8)
                             .build();
    const DatesData dates = readTiff(looping.bytes);
    EXPECT_EQ(text(dates.exifDateTimeOriginal), kStamp);
    ASSERT_EQ(dates.findings.size(), 2u);
    for (const Finding &finding : dates.findings)
        EXPECT_EQ(finding.reason, FindingReason::DirectoryLoop) << finding.what;
}

TEST(HostileDirectory, CountsAndOffsetsBeyondTheFileAreAbsences) {
    Tiff counts;
    for (const auto directory : {Directory::First, Directory::Exif, Directory::Gps})
        counts.claimCount(directory, 65535);
    counts.text(Directory::Exif, 36867, kStamp).text(Directory::Gps, 29, "2024:05:06");
    EXPECT_EQ(text(readTiff(counts.build().bytes).exifDateTimeOriginal), kStamp);

    constexpr std::uint32_t kFar = 0xFFFFFFF0;
    Tiff offsets;
    for (const std::uint16_t tag : TagList{46, 271, 306, 34665, 34853, 36867, 36881})
        offsets.field(Directory::First, tag, 2, 20, kFar);
    const DatesData dates = readTiff(offsets.build().bytes);
    EXPECT_THAT(valuesByName(dates), IsEmpty());
    EXPECT_EQ(dates.findings.size(), 4u); // two stamps, a zone stamp, a directory twice

    Tiff empty;
    empty.field(Directory::First, 34665, 4, 1, 0).field(Directory::First, 34853, 4, 1, 0);
    EXPECT_THAT(readTiff(empty.build().bytes).findings, IsEmpty());

    std::string noDirectory = counts.build().bytes;
    noDirectory.replace(4, 4, "\xFF\xFF\xFF\xFF");
    EXPECT_EQ(readTiff(noDirectory).tiffHeaderStartOffset, 0u);
    EXPECT_THAT(valuesByName(readTiff(noDirectory)), IsEmpty());
}

TEST(HugeFile, IsScannedForItsDataOnly) {
    constexpr off_t kHuge = off_t{64} << 30;
    const std::string tiff = Tiff().text(Directory::First, 306, kStamp).build().bytes;
    little::MemoryFile file("RAWHEADER");
    ASSERT_TRUE(file.stretch(kHuge));
    ASSERT_EQ(::pwrite(file.descriptor(), tiff.data(), tiff.size(), kHuge / 2 + 7),
              static_cast<ssize_t>(tiff.size()));
    MySingleFolderDataReader reader;
    ASSERT_TRUE(reader.borrow(file.descriptor()));
    const DatesData dates = reader.readDates(FileFormatRaw, "raf");
    EXPECT_EQ(text(dates.tiffDateTime), kStamp);
    EXPECT_GT(dates.tiffDateTime->offset, std::uint64_t{kHuge / 2});

    ASSERT_TRUE(file.stretch(9));
    ASSERT_TRUE(file.stretch(kHuge)); // nothing but a hole is left
    ASSERT_TRUE(reader.borrow(file.descriptor()));
    EXPECT_THAT(reader.readDates(FileFormatRaw, "raf").findings, IsEmpty());
}

TEST(HugeFile, IsScannedUpToALimit) {
    constexpr std::uint64_t kLimit = 512 * 1024;
    const auto scan = [](std::size_t length) {
        const std::string bytes(length, 'r');
        const little::MemoryFile file(bytes);
        FileWindow window(file.descriptor(), bytes.size(), false);
        return scanForHeader(window, kLimit);
    };
    EXPECT_FALSE(scan(kLimit - 1).hasReachedLimit);
    EXPECT_TRUE(scan(2 * kLimit).hasReachedLimit);
    EXPECT_FALSE(scan(2 * kLimit).header);
}

TEST(HugeFile, OfTinySegmentsEnds) {
    std::string jpeg = "\xFF\xD8";
    for (int i = 0; i < 200000; ++i)
        jpeg += std::string("\xFF\xE2\0\2", 4);
    jpeg += Jpeg().exif(Tiff().text(Directory::First, 306, kStamp).build().bytes).bytes().substr(2);
    EXPECT_EQ(readJpeg(jpeg).tiffHeaderStartOffset, std::nullopt);
}

TEST(OddFiles, AreRefusedWithoutWaiting) {
    const little::TemporaryFolder folder;
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    MySingleFolderDataReader reader;
    const std::pair<std::string, int> refused[]{{folder.path(), EISDIR},
                                                {folder.path("pipe"), EINVAL},
                                                {"/dev/zero", EINVAL},
                                                {folder.path("missing.jpg"), ENOENT}};
    for (const auto &[path, error] : refused) {
        EXPECT_FALSE(reader.open(path)) << path;
        EXPECT_EQ(errno, error) << path;
        EXPECT_EQ(reader.descriptor(), -1);
    }
    EXPECT_EQ(reader.savereadDatesAtPath(folder.path("missing.jpg"), FileFormatJpeg), std::nullopt);
    ASSERT_TRUE(reader.open(folder.write("empty.jpg", "")));
    EXPECT_EQ(reader.firstBytes(), "");
    EXPECT_THAT(valuesByName(reader.readDates(FileFormatJpeg, "jpg")), IsEmpty());
}

TEST(Descriptors, AreClosedByTheirOwnerOnly) {
    const little::TemporaryFolder folder;
    const std::string path = folder.write("a.jpg", goodPhoto(FileFormatJpeg).bytes);
    MySingleFolderDataReader reader;
    ASSERT_TRUE(reader.open(path));
    const int own = reader.descriptor();
    reader.closeFile();
    EXPECT_EQ(::fcntl(own, F_GETFD), -1);

    const little::MemoryFile file("x");
    ASSERT_TRUE(reader.borrow(file.descriptor()));
    reader.closeFile();
    EXPECT_NE(::fcntl(file.descriptor(), F_GETFD), -1);
    EXPECT_TRUE(reader.savereadDatesAtPath(path, FileFormatJpeg)->exifDateTimeOriginal);
}

TEST(MalformedCorpus, IsReadWithoutHarm) {
    const auto folder = little::corpusFolder(CHRONOMENDER_SOURCE_TREE) / "malformed";
    if (!std::filesystem::exists(folder))
        GTEST_SKIP() << "there are no malformed files at " << folder;
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        const std::string content = little::fileContent(entry.path().string());
        for (const auto format : {FileFormatNone, FileFormatJpeg, FileFormatRaw, FileFormatTiff,
                                  FileFormatHeif, FileFormatPng, FileFormatWebp}) {
            MySingleFolderDataReader reader;
            const auto dates = reader.savereadDatesAtPath(entry.path().string(), format);
            ASSERT_TRUE(dates) << entry.path();
            EXPECT_TRUE(standsInFile(*dates, content)) << entry.path();
        }
    }
}

} // namespace
} // namespace chronomender::steps
