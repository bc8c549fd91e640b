// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderPanel.h"
#include "LittlePhoto.h"
#include "MainWindow.h"
#include "StripView.h"
#include "TemporaryFolder.h"
#include "Texts.h"
#include "ToolWitness.h"
#include "ZonesSheet.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <absl/time/clock.h>
#include <gmock/gmock.h>

#include <filesystem>

namespace chronomender {
namespace {

using testing::ElementsAre;

/// Three days in Tokyo, told in the five minutes that a person needs: the phone is right, the canon
/// runs an hour fast, and the nikon still tells Berlin's time. The real window is led, by a mouse
/// or by keys alone; ExifTool says what became of the files.
class Story : public testing::Test {
protected:
    Story() {
        qputenv("CHRONOMENDER_HOME", QByteArray::fromStdString(m_disk.path("home")));
        write("phone/PXL_1.JPG", "2024:05:06 10:00:00");
        write("phone/PXL_2.JPG", "2024:05:06 10:10:00");
        write("phone/PXL_3.JPG", "2024:05:06 10:20:00");
        write("canon/IMG_1.JPG", "2024:05:06 10:05:00",
              "+08:00"); // a zone that the trip was never in
        write("canon/IMG_2.JPG", "2024:05:06 11:10:00");
        write("nikon/DSC_1.JPG", "2024:05:06 03:07:00");
        write("nikon/DSC_2.JPG", "2024:05:06 03:17:00");
        AppServices services{makeSystemFileLayer(), std::make_unique<UserDefaults>(),
                             std::make_unique<Zones>(), [] { return absl::Now(); }};
        services.zones->setSystemZone(*services.zones->zoneWithName("Asia/Tokyo"));
        m_window = std::make_unique<MainWindow>(std::move(services));
        m_window->resize(1400, 900);
        m_window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void write(const std::string &name, const std::string &stamp, const std::string &zone = {}) {
        little::PhotoFields fields;
        fields.original = fields.digitized = fields.modified = stamp;
        if (!zone.empty())
            fields.zoneOriginal = fields.zoneDigitized = fields.zoneModified = zone;
        m_disk.write(name, little::jpegPhoto(fields).bytes + name);
    }

    WindowSession &session() { return m_window->session(); }
    StripView &strip() { return *m_window->findChild<StripView *>(); }
    static void wait(const std::function<bool()> &isDone) {
        ASSERT_TRUE(QTest::qWaitFor(isDone, 20'000));
    }
    void waitForReading(std::size_t folders) {
        wait([&] {
            return session().folders().size() == folders &&
                   !session().jobs().isRunning(JobKind::Import);
        });
    }
    QListView &folderList() { return m_window->findChild<FolderPanel *>()->list(); }
    /// Panels follow the session a moment later.
    void waitForFolderRows(int count) {
        wait([&] { return folderList().model()->rowCount() == count; });
        QTest::qWait(300);
    }
    std::vector<std::string> order() {
        std::vector<std::string> names;
        for (const MySinglePicPtr &pic : session().timelines().source_filtered())
            names.push_back(pic->spBaseName());
        return names;
    }
    MySinglePicPtr pic(const std::string &baseName) {
        const auto &all = session().timelines().source_filtered();
        return *std::ranges::find(all, baseName,
                                  [](const auto &each) { return each->spBaseName(); });
    }
    /// Middle of a thumbnail as it is shown now, in a drag as well.
    QPoint placeOf(const char *name) {
        const auto &shown = strip().strip()->shown();
        const auto found =
            std::ranges::find(shown, name, [](const auto &each) { return each->spBaseName(); });
        return strip().placeOf(found - shown.begin()).center();
    }
    /// The date at the pointer, or at the item that the keys lead.
    bool proposes(const char *time) {
        const auto &drag = strip().shared().drag;
        return drag && drag->proposedDate().contains(QLatin1String(time));
    }
    /// The sheet that is open; waits until there is one.
    QWidget *sheet() {
        QWidget *found = nullptr;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            for (QWidget *each : QApplication::topLevelWidgets())
                if (each != m_window.get() && each->isVisible() && each->isWindow() &&
                    qobject_cast<QDialog *>(each))
                    found = each;
            return found != nullptr;
        }));
        return found;
    }
    static QPushButton *button(QWidget *sheet, const char *key) {
        for (QPushButton *each : sheet->findChildren<QPushButton *>())
            if (each->text() == QString::fromStdString(text(key)))
                return each;
        ADD_FAILURE() << "no button " << key;
        return nullptr;
    }
    static QRadioButton *radio(QWidget *sheet, const std::string &words) {
        for (QRadioButton *each : sheet->findChildren<QRadioButton *>())
            if (each->text() == QString::fromStdString(words))
                return each;
        ADD_FAILURE() << "no choice " << words;
        return nullptr;
    }
    /// The list of zones is read in the background; what was typed meanwhile is found in it.
    static void waitForSource(QWidget *zones) {
        wait([zones] { return qobject_cast<ZonesSheet *>(zones)->wish().source.has_value(); });
    }
    std::string tokyoAsTarget() const { return text("zones_targetSystem", {"Asia/Tokyo"}); }

