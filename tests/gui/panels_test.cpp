// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterBar.h"
#include "FolderPanel.h"
#include "InspectorPanel.h"
#include "JobBar.h"
#include "LittleWindow.h"
#include "PreviewCell.h"
#include "PreviewPanel.h"
#include "ShiftBar.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <QUrl>
#include <QVBoxLayout>

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using ::testing::HasSubstr;

/// All panels of a window over two cameras; canon holds a stamp that happens twice in Berlin.
class PanelsTest : public ::testing::Test {
protected:
    PanelsTest() {
        window.photo("canon", "a.jpg", "2024:10:27 02:30:00");
        window.photo("canon", "b.jpg", "2024:10:27 12:00:00");
        window.photo("nikon", "c.jpg", "2024:10:27 12:00:12");
        auto *layout = new QVBoxLayout(&top);
        for (QWidget *each : std::initializer_list<QWidget *>{&filter, &folders, &preview,
                                                              &inspector, &shift, &jobs})
            layout->addWidget(each);
        top.resize(900, 1400);
        top.show();
        window.open({"canon", "nikon"});
        settle();
    }
    static void settle() { QTest::qWait(160); }
    void select(const MySinglePicPtr &pic) {
        window.session.select([&](MyTimelinesController &timelines) {
            timelines.simpleSelectThumb(pic, timelines.focusedTimeline());
        });
        settle();
    }
    QSpinBox &number(int index) { return *shift.findChildren<QSpinBox *>().at(index); }
    void type(QSpinBox &box, const char *digits) {
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, QString::fromLatin1(digits));
    }
    void typeAndEnter(QSpinBox &box, const char *digits) {
        type(box, digits);
        QTest::keyClick(&box, Qt::Key_Return);
        settle();
    }
    /// The field keeps the keys for undo to itself.
    static bool takesUndo(QSpinBox &box) {
        QKeyEvent key(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
        key.ignore();
        QCoreApplication::sendEvent(&box, &key);
        return key.isAccepted();
    }
    absl::Duration shiftOf(std::size_t folder) {
        return window.session.folders().at(folder)->sfDateModificationsTimeInterval;
    }
    QPushButton *alertButton(const char *words) {
        for (QPushButton *button : inspector.findChildren<QPushButton *>())
            if (button->text() == QString::fromUtf8(words))
                return button;
        return nullptr;
    }

    little::LittleWindow window;
    QWidget top;
    FilterBar filter{window.session};
    FolderPanel folders{window.session};
    PreviewPanel preview{window.session};
    InspectorPanel inspector{window.session};
    ShiftBar shift{window.session};
    JobBar jobs{window.session};
};

TEST_F(PanelsTest, aChosenFolderShowsItsFirstShot) {
    select(window.pics(0)[1]);
    const QModelIndex second = folders.list().model()->index(1, 0);
    QTest::mouseClick(folders.list().viewport(), Qt::LeftButton, {},
                      folders.list().visualRect(second).center());
    EXPECT_EQ(window.session.selectedFolders(), std::vector{window.session.folders()[1]});
    EXPECT_EQ(window.session.mainPic(), window.pics(1)[0]);
    EXPECT_THAT(second.data(Qt::AccessibleTextRole).toString().toStdString(),
                HasSubstr("nikon, 1 item, 27 Oct 2024"));
    QTest::keyClick(&folders.list(), Qt::Key_Up);
    EXPECT_EQ(window.session.mainPic()->spSingleRealFolder(), window.session.folders()[0]);
}

TEST_F(PanelsTest, aDroppedFolderIsRead) {
    window.photo("phone", "d.jpg", "2024:10:28 12:00:00");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(window.disk.path("phone")))});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&folders, &enter);
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&folders, &drop);
    EXPECT_TRUE(window.waitFor([&] { return folders.list().model()->rowCount() == 3; }));
}

TEST_F(PanelsTest, aClickOnANeighbourSelectsIt) {
    select(window.pics(0)[1]);
    const auto cells = preview.findChildren<PreviewCell *>();
    EXPECT_THAT(cells[2]->accessibleName().toStdString(), HasSubstr("12 s later"));
    cells[2]->click();
    settle();
    EXPECT_EQ(window.session.mainPic(), window.pics(1)[0]);
    EXPECT_FALSE(cells[2]->isEnabled()); // the last shot of all
}

TEST_F(PanelsTest, anAlertIsSettledByItsButton) {
    select(window.pics(0)[0]);
    const Date later = window.pics(0)[0]->spDateTimeModified();
    ASSERT_TRUE(alertButton("Read as the Earlier"));
    alertButton("Read as the Earlier")->click();
    settle();
    EXPECT_EQ(window.pics(0)[0]->spDateTimeModified(), later - absl::Hours(1));
    EXPECT_TRUE(alertButton("Read as the Later"));
    bool areZonesWanted = false;
    QObject::connect(&inspector, &InspectorPanel::zonesWanted, [&] { areZonesWanted = true; });
    alertButton("Set Zones…")->click();
    EXPECT_TRUE(areZonesWanted);
}

