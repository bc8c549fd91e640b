// SPDX-License-Identifier: GPL-3.0-or-later
#include "KilledChild.h"
#include "LittleAvi.h"
#include "LittleMovie.h"
#include "LittlePhotos.h"
#include "LittleXmp.h"
#include "PatchPlan.h"
#include "SaveTest.h"

#include <iomanip>
#include <iostream>

namespace chronomender {
namespace {

using namespace little;
namespace fs = std::filesystem;
using Contents = std::map<std::string, std::string>; ///< bytes by file name

std::string photo(FileFormatType format) {
    return photoOf(format, {.original = "2024:05:06 07:08:09",
                            .digitized = "2024:05:06 07:08:10",
                            .modified = "2024:05:06 07:08:11"})
        .bytes;
}

struct Case {
    const char *name;
    Contents files;
};
std::vector<Case> cases() {
    const std::string xmp = xmpWith("xmp:CreateDate", "2024-05-06T07:08:09-03:30");
    const std::string riffDate = "FRI APR 17 18:03:47 2020\n" + zeros(1);
    return {
        {"Jpeg", {{"a.jpg", photo(FileFormatJpeg)}}},
        {"JpegXmp", {{"a.jpg", jpegPhoto({.xmp = xmp}).bytes}}},
        {"Tiff", {{"a.tif", photo(FileFormatTiff)}}},
        {"Dng", {{"a.dng", photo(FileFormatTiff)}}},
        {"Cr3", {{"a.cr3", photo(FileFormatRaw)}}},
        {"Heic", {{"a.heic", photo(FileFormatHeif)}}},
        {"Png", {{"a.png", photo(FileFormatPng)}}},
        {"Webp", {{"a.webp", photo(FileFormatWebp)}}},
        {"Mov", {{"a.mov", movie({.date = "2020-04-17T10:03:47-0600"}).bytes}}},
        {"Avi", {{"a.avi", avi({.date = riffDate}).bytes}}},
        {"Pair", {{"a.CR2", photo(FileFormatTiff)}, {"a.JPG", photo(FileFormatJpeg)}}},
    };
}

/// One item, imported and shifted in this process; its save is carried out by children, which are
/// killed.
class KilledSaveTest : public SaveTest {
protected:
    using End = KilledChild::End;
    struct State {
        Contents bytes;
        std::map<std::string, Date> dates;
        bool operator==(const State &) const = default;
    };

    void prepare(const Contents &files) {
        for (const auto &[name, bytes] : files)
            session.write(name, bytes);
        shiftAllSlotsAlike();
        session.folder().sfEditMode = EditMode::Together;
        session.import();
        keepOwnZones();
        shift(absl::Hours(25));
        for (const MySinglePicPtr &pic : session.folder().sfPicDetails_fullArray) {
            const bool addsTags = isForTool && setShouldAddExifDateTimeTags(*pic, true);
            EXPECT_EQ(addsTags, isForTool);
        }
        dry = session.preProcess();
        before = present(files);
    }
    State present(const Contents &names) const {
        State state;
        for (const auto &[name, bytes] : names) {
            state.bytes[name] = content(name);
            state.dates[name] = attributesOf(session.path(name)).modificationDate;
        }
        return state;
    }
    void restore() {
        fs::remove_all(support);
        for (const auto &[name, bytes] : before.bytes)
            session.write(name, bytes);
        if (isForTool) // what the tool wrote is another file
            prepare(Contents(before.bytes));
    }
    State present() const { return present(before.bytes); }
    /// What a save that nothing disturbs leaves; false where it cannot be watched.
    bool learnWhatIsSaved() {
        if (child.run(0) != End::Finished)
            return false;
        after = present();
        for (const auto &[name, bytes] : before.bytes)
            EXPECT_NE(after.bytes.at(name), bytes) << "nothing was saved";
        patched = isForTool ? patchedByPlan() : after.bytes;
        restore();
        return true;
    }
    /// Afterwards all is old or all is new, and no record is left.
    State recovered() {
        RunJournal::recover(support, session.files);
        EXPECT_FALSE(RunJournal::hasUnfinished(support));
        const State state = present();
        EXPECT_TRUE(state == before || state == after);
        for (const auto &[name, bytes] : before.bytes)
            EXPECT_FALSE(fs::exists(XtController::copyPath(session.path(name))));
        return state;
    }
    Contents patchedByPlan() const {
        Contents bytes = before.bytes;
        for (const ItemOutcome &item : dry.items)
            for (const Patch &patch : item.plan->patches)
                bytes.at(item.pic->spName)
                    .replace(static_cast<std::size_t>(patch.offset()), patch.after().size(),
                             patch.after());
        return bytes;
    }
    /// Every run of bytes that the save changes in place is old or new, and all other bytes are
    /// what they were.
    void expectWholeValues(const Contents &now) const {
        for (const auto &[name, bytes] : now) {
            const std::string &old = before.bytes.at(name), &wanted = patched.at(name);
            if (bytes == after.bytes.at(name))
                continue;
            ASSERT_EQ(bytes.size(), old.size());
            for (std::size_t i = 0, end; i < old.size(); i = end) {
                const bool isValue = old[i] != wanted[i];
                for (end = i + 1; end < old.size() && (old[end] != wanted[end]) == isValue;)
                    ++end;
                const std::string run = bytes.substr(i, end - i);
                EXPECT_TRUE(run == old.substr(i, end - i) || run == wanted.substr(i, end - i))
                    << name << " at " << i;
            }
        }
    }

