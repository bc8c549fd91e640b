// SPDX-License-Identifier: GPL-3.0-or-later
#include "MendRun.h"

#include <fstream>
#include <gmock/gmock.h>
#include <map>

namespace chronomender {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// Three cameras: canon is an hour fast, nikon still on the time of New York, phone is right and
/// writes its zone.
class Trip : public MendTest {
protected:
    Trip() {
        writePhoto("canon/IMG_2.jpg", "2024:05:06 13:00:00");  // 12:00 in Berlin
        writePhoto("canon/IMG_10.jpg", "2024:05:06 13:00:00"); // the same instant
        writePhoto("nikon/DSC_1.jpg", "2024:05:06 05:30:00");  // 11:30 in Berlin
        writeZonedPhoto("phone/P_1.jpg", "2024:05:06 12:30:00", "+02:00");
    }

    Arguments corrected(const std::string &command) const {
        return {command,         "--json",        "--system-zone", "Europe/Berlin",
                "--folder",      path("canon"),   "--shift",       "-1:00:00",
                "--folder",      path("nikon"),   "--source-zone", "America/New_York",
                "--target-zone", "Europe/Berlin", path("phone")};
    }
};

TEST_F(Trip, IsListedInOneOrder) {
    const auto lines = mend(corrected("list")).lines();
    EXPECT_THAT(namesOf(lines), ElementsAre("DSC_1.jpg", "IMG_2.jpg", "IMG_10.jpg", "P_1.jpg"));
    EXPECT_EQ(lines[0].at("date"), "2024-05-06T09:30:00Z");
    EXPECT_EQ(lines[0].at("local"), "2024-05-06T11:30:00+02:00");
    EXPECT_EQ(lines[0].at("unsaved"), true); // its zone is to be written
    EXPECT_EQ(lines[1].at("date"), "2024-05-06T10:00:00Z");
    EXPECT_EQ(lines[1].at("unsaved"), true);
    EXPECT_EQ(lines[3].at("unsaved"), false); // nothing was said about the phone
}

TEST_F(Trip, WithoutCorrectionsIsInTheOrderOfTheClocks) {
    const auto lines = mend({"list", "--json", "--system-zone", "Europe/Berlin", path("canon"),
                             path("nikon"), path("phone")})
                           .lines();
    EXPECT_THAT(namesOf(lines), ElementsAre("DSC_1.jpg", "P_1.jpg", "IMG_2.jpg", "IMG_10.jpg"));
}

TEST_F(Trip, TextHasLocalTimeOffsetAndNotes) {
    const RunResult run = mend({"list", "--system-zone", "Europe/Berlin", "--folder", path("canon"),
                                "--shift", "-1:00:00"});
    EXPECT_THAT(run.output,
                HasSubstr("2024-05-06 12:00:00 +02:00  canon  IMG_2.jpg   Little One  unsaved\n"));
    EXPECT_THAT(run.output, HasSubstr("items: 2, folders: 1, unsaved: 2"));
}

TEST_F(Trip, OwnTargetShowsTheFilesOwnZone) {
    const auto lines = mend({"list", "--json", "--system-zone", "UTC", "--folder", path("phone"),
                             "--target-zone", "own"})
                           .lines();
    EXPECT_EQ(lines.at(0).at("local"), "2024-05-06T12:30:00+02:00");
    EXPECT_EQ(lines.at(0).at("unsaved"), false);
}

/// What is said of one item is an exception from its folder, and a source zone makes nothing
/// unsaved. Both pictures say 13:00.
TEST_F(Trip, PicCorrectionsAreItsOwn) {
    struct Case {
        const char *options, *two, *ten;
    };
    constexpr Case cases[]{
        {"--shift -1:00:00 --pic IMG_2.jpg --shift +0:05", "12:05:00+02:00 *", "12:00:00+02:00 *"},
        {"--pic IMG_2.jpg --source-zone America/New_York", "13:00:00-04:00", "13:00:00+02:00"},
        {"--source-zone Asia/Tokyo --pic IMG_2.jpg --source-zone +05:45", "13:00:00+05:45",
         "13:00:00+09:00"},
        {"--target-zone Asia/Tokyo --pic IMG_2.jpg --target-zone own", "13:00:00+02:00",
         "20:00:00+09:00 *"},
        {"--pic IMG_2.jpg --source-zone UTC --target-zone Asia/Tokyo --shift -60",
         "21:59:00+09:00 *", "13:00:00+02:00"},
        {"--shift 60 --pic IMG_2.jpg --source-zone UTC", "13:01:00+00:00 *", "13:01:00+02:00 *"},
    };
    for (const auto &[options, two, ten] : cases) {
        std::map<std::string, std::string> seen;
        for (const Json &line : mend(joined({"list", "--json", "--system-zone", "Europe/Berlin",
                                             "--folder", path("canon")},
                                            words(options)))
                                    .lines())
            seen[line.at("name")] =
                line.at("local").get<std::string>().substr(11) + (line.at("unsaved") ? " *" : "");
        EXPECT_EQ(seen["IMG_2.jpg"], two) << options;
        EXPECT_EQ(seen["IMG_10.jpg"], ten) << options;
    }
}

TEST_F(Trip, IsListedAsFarAsAFilterLetsItThrough) {
    writePhoto("phone/E\u0301te\u0301.jpg", "2024:05:06 14:00:00");
    struct Case {
        Arguments options;
        std::vector<std::string> names;
    };
    const std::vector<std::string> all{"DSC_1.jpg", "IMG_2.jpg", "IMG_10.jpg", "P_1.jpg",
                                       "E\u0301te\u0301.jpg"};
    const Case cases[]{
        {{"--filter", R"(spName CONTAINS[cd] "img_1")"}, {"IMG_10.jpg"}},
        {{"--filter", "spName BEGINSWITH[cd] '\u00C9T\u00C9'"}, {"E\u0301te\u0301.jpg"}},
        {{"--filter", "filter_miscState == 0 AND NOT spName BEGINSWITH 'IMG'"}, {"DSC_1.jpg"}},
        {{"--filter", "filter_dateTimeModified >= '2024-05-06 12:30' AND "
                      "filter_dateTimeModified < '2024-05-06T14:00+02:00'"},
         {"P_1.jpg"}},
        {{"--filter", "pivMakeModel == 'Little One' AND filter_miscState_2 == 1"}, {"DSC_1.jpg"}},
        {{"--rating", "not-rejected"}, all},
        {{"--rating", "keepers", "--filter", "TRUEPREDICATE"}, {}},
        // What is switched on for other programs is no wish of this command.
        {{}, all},
    };
    const std::string stored = "isFilterActive=1\nisRatingFilterActive=1\n"
                               "ratingFilterSelectedOption=1\nlastActiveFilterPredicate=x\n";
    const std::string preferences = workFolder() + "/home/chronoMender.conf";
    std::filesystem::create_directories(workFolder() + "/home");
    std::ofstream(preferences) << stored;
    for (const auto &[options, names] : cases)
        EXPECT_EQ(namesOf(mend(joined(corrected("list"), options)).lines()), names)
            << ::testing::PrintToString(options);
    EXPECT_EQ(little::fileContent(preferences), stored);
    EXPECT_THAT(mend({"list", "--filter", "spName ENDSWITH '2.jpg'", path("canon")}).output,
                HasSubstr("items: 1, folders: 1, unsaved: 0, hidden by the filter: 1\n"));
}

/// Stamps around the steps of Berlin's clocks in 2024.
class Alerts : public MendTest {
protected:
    Alerts() {
        writePhoto("night/autumn.jpg", "2024:10:27 02:30:00");
        writePhoto("night/before.jpg", "2024:10:27 01:30:00");
        writePhoto("night/spring.jpg", "2024:03:31 02:30:00");
        writeZonedPhoto("night/zoned.jpg", "2024:10:27 02:30:00", "+02:00");
        little::PhotoFields fields;
        fields.original = "2024:10:27 02:40:00";
        disk().write("night/pair.CR2", little::tiffPhoto(fields).bytes);
        write("night/pair.JPG", fields);
    }

