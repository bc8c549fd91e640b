// SPDX-License-Identifier: GPL-3.0-or-later
#include "MendRun.h"
#include "Witness.h"

#include <gmock/gmock.h>
#include <map>
#include <sys/stat.h>

namespace chronomender {
namespace {

using ::testing::AllOf;
using ::testing::ContainsRegex;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

/// Bytes and times of every file below a folder.
std::map<std::string, std::string> tracesOf(const std::string &folder) {
    std::map<std::string, std::string> traces;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(folder)) {
        struct stat status = {};
        EXPECT_EQ(::stat(entry.path().c_str(), &status), 0);
        traces[entry.path()] = std::to_string(status.st_mtim.tv_sec) + '.' +
                               std::to_string(status.st_mtim.tv_nsec) + ' ' +
                               (entry.is_regular_file() ? little::fileContent(entry.path()) : "");
    }
    return traces;
}

class Save : public MendTest {
protected:
    Json summaryOf(const RunResult &run) const { return run.lines().back().at("summary"); }
};

TEST_F(Save, DryRunShowsEverySlotAndWritesNothing) {
    writePhoto("canon/a.jpg", "2024:05:06 07:08:09");
    const auto before = tracesOf(disk().path());
    const RunResult run =
        mend({"save", "--folder", path("canon"), "--shift", "-1:00:00", "--dry-run"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.output,
                AllOf(HasSubstr("exifDateTimeOriginal"), HasSubstr("exifDateTimeDigitized"),
                      HasSubstr("2024-05-06 07:08:09 +00:00"),
                      HasSubstr("→ 2024-05-06 06:08:09 +00:00  to be written in place"),
                      HasSubstr("cannot be stored on this system"),
                      HasSubstr("Dry run: nothing was written.")));
    EXPECT_EQ(tracesOf(disk().path()), before);
}

TEST_F(Save, DatesAndZoneStampsGoIntoAnotherZoneTogetherAndComeBack) {
    const std::string plain = writePhoto("trip/a.jpg", "2024:12:31 20:30:00");
    const std::string zoned = writeZonedPhoto("trip/b.jpg", "2024:07:01 20:30:00", "+02:00");
    const std::string winter = writeZonedPhoto("trip/c.jpg", "2024:01:01 00:30:00", "+01:00");
    const auto bytes = [&] {
        return std::vector{little::fileContent(plain), little::fileContent(zoned),
                           little::fileContent(winter)};
    };
    const auto move = [&](const char *from, const char *to) {
        const RunResult run = mend({"save", "--json", "--system-zone", "UTC", "--folder",
                                    path("trip"), "--source-zone", from, "--target-zone", to});
        EXPECT_EQ(run.exitCode, 0) << run.errors;
        EXPECT_EQ(summaryOf(run).at("saved"), 3);
    };
    const auto before = bytes();
    move("Europe/Berlin", "Asia/Kathmandu");
    EXPECT_THAT(bytes(),
                ElementsAre(AllOf(HasSubstr("2025:01:01 01:15:00"), Not(HasSubstr("2024:12:31"))),
                            AllOf(HasSubstr("2024:07:02 00:15:00"), HasSubstr("+05:45"),
                                  Not(HasSubstr("+02:00")), Not(HasSubstr("2024:07:01"))),
                            AllOf(HasSubstr("2024:01:01 05:15:00"), HasSubstr("+05:45"),
                                  Not(HasSubstr("+01:00")))));
    move("Asia/Kathmandu", "Europe/Berlin");
    EXPECT_EQ(bytes(), before);
}

TEST_F(Save, TableNamesEachSlotOfWrittenFilesInTheZonesThatHeldBefore) {
    writeZonedPhoto("trip/a.jpg", "2024:07:01 20:30:00", "+02:00");
    writePhoto("trip/b.jpg", "0000:00:00 00:00:00");
    writePhoto("trip/c.jpg", "2024:05:06 02:00:00");
    const RunResult run = mend({"save", "--folder", path("trip"), "--target-zone", "Asia/Tokyo"});
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    EXPECT_THAT(run.output,
                AllOf(ContainsRegex("exifDateTimeOriginal +2024-07-01 20:30:00 [+]02:00 +"
                                    "→ 2024-07-02 03:30:00 [+]09:00  written in place"),
                      ContainsRegex("tiffDateTime +2024-05-06 02:00:00 [+]00:00 +→ 2024-05-06 "
                                    "11:00:00 [+]09:00  written in place"),
                      HasSubstr("cannot be stored on this system"), Not(HasSubstr("b.jpg"))));
}

TEST_F(Save, MissingTagsAreAskedForAndAddedWhereTheyCanBe) {
    little::PhotoFields fields;
    fields.original = "2024:05:06 07:08:09";
    const std::string poor = write("trip/a.jpg", fields);
    writePhoto("trip/b.jpg", "2024:05:06 07:08:10");
    const Arguments folder{"--json", "--folder", path("trip"), "--tag-missing"};
    const RunResult listed = mend(joined({"list"}, folder));
    EXPECT_THAT(listed.errors, HasSubstr("asked for in files: 1"));
    EXPECT_EQ(listed.lines().at(0).at("unsaved"), true);
    EXPECT_EQ(listed.lines().at(1).at("unsaved"), false);
    const Json added =
        mend(joined({"info"}, folder)).lines().at(0).at("slots").at("exifDateTimeDigitized");
    EXPECT_EQ(added.at("new"), "2024-05-06T07:08:09Z");
    EXPECT_FALSE(added.contains("old"));
    const RunResult toolless = mend({"save", "--dry-run", "--folder", path("trip"), "--tag-missing",
                                     "--set", "exifToolPath=/nonexistent"});
    EXPECT_EQ(toolless.exitCode, 1);
    EXPECT_THAT(toolless.errors, HasSubstr("libimage-exiftool-perl"));
    if (!Witness::isAvailable())
        GTEST_SKIP() << "exiftool is not installed: nothing was added";
    const RunResult saved = mend({"save", "--folder", path("trip"), "--tag-missing"});
    EXPECT_EQ(saved.exitCode, 0) << saved.errors;
    EXPECT_THAT(saved.output,
                ContainsRegex("exifDateTimeDigitized +- +→ 2024-05-06 .*  written by ExifTool"));
    EXPECT_EQ(Witness({poor}).value(poor, "ExifIFD:CreateDate"), "2024:05:06 07:08:09");
}

TEST_F(Save, SettingsReachTheCalculationAndNowIsAConcreteDate) {
    writePhoto("canon/a.jpg", "2024:05:06 07:08:09");
    const auto lines = mend({"save", "--json", "--dry-run", "--folder", path("canon"), "--shift",
                             "60", "--set", "dateChangeEXIFFinderModDate=2"})
                           .lines();
    EXPECT_GT(lines.at(0).at("slots").at("fileModificationDate").at("new").get<std::string>(),
              "2024-06");
}

TEST_F(Save, WitnessSeesTheNewStamps) {
    if (!Witness::isAvailable())
        GTEST_SKIP() << "exiftool is not installed";
    const std::string plain = writePhoto("canon/a.jpg", "2024:05:06 07:08:09");
    const std::string zoned = writeZonedPhoto("phone/b.jpg", "2024:12:31 23:30:00", "+02:00");
    const std::string other = writePhoto("phone/c.jpg", "2024:05:06 07:08:09");
    const RunResult run =
        mend({"save", "--json", "--folder", path("canon"), "--shift", "-1:00:00", "--folder",
              path("phone"), "--target-zone", "own", "--pic", "b.jpg", "--shift", "+1:00:00"});
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    EXPECT_EQ(summaryOf(run).at("saved"), 2);
    EXPECT_EQ(summaryOf(run).at("unchanged"), 1);
    const Witness witness({plain, zoned, other});
    EXPECT_EQ(witness.value(plain, "ExifIFD:DateTimeOriginal"), "2024:05:06 06:08:09");
    EXPECT_EQ(witness.value(plain, "IFD0:ModifyDate"), "2024:05:06 06:08:09");
    EXPECT_EQ(witness.value(zoned, "ExifIFD:CreateDate"), "2025:01:01 00:30:00");
    EXPECT_EQ(witness.value(zoned, "ExifIFD:OffsetTimeOriginal"), "+02:00");
    EXPECT_EQ(witness.value(other, "ExifIFD:DateTimeOriginal"), "2024:05:06 07:08:09");
    // What the save said is what a fresh reading shows.
    const auto listed = mend({"list", "--json", path("canon")}).lines();
    EXPECT_EQ(listed.at(0).at("date"),
              run.lines().at(0).at("slots").at("exifDateTimeOriginal").at("new"));
}

TEST_F(Save, WithoutCorrectionWritesNothing) {
    writePhoto("canon/a.jpg", "2024:05:06 07:08:09");
    writeZonedPhoto("canon/b.jpg", "2024:05:06 07:08:09", "+02:00");
    const auto before = tracesOf(disk().path());
    for (const Arguments &options :
         {Arguments{}, Arguments{"--shift", "0"}, Arguments{"--source-zone", "Asia/Tokyo"},
          Arguments{"--target-zone", "own"}}) {
        const RunResult run = mend(joined({"save", "--folder", path("canon")}, options));
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_THAT(run.output, HasSubstr("No file has a correction."));
        EXPECT_EQ(tracesOf(disk().path()), before) << ::testing::PrintToString(options);
    }
    EXPECT_EQ(summaryOf(mend({"save", "--json", "--all", path("canon/a.jpg")})).at("saved"), 1);
}

TEST_F(Save, ProblemMustBeAcceptedByItsKey) {
    writePhoto("phone/a.jpg", "2024:05:06 07:08:09");
    writeZonedPhoto("phone/b.jpg", "2024:05:06 07:08:09", "+02:00");
    const auto before = tracesOf(disk().path());
    const Arguments arguments{"save",        "--system-zone", "UTC", "--folder",
                              path("phone"), "--shift",       "60"};
    const RunResult refused = mend(arguments);
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_THAT(refused.output,
                AllOf(HasSubstr("error_12_zoneStampRewritten"), HasSubstr("+02:00 → +00:00"),
                      HasSubstr("--accept error_12_zoneStampRewritten"),
                      HasSubstr("--target-zone own"), HasSubstr("Nothing was written")));
    EXPECT_EQ(tracesOf(disk().path()), before);

    auto with = [&](const std::string &key) {
        return mend(joined(arguments, {"--json", "--accept", key}));
    };
    EXPECT_EQ(with("error_01_ambiguousStamp").exitCode, 3); // another key does not do
    EXPECT_EQ(tracesOf(disk().path()), before);
    const RunResult accepted = with("error_12_zoneStampRewritten");
    EXPECT_EQ(accepted.exitCode, 0) << accepted.errors;
    EXPECT_EQ(summaryOf(accepted).at("saved"), 2);
    EXPECT_THAT(
        little::fileContent(path("phone/b.jpg")),
        AllOf(HasSubstr("2024:05:06 05:09:09"), HasSubstr("+00:00"), Not(HasSubstr("+02:00"))));
}

TEST_F(Save, DryRunForetellsAnItemThatCannotBeWritten) {
    const std::string tooShort = writePhoto("canon/a.jpg", "2024:05:06 07:08:");
    writePhoto("canon/b.jpg", "2024:05:06 07:08:09");
    const std::string before = little::fileContent(tooShort);
    for (const char *dryRun : {"--dry-run", "--all"}) {
        const RunResult run =
            mend({"save", "--json", "--folder", path("canon"), "--shift", "60", dryRun});
        EXPECT_EQ(run.exitCode, 1) << dryRun;
        EXPECT_EQ(run.lines().at(0).at("result"), "failed") << dryRun;
        EXPECT_EQ(summaryOf(run).at("failed"), 1) << dryRun;
        EXPECT_EQ(little::fileContent(tooShort), before) << dryRun;
    }
}

TEST_F(Save, HardLinksAreSaidInTheDryRun) {
    const std::string photo = writePhoto("canon/a.jpg", "2024:05:06 07:08:09");
    ASSERT_EQ(::link(photo.c_str(), path("elsewhere.jpg").c_str()), 0);
    EXPECT_THAT(mend({"save", "--dry-run", "--folder", path("canon"), "--shift", "60"}).output,
                HasSubstr("several names on disk"));
}

TEST_F(Save, WriteProtectedFileFailsAloneWithItsText) {
    const std::string locked = writePhoto("canon/a.jpg", "2024:05:06 07:08:09");
    writePhoto("canon/b.jpg", "2024:05:06 07:08:09");
    disk().write("canon/notes.txt", "no picture");
    const RunResult run =
        mendAsNobody({"save", "--json", "--folder", path("canon"), "--shift", "60"}, {locked},
                     std::filesystem::perms::owner_read);
    if (run.exitCode == 127)
        GTEST_SKIP() << "an unprivileged user cannot reach the program";
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(summaryOf(run).at("saved"), 1);
    EXPECT_EQ(run.lines().at(0).at("errorIds"), Json::array({2}));
    EXPECT_EQ(run.lines().at(0).at("slots").at("tiffDateTime").at("result"), "refused");
    EXPECT_THAT(run.errors, HasSubstr("could not be opened for writing"));
    EXPECT_THAT(little::fileContent(workFolder() + "/home/chronoMender/errorLog.txt"),
                AllOf(HasSubstr("mend save --json"), HasSubstr(run.errors)));
}

TEST_F(Save, BrokenPipeDoesNotStopASave) {
    const std::string photo = writePhoto("canon/a.jpg", "2024:05:06 07:08:09");
    const std::string command = "HOME='" + workFolder() + "' " + MEND_PATH + " save --folder '" +
                                path("canon") + "' --shift 60 | true";
    EXPECT_EQ(std::system(command.c_str()), 0);
    EXPECT_THAT(little::fileContent(photo), HasSubstr("2024:05:06 07:09:09"));
}

} // namespace
} // namespace chronomender