    struct Tally {
        int kills = 0, oldBefore = 0, newBefore = 0, mixedBefore = 0, oldAfter = 0, newAfter = 0;
    };
    /// Kills a save at every entry and exit, or at every so many, until one gets to its end.
    Tally killEverywhere(const char *name, int step) {
        Tally tally;
        for (int stop = 1; child.run(stop) == End::Killed; stop += step) {
            SCOPED_TRACE(stop);
            ++tally.kills;
            const Contents left = present().bytes;
            expectWholeValues(left);
            ++(left == before.bytes  ? tally.oldBefore
               : left == after.bytes ? tally.newBefore
                                     : tally.mixedBefore);
            ++(recovered() == before ? tally.oldAfter : tally.newAfter);
            if (HasFailure())
                return tally;
            restore();
        }
        EXPECT_EQ(present(), after) << "the last run was not killed";
        EXPECT_GT(tally.newBefore, 0);
        std::cout << std::left << std::setw(8) << name << std::right << std::setw(4)
                  << child.systemCalls() << " system calls," << std::setw(4) << tally.kills
                  << " kills; before recovery" << std::setw(4) << tally.oldBefore << " old,"
                  << std::setw(4) << tally.newBefore << " new," << std::setw(4) << tally.mixedBefore
                  << " mixed; after" << std::setw(4) << tally.oldAfter << " old," << std::setw(4)
                  << tally.newAfter << " new\n";
        return tally;
    }

    std::string support = session.disk.path("support");
    KilledChild child{[this] { saveSynced(session.files, dry); }};
    PreProcessResult dry;
    State before, after;
    Contents patched; ///< all values new, before the tool comes
    bool isForTool = false;
};

class KilledSave : public KilledSaveTest, public testing::WithParamInterface<Case> {};

TEST_P(KilledSave, IsEntirelyOldOrEntirelyNewAfterRecovery) {
    prepare(GetParam().files);
    if (!learnWhatIsSaved())
        GTEST_SKIP() << "this system permits no tracing";
    const Tally tally = killEverywhere(GetParam().name, 1);
    EXPECT_EQ(tally.oldAfter, tally.oldBefore) << "what was begun is completed";
}

/// The tool runs beside the program that is killed, and is not stopped at its own calls.
TEST_F(KilledSaveTest, FileThatTheToolWritesIsOldOrNew) {
    if (!session.tool.program())
        GTEST_SKIP() << "there is no exiftool on this machine";
    isForTool = true;
    prepare({{"a.jpg", jpegPhoto({.original = "2024:05:06 07:08:09"}).bytes}});
    if (!learnWhatIsSaved())
        GTEST_SKIP() << "this system permits no tracing";
    constexpr int mostKills = 60;
    killEverywhere("Tool", std::max(1, 2 * child.systemCalls() / mostKills));
}

INSTANTIATE_TEST_SUITE_P(Formats, KilledSave, testing::ValuesIn(cases()),
                         [](const auto &each) { return each.param.name; });

TEST_F(KilledSaveTest, RecoveryMayBeKilledToo) {
    prepare({{"a.CR2", photo(FileFormatTiff)}, {"a.JPG", photo(FileFormatJpeg)}});
    if (!learnWhatIsSaved())
        GTEST_SKIP() << "this system permits no tracing";
    // The calls that get memory differ a little from run to run.
    constexpr int drift = 2;
    int middle = drift;
    const auto breakInTheMiddle = [&] {
        for (middle -= drift; present() == before; restore())
            if (child.run(++middle) != End::Killed || present() != before)
                break;
    };
    KilledChild recovery([this] { RunJournal::recover(support, session.files); });
    End end = End::Killed;
    for (int kills = 1; end == End::Killed; ++kills) {
        SCOPED_TRACE(kills);
        breakInTheMiddle();
        end = recovery.run(kills);
        EXPECT_EQ(recovered(), after);
        restore();
    }
}

} // namespace
} // namespace chronomender
