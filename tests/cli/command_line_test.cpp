// SPDX-License-Identifier: GPL-3.0-or-later
#include "MendRun.h"

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class CommandLineUse : public MendTest {
protected:
    CommandLineUse() : m_photo(writePhoto("canon/a.jpg", "2024:05:06 07:08:09")) {}

    void expectUsageError(const Arguments &arguments, const std::string &words) {
        const std::string before = little::fileContent(m_photo);
        const RunResult run = mend(arguments);
        EXPECT_EQ(run.exitCode, 2) << ::testing::PrintToString(arguments);
        EXPECT_THAT(run.errors, HasSubstr(words));
        EXPECT_EQ(run.output, "");
        EXPECT_EQ(little::fileContent(m_photo), before);
    }

    std::string m_photo;
};

TEST_F(CommandLineUse, MistakesAreNamedAndNothingIsWritten) {
    const std::string canon = path("canon");
    expectUsageError({}, "subcommand");
    expectUsageError({"list"}, "at least one folder");
    expectUsageError({"list", ""}, "no path");
    expectUsageError({"list", canon, "--nothing"}, "--nothing");
    expectUsageError({"list", "--shift", "60", canon}, "--shift is about a folder");
    expectUsageError({"list", canon, "--shift", "60"}, "--shift is about a folder");
    expectUsageError({"save", "--folder", canon, "--shift", "soon"}, "soon is no shift");
    expectUsageError({"save", "--folder", canon, "--shift", "1", "--shift", "2"}, "twice");
    expectUsageError({"save", "--folder", canon, "--pic", "a.jpg"}, "needs a --shift, a");
    expectUsageError({"save", "--folder", canon, "--pic", "b.jpg", "--shift", "1"},
                     "no item b.jpg");
    expectUsageError({"save", "--folder", canon, "--empty-tags", "guess"}, "guess says nothing");
    expectUsageError({"list", "--folder", canon, "--movie-date", "tkhd"}, "mdta");
    expectUsageError({"list", "--folder", canon, "--movie-clock", "gmt"}, "local");
    expectUsageError({"list", "--folder", canon, "--subfolders", "-1"}, "0 to 100");
    expectUsageError({"list", "--folder", canon, "--filter-ext", "jpg", "--filter-ext-not", "mov"},
                     "one of");
    expectUsageError({"save", "--accept", "error_99", canon}, "no problem error_99");
    expectUsageError({"save", "--folder", canon, "--shift", "2000000d"}, "out of the years");
    expectUsageError({"save", "--folder", canon, "--shift", "60", path("missing")},
                     "Nothing was written");
    expectUsageError({"list", "--language", "fr", canon}, "fr");
    for (const char *option : {"--target-zone", "--source-zone"}) {
        expectUsageError({"save", "--folder", canon, option, "Europe/Berln"}, "Europe/Berlin");
        expectUsageError({"save", "--folder", canon, "--pic", "a.jpg", option, "Europe/Berln"},
                         "Europe/Berlin");
    }
    expectUsageError(
        {"save", "--folder", canon, "--pic", "a.jpg", "--pic", "b.jpg", "--shift", "1"},
        "needs a --shift, a");
    expectUsageError({"save", "--folder", canon, "--pic", "a.jpg", "--shift", "1", "--shift", "2"},
                     "twice for a.jpg");
    expectUsageError({"save", "--folder", canon, "--pic", "b.jpg", "--source-zone", "UTC"},
                     "no item b.jpg");
    expectUsageError({"save", "--folder", canon, "--alternative", "b.jpg"}, "no item b.jpg");
    expectUsageError({"save", "--folder", canon, "--alternative", "a.jpg"}, "one instant only");
    expectUsageError({"list", "--system-zone", "Europe/Berln", canon}, "Europe/Berlin");
    expectUsageError({"list", "--folder", canon, "--source-zone", "own"}, "no time zone own");
    expectUsageError({"list", "--set", "nothing=1", canon}, "no preference nothing");
    expectUsageError({"list", "--filter", "spName == 'ü' AND 1", canon},
                     "character 19: “1” is no key.\n  spName == 'ü' AND 1\n" +
                         std::string(20, ' ') + "^\nThere are the keys spName, ");
    expectUsageError({"list", "--filter", "spName LIKE 'a'", canon}, "character 8: an operator");
    expectUsageError({"list", "--filter", "TRUEPREDICATE", "--filter", "TRUEPREDICATE", canon},
                     "twice");
    expectUsageError({"list", "--rating", "good", canon}, "keepers");
    expectUsageError({"save", "--filter", "filter_rating == 1", canon}, "--filter");
    expectUsageError({"list", "--set", "dateChangeEXIFEXIFDigiDate=7", canon}, "accepts");
    expectUsageError({"list", "--set", "dateChangeEXIFEXIFDigiDate", canon}, "KEY=VALUE");
}

