// SPDX-License-Identifier: GPL-3.0-or-later
#include "MendRun.h"

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

TEST_F(Trip, PicShiftIsAddedToItsFoldersShift) {
    const auto lines = mend({"list", "--json", "--folder", path("canon"), "--shift", "-1:00:00",
                             "--pic", "IMG_2.jpg", "--shift", "+0:05"})
                           .lines();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].at("name"), "IMG_10.jpg");
    EXPECT_EQ(lines[0].at("date"), "2024-05-06T12:00:00Z");
    EXPECT_EQ(lines[1].at("date"), "2024-05-06T12:05:00Z");
}

/// Zones of one item are an exception from its folder's, and a source alone makes nothing unsaved.
TEST_F(Trip, PicZonesAreItsOwn) {
    struct Case {
        Arguments options;
        const char *localOfTwo, *localOfTen;
        bool isTwoUnsaved, isTenUnsaved;
    };
    const Case cases[]{
        {{"--pic", "IMG_2.jpg", "--source-zone", "America/New_York"},
         "2024-05-06T13:00:00-04:00",
         "2024-05-06T13:00:00+02:00",
         false,
         false},
        {{"--source-zone", "Asia/Tokyo", "--pic", "IMG_2.jpg", "--source-zone", "+05:45"},
         "2024-05-06T13:00:00+05:45",
         "2024-05-06T13:00:00+09:00",
         false,
         false},
        {{"--target-zone", "Asia/Tokyo", "--pic", "IMG_2.jpg", "--target-zone", "own"},
         "2024-05-06T13:00:00+02:00",
         "2024-05-06T20:00:00+09:00",
         false,
         true},
        {{"--pic", "IMG_2.jpg", "--source-zone", "UTC", "--target-zone", "Asia/Tokyo", "--shift",
          "-60"},
         "2024-05-06T21:59:00+09:00",
         "2024-05-06T13:00:00+02:00",
         true,
         false},
        {{"--shift", "60", "--pic", "IMG_2.jpg", "--source-zone", "UTC"},
         "2024-05-06T13:01:00+00:00",
         "2024-05-06T13:01:00+02:00",
         true,
         true},
    };
    for (const Case &one : cases) {
        std::map<std::string, Json> lines;
        for (const Json &line : mend(joined({"list", "--json", "--system-zone", "Europe/Berlin",
                                             "--folder", path("canon")},
                                            one.options))
                                    .lines())
            lines[line.at("name")] = line;
        const std::string what = ::testing::PrintToString(one.options);
        EXPECT_EQ(lines["IMG_2.jpg"]["local"], one.localOfTwo) << what;
        EXPECT_EQ(lines["IMG_10.jpg"]["local"], one.localOfTen) << what;
        EXPECT_EQ(lines["IMG_2.jpg"]["unsaved"], one.isTwoUnsaved) << what;
        EXPECT_EQ(lines["IMG_10.jpg"]["unsaved"], one.isTenUnsaved) << what;
    }
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

    RunResult run(const std::string &command, const Arguments &options = {}) const {
        return mend(joined({command, "--system-zone", "Europe/Berlin", "--folder", path("night")},
                           options));
    }

    /// Of each file that has alerts: their names and texts, one a line.
    std::map<std::string, std::string> alerts(const Arguments &options = {}) const {
        std::map<std::string, std::string> all;
        for (const Json &line : run("list", joined(options, {"--json"})).lines())
            for (const Json &alert : line.value("alerts", Json::array()))
                all[line.at("name")] += alert.at("name").get<std::string>() + ": " +
                                        alert.at("text").get<std::string>() + '\n';
        return all;
    }
};

constexpr const char *later =
    "happens twice on 27 Oct 2024 in Europe/Berlin; read as the later one";
constexpr const char *earlier =
    "happens twice on 27 Oct 2024 in Europe/Berlin; read as the earlier one";

TEST_F(Alerts, NameTheDatesThatCannotBeTrusted) {
    auto found = alerts();
    EXPECT_EQ(found["autumn.jpg"], std::string("repeatedTime: ") + later + '\n');
    EXPECT_EQ(found["pair.CR2"], found["autumn.jpg"]); // both halves alike: said once
    EXPECT_THAT(found["spring.jpg"], HasSubstr("skippedTime: does not exist on 31 Mar 2024"));
    EXPECT_EQ(found.size(), 3U) << ::testing::PrintToString(found);
    found = alerts({"--pic", "before.jpg", "--shift", "1:00:00", "--pic", "zoned.jpg",
                    "--source-zone", "Asia/Tokyo"});
    EXPECT_THAT(found["before.jpg"], HasSubstr("cannotBeWritten: "));
    EXPECT_THAT(found["zoned.jpg"], HasSubstr("zoneDisagrees: "));
    EXPECT_THAT(run("list").output, HasSubstr(std::string("Little One  ") + later + '\n'));
    EXPECT_THAT(run("info").output, HasSubstr(later));
}

TEST_F(Alerts, AlternativeIsTheEarlierReadingOfTheFileWithThatName) {
    const auto dates = [&](const Arguments &options) {
        std::map<std::string, std::string> all;
        for (const Json &line : run("list", joined(options, {"--json"})).lines())
            all[line.at("name")] = line.at("date");
        return all;
    };
    const Arguments options{"--alternative", "autumn.jpg", "--alternative", "pair.JPG"};
    EXPECT_EQ(dates({})["autumn.jpg"], "2024-10-27T01:30:00Z");
    EXPECT_EQ(dates(options)["autumn.jpg"], "2024-10-27T00:30:00Z");
    EXPECT_EQ(dates(options)["pair.CR2"], "2024-10-27T01:40:00Z");
    auto found = alerts(options);
    EXPECT_EQ(found["autumn.jpg"], std::string("repeatedTime: ") + earlier + '\n');
    EXPECT_THAT(found["pair.CR2"], HasSubstr(std::string("repeatedTime: ") + later));
    EXPECT_THAT(found["pair.CR2"], HasSubstr(std::string("repeatedTime: pair.JPG: ") + earlier));
    EXPECT_EQ(run("save", joined(options, {"--dry-run"})).exitCode, 0);
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
