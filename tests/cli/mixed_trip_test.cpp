// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleLivePhoto.h"
#include "MendRun.h"

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// A phone's live photo with a sidecar, a movie of another camera inside, and a picture beside it.
class MixedTrip : public MendTest {
protected:
    MixedTrip() {
        writeZonedPhoto("trip/live.jpg", "2024:05:06 07:08:09", "+00:00");
        disk().write("trip/live.mov", little::liveMovie());
        disk().write("trip/live.xmp", "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"></x:xmpmeta>");
        disk().write("trip/inside/clip.mov", little::movie().bytes); // 2020-04-17 16:03:47
        writePhoto("trip/inside/deep/2.jpg", "2024:05:06 10:00:00");
    }

    std::vector<Json> list(const Arguments &options) const {
        return mend(joined({"list", "--json", "--system-zone", "UTC", "--folder", path("trip")},
                           options))
            .lines();
    }
};

TEST_F(MixedTrip, OneLineTellsBothFilesAndTheSidecar) {
    const auto lines = list({});
    ASSERT_THAT(namesOf(lines), ElementsAre("live.jpg"));
    EXPECT_EQ(lines[0].at("dependent"), "live.mov");
    EXPECT_EQ(lines[0].at("sidecars"), Json({"live.xmp"}));
    EXPECT_THAT(mend({"list", path("trip")}).output, HasSubstr("live.jpg + mov, xmp"));
    EXPECT_THAT(namesOf(list({"--set", "createFileGroups=0"})),
                ElementsAre("live.mov", "live.jpg"));
}

TEST_F(MixedTrip, InfoTellsOfBothHalvesAndMovesNothing) {
    const auto lines = mend({"info", "--json", path("trip")}).lines();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].at("dependent"), "live.mov");
    EXPECT_EQ(lines[1].at("master"), "live.jpg");
    for (const Json &line : lines)
        for (const auto &[name, slot] : line.at("slots").items())
            EXPECT_EQ(slot.at("new"), slot.at("old")) << line.at("path") << ' ' << name;
}

TEST_F(MixedTrip, ASidecarTellsTheCameraWhereTheFileIsSilent) {
    little::PhotoFields scan;
    scan.make = scan.model = "";
    scan.original = "2024:05:06 07:08:09";
    write("scans/a.jpg", scan);
    disk().write("scans/a.xmp",
                 "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
                 "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description "
                 "xmlns:tiff='http://ns.adobe.com/tiff/1.0/' tiff:Make='Flat' tiff:Model='Bed'/>"
                 "</rdf:RDF></x:xmpmeta>");
    EXPECT_EQ(mend({"list", "--json", path("scans")}).lines().at(0).at("camera"), "Flat Bed");
}

TEST_F(MixedTrip, FoldersInsideComeAsDeepAsAskedWithTheSameOptions) {
    EXPECT_THAT(namesOf(list({"--subfolders", "1"})), ElementsAre("clip.mov", "live.jpg"));
    const auto lines = list({"--subfolders", "2", "--shift", "60"});
    ASSERT_THAT(namesOf(lines), ElementsAre("clip.mov", "live.jpg", "2.jpg"));
    EXPECT_EQ(lines[0].at("date"), "2020-04-17T16:04:47Z");
    EXPECT_EQ(lines[2].at("date"), "2024-05-06T10:01:00Z");
    EXPECT_EQ(lines[2].at("folder"), path("trip/inside/deep"));
    const auto single =
        list({"--subfolders", "2", "--shift", "60", "--pic", "live.mov", "--shift", "1"});
    EXPECT_EQ(single.at(0).at("date"), "2020-04-17T16:04:47Z");
    EXPECT_EQ(single.at(1).at("date"), "2024-05-06T07:09:10Z");
}

TEST_F(MixedTrip, FiltersKeepOrLeaveOutExtensions) {
    EXPECT_THAT(namesOf(list({"--subfolders", "2", "--filter-ext", "MOV"})),
                ElementsAre("clip.mov", "live.mov"));
    EXPECT_THAT(namesOf(list({"--subfolders", "2", "--filter-ext-not", ".mov"})),
                ElementsAre("live.jpg", "2.jpg"));
}

TEST_F(MixedTrip, MovieOptionsSayWhichDateCountsAndWhatItMeans) {
    const Arguments inside{"--filter-ext", "mov", "--subfolders", "1"};
    const auto dates = [&](const Arguments &options) {
        std::vector<std::string> found;
        for (const Json &line : list(joined(inside, options)))
            found.push_back(line.at("date"));
        return found;
    };
    EXPECT_THAT(dates({}), ElementsAre("2020-04-17T16:03:47Z", "2024-05-06T07:08:07Z"));
    EXPECT_THAT(dates({"--movie-date", "mvhd"}),
                ElementsAre("2020-04-17T16:03:47Z", "2020-04-17T16:03:47Z"));
    EXPECT_THAT(dates({"--movie-clock", "local", "--source-zone", "Asia/Tokyo"}),
                ElementsAre("2020-04-17T07:03:47Z", "2024-05-06T07:08:07Z"));
}

TEST_F(MixedTrip, ADateSequenceRunsThroughAllFoldersByName) {
    const auto lines = list({"--subfolders", "2", "--date-sequence", "2030-01-01T00:00+60"});
    ASSERT_THAT(namesOf(lines), ElementsAre("2.jpg", "clip.mov", "live.jpg"));
    EXPECT_EQ(lines[0].at("date"), "2030-01-01T00:00:00Z");
    EXPECT_EQ(lines[2].at("date"), "2030-01-01T00:02:00Z");
    EXPECT_EQ(lines[2].at("unsaved"), true);
}

} // namespace
} // namespace chronomender
