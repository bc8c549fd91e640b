// SPDX-License-Identifier: GPL-3.0-or-later
#include "Corpus.h"
#include "MovieSteps.h"
#include "TemporaryFolder.h"

#include <algorithm>

namespace chronomender::steps {
namespace {

/// What reading all of a movie costs.
ReadCount readsOf(MySingleFolderDataReader &reader, FileFormatType format) {
    (void)reader.readMovieHeader(format);
    (void)reader.readMovieDetails();
    return reader.readCount();
}

TEST(MovieReads, fiveGigabytesOfMediaAreStridden) {
    const little::TemporaryFolder folder;
    const std::uint64_t length = 5ULL << 30;
    const std::string head =
        little::ftyp().bytes + little::big(1) + "mdat" + little::big(length - 20, 8);
    const std::string path = folder.write("long.mov", head);
    std::filesystem::resize_file(path, length);
    const Part moov = little::moov({.date = "2020-04-17T10:03:47-0600"});
    std::ofstream(path, std::ios::binary | std::ios::app) << moov.bytes;

    MySingleFolderDataReader reader;
    ASSERT_TRUE(reader.open(path));
    const auto found = reader.readMovieHeader(FileFormatQuickTime);
    ASSERT_TRUE(found && found->qtCreationDate);
    EXPECT_EQ(found->qtCreationDate->offset, length + moov.at("date"));
    const ReadCount count = readsOf(reader, FileFormatQuickTime);
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
    Part chunks;
    for (int i = 0; i < 99; ++i)
        chunks = chunks + little::list("abcd", little::zeros(40000));
    for (const Part &movie : {sparseBoxes("moov", "trak", 60), sparseBoxes("free", "free", 99),
                              little::box("moov", sparseBoxes("udta", "meta", 60)),
                              little::list("AVI ", chunks, "RIFF")}) {
        const little::MemoryFile file(movie.bytes);
        for (const FileFormatType format : {FileFormatQuickTime, FileFormatOtherMovie}) {
            MySingleFolderDataReader reader;
            ASSERT_TRUE(reader.borrow(file.descriptor()));
            const ReadCount count = readsOf(reader, format);
            EXPECT_LE(count.reads, 200U);
            EXPECT_LE(count.bytes, 512U * 1024);
        }
    }
}

TEST(MovieReads, realLivePhotosAreKnownByTheirMarks) {
    const auto files = little::corpusFiles(little::corpusFolder(CHRONOMENDER_SOURCE_TREE));
    if (files.empty())
        GTEST_SKIP() << "no corpus beside the source tree";
    const auto detailsOf = [&](std::string_view name) {
        const auto file = std::ranges::find_if(
            files, [&](const auto &each) { return each.path.ends_with(name); });
        return details(little::fileContent(file->path));
    };
    EXPECT_TRUE(detailsOf("IMG_3589.mov").hasLivePhotoInfo);
    EXPECT_EQ(detailsOf("IMG_3589.mov").stillImageTime, 1.335);
    EXPECT_FALSE(detailsOf("StillImageTimeZero.mov").hasLivePhotoInfo);
    EXPECT_EQ(detailsOf("StillImageTimeZero.mov").stillImageTime, 0);
    EXPECT_FALSE(detailsOf("P1000244.MOV").stillImageTime);
}

} // namespace
} // namespace chronomender::steps
