// SPDX-License-Identifier: GPL-3.0-or-later
#include "KilledChild.h"
#include "LittleLivePhoto.h"
#include "MendRun.h"

#include <gmock/gmock.h>
#include <map>

namespace chronomender {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

/// Names inside the test's folder, with what stands in the files.
using Files = std::map<std::string, std::string>;
/// Old name → new name, of each file that a report names.
using Names = std::map<std::string, std::string>;

/// Two cameras: a has two pictures and a live photo with its adjustments, b one picture between.
class Rename : public MendTest {
protected:
    Rename() {
        writeZonedPhoto("a/1.jpg", "2024:05:06 07:00:00", "+00:00");
        writeZonedPhoto("a/live.jpg", "2024:05:06 07:08:09", "+00:00");
        disk().write("a/live.mov", little::liveMovie());
        disk().write("a/live.aae", "<plist/>");
        writeZonedPhoto("a/3.jpg", "2024:05:06 07:30:00", "+00:00");
        writeZonedPhoto("b/2.jpg", "2024:05:06 07:10:00", "+00:00");
    }

    Files files() const {
        Files found;
        for (const auto &entry : std::filesystem::recursive_directory_iterator(disk().path()))
            if (entry.is_regular_file())
                found[relative(entry.path())] = little::fileContent(entry.path());
        return found;
    }

    RunResult run(const std::string &command, const std::string &options,
                  const Arguments &folderOptions = {}) const {
        Arguments arguments = joined(words(command + " --json --system-zone UTC"), words(options));
        arguments = joined(arguments, joined({"--folder", path("a")}, folderOptions));
        return mend(joined(arguments, {path("b")}));
    }

    std::string relative(const std::filesystem::path &file) const {
        return file.native().substr(disk().path().size() + 1);
    }

    Names namesOf(const RunResult &result, const std::string &outcome) const {
        Names names;
        for (const Json &line : result.lines())
            if (line.contains("newPath") && line.at("result") == outcome)
                names[relative(line.at("path").get<std::string>())] =
                    relative(line.at("newPath").get<std::string>());
        return names;
    }

