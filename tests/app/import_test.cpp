// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppSession.h"
#include "LittleMovie.h"

#include "MainThread.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <unistd.h>

namespace chronomender {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> namesOf(const std::vector<MySinglePicPtr> &items) {
    std::vector<std::string> names;
    for (const MySinglePicPtr &pic : items)
        names.push_back(pic->spName);
    return names;
}

class Import : public AppSession {};

TEST_F(Import, FoldersThatCannotBeOpenedSayWhy) {
    const std::string photo = writePhoto("trip/a.jpg");
    std::filesystem::create_directory_symlink(disk().path("trip"), disk().path("link"));
    writePhoto("Fotos.photoslibrary/originals/a.jpg");
    writePhoto("caf\xE9/a.jpg");
    EXPECT_EQ(open(disk().path("trip")), OpenFolderResult::Opened);
    EXPECT_EQ(open(disk().path("link")), OpenFolderResult::AlreadyOpen);
    EXPECT_EQ(open(disk().path("nothing")), OpenFolderResult::NotFound);
    EXPECT_EQ(open(photo), OpenFolderResult::NotAFolder);
    EXPECT_EQ(open(disk().path("Fotos.photoslibrary/originals")),
              OpenFolderResult::LibraryOfAnotherProgram);
    EXPECT_EQ(open(disk().path("caf\xE9")), OpenFolderResult::NameNotUtf8);
    EXPECT_EQ(app().droppedFolders().droppedFolders().size(), 1U);
}

TEST_F(Import, FinishesOnTheMainThreadWithEverythingCounted) {
    writePhoto("trip/a.jpg", "2024:05:06 07:08:09");
    writePhoto("trip/b.jpg", "2024:05:04 07:08:09");
    MySingleFolderPtr folder;
    ASSERT_EQ(open(disk().path("trip"), &folder), OpenFolderResult::Opened);
    ImportRequest request;
    request.folder = folder;
    QEventLoop loop;
    bool wasOnMainThread = false;
    app().startImport(std::move(request), [&](const ImportOutcome &) {
        wasOnMainThread = mainThread::isCurrent();
        loop.quit();
    });
    EXPECT_TRUE(folder->sfPicDetails_fullArray.empty()); // nothing is published from a worker
    loop.exec();
    EXPECT_TRUE(wasOnMainThread);
    EXPECT_EQ(folder->sfPics, 2);
    EXPECT_EQ(folder->mediaTypesState, MediaTypesState::Photos);
    EXPECT_EQ(*folder->sfFrom,
              absl::FromCivil(absl::CivilSecond(2024, 5, 4, 7, 8, 9), absl::UTCTimeZone()));
    app().buildNewSource();
    EXPECT_THAT(namesOf(app().source_full()), ElementsAre("b.jpg", "a.jpg"));
}

TEST_F(Import, AMovieClockToldLaterReadsTheMoviesAgain) {
    disk().write("trip/a.mov", little::movie().bytes); // 2020-04-17 16:03:47 in its header
    KeyStates keyStates;
    keyStates.adaptedZone.source = ZoneChoice::named(*app().zones().zoneWithName("Asia/Tokyo"));
    const MySingleFolderPtr folder = openAndImport(disk().path("trip"), keyStates);
    const Date asUtc = folder->sfPicDetails_fullArray.at(0)->spDateTimeOriginal;
    EXPECT_EQ(app().setMovieClock(*folder, true), 1U);
    EXPECT_EQ(folder->sfFrom, asUtc - absl::Hours(9));
    app().undoManager().undo();
    EXPECT_FALSE(folder->isQuicktimeMVHDTimezoneCorrectionEnabled);
    app().undoManager().redo();
    EXPECT_EQ(app().setMovieClock(*folder, false), 1U);
    EXPECT_EQ(folder->sfPicDetails_fullArray.at(0)->spDateTimeOriginal, asUtc);
}

TEST_F(Import, OneFileInTwoFoldersIsOneItem) {
    const std::string photo = writePhoto("canon/a.jpg");
    std::filesystem::create_directory(disk().path("copies"));
    ASSERT_EQ(::link(photo.c_str(), disk().path("copies/b.jpg").c_str()), 0);
    openAndImport(disk().path("canon"));
    EXPECT_TRUE(openAndImport(disk().path("copies"))->sfPicDetails_fullArray.empty());
}

TEST_F(Import, ControllerMayGoWhileAnImportRuns) {
    for (int i = 0; i < 50; ++i)
        writePhoto("trip/" + std::to_string(i) + ".jpg");
    MySingleFolderPtr folder;
    ASSERT_EQ(open(disk().path("trip"), &folder), OpenFolderResult::Opened);
    ImportRequest request;
    request.folder = folder;
    bool wasCalled = false;
    app().startImport(std::move(request), [&](const ImportOutcome &) { wasCalled = true; });
    restart();
    QCoreApplication::processEvents();
    EXPECT_FALSE(wasCalled);
}

TEST_F(Import, CameraIsReadLateOnlyWhereTheFileNamesNone) {
    little::PhotoFields fields = little::fullPhotoFields();
    fields.model = "";
    disk().write("trip/a.jpg", little::jpegPhoto(fields).bytes);
    writePhoto("trip/b.jpg");
    auto items = openAndImport(disk().path("trip"))->sfPicDetails_fullArray;
    items[0]->camera.pivMakeModel.clear();
    EXPECT_THAT(namesOf(itemsToComplete(items, CompletionScope::WhereCameraIsMissing)),
                ElementsAre("a.jpg"));
    PropertyDictionary dictionary;
    dictionary.make = "Other";
    dictionary.model = "Other Two";
    dictionary.lens = "50 mm";
    completeItems(items, {{dictionary, {}}, {}});
    EXPECT_EQ(items[0]->camera.pivMakeModel, "Other Two");
    EXPECT_EQ(items[0]->camera.lens, "50 mm");
    EXPECT_EQ(items[1]->camera.pivMakeModel, "Little One");
}

} // namespace
} // namespace chronomender