TEST_F(PanelsTest, typedHoursCountAtEnterAsOneStep) {
    type(number(1), "12");
    QTest::qWait(700);
    EXPECT_TRUE(takesUndo(number(1)));
    EXPECT_EQ(shiftOf(0), absl::ZeroDuration());
    QTest::keyClick(&number(1), Qt::Key_Return);
    EXPECT_EQ(shiftOf(0), absl::Hours(12));
    typeAndEnter(number(2), "90");
    EXPECT_EQ(shiftOf(0), absl::Minutes(13 * 60 + 30));
    EXPECT_EQ(number(1).value(), 13);
    EXPECT_FALSE(takesUndo(number(1))) << "it is the window's";
    window.session.undo();
    EXPECT_EQ(shiftOf(0), absl::Hours(12));
    window.session.undo();
    EXPECT_EQ(shiftOf(0), absl::ZeroDuration());
}

TEST_F(PanelsTest, stepsCountTogetherAfterAPause) {
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&number(3), Qt::Key_Up);
    EXPECT_EQ(shiftOf(0), absl::ZeroDuration());
    EXPECT_TRUE(window.waitFor([&] { return shiftOf(0) == absl::Seconds(3); }));
    window.session.undo();
    EXPECT_EQ(shiftOf(0), absl::ZeroDuration());
}

TEST_F(PanelsTest, foldersKeepWhatNobodyTyped) {
    typeAndEnter(number(1), "2");
    window.session.selectFolders(window.session.folders());
    settle();
    EXPECT_EQ(number(1).text(), QStringLiteral("–"));
    typeAndEnter(number(2), "5");
    EXPECT_EQ(shiftOf(0), absl::Hours(2) + absl::Minutes(5));
    EXPECT_EQ(shiftOf(1), absl::Minutes(5));
    EXPECT_EQ(number(1).text(), QStringLiteral("–"));
}

TEST_F(PanelsTest, aDirectionWaitsForItsNumberAndTooMuchIsRefused) {
    auto &direction = *shift.findChild<QComboBox *>();
    direction.setFocus();
    QTest::keyClick(&direction, Qt::Key_Down);
    settle();
    typeAndEnter(number(0), "1");
    EXPECT_EQ(shiftOf(0), -absl::Hours(24));
    window.session.selectFolders({window.session.folders()[1]});
    settle();
    EXPECT_EQ(direction.currentIndex(), 0);
    EXPECT_EQ(number(0).value(), 0);
    window.session.selectFolders({window.session.folders()[0]});
    settle();
    typeAndEnter(number(0), "1900000");
    EXPECT_EQ(shiftOf(0), -absl::Hours(24));
    EXPECT_EQ(number(0).value(), 1);
}

TEST_F(PanelsTest, inSingleModeTheItemIsShifted) {
    shift.findChildren<QRadioButton *>()[1]->click();
    settle();
    select(window.pics(0)[1]);
    typeAndEnter(number(1), "3");
    EXPECT_EQ(window.pics(0)[1]->shift.singlePicModification, absl::Hours(3));
    EXPECT_EQ(window.pics(0)[0]->shift.singlePicModification, absl::ZeroDuration());
}

TEST_F(PanelsTest, wordsHideWhatDoesNotHoldThem) {
    const auto &shown = window.session.timelines().source_filtered();
    filter.focusWords();
    QTest::keyClicks(filter.findChild<QLineEdit *>(), QStringLiteral("b.j"));
    EXPECT_TRUE(window.waitFor([&] { return shown.size() == 1; }));
    settle();
    EXPECT_EQ(filter.findChildren<QLabel *>().back()->text(), QStringLiteral("2 hidden"));
    QTest::keyClick(filter.findChild<QLineEdit *>(), Qt::Key_Escape);
    EXPECT_EQ(shown.size(), 3U);
}

TEST_F(PanelsTest, aJobIsShownAndStopped) {
    bool isCancelled = false;
    const auto job =
        window.session.jobs().begin(JobKind::Check, "Checking", [&] { isCancelled = true; });
    EXPECT_TRUE(window.waitFor([&] { return jobs.findChild<QPushButton *>() != nullptr; }));
    jobs.findChild<QPushButton *>()->click();
    EXPECT_TRUE(isCancelled);
}

TEST_F(PanelsTest, everythingThatTakesTheFocusHasAName) {
    select(window.pics(0)[0]);
    for (const QWidget *each : top.findChildren<QWidget *>()) {
        const bool isPartOfOther =
            each->focusProxy() || qobject_cast<QAbstractSpinBox *>(each->parent());
        if (each->focusPolicy() == Qt::NoFocus || !each->isVisible() || isPartOfOther)
            continue;
        EXPECT_FALSE(each->accessibleName().isEmpty())
            << each->metaObject()->className() << " in "
            << each->parentWidget()->metaObject()->className();
    }
}

} // namespace
} // namespace chronomender