    /// What the files would be, were they renamed so.
    static Files renamed(const Files &files, const Names &names) {
        Files moved;
        for (const auto &[name, bytes] : files)
            moved[names.contains(name) ? names.at(name) : name] = bytes;
        return moved;
    }
};

TEST_F(Rename, MistakesAreNamedAndNothingIsRenamed) {
    constexpr std::pair<const char *, const char *> mistakes[]{
        {"rename --template 9", "no template 9"},
        {"rename --template one", "templateSelectedIndex cannot be one"},
        {"rename --template 1 --template 2", "--template can be given once"},
        {"rename --template 1 --template-text {counter}", "one of --template and"},
        {"rename --template-text a{jahr}", "character 2: There is no element"},
        {"rename --template-text picture", "all files one name"},
        {"rename --counter none", "--counter none"},
        {"rename --counter-start -1", "cannot be -1"},
        {"rename --addon1 a/b", "slash"},
        {"rename --templates", "leave the paths out"},
        {"rename --shift 60", "--shift"},
        {"rename --pics x.jpg", "no item x.jpg"},
        {"save --template-text {counter}", "need --rename"},
        {"save --rename --template-text picture", "all files one name"},
    };
    const Files before = files();
    EXPECT_THAT(mend({"rename", path("a/live.jpg")}).errors, HasSubstr("is a file"));
    for (const auto &[line, message] : mistakes) {
        const RunResult result = run(line, "");
        EXPECT_EQ(result.exitCode, 2) << line;
        EXPECT_THAT(result.errors, HasSubstr(message)) << line;
        EXPECT_EQ(files(), before) << line;
    }
}

TEST_F(Rename, OptionsSayTheTemplateAndTheNumbers) {
    struct Case {
        const char *options, *first, *live, *second, *third;
    };
    constexpr Case cases[]{
        {"--template 1", "a/DSC00001.jpg", "a/DSC00002.mov", "b/DSC00003.jpg", "a/DSC00004.jpg"},
        {"--template-text {counter:1} --counter folder --counter-start 7", "a/7.jpg", "a/8.mov",
         "b/7.jpg", "a/9.jpg"},
        {"--template 3 --addon1 kyoto", "a/kyoto_001.jpg", "a/kyoto_002.mov", "b/kyoto_003.jpg",
         "a/kyoto_004.jpg"},
        {"--template-text {folder}-{name}-{minute} --set suffixChangeCase=1", "a/a-1-00.JPG",
         "a/a-live-08.MOV", "b/b-2-10.JPG", "a/a-3-30.JPG"},
    };
    for (const auto &[options, first, live, second, third] : cases) {
        Names names = namesOf(run("rename --dry-run", options), "planned");
        EXPECT_EQ(names["a/1.jpg"], first) << options;
        EXPECT_EQ(names["a/live.mov"], live) << options;
        EXPECT_EQ(names["b/2.jpg"], second) << options;
        EXPECT_EQ(names["a/3.jpg"], third) << options;
    }
}

TEST_F(Rename, ARunDoesWhatTheDryRunSaysAndNumbersWhatIsTaken) {
    disk().write("a/05.JPG/note.txt", "a folder has the name");
    const Files before = files();
    const std::string options = "--template-text {month} --set suffixChangeCase=1";
    const RunResult dry = run("rename --dry-run", options);
    EXPECT_EQ(dry.exitCode, 0) << dry.errors;
    EXPECT_THAT(dry.errors, HasSubstr("may get one name"));
    EXPECT_EQ(files(), before);
    const Names names = namesOf(dry, "planned");
    EXPECT_EQ(names, (Names{{"a/1.jpg", "a/05 2.JPG"},
                            {"a/live.jpg", "a/05 3.JPG"},
                            {"a/live.mov", "a/05 3.MOV"},
                            {"a/live.aae", "a/05 3.AAE"},
                            {"a/3.jpg", "a/05 4.JPG"},
                            {"b/2.jpg", "b/05.JPG"}}));
    const RunResult result = run("rename", options);
    EXPECT_EQ(result.exitCode, 0); // a number is no failure
    EXPECT_THAT(result.errors, HasSubstr("05 2.JPG"));
    EXPECT_EQ(namesOf(result, "renamed"), names);
    EXPECT_EQ(files(), renamed(before, names));
    EXPECT_EQ(result.lines().back().at("summary").at("rename").at("numbered"), 3);
}

TEST_F(Rename, ANameThatCannotBeIsRefusedAndTheRestIsRenamed) {
    const std::string longName(250, 'x');
    const Files before = files();
    const RunResult result = run("rename --template-text {name}" + longName, "");
    EXPECT_EQ(result.exitCode, 1);
    const Names names = namesOf(result, "renamed");
    EXPECT_EQ(namesOf(result, "refused").size(), 3U); // the live photo, with all its files
    EXPECT_EQ(files(), renamed(before, names));
    EXPECT_EQ(names.at("b/2.jpg"), "b/2" + longName + ".jpg");
    EXPECT_THAT(result.errors, HasSubstr("live.jpg"));
}

TEST_F(Rename, OnlyChosenItemsAreRenamedWithTheNumbersOfAllOrTheirOwn) {
    const std::string line = "rename --dry-run --template-text n{counter:1}";
    EXPECT_EQ(namesOf(run(line, "--pics 3.jpg b/2.jpg"), "planned"),
              (Names{{"a/3.jpg", "a/n4.jpg"}, {"b/2.jpg", "b/n3.jpg"}}));
    EXPECT_EQ(namesOf(run(line, "--pics 3.jpg --set rename_restrictCounter=1"), "planned"),
              (Names{{"a/3.jpg", "a/n1.jpg"}}));
}

TEST_F(Rename, NoDateMayWaitForASave) {
    const RunResult result = run("rename", "", {"--target-zone", "Asia/Tokyo"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("mend save --rename"));
}

TEST_F(Rename, ASaveRenamesInTheSamePassByTheDatesThatItWrites) {
    const Arguments shift{"--shift", "1:00:01"};
    const std::string options = "--template-text {hour}{minute}{second}-{counter:1}";
    const Files before = files();
    const RunResult dry = run("save --rename --dry-run", options, shift);
    EXPECT_EQ(dry.exitCode, 0) << dry.errors;
    EXPECT_EQ(files(), before);
    const Names names = namesOf(dry, "planned");
    EXPECT_EQ(names.at("a/1.jpg"), "a/080001-2.jpg");
    EXPECT_EQ(names.at("b/2.jpg"), "b/071000-1.jpg"); // now before the others of a
    const RunResult result = run("save --rename", options, shift);
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(namesOf(result, "renamed"), names);
    EXPECT_THAT(little::fileContent(path("a/080001-2.jpg")), HasSubstr("2024:05:06 08:00:01"));
    const auto lines = result.lines();
    EXPECT_EQ(lines.front().at("path"), path("b/2.jpg")); // a save's line tells the old name
    EXPECT_EQ(lines.back().at("summary").at("saved"), 4);
    const RunResult again = run("rename", options);
    EXPECT_EQ(namesOf(again, "unchanged").size(), names.size());
}

TEST_F(Rename, AProblemOfTheSaveKeepsTheNamesToo) {
    writeZonedPhoto("a/odd.jpg", "2024:05:06 07:00:00", "+02:00");
    const Files before = files();
    const std::string line = "save --rename --template-text {counter:4}";
    EXPECT_EQ(run(line, "", {"--shift", "60"}).exitCode, 3);
    EXPECT_EQ(files(), before);
}

TEST_F(Rename, PeopleReadOldAndNewNames) {
    const RunResult result =
        mend({"rename", path("a"), "--dry-run", "--template-text", "{counter:4}"});
    EXPECT_THAT(result.output,
                AllOf(HasSubstr("live.jpg    → 0002.jpg"), HasSubstr("  live.aae  → 0002.aae"),
                      HasSubstr("3 to be renamed\nDry run: nothing was renamed.")));
}

TEST_F(Rename, TemplatesAreListedWithTheirTexts) {
    const RunResult result = mend({"rename", "--templates", "--json", "--template", "2"});
    const auto lines = result.lines();
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[2].at("text"), "IMG{}_{counter:4}");
    EXPECT_EQ(lines[2].at("sample"), "IMG_0001.JPG");
    EXPECT_EQ(lines[2].at("selected"), true);
}

/// At every move the program dies, before it and behind it.
TEST_F(Rename, KilledRunIsFinishedOrTakenBackByResume) {
    // Each name but the last is one that another file has to leave.
    const std::string line = "--template-text {counter:1} --counter folder --counter-start 2";
    const Files before = files();
    const Files after = renamed(before, namesOf(run("rename --dry-run", line), "planned"));
    little::KilledChild child(
        [&] {
            StartedProgram::become(
                MEND_PATH,
                joined(words("rename --system-zone UTC " + line), {path("a"), path("b")}),
                workFolder());
        },
        SYS_renameat2);
    if (child.run(0) != little::KilledChild::End::Finished)
        GTEST_SKIP() << "this system permits no tracing";
    ASSERT_EQ(files(), after);
    const auto restore = [&] {
        for (const auto &[name, bytes] : files())
            std::filesystem::remove(path(name));
        for (const auto &[name, bytes] : before)
            disk().write(name, bytes);
    };
    const std::pair<Arguments, Files> ways[]{{{"resume"}, after},
                                             {{"resume", "--take-back"}, before}};
    for (const auto &[arguments, wanted] : ways) {
        restore();
        int kills = 0;
        for (; child.run(kills + 1) == little::KilledChild::End::Killed; ++kills) {
            SCOPED_TRACE(arguments.back() + ' ' + std::to_string(kills));
            EXPECT_EQ(mend(arguments).exitCode, 0);
            ASSERT_EQ(files(), wanted);
            restore();
        }
        EXPECT_EQ(kills, 20) << "five files, two moves each";
    }
}

} // namespace
} // namespace chronomender
