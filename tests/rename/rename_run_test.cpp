// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaseInsensitiveFileLayer.h"
#include "CaseInsensitiveFolder.h"
#include "LittleLivePhoto.h"
#include "RenameSession.h"
#include "UnchangedProof.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;
using Names = std::map<std::string, std::string>;
using Wishes = std::vector<std::pair<std::string, std::string>>;

std::vector<int> ids(const std::vector<SaveError> &errors) {
    std::vector<int> found;
    for (const SaveError &error : errors)
        found.push_back(static_cast<int>(error.id));
    return found;
}

/// Each item and each of its companions stands where the model says, and is the file that it was.
void expectModelFitsDisk(RenameSession &session) {
    const auto disk = session.onDisk();
    for (const MySinglePicPtr &pic : session.folder().sfPicDetails_fullArray)
        for (const MySinglePicPtr &half : {pic, pic->group.bundleDependentImage}) {
            if (!half)
                continue;
            ASSERT_TRUE(disk.contains(half->spName)) << half->spName;
            const auto file = session.layer->open(half->spPath(), OpenMode::Read, nullptr);
            ASSERT_TRUE(file) << half->spName;
            EXPECT_EQ(stateOfOpenFile(*half, *file), FileUnchangedState::Unchanged) << half->spName;
            for (const std::string &path : half->spSidecarPaths())
                EXPECT_TRUE(std::filesystem::exists(path)) << path;
        }
}

struct RunCase {
    const char *what;
    Wishes wishes;
    std::vector<std::string> others;  ///< companions, imported with the items
    std::vector<std::string> outside; ///< made behind the import
    Names onDisk;                     ///< present and first name of each file
    std::vector<int> errors = {};
    SuffixCase suffixChangeCase = SuffixCase::Leave;
};

const std::vector<RunCase> everywhere{
    {"a swap", {{"a.jpg", "b"}, {"b.jpg", "a"}}, {}, {}, {{"a.jpg", "b.jpg"}, {"b.jpg", "a.jpg"}}},
    {"a cycle of three, with companions",
     {{"a.jpg", "b"}, {"b.jpg", "c"}, {"c.jpg", "a"}},
     {"a.xmp", "c.xmp"},
     {},
     {{"b.jpg", "a.jpg"},
      {"b.xmp", "a.xmp"},
      {"c.jpg", "b.jpg"},
      {"a.jpg", "c.jpg"},
      {"a.xmp", "c.xmp"}}},
    {"a chain", {{"a.jpg", "b"}, {"b.jpg", "c"}}, {}, {}, {{"b.jpg", "a.jpg"}, {"c.jpg", "b.jpg"}}},
    {"letter case alone", {{"A.JPG", "a"}}, {}, {}, {{"a.JPG", "A.JPG"}}},
    {"the extension's letter case alone",
     {{"a.JPG", "a"}},
     {"a.XMP"},
     {},
     {{"a.jpg", "a.JPG"}, {"a.xmp", "a.XMP"}},
     {},
     SuffixCase::Lower},
    {"taken outside of the batch",
     {{"a.jpg", "x"}, {"b.jpg", "x"}, {"c.jpg", "y"}},
     {},
     {"x.jpg", "x 3.jpg"},
     {{"x.jpg", "x.jpg"},
      {"x 2.jpg", "a.jpg"},
      {"x 3.jpg", "x 3.jpg"},
      {"x 4.jpg", "b.jpg"},
      {"y.jpg", "c.jpg"}},
     {8, 8}},
    {"a companion's name taken numbers all",
     {{"a.jpg", "x"}},
     {"a.xmp"},
     {"x.xmp"},
     {{"x.xmp", "x.xmp"}, {"x 2.jpg", "a.jpg"}, {"x 2.xmp", "a.xmp"}},
     {8}},
    {"the number is counted on while the wish is the same, and begins anew behind another",
     {{"a.jpg", "x"}, {"b.jpg", "x"}, {"c.jpg", "y"}, {"d.jpg", "x"}},
     {},
     {},
     {{"x.jpg", "a.jpg"}, {"x 2.jpg", "b.jpg"}, {"y.jpg", "c.jpg"}, {"x 3.jpg", "d.jpg"}},
     {8, 8}},
    {"temporary names that are there, and that are wished for",
     {{"a.jpg", "b"}, {"b.jpg", "a"}, {"c.jpg", "a_"}},
     {},
     {"b_.jpg", "b_ 2.jpg"},
     {{"b.jpg", "a.jpg"},
      {"a.jpg", "b.jpg"},
      {"a_.jpg", "c.jpg"},
      {"b_.jpg", "b_.jpg"},
      {"b_ 2.jpg", "b_ 2.jpg"}}},
    {"a raw file, its JPEG and sidecars of both kinds",
     {{"a.CR2", "x"}},
     {"a.JPG", "a.CR2.xmp", "a.xmp"},
     {},
     {{"x.CR2", "a.CR2"}, {"x.JPG", "a.JPG"}, {"x.CR2.xmp", "a.CR2.xmp"}, {"x.xmp", "a.xmp"}}},
    {"a name that is refused stays taken for the one that was to have it",
     {{"a.jpg", "b"}, {"b.jpg", "con"}},
     {},
     {},
     {{"b 2.jpg", "a.jpg"}, {"b.jpg", "b.jpg"}},
     {8, 5}},
};
/// Folders that tell upper from lower case, and those that do not.
const std::vector<RunCase> whereCaseCounts{
    {"two names",
     {{"a.jpg", "x"}, {"b.jpg", "X"}},
     {},
     {},
     {{"x.jpg", "a.jpg"}, {"X.jpg", "b.jpg"}}},
    {"companions that would become one keep their letters",
     {{"a.jpg", "x"}},
     {"a.xmp", "a.XMP"},
     {},
     {{"x.jpg", "a.jpg"}, {"x.xmp", "a.xmp"}, {"x.XMP", "a.XMP"}},
     {},
     SuffixCase::Lower},
};
const std::vector<RunCase> whereCaseIsNothing{
    {"one name",
     {{"a.jpg", "x"}, {"b.jpg", "X"}, {"c.jpg", "Ä"}, {"d.jpg", "a\u0308"}},
     {},
     {},
     {{"x.jpg", "a.jpg"}, {"X 2.jpg", "b.jpg"}, {"Ä.jpg", "c.jpg"}, {"a\u0308 2.jpg", "d.jpg"}},
     {8, 8}},
};