TEST_F(CommandLineUse, ResumeTakesNoFolderAndHasNothingToDo) {
    expectUsageError({"resume", path("canon")}, "canon");
    expectUsageError({"list", "--forget", path("canon")}, "--forget");
    expectUsageError({"list", "--take-back", path("canon")}, "--take-back");
    const RunResult run = mend({"resume", "--forget"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "No run was interrupted.\n");
}

TEST_F(CommandLineUse, OneFolderTwiceIsAMistakeUnderWhateverPath) {
    std::filesystem::create_directory_symlink(path("canon"), path("link"));
    expectUsageError({"list", path("canon"), path("canon/../canon")}, "given twice");
    expectUsageError({"save", "--folder", path("canon"), "--shift", "1", path("link")},
                     "given twice");
    expectUsageError({"list", m_photo, path("link")}, "given twice");
}

TEST_F(CommandLineUse, HelpAndVersionEndWell) {
    const RunResult version = mend({"--version"});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_THAT(version.output, HasSubstr("mend 0."));
    const RunResult help = mend({"save", "--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_THAT(help.output,
                AllOf(HasSubstr("--folder PATH"), HasSubstr("--dry-run"), HasSubstr("--accept")));
    EXPECT_THAT(mend({"list", "--help", "--language", "de"}).output, HasSubstr("Ein Ordner"));
}

TEST_F(CommandLineUse, FilesOfOneFolderAreOneBlock) {
    writePhoto("canon/b.jpg", "2024:05:06 07:08:10");
    writePhoto("canon/[c].jpg", "2024:05:06 07:08:11");
    const RunResult run = mend({"list", "--json", path("canon/[c].jpg"), m_photo, m_photo});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(namesOf(run.lines()), ElementsAre("a.jpg", "[c].jpg"));
}

TEST_F(CommandLineUse, PathsThatCannotBeListedAreToldAndTheRestIsListed) {
    disk().write("canon/empty.jpg", "");
    disk().write("notes.txt", "hello");
    std::filesystem::create_symlink(m_photo, path("canon/link.jpg"));
    const RunResult run =
        mend({"list", "--json", path("missing"), path("notes.txt"), path("canon")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(namesOf(run.lines()), ElementsAre("a.jpg"));
    EXPECT_THAT(run.errors, AllOf(HasSubstr("missing does not exist"), HasSubstr("notes.txt: "),
                                  HasSubstr("empty.jpg: The file is empty"),
                                  HasSubstr("link.jpg: The entry is a link")));
    EXPECT_EQ(mend({"list", path("canon")}).exitCode, 0); // what nobody named is no failure
    EXPECT_THAT(mend({"list", "--folder", m_photo}).errors, HasSubstr("is not a folder"));
}

TEST_F(CommandLineUse, NamesThatAreNotUtf8AreToldAndNeverTouched) {
    const std::string odd = writePhoto("canon/caf\xE9.jpg", "2024:05:06 07:08:09");
    const std::string before = little::fileContent(odd);
    const RunResult run = mend({"save", "--json", "--folder", path("canon"), "--shift", "60"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.errors, HasSubstr("caf\\xE9.jpg"));
    EXPECT_EQ(run.lines().size(), 2U); // one item and the summary
    EXPECT_EQ(little::fileContent(odd), before);
}

TEST_F(CommandLineUse, UnreadableFilesAndFoldersAreTold) {
    writePhoto("closed/b.jpg", "2024:05:06 07:08:09");
    const RunResult run =
        mendAsNobody({"list", path("canon"), path("closed")}, {m_photo, path("closed")});
    if (run.exitCode == 127)
        GTEST_SKIP() << "an unprivileged user cannot reach the program";
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.errors, AllOf(HasSubstr("a.jpg: It cannot be read"),
                                  HasSubstr("closed cannot be opened: you may not read it")));
}

TEST_F(CommandLineUse, FullDiskUnderTheOutputIsAFailure) {
    const std::string command =
        std::string(MEND_PATH) + " list '" + path("canon") + "' >/dev/full 2>/dev/null";
    EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1);
}

} // namespace
} // namespace chronomender