    RunResult run(const std::string &command, const std::string &options = {}) const {
        return mend(joined({command, "--system-zone", "Europe/Berlin", "--folder", path("night")},
                           words(options)));
    }

    /// Of each file: its alerts, one a line, and behind them its date.
    std::map<std::string, std::string> list(const std::string &options = {}) const {
        std::map<std::string, std::string> all;
        for (const Json &line : run("list", options + " --json").lines()) {
            std::string &told = all[line.at("name")];
            for (const Json &alert : line.value("alerts", Json::array()))
                told += alert.at("name").get<std::string>() + ": " +
                        alert.at("text").get<std::string>() + '\n';
            told += line.at("date");
        }
        return all;
    }
};

const std::string twice = "happens twice on 27 Oct 2024 in Europe/Berlin; read as the ";

TEST_F(Alerts, NameTheDatesThatCannotBeTrusted) {
    auto seen = list();
    EXPECT_EQ(seen["autumn.jpg"], "repeatedTime: " + twice + "later one\n2024-10-27T01:30:00Z");
    EXPECT_EQ(seen["pair.CR2"], "repeatedTime: " + twice + "later one\n2024-10-27T01:40:00Z");
    EXPECT_THAT(seen["spring.jpg"], HasSubstr("skippedTime: does not exist on 31 Mar 2024"));
    EXPECT_EQ(seen["before.jpg"] + seen["zoned.jpg"], "2024-10-26T23:30:00Z2024-10-27T00:30:00Z");
    seen = list("--pic before.jpg --shift 1:00:00 --pic zoned.jpg --source-zone Asia/Tokyo");
    EXPECT_THAT(seen["before.jpg"], HasSubstr("cannotBeWritten: "));
    EXPECT_THAT(seen["zoned.jpg"], HasSubstr("zoneDisagrees: "));
    EXPECT_THAT(run("list").output, HasSubstr("Little One  " + twice + "later one\n"));
    EXPECT_THAT(run("info").output, HasSubstr(twice));
}

TEST_F(Alerts, AlternativeIsTheEarlierReadingOfTheFileWithThatName) {
    auto seen = list("--alternative autumn.jpg --alternative pair.JPG");
    EXPECT_EQ(seen["autumn.jpg"], "repeatedTime: " + twice + "earlier one\n2024-10-27T00:30:00Z");
    EXPECT_THAT(seen["pair.CR2"], HasSubstr("repeatedTime: " + twice + "later one"));
    EXPECT_THAT(seen["pair.CR2"], HasSubstr("repeatedTime: pair.JPG: " + twice + "earlier one"));
    EXPECT_THAT(seen["pair.CR2"], HasSubstr("\n2024-10-27T01:40:00Z"));
    // The item's own name means the shot.
    EXPECT_EQ(list("--alternative pair.CR2")["pair.CR2"],
              "repeatedTime: " + twice + "earlier one\n2024-10-27T00:40:00Z");
}

class EmptyTags : public MendTest {
protected:
    EmptyTags() {
        writePhoto("scans/1.jpg", "0000:00:00 00:00:00");
        writePhoto("scans/2.jpg", "    :  :     :  :  ");
        writePhoto("scans/3.jpg", "2024:05:06 07:08:09");
    }
};

TEST_F(EmptyTags, AreLeftAloneUnlessTold) {
    const RunResult run = mend({"list", path("scans")});
    EXPECT_THAT(run.output, HasSubstr("date tags are empty, left alone"));
    EXPECT_THAT(run.errors, HasSubstr("2 files have empty date tags and are left alone"));
    const auto saved = mend({"save", "--json", "--folder", path("scans"), "--shift", "60"}).lines();
    EXPECT_EQ(saved.back().at("summary").at("saved"), 1);
    EXPECT_EQ(saved.back().at("summary").at("unchanged"), 2);
}

TEST_F(EmptyTags, AreFilledByASave) {
    const RunResult run =
        mend({"save", "--folder", path("scans"), "--empty-tags", "2024-05-01T10:00+0:00:30"});
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    EXPECT_THAT(little::fileContent(path("scans/2.jpg")), HasSubstr("2024:05:01 10:00:30"));
    EXPECT_THAT(little::fileContent(path("scans/3.jpg")), HasSubstr("2024:05:06 07:08:09"));
}

} // namespace
} // namespace chronomender