    // How the names stand in their order, step by step.
    void expectAsRead() {
        EXPECT_THAT(order(),
                    ElementsAre("DSC_1", "DSC_2", "PXL_1", "PXL_2", "PXL_3", "IMG_1", "IMG_2"));
    }
    void expectCanonMended() {
        EXPECT_THAT(order(),
                    ElementsAre("DSC_1", "DSC_2", "PXL_1", "IMG_1", "IMG_2", "PXL_2", "PXL_3"));
    }
    void expectAllMended() {
        EXPECT_THAT(order(),
                    ElementsAre("PXL_1", "IMG_1", "DSC_1", "IMG_2", "PXL_2", "DSC_2", "PXL_3"));
    }
    void waitForRun() {
        wait([this] { return session().saveFlow().isIdle(); });
    }

    /// Each told by its DateTimeOriginal and ModifyDate, under its new name.
    void expectMended() {
        const std::string day = "2024:05:06 ";
        const std::pair<const char *, const char *> expected[] = {
            {"phone/P5060001.JPG", "10:00:00"}, {"canon/P5060002.JPG", "10:05:00"},
            {"nikon/P5060003.JPG", "10:07:00"}, {"canon/P5060004.JPG", "10:10:00"},
            {"phone/P5060005.JPG", "10:10:00"}, {"nikon/P5060006.JPG", "10:17:00"},
            {"phone/P5060007.JPG", "10:20:00"}};
        for (const auto &[name, time] : expected) {
            ASSERT_TRUE(std::filesystem::exists(m_disk.path(name))) << name;
            const std::string both = day + time + '\n' + day + time + '\n';
            EXPECT_EQ(little::witness(m_disk.path(name), "-DateTimeOriginal -ModifyDate"), both)
                << name;
        }
    }

