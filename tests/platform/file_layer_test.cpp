// SPDX-License-Identifier: GPL-3.0-or-later
#include "FileLayer.h"
#include "SystemFiles.h"
#include "TemporaryFolder.h"

#include <absl/time/clock.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <limits>

namespace chronomender {
namespace {

namespace fs = std::filesystem;
using little::fileContent;

class FileLayerTest : public testing::Test {
protected:
    std::unique_ptr<OpenFile> open(const std::string &path, OpenMode mode = OpenMode::Update) {
        return layer->open(path, mode, &error);
    }

    little::TemporaryFolder folder;
    std::unique_ptr<FileLayer> layer = makeSystemFileLayer();
    FileError error;
};

TEST_F(FileLayerTest, ReadsShortOnlyAtTheEndAndWritesNothingThen) {
    const auto file = open(folder.write("a", "0123456789"), OpenMode::Read);
    ASSERT_TRUE(file);
    std::array<char, 4> room{};
    EXPECT_EQ(file->pread(room, 2), 4U);
    EXPECT_EQ(std::string_view(room.data(), 4), "2345");
    EXPECT_EQ(file->pread(room, 8), 2U);
    EXPECT_EQ(file->pread(room, 10), 0U);
    EXPECT_EQ(file->pread(room, std::numeric_limits<std::uint64_t>::max()), 0U);
    EXPECT_FALSE(file->pwrite("x", 0)); // opened for reading
    EXPECT_EQ(file->lastError().code, EBADF);
    EXPECT_EQ(fileContent(folder.path("a")), "0123456789");
}

TEST_F(FileLayerTest, WritesInsideTheFileAndNeverLengthensIt) {
    const std::string path = folder.write("a", "0123456789");
    const auto file = open(path);
    ASSERT_TRUE(file);
    EXPECT_TRUE(file->pwrite("xyz", 7));
    EXPECT_EQ(fileContent(path), "0123456xyz");
    for (const std::uint64_t offset : {std::uint64_t{8}, std::uint64_t{10}, std::uint64_t{1} << 40,
                                       std::numeric_limits<std::uint64_t>::max() - 1}) {
        EXPECT_FALSE(file->pwrite("xyz", offset)) << offset;
        EXPECT_EQ(file->lastError().code, EFBIG);
    }
    EXPECT_FALSE(file->pwrite("longer than the whole file", 0));
    fs::resize_file(path, 5); // another program cuts it meanwhile
    EXPECT_FALSE(file->pwrite("x", 5));
    EXPECT_EQ(fileContent(path), "01234");
}

TEST_F(FileLayerTest, OpensNothingButAnExistingRegularFile) {
    const std::string target = folder.write("target", "x");
    fs::create_symlink(target, folder.path("link"));
    fs::create_directory(folder.path("folder"));
    ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0600), 0);
    for (const auto &[name, code] :
         {std::pair("missing", ENOENT), std::pair("link", ELOOP), std::pair("folder", EISDIR)}) {
        EXPECT_FALSE(open(folder.path(name))) << name;
        EXPECT_EQ(error.code, code) << name;
    }
    for (const OpenMode mode : {OpenMode::Read, OpenMode::Update}) // and none of them waits
        EXPECT_FALSE(open(folder.path("pipe"), mode));
    EXPECT_FALSE(open("/dev/null", OpenMode::Read));
    EXPECT_FALSE(fs::exists(folder.path("missing")));
}

