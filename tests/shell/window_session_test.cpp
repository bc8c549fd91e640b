// SPDX-License-Identifier: GPL-3.0-or-later
#include "AlignRows.h"
#include "FilterEditor.h"
#include "FilterFacts.h"
#include "LittleWindow.h"
#include "Texts.h"
#include "WindowCommands.h"
#include "WindowSession.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

#include <filesystem>
#include <functional>
#include <set>

namespace chronomender {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A window's session without a window, in Berlin's time.
class WindowSessionTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        static int count = 1;
        static char name[] = "shell_tests";
        static char *arguments[] = {name, nullptr};
        static const QCoreApplication application(count, arguments);
        loadTexts("en");
    }

    WindowSessionTest() {
        QObject::connect(&session(), &WindowSession::statusTold, &session(),
                         [this](const QString &words) { m_status = words.toStdString(); });
    }

    WindowSession &session() { return m_window.session; }
    ScriptedQuestions &questions() { return m_window.questions; }
    std::string photo(const std::string &folder, const std::string &name, const std::string &stamp,
                      const std::string &zone = {}) {
        return m_window.photo(folder, name, stamp, zone);
    }
    std::string folder(const std::string &name) const { return m_window.disk.path(name); }
    void waitUntil(const std::function<bool()> &isDone) {
        ASSERT_TRUE(little::LittleWindow::waitFor(isDone));
    }
    void open(const std::vector<std::string> &paths) {
        session().openPaths(paths);
        waitUntil([this] { return !session().jobs().isRunning(JobKind::Import); });
    }
    void save() {
        session().save(true);
        waitUntil([this] { return session().saveFlow().isIdle(); });
    }
    std::vector<std::string> order() {
        std::vector<std::string> names;
        for (const MySinglePicPtr &pic : session().timelines().source_filtered())
            names.push_back(pic->spBaseName());
        return names;
    }
    void run(CommandId id) { EXPECT_TRUE(runInSession(id, session())); }

    little::LittleWindow m_window;
    std::string m_status;
};

TEST_F(WindowSessionTest, OpensWhatIsDroppedAndTellsOfTheRest) {
    photo("a", "A2.JPG", "2024:05:06 10:00:00");
    photo("a", "A1.JPG", "2024:05:06 09:00:00");
    const std::string single = photo("b", "B1.JPG", "2024:05:06 09:30:00");
    photo("b", "B2.JPG", "2024:05:06 09:40:00");
    open({folder("a"), single, m_window.disk.write("b/notes.txt", "no photo"),
          m_window.disk.write("b/way.gpx", "<gpx/>"), folder("gone")});
    EXPECT_THAT(order(), ElementsAre("A1", "B1", "A2"));
    EXPECT_THAT(questions().notices, Contains(HasSubstr("notes.txt")));
    EXPECT_THAT(questions().notices, Contains(HasSubstr("way.gpx")));
    EXPECT_THAT(questions().notices, Contains(HasSubstr("gone")));
    EXPECT_EQ(questions().notices.size(), 4U) << "one notice with three lines";
    // A second drop adds what is new, and the first item stays the main one.
    open({folder("b")});
    EXPECT_THAT(order(), ElementsAre("A1", "B1", "B2", "A2"));
    ASSERT_TRUE(session().mainPic());
    EXPECT_EQ(session().mainPic()->spBaseName(), "A1");
    EXPECT_EQ(session().selectedFolders().front()->sfFolder, "a");
}

TEST_F(WindowSessionTest, AFilterHasReadWhatItAsks) {
    photo("before", "a.jpg", "2024:05:06 10:00:00");
    photo("behind", "b.jpg", "2024:05:06 11:00:00");
    open({folder("before")});
    const auto isRead = [this](std::size_t index) {
        return m_window.pics(index).at(0)->importState.wasLocationDataSearched;
    };
    EXPECT_FALSE(isRead(0)) << "reading takes longer with it";
    filterBy(quickPredicate("Little"), session().controller().filters(), session().defaults());
    waitUntil([&] { return isRead(0); });
    open({folder("behind")});
    waitUntil([&] { return isRead(1) && !session().jobs().isAnyRunning(); });
    EXPECT_THAT(order(), ElementsAre("a", "b"));
}