    little::TemporaryFolder m_disk;
    std::unique_ptr<MainWindow> m_window;
};

using MouseStory = Story;

TEST_F(MouseStory, MendsATripOfThreeCameras) {
    // Three folders are dropped on the window.
    QMimeData data;
    QList<QUrl> urls;
    for (const char *folder : {"phone", "canon", "nikon"})
        urls.append(QUrl::fromLocalFile(QString::fromStdString(m_disk.path(folder))));
    data.setUrls(urls);
    QDragEnterEvent enter({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &enter);
    QDropEvent drop({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &drop);
    waitForReading(3);
    expectAsRead();

    // A shot of the canon is dragged onto its twin of the phone.
    const QPoint from = placeOf("IMG_2");
    QTest::mousePress(&strip(), Qt::LeftButton, {}, from);
    QTest::mouseMove(&strip(), from - QPoint(40, 0));
    ASSERT_TRUE(strip().isDragging());
    QPoint at = from;
    for (int i = 0; i < 20 && !proposes("10:10:00"); ++i) {
        at = placeOf("PXL_2"); // it may have moved aside
        QTest::mouseMove(&strip(), at, 10);
    }
    QTest::mouseRelease(&strip(), Qt::LeftButton, {}, at);
    expectCanonMended();

    // The nikon's clock meant Berlin, and its files are to say Tokyo's time.
    waitForFolderRows(3);
    QListView &folders = folderList();
    QTest::mouseClick(folders.viewport(), Qt::LeftButton, {},
                      folders.visualRect(folders.model()->index(2, 0)).center());
    m_window->run(CommandId::FolderZones);
    QWidget *zones = sheet();
    QTest::keyClicks(zones->findChild<QLineEdit *>(), QStringLiteral("berlin"));
    waitForSource(zones);
    QTest::mouseClick(radio(zones, tokyoAsTarget()), Qt::LeftButton, {}, {10, 10});
    QTest::mouseClick(button(zones, "zones_apply"), Qt::LeftButton);
    expectAllMended();
    m_window->run(CommandId::Undo);
    expectCanonMended();
    m_window->run(CommandId::Redo);
    expectAllMended();

    m_window->run(CommandId::SaveAll);
    QTest::mouseClick(button(sheet(), "preSaveSummary_submit_save"), Qt::LeftButton);
    waitForRun();
    EXPECT_FALSE(session().hasUnsavedChanges());
    m_window->run(CommandId::RenameAll);
    QTest::mouseClick(button(sheet(), "rename_start"), Qt::LeftButton);
    wait([this] { return session().saveFlow().isIdle() && order().front() == "P5060001"; });
    expectMended();
}

class KeyboardStory : public Story {
protected:
    static QWidget *focus() { return QApplication::focusWidget(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget *target = focus() ? focus() : m_window.get();
        QTest::keyClick(target, key, modifiers);
    }
    void type(const std::string &words) {
        QTest::keyClicks(focus(), QString::fromStdString(words));
    }
    void tabTo(const QWidget *wanted) {
        for (int i = 0; i < 60 && focus() != wanted; ++i)
            press(Qt::Key_Tab);
        ASSERT_EQ(focus(), wanted);
    }
    /// What a desktop does when a sheet closes.
    void backToWindow() {
        m_window->activateWindow();
        wait([this] { return m_window->isActiveWindow(); });
    }
    void openByName(const char *folder, std::size_t count) {
        press(Qt::Key_O, Qt::ControlModifier);
        QWidget *dialog = sheet();
        wait([&] { return dialog->isAncestorOf(focus()); });
        type(m_disk.path(folder));
        press(Qt::Key_Return);
        waitForReading(count);
        backToWindow();
    }
};

TEST_F(KeyboardStory, MendsATripOfThreeCameras) {
    backToWindow();
    openByName("phone", 1);
    openByName("canon", 2);
    openByName("nikon", 3);
    expectAsRead();

    press(Qt::Key_F3);
    press(Qt::Key_End); // IMG_2
    press(Qt::Key_M, Qt::ControlModifier);
    for (int i = 0; i < 40 && !proposes("10:10:00"); ++i)
        press(Qt::Key_Left);
    press(Qt::Key_Return);
    expectCanonMended();

    waitForFolderRows(3);
    press(Qt::Key_F2);
    press(Qt::Key_End);
    press(Qt::Key_T, Qt::ControlModifier);
    QWidget *zones = sheet();
    wait([&] { return zones->isAncestorOf(focus()); });
    type("berlin");
    waitForSource(zones);
    QRadioButton *target = radio(zones, tokyoAsTarget());
    for (int i = 0; i < 60 && !(focus()->parent() == target->parent() &&
                                qobject_cast<QRadioButton *>(focus()));
         ++i)
        press(Qt::Key_Tab);
    for (int i = 0; i < 5 && !target->isChecked(); ++i)
        press(Qt::Key_Down);
    press(Qt::Key_Return);
    backToWindow();
    expectAllMended();
    press(Qt::Key_Z, Qt::ControlModifier);
    expectCanonMended();
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    expectAllMended();

    press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QWidget *problems = sheet();
    wait([&] { return problems->isAncestorOf(focus()); });
    tabTo(button(problems, "preSaveSummary_submit_save"));
    press(Qt::Key_Space);
    waitForRun();
    EXPECT_FALSE(session().hasUnsavedChanges());

    backToWindow();
    press(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    QWidget *names = sheet();
    wait([&] { return names->isAncestorOf(focus()); });
    tabTo(button(names, "rename_start"));
    press(Qt::Key_Space);
    wait([this] { return session().saveFlow().isIdle() && order().front() == "P5060001"; });
    expectMended();
}

TEST_F(Story, ClosingAsksForWhatIsNotSaved) {
    session().openPaths({m_disk.path("phone")});
    waitForReading(1);
    CompoundFields later;
    later.dmHours = "2";
    session().shiftSelectedFolders(later);
    EXPECT_FALSE(m_window->close());
    QTest::mouseClick(button(sheet(), "sheet_cancel"), Qt::LeftButton);
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_TRUE(session().hasUnsavedChanges());

    EXPECT_FALSE(m_window->close());
    QTest::mouseClick(button(sheet(), "closing_save"), Qt::LeftButton);
    wait([this] { return !m_window->isVisible(); });
    EXPECT_EQ(little::witness(m_disk.path("phone/PXL_1.JPG"), "-DateTimeOriginal"),
              "2024:05:06 12:00:00\n");

    m_window->show();
    session().undo();
    session().shiftSelectedFolders(later);
    EXPECT_FALSE(m_window->close());
    QTest::mouseClick(button(sheet(), "closing_discard"), Qt::LeftButton);
    EXPECT_FALSE(m_window->isVisible());
}

TEST_F(Story, TheWindowMayGoInTheMiddleOfEverything) {
    session().openPaths({m_disk.path("phone"), m_disk.path("canon")});
    waitForReading(2);
    m_window->run(CommandId::MoveWithArrows);
    ASSERT_TRUE(strip().isDragging());
    QTest::keyClick(&strip(), Qt::Key_Left);
    session().openPaths({m_disk.path("nikon")});
    m_window.reset(); // with a drag, a reading and thumbnails under way
}

/// No control without a name, no command without keys.
TEST_F(Story, EveryControlHasANameAndEveryActionKeys) {
    const auto expectNames = [](const QWidget *root) {
        for (const QWidget *each : root->findChildren<QWidget *>()) {
            const QString type = QLatin1String(each->metaObject()->className());
            const bool isOfComboBox =
                type.startsWith(QLatin1String("QComboBox")) && type != QLatin1String("QComboBox");
            const bool isPartOfAnother = each->focusProxy() || isOfComboBox ||
                                         each->objectName().startsWith(QLatin1String("qt_"));
            if (each->focusPolicy() == Qt::NoFocus || isPartOfAnother)
                continue;
            QAccessibleInterface *spoken =
                QAccessible::queryAccessibleInterface(const_cast<QWidget *>(each));
            EXPECT_TRUE(spoken && !spoken->text(QAccessible::Name).isEmpty())
                << each->metaObject()->className() << " in " << root->metaObject()->className();
        }
    };
    session().openPaths({m_disk.path("phone"), m_disk.path("canon")});
    waitForReading(2);
    expectNames(m_window.get());
    for (const CommandId id :
         {CommandId::FolderZones, CommandId::RenameAll, CommandId::EditFilter,
          CommandId::Preferences, CommandId::ErrorLog, CommandId::Shortcuts, CommandId::About}) {
        m_window->run(id);
        QWidget *open = sheet();
        expectNames(open);
        open->close();
        QTest::qWait(10);
    }
    for (const QAction *action : m_window->findChildren<QAction *>()) {
        const bool isOurs = action->isVisible() && !action->text().isEmpty() && !action->menu() &&
                            !action->objectName().startsWith(QLatin1String("_q_"));
        EXPECT_FALSE(isOurs && action->shortcut().isEmpty()) << action->text().toStdString();
    }
}

} // namespace
} // namespace chronomender