void expectRun(RenameSession &session, const RunCase &each) {
    SCOPED_TRACE(each.what);
    for (const auto &entry : std::filesystem::directory_iterator(session.folder().sfFolderPath()))
        std::filesystem::remove(entry.path());
    for (const auto &[name, wanted] : each.wishes)
        session.add(name);
    for (const std::string &name : each.others)
        session.add(name);
    session.import();
    session.wish(each.wishes);
    for (const std::string &name : each.outside)
        session.add(name);
    session.choices.names.suffixChangeCase = each.suffixChangeCase;
    const auto foreseen = session.renameRun().renamePreview({SaveProcessType::Rename});
    const SaveRunResult run = session.rename();
    EXPECT_EQ(session.onDisk(), each.onDisk);
    EXPECT_EQ(ids(run.errors), each.errors);
    expectModelFitsDisk(session);
    ASSERT_EQ(foreseen.size(), run.renames.size());
    for (std::size_t i = 0; i < foreseen.size(); ++i) {
        EXPECT_EQ(ids(foreseen[i].errors), ids(run.renames[i].errors));
        EXPECT_EQ(foreseen[i].result, run.renames[i].result);
        for (std::size_t file = 0; file < foreseen[i].files.size(); ++file)
            EXPECT_EQ(foreseen[i].files[file].newName, run.renames[i].files.at(file).newName);
    }
}

void expectRuns(RenameSession &session, const std::vector<RunCase> &alsoThere) {
    for (const auto *list : {&everywhere, &alsoThere})
        for (const RunCase &each : *list)
            expectRun(session, each);
}

TEST(RenameRunTest, WhereLetterCaseCounts) {
    RenameSession session;
    expectRuns(session, whereCaseCounts);
}

TEST(RenameRunTest, WhereLetterCaseIsNothing) {
    RenameSession session;
    CaseInsensitiveFileLayer layer;
    session.layer = &layer;
    expectRuns(session, whereCaseIsNothing);
}

TEST(RenameRunTest, OnAFileSystemWithoutLetterCase) {
    const CaseInsensitiveFolder place;
    if (!place.obstacle().empty())
        GTEST_SKIP() << "no such file system can be made here: " << place.obstacle();
    setenv("TMPDIR", place.path().c_str(), 1);
    {
        RenameSession session;
        expectRuns(session, whereCaseIsNothing);
    }
    unsetenv("TMPDIR");
}

} // namespace
} // namespace chronomender
