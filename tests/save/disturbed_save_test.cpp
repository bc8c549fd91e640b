// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveTest.h"

#include <fstream>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace chronomender {
namespace {

using namespace little;
using testing::Each;
using testing::ElementsAre;
namespace fs = std::filesystem;

/// Looks away for a moment: something happens right before a path is looked at.
class HookedLayer : public FailingFileLayer {
public:
    std::function<void(const std::string &path)> beforeLook;
    std::optional<FileAttributes> attributes(const std::string &path) override {
        if (beforeLook)
            beforeLook(path);
        return FailingFileLayer::attributes(path);
    }
};

/// Three photos, to be saved an hour later, and a system that comes in between.
class DisturbedSave : public SaveTest {
protected:
    void prepare(const std::vector<std::string> &names = {"a.jpg", "b.jpg", "c.jpg"}) {
        fs::remove_all(support);
        shiftAllSlotsAlike();
        session.folder().sfEditMode = EditMode::Together;
        for (const std::string &name : names)
            photo = session.photo(
                name, {.original = "2024:05:06 07:08:09", .modified = "2024:05:06 07:08:10"});
        session.import();
        keepOwnZones();
        shift(absl::Hours(25));
        dry = session.preProcess();
        later = replaced(photo, {{"ExifDateTimeOriginal", "2024:05:07 08:08:09"},
                                 {"TIFFDateTime", "2024:05:07 08:08:10"}});
    }
    /// Another second in the stamp, with the same size and file date.
    std::string withByteChanged(const std::string &name, const BuiltPhoto &built) {
        std::string bytes = built.bytes;
        bytes[built.offsets.at("ExifDateTimeOriginal") + 18] = '7';
        const Date date = dateOf(name);
        std::ofstream(session.path(name), std::ios::binary | std::ios::in) << bytes;
        setFileDate(session.path(name), date);
        return bytes;
    }
    SaveRunResult saveDisturbed() { return saveSynced(files, dry); }
    Date dateOf(const std::string &name) {
        return attributesOf(session.path(name)).modificationDate;
    }

    std::string support = session.disk.path("support");
    HookedLayer files;
    BuiltPhoto photo;
    std::string later; ///< what a photo is when it is saved
    PreProcessResult dry;
};

TEST_F(DisturbedSave, WithoutRecordNothingIsTouched) {
    prepare();
    session.disk.write("support", "a file where the folder should be");
    const SaveRunResult run = saveDisturbed();
    EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::IntentNotKept, SaveErrorId::IntentNotKept,
                                      SaveErrorId::IntentNotKept));
    EXPECT_EQ(run.errors.at(0).systemText, "Not a directory");
    EXPECT_EQ(files.writes, 0);
    for (const char *name : {"a.jpg", "b.jpg", "c.jpg"})
        EXPECT_TRUE(content(name) == photo.bytes && dateOf(name) == session.fileDate);
}

TEST_F(DisturbedSave, TheOtherFilesAreSaved) {
    int lock = -1;
    const auto replaceOne = [this](const std::string &path) {
        if (path.ends_with("/b.jpg"))
            fs::rename(session.write("new", photo.bytes), path);
    };
    const struct {
        SaveErrorId id;
        std::function<void()> disturb;
    } table[] = {
        {SaveErrorId::InUse,
         [&] {
             lock = ::open(session.path("b.jpg").c_str(), O_RDONLY | O_CLOEXEC);
             EXPECT_EQ(flock(lock, LOCK_EX), 0);
         }},
        {SaveErrorId::ReplacedMeanwhile, [&] { files.beforeLook = replaceOne; }},
        {SaveErrorId::NotReachable, [&] { fs::remove(session.path("b.jpg")); }},
        {SaveErrorId::WriteFailed, [&] { files.failingWrite = files.writes + 4; }},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(static_cast<int>(row.id));
        prepare();
        row.disturb();
        const SaveRunResult run = saveDisturbed();
        ::close(lock);
        files.beforeLook = {};
        EXPECT_THAT(ids(run), ElementsAre(row.id));
        for (const ItemOutcome &item : run.items) {
            const std::string &name = item.pic->spName;
            EXPECT_EQ(item.result == ItemResult::Saved, !run.errors.at(0).path.ends_with(name));
            const std::string &expected = item.result == ItemResult::Saved ? later : photo.bytes;
            EXPECT_TRUE(!fs::exists(session.path(name)) || content(name) == expected);
        }
        EXPECT_FALSE(RunJournal::hasUnfinished(support));
    }
}

TEST_F(DisturbedSave, OfAMixedFolderTheGoodAreSavedAndEachOtherIsToldWithItsText) {
    session.write("notes.txt", "no picture");
    session.write("undated.gif", "GIF89a");
    prepare({"good.jpg", "changed.jpg", "missing.jpg", "locked.jpg", "fine.jpg"});
    const std::string changed = withByteChanged("changed.jpg", photo);
    fs::remove(session.path("missing.jpg"));
    files.beforeUpdateOpen = [this](const std::string &path) {
        files.updateOpenError = path.ends_with("locked.jpg") ? EACCES : 0;
    };
    const SaveRunResult run = saveDisturbed();
    EXPECT_THAT(ids(run), testing::UnorderedElementsAre(SaveErrorId::ChangedSinceImport,
                                                        SaveErrorId::NotReachable,
                                                        SaveErrorId::CannotBeOpened));
    const std::string words = actionErrorText(run.errors);
    for (const char *name : {"changed.jpg", "missing.jpg", "locked.jpg (Permission denied)"})
        EXPECT_THAT(words, testing::HasSubstr(session.path(name))) << name;
    for (const int id : {2, 3, 4})
        EXPECT_THAT(words,
                    testing::HasSubstr(text("errorPanelDescriptionText_ID" + std::to_string(id))));
    EXPECT_TRUE(content("good.jpg") == later && content("fine.jpg") == later);
    EXPECT_TRUE(content("changed.jpg") == changed && content("locked.jpg") == photo.bytes);
    EXPECT_TRUE(content("notes.txt") == "no picture" && content("undated.gif") == "GIF89a");
}

/// Nothing can be written, read or asked any more, from some call on, and the program goes on.
TEST_F(DisturbedSave, WhatAVolumeThatIsGoneHasInPartIsPutRightWhenItIsBack) {
    bool wasLeftInPart = false, isDone = false;
    for (int call = 1; !isDone; ++call) {
        SCOPED_TRACE(call);
        prepare();
        files.calls = 0;
        files.diesAtCall = call;
        files.tornBytes = 10;
        saveDisturbed();
        isDone = files.calls < call;
        files.diesAtCall = 0;
        wasLeftInPart = wasLeftInPart || RunJournal::hasUnfinished(support);
        RunJournal::recover(support, session.files);
        EXPECT_FALSE(RunJournal::hasUnfinished(support));
        for (const char *name : {"a.jpg", "b.jpg", "c.jpg"}) {
            const bool isOld = content(name) == photo.bytes;
            EXPECT_TRUE(isOld || content(name) == later) << name;
            EXPECT_EQ(dateOf(name) == session.fileDate, isOld) << name;
        }
    }
    EXPECT_TRUE(wasLeftInPart);
}

} // namespace
} // namespace chronomender
