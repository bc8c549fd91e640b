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

struct Case {
    const char *name;
    Contents (*files)();
};

PhotoFields photoFields() {
    return {.original = "2024:05:06 07:08:09",
            .digitized = "2024:05:06 07:08:10",
            .modified = "2024:05:06 07:08:11"};
}
std::string photoBytes(FileFormatType format) {
    return photoOf(format, photoFields()).bytes;
}
std::string xmpDate() {
    return xmpWith("xmp:CreateDate", "2024-05-06T07:08:09-03:30");
}

const Case cases[] = {
    {"Jpeg",
     [] {
         return Contents{{"a.jpg", photoBytes(FileFormatJpeg)}};
     }},
    {"JpegXmp",
     [] {
         return Contents{{"a.jpg", jpegPhoto({.xmp = xmpDate()}).bytes}};
     }},
    {"Tiff",
     [] {
         return Contents{{"a.tif", photoBytes(FileFormatTiff)}};
     }},
    {"Dng",
     [] {
         return Contents{{"a.dng", photoBytes(FileFormatTiff)}};
     }},
    {"Cr3",
     [] {
         return Contents{{"a.cr3", photoBytes(FileFormatRaw)}};
     }},
    {"Heic",
     [] {
         return Contents{{"a.heic", photoBytes(FileFormatHeif)}};
     }},
    {"Png",
     [] {
         return Contents{{"a.png", photoBytes(FileFormatPng)}};
     }},
    {"Webp",
     [] {
         return Contents{{"a.webp", photoBytes(FileFormatWebp)}};
     }},
    {"Mov",
     [] {
         return Contents{{"a.mov", movie({.date = "2020-04-17T10:03:47-0600"}).bytes}};
     }},
    {"Avi",
     [] {
         return Contents{{"a.avi", avi({.date = "FRI APR 17 18:03:47 2020\n" + zeros(1)}).bytes}};
     }},
    {"Pair",
     [] {
         return Contents{{"a.CR2", photoBytes(FileFormatTiff)},
                         {"a.JPG", photoBytes(FileFormatJpeg)}};
     }},
};

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
    /// The second stage of the save, as a program of its own would run it.
    void saveAsChild() {
        RunJournal journal(support, RunJournal::Durability::Synced);
        SaveDriver driver(session.folders, {session.files,
                                            session.zones,
                                            session.defaults,
                                            session.undo,
                                            session.cancellation,
                                            journal,
                                            session.tool,
                                            [this] { return session.now; },
                                            {}});
        driver.continueProcessThread({}, dry);
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
    KilledChild child{[this] { saveAsChild(); }};
    PreProcessResult dry;
    State before, after;
    Contents patched; ///< all values new, before the tool comes
    bool isForTool = false;
};

class KilledSave : public KilledSaveTest, public testing::WithParamInterface<Case> {};

TEST_P(KilledSave, IsEntirelyOldOrEntirelyNewAfterRecovery) {
    prepare(GetParam().files());
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

INSTANTIATE_TEST_SUITE_P(Formats, KilledSave, testing::ValuesIn(cases),
                         [](const auto &each) { return each.param.name; });

/// The program dies in the middle of a value, at each of the file layer's calls in turn.
TEST_F(KilledSaveTest, TornValueIsRecovered) {
    prepare({{"a.jpg", photoBytes(FileFormatJpeg)}});
    if (!learnWhatIsSaved())
        GTEST_SKIP() << "this system permits no tracing";
    int torn = 0;
    for (const std::size_t bytes : {9u, 10u, 12u}) {
        session.files.tornBytes = bytes;
        session.files.atDeath = [] { ::_exit(EXIT_FAILURE); };
        for (int call = 1;; ++call) {
            SCOPED_TRACE(call);
            session.files.calls = 0;
            session.files.diesAtCall = call;
            const End end = child.run(0);
            session.files.diesAtCall = 0;
            if (end == End::Finished)
                break;
            const Contents left = present().bytes;
            recovered();
            torn += left != before.bytes && left != after.bytes;
            restore();
        }
        restore();
    }
    EXPECT_GT(torn, 3);
}

TEST_F(KilledSaveTest, RecoveryMayBeKilledToo) {
    prepare({{"a.CR2", photoBytes(FileFormatTiff)}, {"a.JPG", photoBytes(FileFormatJpeg)}});
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