TEST_F(FileLayerTest, TellsAttributesAsStored) {
    const std::string path = folder.write("a", "0123456789");
    fs::create_hard_link(path, folder.path("b"));
    fs::create_symlink(path, folder.path("link"));
    const auto named = layer->attributes(path), opened = open(path)->attributes();
    ASSERT_TRUE(named && opened);
    struct stat independent;
    ASSERT_EQ(stat(path.c_str(), &independent), 0);
    for (const auto &found : {*named, *opened}) {
        EXPECT_EQ(found.size, 10U);
        EXPECT_EQ(found.hardLinks, 2U);
        EXPECT_EQ(found.kind, FileAttributes::Kind::Regular);
        EXPECT_EQ(found.device, independent.st_dev);
        EXPECT_EQ(found.inode, independent.st_ino);
        EXPECT_EQ(found.modificationDate, absl::TimeFromTimespec(independent.st_mtim));
        EXPECT_EQ(found.birthDate, opened->birthDate);
    }
    EXPECT_TRUE(opened->isSameFile(*layer->attributes(folder.path("b"))));
    const auto link = layer->attributes(folder.path("link"));
    EXPECT_EQ(link->kind, FileAttributes::Kind::SymbolicLink);
    EXPECT_FALSE(link->isSameFile(*named));
    EXPECT_EQ(layer->attributes(folder.path())->kind, FileAttributes::Kind::Directory);
    EXPECT_FALSE(layer->attributes(folder.path("missing")));
}

TEST_F(FileLayerTest, SetsTheModificationDateToTheNanosecondAndNothingElse) {
    const std::string path = folder.write("a", "x");
    const auto file = open(path);
    struct stat before, after;
    ASSERT_EQ(stat(path.c_str(), &before), 0);
    for (const Date date : {absl::FromUnixNanos(1'700'000'000'123'456'789),
                            absl::FromUnixNanos(-1'000'000'001), absl::FromUnixNanos(-1)}) {
        EXPECT_TRUE(file->setModificationDate(date));
        EXPECT_EQ(file->attributes()->modificationDate, date);
    }
    ASSERT_EQ(stat(path.c_str(), &after), 0);
    EXPECT_EQ(absl::TimeFromTimespec(before.st_atim), absl::TimeFromTimespec(after.st_atim));
    EXPECT_FALSE(file->setModificationDate(InfiniteFuture()));
    EXPECT_TRUE(file->sync());
}

/// A rename that never replaces, by the system's own means and by its fallback.
class ExclusiveRenameTest : public FileLayerTest, public testing::WithParamInterface<bool> {
protected:
    bool rename(const std::string &from, const std::string &to) {
        if (GetParam())
            return layer->renameExclusively(from, to, &error);
        const bool isDone = systemFiles::renameByLink(from.c_str(), to.c_str());
        error.code = isDone ? 0 : errno;
        return isDone;
    }
};

TEST_P(ExclusiveRenameTest, MovesTheNameAndNeverReplaces) {
    const std::string from = folder.write("from", "one");
    const std::string taken = folder.write("taken", "two");
    fs::create_symlink("nowhere", folder.path("dangling"));
    for (const std::string &to : {taken, folder.path("dangling"), folder.path()}) {
        EXPECT_FALSE(rename(from, to)) << to;
        EXPECT_EQ(error.code, EEXIST);
    }
    EXPECT_FALSE(rename(folder.path("missing"), folder.path("free")));
    EXPECT_EQ(error.code, ENOENT);
    EXPECT_TRUE(rename(from, folder.path("free")));
    EXPECT_EQ(fileContent(folder.path("free")), "one");
    EXPECT_EQ(fileContent(taken), "two");
    EXPECT_FALSE(fs::exists(from));
}

INSTANTIATE_TEST_SUITE_P(BySystemAndByLink, ExclusiveRenameTest, testing::Bool());

TEST_F(FileLayerTest, TouchesFoldersOnly) {
    const std::string file = folder.write("folder/file", "x");
    const std::string path = folder.path("folder");
    const timespec old[2] = {{1'000'000'000, 0}, {1'000'000'000, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), old, 0), 0);
    ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), old, 0), 0);
    EXPECT_TRUE(layer->touchDirectory(path));
    EXPECT_LT(distance(layer->attributes(path)->modificationDate, absl::Now()), absl::Minutes(1));
    EXPECT_FALSE(layer->touchDirectory(file));
    EXPECT_EQ(layer->attributes(file)->modificationDate, absl::FromUnixSeconds(1'000'000'000));
}

} // namespace
} // namespace chronomender
