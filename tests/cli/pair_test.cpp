// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleMovie.h"
#include "MendRun.h"
#include "Witness.h"

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using ::testing::ElementsAre;

/// The last parts of the paths that a run reports as saved.
std::vector<std::string> savedNames(const RunResult &run) {
    std::vector<std::string> names;
    for (const Json &line : run.lines())
        if (line.value("result", "") == "saved")
            names.push_back(std::filesystem::path(line.at("path")).filename());
    return names;
}

TEST_F(MendTest, PairsAreOneLineOfTheListAndTwoSavedFiles) {
    const little::PhotoFields fields{.original = "2024:05:06 07:08:09"};
    const std::string raw = disk().write("trip/a.CR2", little::tiffPhoto(fields).bytes);
    const std::string jpeg = write("trip/a.JPG", fields);
    write("trip/b.JPG", fields);
    disk().write(
        "trip/b.MOV",
        little::movie({.date = "2024-05-06T07:08:10+0000", .make = "Little", .model = "Little One"})
            .bytes);
    const std::string trip = path("trip");
    EXPECT_THAT(namesOf(mend({"list", "--json", trip}).lines()), ElementsAre("a.CR2", "b.JPG"));
    const RunResult run = mend({"save", "--json", "--folder", trip, "--shift", "1:00:00"});
    EXPECT_THAT(savedNames(run), ElementsAre("a.CR2", "a.JPG", "b.JPG", "b.MOV"));
    EXPECT_EQ(run.lines().back().at("summary").at("unchanged"), 0);
    const Arguments single{"save",  "--json", "--folder", trip,
                           "--pic", "a.JPG",  "--shift",  "1:00:00"};
    EXPECT_THAT(savedNames(mend(single)), ElementsAre("a.CR2", "a.JPG"));
    const Arguments twice = joined(single, {"--pic", "a.CR2", "--shift", "1:00:00"});
    EXPECT_EQ(mend(twice).exitCode, 2) << "the item would move twice";
    if (!Witness::isAvailable())
        GTEST_SKIP() << "exiftool is not installed";
    const Witness witness({raw, jpeg});
    for (const std::string &file : {raw, jpeg})
        EXPECT_EQ(witness.value(file, "ExifIFD:DateTimeOriginal"), "2024:05:06 09:08:09");
}

} // namespace
} // namespace chronomender
