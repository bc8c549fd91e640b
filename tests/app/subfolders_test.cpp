// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppSession.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace chronomender {
namespace {

using testing::ElementsAre;

class Subfolders : public AppSession {
protected:
    ImportOutcome importTrip() {
        EXPECT_EQ(open(disk().path("trip"), &trip, choices), OpenFolderResult::Opened);
        return import(trip, choices);
    }
    void link(const std::string &target, const std::string &name) {
        std::filesystem::create_directory_symlink(disk().path(target), disk().path(name));
    }
    /// The session's folders below the disk's, each with its number of items.
    std::vector<std::string> session() {
        std::vector<std::string> folders;
        for (const auto &folder : app().droppedFolders().droppedFolders())
            folders.push_back(folder->sfFolderPath().substr(disk().path().size() + 1) + ' ' +
                              std::to_string(folder->sfPics));
        return folders;
    }

    KeyStates choices{.isSubFolderAutoImportEnabled = true};
    MySingleFolderPtr trip;
};

TEST_F(Subfolders, StandBehindTheirParentInNaturalOrder) {
    for (const char *name : {"trip/a.jpg", "trip/day 10/a.jpg", "trip/day 9/a.jpg",
                             "trip/day 9/b.jpg", "trip/day 9/raw/a.jpg"})
        writePhoto(name);
    std::filesystem::create_directories(disk().path("last"));
    std::vector<std::string> added;
    app().setFolderAdded([&](const MySingleFolderPtr &folder, const MySingleFolderPtr &parent) {
        added.push_back(parent->sfFolder + '/' + folder->sfFolder);
    });
    ASSERT_EQ(open(disk().path("last")), OpenFolderResult::Opened);
    const ImportOutcome outcome = importTrip();
    EXPECT_THAT(session(), ElementsAre("last -1", "trip 1", "trip/day 9 2", "trip/day 9/raw 1",
                                       "trip/day 10 1"));
    EXPECT_THAT(added, ElementsAre("trip/day 9", "trip/day 10", "day 9/raw"));
    EXPECT_EQ(outcome.items.size(), 5U);
}

TEST_F(Subfolders, AreEnteredAsDeepAsWanted) {
    writePhoto("trip/1/2/3/4/a.jpg");
    choices.subFolderAutoImportMaxDepth = 2;
    importTrip();
    EXPECT_THAT(session(), ElementsAre("trip 0", "trip/1 0", "trip/1/2 0"));
}

TEST_F(Subfolders, EachDirectoryOnceAndNoneOfAnotherProgram) {
    for (const char *name :
         {"trip/inside/a.jpg", "elsewhere/b.jpg", "trip/.hidden/c.jpg",
          "trip/Old.photoslibrary/d.jpg", "trip/Film.app/e.jpg", "trip/\xFF/f.jpg"})
        writePhoto(name);
    link("trip", "trip/inside/loop");
    link("trip/inside", "trip/again");
    link("elsewhere", "trip/linked");
    const ImportOutcome outcome = importTrip();
    EXPECT_THAT(session(), ElementsAre("trip 0", "trip/inside 1", "elsewhere 1"));
    ASSERT_EQ(outcome.skipped.size(), 1U);
    EXPECT_EQ(outcome.skipped[0].reason, SkipReason::NameNotUtf8);
}

TEST_F(Subfolders, ASecondImportTakesOnlyNewNames) {
    writePhoto("trip/a.jpg");
    writePhoto("trip/inside/a.jpg");
    importTrip();
    writePhoto("trip/b.jpg");
    writePhoto("trip/later/a.jpg");
    EXPECT_EQ(import(trip, choices).items.size(), 1U);
    EXPECT_THAT(session(), ElementsAre("trip 2", "trip/inside 1"));
}

TEST_F(Subfolders, ShareTheirParentsSequenceOfDates) {
    writePhoto("trip/2.jpg");
    writePhoto("trip/inside/1.jpg");
    const Date start = absl::FromUnixSeconds(1'700'000'000);
    choices.dateSequence = DateSequence{start, 1, DateSequence::StepperKind::Hours};
    importTrip();
    const auto &folders = app().droppedFolders().droppedFolders();
    ASSERT_EQ(folders.size(), 2U);
    EXPECT_EQ(folders[1]->sfPicDetails_fullArray.at(0)->spDateTimeModified(), start);
    EXPECT_EQ(folders[0]->sfPicDetails_fullArray.at(0)->spDateTimeModified(),
              start + absl::Hours(1));
}

} // namespace
} // namespace chronomender
