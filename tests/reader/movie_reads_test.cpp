// SPDX-License-Identifier: GPL-3.0-or-later
#include "Corpus.h"
#include "FileFormatType.h"
#include "MovieSteps.h"
#include "MovieWalk.h"
#include "TemporaryFolder.h"

#include <algorithm>
#include <fcntl.h>
#include <unistd.h>

namespace chronomender {
namespace {

using namespace steps;

constexpr std::uint32_t kMostReads = 200;
constexpr std::uint64_t kMostBytes = 512 * 1024;

ReadCount readsOf(const std::string &path, bool isRiff) {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    FileWindow window(descriptor, std::filesystem::file_size(path), false);
    if (isRiff)
        (void)readRiffHeader(window);
    else
        (void)readQuicktimeHeader(window, false);
    (void)readMovieDetails(window);
    ::close(descriptor);
    return window.readCount();
}

TEST(MovieReads, fiveGigabytesOfMediaAreStridden) {
    const little::TemporaryFolder folder;
    const std::uint64_t length = 5ULL << 30;
    std::string head = little::ftyp().bytes + little::big(1) + "mdat";
    head += little::big(length - head.size() + 8, 8);
    const std::string path = folder.write("long.mov", head);
    std::filesystem::resize_file(path, length);
    const Part moov = little::moov({.date = "2020-04-17T10:03:47-0600"});
    std::ofstream(path, std::ios::binary | std::ios::app) << moov.bytes;

    MySingleFolderDataReader reader;
    ASSERT_TRUE(reader.open(path));
    const auto found = reader.readMovieHeader(FileFormatQuickTime);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->qtCreationDate->offset, length - 8 + moov.at("date") + 8);
    const ReadCount count = readsOf(path, false);
    EXPECT_LE(count.reads, 8U);
    EXPECT_LE(count.bytes, 64U * 1024);
}

/// Boxes in boxes, each too far from the last one to be fetched with it.
Part sparseBoxes(const std::string &outer, const std::string &inner, int count) {
    const Part gap = little::box("free", little::zeros(40000));
    Part content;
    for (int i = 0; i < count; ++i)
        content = content + little::box(inner, gap + gap) + gap;
    return little::box(outer, content);
}

TEST(MovieReads, noStructureMakesTheWalkReadForever) {
    const little::TemporaryFolder folder;
    const Part tracks = sparseBoxes("moov", "trak", 60);
    const Part userData = little::box("moov", sparseBoxes("udta", "meta", 60));
    for (const Part &movie : {tracks, userData, sparseBoxes("free", "free", 99)}) {
        const ReadCount count = readsOf(folder.write("hostile.mov", movie.bytes), false);
        EXPECT_LE(count.reads, kMostReads);
        EXPECT_LE(count.bytes, kMostBytes);
    }
    Part chunks;
    for (int i = 0; i < 99; ++i)
        chunks = chunks + little::list("abcd", little::zeros(40000));
    const ReadCount count =
        readsOf(folder.write("hostile.avi", little::list("AVI ", chunks, "RIFF").bytes), true);
    EXPECT_LE(count.reads, kMostReads);
}

bool isOf(const little::CorpusFile &file, std::initializer_list<std::string_view> kinds) {
    return std::ranges::find(kinds, file.kind) != kinds.end();
}

/// Where ExifTool says that a tag of the movie stands; -1 where it says nothing.
std::int64_t offsetOf(const little::CorpusFile &file, const std::string &directory,
                      const std::string &tag) {
    for (const auto &each : file.offsets)
        if (each.value("dir", "") == directory && each.value("tag", "") == tag)
            return each.value("offset", -1);
    return -1;
}

TEST(MovieCorpus, valuesStandWhereExifToolSeesThem) {
    const auto files = little::corpusFiles(little::corpusFolder(CHRONOMENDER_SOURCE_TREE));
    if (files.empty())
        GTEST_SKIP() << "no corpus beside the source tree";
    int movies = 0;
    for (const auto &file : files) {
        if (!isOf(file, {"mov", "mp4", "avi"}))
            continue;
        SCOPED_TRACE(file.path);
        const bool isRiff = file.kind == "avi";
        MySingleFolderDataReader reader;
        ASSERT_TRUE(reader.open(file.path));
        const auto found =
            reader.readMovieHeader(isRiff ? FileFormatOtherMovie : FileFormatQuickTime);
        const auto expectAt = [&](const std::optional<LocatedBytes> &value, std::int64_t offset) {
            EXPECT_TRUE(!value || static_cast<std::int64_t>(value->offset) == offset) << offset;
        };
        if (found) {
            ++movies;
            expectAt(found->creaDate, offsetOf(file, "Movie/BinaryData", "CreateDate"));
            expectAt(found->modDate, offsetOf(file, "Movie/BinaryData", "ModifyDate"));
            expectAt(found->qtCreationDate, offsetOf(file, "Movie/Meta/ItemList", "CreationDate"));
            expectAt(found->riffCreaDate, offsetOf(file, "Hdrl", "DateTimeOriginal"));
        }
        const bool hasDate = file.exiftool.contains("QuickTime:CreateDate") ||
                             file.exiftool.contains("RIFF:DateTimeOriginal");
        EXPECT_TRUE(found || !hasDate || file.path.ends_with("Pentax.avi"));
        const double duration = reader.readMovieDetails(FileFormatQuickTime).movDuration;
        const auto &told = file.exiftool;
        EXPECT_NEAR(duration, told.value("QuickTime:Duration", duration), 0.001);
        EXPECT_LE(readsOf(file.path, isRiff).reads, kMostReads);
        EXPECT_LE(readsOf(file.path, isRiff).bytes, kMostBytes);
    }
    EXPECT_GE(movies, 20);
}

TEST(MovieCorpus, livePhotosAreKnownByTheirMarks) {
    const auto files = little::corpusFiles(little::corpusFolder(CHRONOMENDER_SOURCE_TREE));
    if (files.empty())
        GTEST_SKIP() << "no corpus beside the source tree";
    const auto detailsOf = [&](std::string_view name) {
        const auto file = std::ranges::find_if(
            files, [&](const auto &each) { return each.path.ends_with(name); });
        MySingleFolderDataReader reader;
        EXPECT_TRUE(reader.open(file->path));
        return reader.readMovieDetails(FileFormatQuickTime);
    };
    const MovieDetails live = detailsOf("IMG_3589.mov");
    EXPECT_TRUE(live.hasLivePhotoInfo);
    EXPECT_THAT(live.stillImageTime, testing::Optional(testing::DoubleNear(1.335, 1e-9)));
    EXPECT_EQ(live.contentIdentifier, "1EA799FF-8384-4BC4-87AA-139A814D9125");
    EXPECT_EQ(live.width, 1440);
    const MovieDetails atStart = detailsOf("StillImageTimeZero.mov");
    EXPECT_FALSE(atStart.hasLivePhotoInfo);
    EXPECT_EQ(atStart.stillImageTime, 0);
    EXPECT_FALSE(detailsOf("P1000244.MOV").stillImageTime);
}

} // namespace
} // namespace chronomender
