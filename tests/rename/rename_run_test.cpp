// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaseInsensitiveFolder.h"
#include "DateModifications.h"
#include "LittleMovie.h"
#include "RenameSession.h"
#include "UnchangedProof.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace chronomender {
namespace {

using namespace little;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using Wishes = std::vector<std::pair<std::string, std::string>>;

using enum RenameResult;

std::vector<RenameResult> results(const SaveRunResult &run) {
    std::vector<RenameResult> found;
    for (const ItemRename &item : run.renames)
        found.push_back(item.result);
    return found;
}

std::vector<int> ids(const std::vector<SaveError> &errors) {
    std::vector<int> found;
    for (const SaveError &error : errors)
        found.push_back(static_cast<int>(error.id));
    return found;
}

std::string idText(const std::vector<SaveError> &errors) {
    std::string list;
    for (const int id : ids(errors))
        list += (list.empty() ? "" : ", ") + std::to_string(id);
    return list;
}
std::string resultText(const SaveRunResult &run) {
    constexpr std::array names{"Renamed", "Unchanged", "Refused", "LeftOnTheWay", "NotReached"};
    std::string list;
    for (const RenameResult result : results(run))
        list +=
            (list.empty() ? "" : ", ") + std::string(names.at(static_cast<std::size_t>(result)));
    return list;
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
    const char *wishes;  ///< "a.jpg>b" and so on, in order
    const char *others;  ///< companions, imported with the items
    const char *outside; ///< made behind the import
    const char *onDisk;  ///< in order of the present names
    const char *errors = "";
    SuffixCase suffixChangeCase = SuffixCase::Leave;
};

const std::vector<RunCase> everywhere{
    {"a swap", "a.jpg>b, b.jpg>a", "", "", "a.jpg<b.jpg, b.jpg<a.jpg"},
    {"a cycle of three", "a.jpg>b, b.jpg>c, c.jpg>a", "a.xmp, c.xmp", "",
     "a.jpg<c.jpg, a.xmp<c.xmp, b.jpg<a.jpg, b.xmp<a.xmp, c.jpg<b.jpg"},
    {"a chain", "a.jpg>b, b.jpg>c", "", "", "b.jpg<a.jpg, c.jpg<b.jpg"},
    {"letter case alone", "A.JPG>a", "", "", "a.JPG<A.JPG"},
    {"an extension's letter case alone", "a.JPG>a", "a.XMP", "", "a.jpg<a.JPG, a.xmp<a.XMP", "",
     SuffixCase::Lower},
    {"taken outside of the batch", "a.jpg>x, b.jpg>x, c.jpg>y", "", "x.jpg, x 3.jpg",
     "x 2.jpg<a.jpg, x 3.jpg<x 3.jpg, x 4.jpg<b.jpg, x.jpg<x.jpg, y.jpg<c.jpg", "8, 8"},
    {"a companion's name taken numbers all", "a.jpg>x", "a.xmp", "x.xmp",
     "x 2.jpg<a.jpg, x 2.xmp<a.xmp, x.xmp<x.xmp", "8"},
    {"a wish again behind another one", "a.jpg>x, b.jpg>x, c.jpg>y, d.jpg>x", "", "",
     "x 2.jpg<b.jpg, x 3.jpg<d.jpg, x.jpg<a.jpg, y.jpg<c.jpg", "8, 8"},
    {"temporary names that are there, and that are wished for", "a.jpg>b, b.jpg>a, c.jpg>a_", "",
     "b_.jpg, b_ 2.jpg",
     "a.jpg<b.jpg, a_.jpg<c.jpg, b.jpg<a.jpg, b_ 2.jpg<b_ 2.jpg, b_.jpg<b_.jpg"},
    {"a raw file, its JPEG and sidecars of both kinds", "a.CR2>x", "a.JPG, a.CR2.xmp, a.xmp", "",
     "x.CR2<a.CR2, x.CR2.xmp<a.CR2.xmp, x.JPG<a.JPG, x.xmp<a.xmp"},
    {"one that is refused keeps the name that another was to have", "a.jpg>b, b.jpg>con", "", "",
     "b 2.jpg<a.jpg, b.jpg<b.jpg", "8, 5"},
};
/// On folders that tell upper from lower case, and on those that do not.
const std::vector<RunCase> whereCaseCounts{
    {"two names", "a.jpg>x, b.jpg>X", "", "", "X.jpg<b.jpg, x.jpg<a.jpg"},
    {"companions that would become one keep their letters", "a.jpg>x", "a.xmp, a.XMP", "",
     "x.XMP<a.XMP, x.jpg<a.jpg, x.xmp<a.xmp", "", SuffixCase::Lower},
};
const std::vector<RunCase> whereCaseIsNothing{
    {"one name", "a.jpg>x, b.jpg>X, c.jpg>Ä, d.jpg>a\u0308", "", "",
     "X 2.jpg<b.jpg, a\u0308 2.jpg<d.jpg, x.jpg<a.jpg, Ä.jpg<c.jpg", "8, 8"},
};

void expectRun(RenameSession &session, const RunCase &each) {
    SCOPED_TRACE(each.what);
    for (const auto &entry : std::filesystem::directory_iterator(session.folder().sfFolderPath()))
        std::filesystem::remove(entry.path());
    Wishes wishes;
    for (const std::string &wish : split(each.wishes)) {
        const auto words = split(wish, ">");
        wishes.emplace_back(words.at(0), words.at(1));
        session.add(words[0]);
    }
    for (const std::string &name : split(each.others))
        session.add(name);
    session.import();
    session.wish(wishes);
    for (const std::string &name : split(each.outside))
        session.add(name);
    session.choices.names.suffixChangeCase = each.suffixChangeCase;
    const auto foreseen = session.preview();
    const SaveRunResult run = session.rename();
    EXPECT_EQ(onDisk(session), split(each.onDisk));
    EXPECT_EQ(idText(run.errors), each.errors);
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

TEST(RenameNamesTest, WhereLetterCaseCounts) {
    RenameSession session;
    expectRuns(session, whereCaseCounts);
}

TEST(RenameNamesTest, WhereLetterCaseIsNothing) {
    RenameSession session;
    CaseInsensitiveFileLayer layer;
    session.layer = &layer;
    expectRuns(session, whereCaseIsNothing);
}

TEST(RenameNamesTest, OnAFileSystemWithoutLetterCase) {
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

class DisturbedRename : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(OnBothLayers, DisturbedRename, testing::Bool());

TEST_P(DisturbedRename, WhatCannotBeMovedIsWhereTheModelSays) {
    const struct {
        int first, last; ///< moves that fail
        const char *onDisk;
        const char *errors;
        const char *results;
        const char *sidecars, *recovered;
    } cases[] = {
        {1, 1, "a.jpg<a.jpg, a.xmp<a.xmp, y.jpg<b.jpg", "5", "Refused, Renamed", "xmp", nullptr},
        {2, 2, "a.xmp<a.xmp, x.jpg<a.jpg, y.jpg<b.jpg", "14", "Renamed, Renamed", "", nullptr},
        {4, 4, "x_.jpg<a.jpg, x_.xmp<a.xmp, y.jpg<b.jpg", "5", "LeftOnTheWay, Renamed", "xmp",
         "x.jpg<a.jpg, x.xmp<a.xmp, y.jpg<b.jpg"},
        {5, 5, "x.jpg<a.jpg, x_.xmp<a.xmp, y.jpg<b.jpg", "14", "Renamed, Renamed", "",
         "x.jpg<a.jpg, x.xmp<a.xmp, y.jpg<b.jpg"},
        {3, 1000, "b.jpg<b.jpg, x_.jpg<a.jpg, x_.xmp<a.xmp", "5, 5", "LeftOnTheWay, Refused", "xmp",
         "b.jpg<b.jpg, x.jpg<a.jpg, x.xmp<a.xmp"},
    };
    for (const auto &each : cases) {
        SCOPED_TRACE(each.first);
        DisturbedSession session(GetParam());
        session.failMoves(each.first, each.last);
        const SaveRunResult run = session.rename();
        EXPECT_EQ(onDisk(session), split(each.onDisk));
        EXPECT_EQ(idText(run.errors), each.errors);
        EXPECT_EQ(resultText(run), each.results);
        for (const SaveError &error : run.errors)
            EXPECT_TRUE(std::filesystem::exists(error.path) &&
                        error.systemText == "Read-only file system")
                << error.path;
        EXPECT_EQ(run.renames.at(0).pic->spSidecarExtensions, split(each.sidecars));
        expectModelFitsDisk(session);
        EXPECT_EQ(session.hasUnfinished(), each.recovered != nullptr);
        session.recover();
        EXPECT_EQ(onDisk(session), split(each.recovered ? each.recovered : each.onDisk));
    }
}

TEST_P(DisturbedRename, WhatSomebodyElsePutsThereIsNeverOverwritten) {
    const struct {
        const char *at, *intruder, *onDisk;
        const char *errors;
    } cases[] = {
        {"x.jpg", "x.jpg", "x 2.jpg<a.jpg, x 2.xmp<a.xmp, x.jpg<somebody, y.jpg<b.jpg", "8"},
        {"x.xmp", "x.xmp", "x 2.jpg<a.jpg, x 2.xmp<a.xmp, x.xmp<somebody, y.jpg<b.jpg", "8"},
        {"x_.jpg", "x_.jpg", "x.jpg<a.jpg, x.xmp<a.xmp, x_.jpg<somebody, y.jpg<b.jpg", ""},
        {"x_.xmp", "x_.xmp", "x.jpg<a.jpg, x.xmp<a.xmp, x_.xmp<somebody, y.jpg<b.jpg", ""},
        {"x_.jpg", "b.jpg", "b.jpg<somebody, x.jpg<a.jpg, x.xmp<a.xmp", "11"},
        {"x_.jpg", "a.xmp", "a.xmp<somebody, x.jpg<a.jpg, y.jpg<b.jpg", "14"},
        {"x.jpg", "x_.xmp", "x.jpg<a.jpg, x_.xmp<somebody, y.jpg<b.jpg", "14"},
    };
    for (const auto &each : cases) {
        SCOPED_TRACE(std::string(each.intruder) + " before " + each.at);
        DisturbedSession session(GetParam());
        session.intrude(each.at, each.intruder);
        const SaveRunResult run = session.rename();
        EXPECT_EQ(onDisk(session), split(each.onDisk));
        EXPECT_EQ(idText(run.errors), each.errors);
        if (each.errors == std::string("8")) {
            EXPECT_EQ(run.renames.at(0).pic->rename.addonCounter, 3);
            expectModelFitsDisk(session);
        }
    }
}

TEST_P(DisturbedRename, AnInterruptedNumberIsRecordedAsWell) {
    DisturbedSession session(GetParam());
    session.intrude("x.jpg", "x.jpg");
    session.failMoves(5, 5); // to "x 2.jpg"
    session.rename();
    session.recover();
    EXPECT_EQ(onDisk(session), split("x 2.jpg<a.jpg, x 2.xmp<a.xmp, x.jpg<somebody, y.jpg<b.jpg"));
}

class RenameRunTest : public testing::Test {
protected:
    void add(const std::vector<std::string> &names) {
        for (const std::string &name : names)
            session.add(name);
        session.import();
    }
    RenameSession session;
};

TEST_F(RenameRunTest, OneNameForAll) {
    Wishes wishes;
    for (char each = 'a'; each < 'k'; ++each) {
        wishes.emplace_back(std::string(1, each) + ".jpg", "x");
        session.add(wishes.back().first);
    }
    session.import();
    session.wish(wishes);
    for (const auto result : {Renamed, Unchanged}) {
        const SaveRunResult run = session.rename();
        EXPECT_THAT(results(run), Each(result));
        EXPECT_EQ(ids(run.errors), std::vector(9, 8));
        EXPECT_EQ(session.folder().renameErrors, 9);
        const auto disk = session.onDisk();
        for (int i = 2; i <= 10; ++i) {
            const MySinglePic &pic = session.item("x " + std::to_string(i) + ".jpg");
            EXPECT_EQ(disk.at(pic.spName), wishes[static_cast<std::size_t>(i - 1)].first);
            EXPECT_EQ(pic.rename.wantedName, "x.jpg");
            EXPECT_EQ(pic.rename.addonCounter, i + 1);
        }
        EXPECT_EQ(session.item("x.jpg").rename.hasRenameError, 0);
    }
}

TEST_F(RenameRunTest, CompanionsThatAreMissingOrCannotBeWritten) {
    add({"a.jpg", "a.xmp", "b.jpg", "b.xmp"});
    session.wish({{"a.jpg", "x"}, {"b.jpg", "y"}});
    std::filesystem::remove(session.path("a.xmp"));
    std::filesystem::remove(session.path("b.xmp"));
    std::filesystem::create_directory(session.path("b.xmp"));
    const SaveRunResult run = session.rename();
    EXPECT_THAT(ids(run.errors), ElementsAre(14, 9));
    EXPECT_EQ(run.errors.at(0).path, session.path("a.xmp"));
    EXPECT_EQ(run.errors.at(1).path, session.path("b.xmp"));
    EXPECT_THAT(results(run), ElementsAre(Renamed, Refused));
    EXPECT_THAT(session.item("x.jpg").spSidecarExtensions, IsEmpty());
    EXPECT_EQ(session.item("x.jpg").rename.hasRenameError, 0);
    EXPECT_EQ(session.item("b.jpg").spSortNameCachedErrorOrReal(), "y.jpg");
}

TEST_F(RenameRunTest, FilesThatAreNotWhatWasReadStay) {
    add({"a.jpg", "b.jpg", "c.CR2", "c.JPG", "d.jpg", "e.jpg"});
    session.wish({{"a.jpg", "v"}, {"b.jpg", "w"}, {"c.CR2", "x"}, {"d.jpg", "y"}, {"e.jpg", "z"}});
    std::filesystem::remove(session.path("a.jpg"));
    session.write("b.jpg", "\nchanged");
    session.write("c.JPG", "\nchanged");
    session.item("d.jpg").save.isInvalidDueToChangesAfterImport = true;
    SaveRunResult run = session.rename();
    EXPECT_THAT(ids(run.errors), ElementsAre(12, 11, 11));
    EXPECT_THAT(results(run), ElementsAre(Refused, Refused, Refused, Refused, Renamed));
    EXPECT_EQ(session.folder().renameErrors, 4);
    EXPECT_TRUE(std::filesystem::exists(session.path("c.CR2")));
    EXPECT_EQ(session.item("d.jpg").rename.wantedName, "y.jpg");
    EXPECT_FALSE(session.item("d.jpg").save.isInvalidDueToChangesAfterImport);
    session.wish({{"d.jpg", "y"}});
    SaveRequest selection{SaveProcessType::Rename};
    selection.onlyPics = {session.item("d.jpg").shared_from_this()};
    run = session.rename(selection);
    EXPECT_THAT(results(run), ElementsAre(Renamed));
    EXPECT_EQ(session.folder().renameErrors, 3);
    std::filesystem::remove_all(session.folder().sfFolderPath());
    EXPECT_THAT(ids(session.rename().errors), ElementsAre(5, 5, 5, 5, 5));
}

TEST_F(RenameRunTest, ASelectionLeavesGapsAndItsOwnNumbers) {
    add({"a.jpg", "b.jpg", "c.jpg"});
    session.choices.names.renameTemplate = {
        {.counterDigits = 0},
        {TemplatePart::ofText("n"), TemplatePart::ofElement(RenameElement::Counter)}};
    session.wish({{"c.jpg", ""}, {"b.jpg", ""}, {"a.jpg", ""}});
    SaveRequest selection{SaveProcessType::Rename};
    selection.onlyPics = {session.item("a.jpg").shared_from_this(),
                          session.item("c.jpg").shared_from_this()};
    session.rename(selection);
    EXPECT_EQ(onDisk(session), split("b.jpg<b.jpg, n1.jpg<c.jpg, n3.jpg<a.jpg"));
}

TEST_F(RenameRunTest, NamesThatAreTooLongInBytes) {
    add({"a.jpg", "b.jpg", "c.jpg", "d.jpg"});
    const auto bytes = [](int count) {
        std::string name(static_cast<std::size_t>(count % 2), 'n');
        for (int i = 0; i < count / 2; ++i)
            name += "é";
        return name;
    };
    // 255 bytes with the extension: the second one has no room for its number.
    session.wish(
        {{"a.jpg", bytes(251)}, {"b.jpg", bytes(251)}, {"c.jpg", bytes(252)}, {"d.jpg", "_"}});
    const SaveRunResult run = session.rename();
    EXPECT_THAT(ids(run.errors), ElementsAre(5, 5));
    EXPECT_EQ(run.errors.at(0).systemText, text("nameCheck_tooLong"));
    EXPECT_EQ(onDisk(session),
              split("_.jpg<d.jpg, b.jpg<b.jpg, c.jpg<c.jpg, " + bytes(251) + ".jpg<a.jpg"));
}

TEST_F(RenameRunTest, ALivePhotoMovesAsOne) {
    session.add("a.jpg");
    const MovieFields film{
        .date = "2024-05-06T07:08:10+0200", .make = "Little", .model = "Little One"};
    session.write("a.mov", movie(film).bytes + "\na.mov");
    session.import();
    ASSERT_EQ(session.folder().count(), 1);
    session.item("a.jpg").spNameAtImport = ".x.jpg";
    session.choices.names.frontDotHandlingMode = FrontDotMode::Report;
    const SaveRunResult run = session.rename();
    EXPECT_EQ(onDisk(session), split(".x.jpg<a.jpg, .x.mov<a.mov"));
    EXPECT_THAT(ids(run.errors), ElementsAre(18));
    expectModelFitsDisk(session);
}

TEST_F(RenameRunTest, AFileWithoutExtensionIsNumberedAtItsEnd) {
    for (const char *name : {"a", "b"}) {
        session.add(name);
        const auto pic = MySinglePic::create(name, session.folders[0], SpTypeNoTagsFileDate, {});
        pic->positions.indexInSource_full = session.folder().count();
        takeFileAttributes(*pic, attributesOf(session.path(name)));
        session.folder().sfPicDetails_fullArray.push_back(pic);
    }
    session.wish({{"a", "x"}, {"b", "x"}});
    session.rename();
    EXPECT_EQ(onDisk(session), split("x<a, x 2<b"));
}

TEST_F(RenameRunTest, WithoutRecordNothingIsMoved) {
    add({"a.jpg"});
    session.wish({{"a.jpg", "x"}});
    session.disk.write("support", "a file where the folder should be");
    EXPECT_THAT(ids(session.rename().errors), ElementsAre(28));
    EXPECT_EQ(session.files.renames, 0);
    EXPECT_EQ(session.item("a.jpg").rename.wantedName, "x.jpg");
}

TEST(RenameAndSaveTest, OnePassAndACancellationBetweenFolders) {
    RenameSession session(2);
    session.photo("a.jpg", {.original = "2024:05:06 07:08:09"});
    session.photo("b.jpg", {.original = "2024:05:06 07:08:09"});
    session.photo("c.jpg", {.original = "2024:05:06 07:08:09"}, 1);
    session.import();
    session.choices.names.renameTemplate.stringParts = {
        TemplatePart::ofElement(RenameElement::Hour),
        TemplatePart::ofElement(RenameElement::SourceName)};
    for (const MySingleFolderPtr &folder : session.folders)
        setSfDateModificationsFromTimeInterval(*folder, absl::Hours(2), false);
    session.driver.appendStep(std::make_unique<RenameRun>(session.renameRun(session.journal)));
    const SaveRequest request{SaveProcessType::SaveThenRenameAll};
    const PreProcessResult dry = session.preProcess(request);
    session.write("b.jpg", "\nchanged");
    session.files.beforeRename = [&](const std::string &, const std::string &) {
        session.cancellation.request();
    };
    const SaveRunResult run = session.driver.continueProcessThread(request, dry);
    EXPECT_THAT(results(run), ElementsAre(Renamed, Refused, NotReached));
    EXPECT_THAT(ids(run.errors), ElementsAre(3)) << "told by the save, and not again";
    EXPECT_TRUE(run.wasCancelled);
    EXPECT_FALSE(session.item("09a.jpg").save.isVerifiedDuringSave);
    EXPECT_FALSE(session.item("c.jpg").save.isVerifiedDuringSave);
    EXPECT_EQ(session.item("b.jpg").rename.wantedName, "09b.jpg");
    EXPECT_FALSE(session.item("c.jpg").isThisTimeUnsaved());
}

} // namespace
} // namespace chronomender