TEST_F(WindowSessionTest, TenFoldersDroppedWhileAnImportRunsAllArrive) {
    for (int i = 0; i < 10; ++i)
        photo(std::to_string(i), "P" + std::to_string(i) + ".JPG",
              "2024:05:06 10:00:0" + std::to_string(i));
    for (int i = 0; i < 10; ++i)
        session().openPaths({folder(std::to_string(i))});
    EXPECT_TRUE(session().isBeingRead(*session().folders().front()));
    EXPECT_FALSE(session().edit([](AppController &) { FAIL() << "its reader goes by it"; }));
    EXPECT_FALSE(session().saveFlow().start({}));
    session().removeFolders({session().folders().front()});
    EXPECT_EQ(session().folders().size(), 10U) << "a folder that is being read stays";
    waitUntil([this] { return !session().jobs().isRunning(JobKind::Import); });
    EXPECT_EQ(order().size(), 10U);
    EXPECT_FALSE(session().isBeingRead(*session().folders().front()));
}

TEST_F(WindowSessionTest, TheBackgroundSwitchedOnMakesWhatIsMissing) {
    photo("a", "A1.JPG", "2024:05:06 10:00:00");
    photo("a", "A2.JPG", "2024:05:06 10:00:00");
    session().setThumbnailSettings({.autoBGThumbGeneration = false});
    open({folder("a")});
    EXPECT_EQ(session().thumbnails().progress().waiting, 0U);
    session().setThumbnailSettings({});
    EXPECT_EQ(session().thumbnails().progress().waiting, 2U);
}

TEST_F(WindowSessionTest, ACancelledReadingEndsAndTheNextOneRuns) {
    for (int i = 0; i < 200; ++i)
        photo("many", "P" + std::to_string(i) + ".JPG", "2024:05:06 10:00:00");
    session().openPaths({folder("many")});
    session().jobs().cancel(JobKind::Import);
    waitUntil([this] { return !session().jobs().isRunning(JobKind::Import); });
    photo("few", "F1.JPG", "2024:05:06 10:00:00");
    open({folder("few")});
    EXPECT_THAT(order(), Contains("F1"));
}

TEST_F(WindowSessionTest, ShiftsUndoesAndShowsWhatAnUndoTouched) {
    photo("a", "A1.JPG", "2024:05:06 10:00:00");
    photo("b", "B1.JPG", "2024:05:06 10:30:00");
    open({folder("a"), folder("b")});
    session().selectFolders({session().folders()[1]});
    CompoundFields fields;
    fields.dmDirection = "-";
    fields.dmHours = "1";
    session().shiftSelectedFolders(fields);
    EXPECT_THAT(order(), ElementsAre("B1", "A1"));
    EXPECT_TRUE(session().hasUnsavedChanges());
    session().selectFolders({session().folders()[0]});
    run(CommandId::Undo);
    EXPECT_THAT(order(), ElementsAre("A1", "B1"));
    EXPECT_EQ(session().selectedFolders().front()->sfFolder, "b");
    run(CommandId::Redo);
    run(CommandId::ResetShift);
    EXPECT_FALSE(session().hasUnsavedChanges());
    run(CommandId::Undo);
    EXPECT_THAT(order(), ElementsAre("B1", "A1"));
}

TEST_F(WindowSessionTest, ShowsWhatAnAlignmentDoesBeforeItIsDone) {
    for (const char *minute : {"00", "10", "50"})
        photo("a", "A" + std::string(minute) + ".JPG",
              "2024:05:06 10:" + std::string(minute) + ":00");
    open({folder("a")});
    run(CommandId::SelectAll);
    const AlignSelection selection{session().selectedPics(), session().mainPic()};
    const auto rows = [&] {
        return alignRows(AlignCommand::MatchingGaps, selection,
                         session().controller().liveContext(), session().zones(), 10);
    };
    ASSERT_EQ(rows().size(), 3U);
    EXPECT_EQ(rows()[0].then, "") << "the first stays";
    EXPECT_EQ(rows()[1].then, "6 May 2024, 10:25:00");
    run(CommandId::AlignMatchingGaps);
    EXPECT_EQ(rows()[1].now, "6 May 2024, 10:25:00");
    EXPECT_EQ(rows()[1].then, "") << "it stands right already";
}

