// SPDX-License-Identifier: GPL-3.0-or-later
#include "KilledChild.h"
#include "RenameSession.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <iostream>

namespace chronomender {
namespace {

using namespace little;
using enum RecoveryDirection;
namespace fs = std::filesystem;
using Names = std::map<std::string, std::string>; ///< first names by the present ones

/// One folder, imported in this process and renamed by children, which are killed.
class KilledRename : public testing::TestWithParam<RecoveryDirection> {
protected:
    using End = KilledChild::End;

    KilledRename() {
        for (const char *name : {"a.jpg", "a.xmp", "b.jpg", "c.jpg", "d.jpg", "d.xmp", "e.jpg",
                                 "f.CR2", "f.JPG", "f.CR2.xmp", "h.jpg"})
            session.add(name);
        session.import();
        session.wish({{"a.jpg", "b"},
                      {"b.jpg", "a"}, // a swap
                      {"c.jpg", "d"},
                      {"d.jpg", "e"},
                      {"e.jpg", "c"}, // a circle
                      {"f.CR2", "g"},
                      {"h.jpg", "x"}}); // a pair, and a name that is taken
        session.add("x.jpg");
        before = session.onDisk();
    }
    /// What a run that nothing disturbs leaves; false where it cannot be watched.
    bool learnNames() {
        if (child.run(0) != End::Finished)
            return false;
        after = session.onDisk();
        const Names wanted{{"b.jpg", "a.jpg"}, {"b.xmp", "a.xmp"},   {"a.jpg", "b.jpg"},
                           {"d.jpg", "c.jpg"}, {"e.jpg", "d.jpg"},   {"e.xmp", "d.xmp"},
                           {"c.jpg", "e.jpg"}, {"g.CR2", "f.CR2"},   {"g.JPG", "f.JPG"},
                           {"x.jpg", "x.jpg"}, {"x 2.jpg", "h.jpg"}, {"g.CR2.xmp", "f.CR2.xmp"}};
        EXPECT_EQ(after, wanted);
        calls = child.systemCalls();
        restore();
        return true;
    }
    void restore() {
        fs::remove_all(support);
        const Names present = session.onDisk();
        for (const auto &[name, first] : present)
            fs::rename(session.path(name), session.path(first + "~"));
        for (const auto &[name, first] : present)
            fs::rename(session.path(first + "~"), session.path(first));
    }
    /// All files stand where they are wanted, unless the run had not begun or was done.
    bool isRecovered() {
        const Names left = session.onDisk();
        const bool wasRecorded = !RunJournal::recover(support, session.files, GetParam()).empty();
        const Names wanted = GetParam() == Finish ? after : before, now = session.onDisk();
        EXPECT_FALSE(RunJournal::hasUnfinished(support));
        EXPECT_TRUE(wasRecorded ? now == wanted : now == left && (now == before || now == after));
        return wasRecorded && left != wanted;
    }

    RenameSession session;
    std::string support = session.disk.path("support");
    Names before, after;
    int calls = 0;
    KilledChild child{[this] { session.rename(); }};
    KilledChild recovery{[this] { RunJournal::recover(support, session.files, GetParam()); }};
};

TEST_P(KilledRename, IsFinishedOrTakenBack) {
    if (!learnNames())
        GTEST_SKIP() << "this system permits no tracing";
    int kills = 0, recovered = 0;
    for (; child.run(kills + 1) == End::Killed && !HasFailure(); ++kills) {
        SCOPED_TRACE(kills + 1);
        recovered += isRecovered() ? 1 : 0;
        restore();
    }
    EXPECT_EQ(session.onDisk(), after) << "the last run was not killed";
    EXPECT_GT(recovered, static_cast<int>(before.size()));
    std::cout << (GetParam() == Finish ? "finished  " : "taken back") << std::setw(5) << calls
              << " system calls," << std::setw(5) << kills << " kills, of them" << std::setw(5)
              << recovered << " put right\n";
}

TEST_P(KilledRename, RecoveryMayBeKilledToo) {
    if (!learnNames())
        GTEST_SKIP() << "this system permits no tracing";
    End end = End::Killed;
    int kills = 0;
    for (; end == End::Killed && !HasFailure(); ++kills) {
        SCOPED_TRACE(kills);
        // At half of its calls, with names of all three kinds.
        ASSERT_EQ(child.run(calls + calls / 2), End::Killed);
        EXPECT_NE(session.onDisk(), before);
        EXPECT_NE(session.onDisk(), after);
        end = recovery.run(kills + 1);
        isRecovered();
        EXPECT_EQ(session.onDisk(), GetParam() == Finish ? after : before);
        restore();
    }
    std::cout << "a recovery, killed" << std::setw(5) << kills - 1 << " times\n";
}

INSTANTIATE_TEST_SUITE_P(Directions, KilledRename, testing::Values(Finish, TakeBack),
                         [](const auto &each) {
                             return std::string(each.param == Finish ? "Finish" : "TakeBack");
                         });

} // namespace
} // namespace chronomender
