// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderAccess.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <set>
#include <tuple>

namespace chronomender {
namespace {

namespace fs = std::filesystem;

class FolderAccessTest : public testing::Test {
protected:
    std::string makeFolder(const std::string &name) const {
        fs::create_directories(temporary.path(name));
        return temporary.path(name);
    }
    little::TemporaryFolder temporary;
};

TEST_F(FolderAccessTest, AMovedFolderIsStillFound) {
    const auto reference = FolderReference::open(makeFolder("trip"));
    ASSERT_TRUE(reference);
    EXPECT_EQ(reference->path(), temporary.path("trip"));
    makeFolder("archive");
    fs::rename(temporary.path("trip"), temporary.path("archive/Ísland 2025"));
    EXPECT_EQ(reference->path(), temporary.path("archive/Ísland 2025"));
    makeFolder("trip"); // a new folder of the old name is another one
    EXPECT_EQ(reference->path(), temporary.path("archive/Ísland 2025"));
    EXPECT_TRUE(reference->isWritable());
}

TEST_F(FolderAccessTest, ADeletedFolderHasNoPathUnlikeOneThatIsNamedSo) {
    const auto reference = FolderReference::open(makeFolder("trip"));
    const auto named = FolderReference::open(makeFolder("photos (deleted)"));
    fs::remove(temporary.path("trip"));
    EXPECT_EQ(reference->path(), "");
    const auto entries = listFolder(*reference);
    EXPECT_TRUE(!entries || entries->empty());
    makeFolder("trip");
    makeFolder("trip (deleted)");
    EXPECT_EQ(reference->path(), "");
    EXPECT_EQ(named->path(), temporary.path("photos (deleted)"));
}

TEST_F(FolderAccessTest, OpensFoldersOnlyAndSaysWhyNot) {
    temporary.write("file", "x");
    fs::create_symlink("loop", temporary.path("loop"));
    for (const auto &[name, code] :
         {std::pair("file", ENOTDIR), std::pair("missing", ENOENT), std::pair("loop", ELOOP)}) {
        FileError error;
        EXPECT_FALSE(FolderReference::open(temporary.path(name), &error)) << name;
        EXPECT_EQ(error.code, code) << name;
    }
}

TEST_F(FolderAccessTest, ListsNamesAsTheyAreWithTheirKinds) {
    const std::string path = makeFolder("trip");
    const std::string badName = "caf\xE9.jpg"; // Latin 1, from an old memory card
    temporary.write("trip/a.jpg", "x");
    temporary.write("trip/" + badName, "x");
    makeFolder("trip/.hidden");
    fs::create_symlink("a.jpg", path + "/link.jpg");
    ASSERT_EQ(mkfifo((path + "/pipe").c_str(), 0600), 0);
    const auto reference = FolderReference::open(path);
    for (int turn = 0; turn < 2; ++turn) { // a second listing starts at the beginning again
        const auto entries = listFolder(*reference);
        ASSERT_TRUE(entries);
        std::set<std::tuple<std::string, FileAttributes::Kind, bool>> found;
        for (const FolderEntry &entry : *entries)
            found.emplace(entry.name, entry.kind, entry.isValidUtf8);
        using enum FileAttributes::Kind;
        const decltype(found) expected = {{"a.jpg", Regular, true},
                                          {badName, Regular, false},
                                          {".hidden", Directory, true},
                                          {"link.jpg", SymbolicLink, true},
                                          {"pipe", Other, true}};
        EXPECT_EQ(found, expected);
    }
}

TEST(Utf8Test, AcceptsScalarValuesInTheirShortestFormOnly) {
    for (const char *valid : {"", "IMG_1.JPG", "\xC3\xA9", "\xE2\x82\xAC", "\xED\x9F\xBF",
                              "\xEF\xBF\xBF", "\xF0\x9F\x93\xB7", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(isValidUtf8(valid)) << valid;
    for (const char *invalid : {"\x80", "\xC3", "a\xE2\x82", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF",
                                "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
                                "\xF8\x88\x80\x80\x80", "\xFF", "\xC3(", "\xE2\x82\xC3"})
        EXPECT_FALSE(isValidUtf8(invalid)) << testing::PrintToString(invalid);
}

} // namespace
} // namespace chronomender
