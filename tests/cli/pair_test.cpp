// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleMovie.h"
#include "MendRun.h"
#include "Witness.h"

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using little::movie;
using ::testing::ElementsAre;

/// A raw file with its JPEG and a still with its movie, joined by name, camera and clock.
class Pairs : public MendTest {
protected:
    Pairs() {
        const little::PhotoFields fields{.original = "2024:05:06 07:08:09"};
        disk().write("trip/a.CR2", little::tiffPhoto(fields).bytes);
        write("trip/a.JPG", fields);
        write("trip/b.JPG", fields);
        disk().write(
            "trip/b.MOV",
            movie({.date = "2024-05-06T07:08:10+0000", .make = "Little", .model = "Little One"})
                .bytes);
    }
    Arguments save(const Arguments &more) const {
        Arguments arguments{"save", "--json", "--folder", path("trip")};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return arguments;
    }
    /// The last parts of the paths that a run reports as saved.
    static std::vector<std::string> savedNames(const RunResult &run) {
        std::vector<std::string> names;
        for (const Json &line : run.lines())
            if (line.value("result", "") == "saved")
                names.push_back(std::filesystem::path(line.at("path")).filename());
        return names;
    }
};

TEST_F(Pairs, AreOneLineOfTheListAndTwoSavedFiles) {
    EXPECT_THAT(namesOf(mend({"list", "--json", path("trip")}).lines()),
                ElementsAre("a.CR2", "b.JPG"));
    const RunResult run = mend(save({"--shift", "1:00:00"}));
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    EXPECT_THAT(savedNames(run), ElementsAre("a.CR2", "a.JPG", "b.JPG", "b.MOV"));
    EXPECT_EQ(run.lines().back().at("summary").at("saved"), 4);
    EXPECT_EQ(run.lines().back().at("summary").at("unchanged"), 0);
    if (!Witness::isAvailable())
        GTEST_SKIP() << "exiftool is not installed";
    const Witness witness({path("trip/a.CR2"), path("trip/a.JPG"), path("trip/b.JPG")});
    for (const char *name : {"trip/a.CR2", "trip/a.JPG", "trip/b.JPG"})
        EXPECT_EQ(witness.value(path(name), "ExifIFD:DateTimeOriginal"), "2024:05:06 08:08:09");
}

TEST_F(Pairs, AWriteProtectedHalfKeepsTheOtherAsItWas) {
    const std::string raw = little::fileContent(path("trip/a.CR2"));
    const RunResult run = mendAsNobody(save({"--shift", "1:00:00"}), {path("trip/a.JPG")},
                                       std::filesystem::perms::owner_read);
    if (run.exitCode == 127)
        GTEST_SKIP() << "another user cannot reach the program";
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(savedNames(run), ElementsAre("b.JPG", "b.MOV"));
    EXPECT_EQ(little::fileContent(path("trip/a.CR2")), raw);
}

TEST_F(Pairs, EitherNameMeansTheItemAndBothAreTooMany) {
    const Arguments byDependent{"--pic", "a.JPG", "--shift", "1:00:00"};
    EXPECT_THAT(savedNames(mend(save(byDependent))), ElementsAre("a.CR2", "a.JPG"));
    Arguments both = byDependent;
    both.insert(both.end(), {"--pic", "a.CR2", "--shift", "1:00:00"});
    EXPECT_EQ(mend(save(both)).exitCode, 2) << "the item would move twice";
}

} // namespace
} // namespace chronomender