TEST_F(WindowSessionTest, SavesAfterTheQuestionAndNotWithoutTheAnswer) {
    const std::string path = photo("a", "A1.JPG", "2024:05:06 10:00:00", "+09:00");
    open({folder("a")});
    CompoundFields later;
    later.dmSeconds = "5";
    session().shiftSelectedFolders(later);
    questions().acceptsProblems = false;
    const std::string before = little::fileContent(path);
    save();
    EXPECT_FALSE(questions().problems.empty()) << "the zone stamp would be rewritten";
    EXPECT_EQ(little::fileContent(path), before);
    EXPECT_TRUE(session().hasUnsavedChanges());
    EXPECT_EQ(m_status, text("status_nothingWritten"));
    EXPECT_FALSE(session().jobs().isAnyRunning());

    questions().acceptsProblems = true;
    session().save(true);
    EXPECT_FALSE(session().edit([](AppController &) { FAIL() << "a save runs"; }));
    waitUntil([this] { return session().saveFlow().isIdle(); });
    EXPECT_NE(little::fileContent(path), before);
    EXPECT_FALSE(session().hasUnsavedChanges());
    EXPECT_THAT(questions().errors, IsEmpty());
}

TEST_F(WindowSessionTest, AFolderThatVanishedIsTold) {
    photo("a", "A1.JPG", "2024:05:06 10:00:00");
    open({folder("a")});
    std::filesystem::remove_all(folder("a"));
    bool wasTold = false;
    QObject::connect(&session(), &WindowSession::foldersChanged, [&] { wasTold = true; });
    session().checkFolders();
    waitUntil([&] { return wasTold; });
    EXPECT_TRUE(session().folders().front()->isDisconnected);
}

TEST_F(WindowSessionTest, RemovingChangedFoldersAsksFirst) {
    photo("a", "A1.JPG", "2024:05:06 10:00:00");
    photo("b", "B1.JPG", "2024:05:06 11:00:00");
    open({folder("a"), folder("b")});
    session().selectFolders({session().folders()[0]});
    CompoundFields later;
    later.dmHours = "3";
    session().shiftSelectedFolders(later);
    questions().confirmed = Answer::Cancelled;
    run(CommandId::RemoveFolders);
    EXPECT_EQ(session().folders().size(), 2U);
    questions().confirmed = Answer::Accepted;
    run(CommandId::RemoveFolders);
    EXPECT_THAT(order(), ElementsAre("B1"));
    EXPECT_FALSE(session().controller().undoManager().canUndo());
    EXPECT_EQ(questions().confirmations.size(), 2U);
}

TEST_F(WindowSessionTest, EveryCommandHasATextAndKeysOfItsOwn) {
    std::set<std::string> keys;
    for (const WindowCommand &command : commandTable()) {
        EXPECT_NE(text(command.textKey), command.textKey);
        EXPECT_NE(text(titleKey(command.menu)), titleKey(command.menu));
        EXPECT_TRUE(keys.insert(command.shortcut).second) << command.shortcut;
    }
}

TEST(PaceTest, TellsRateAndRemainingTimeOnceThereIsSomethingToTell) {
    EXPECT_FALSE(paceOf(10, 100, absl::Milliseconds(400)).perSecond);
    EXPECT_FALSE(paceOf(0, 100, absl::Seconds(5)).remaining);
    const Pace pace = paceOf(20, 100, absl::Seconds(4));
    EXPECT_DOUBLE_EQ(*pace.perSecond, 5.0);
    EXPECT_EQ(*pace.remaining, absl::Seconds(16));
}

} // namespace
} // namespace chronomender
