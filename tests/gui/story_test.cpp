// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittlePhoto.h"
#include "MainWindow.h"
#include "StripView.h"
#include "TemporaryFolder.h"
#include "Texts.h"
#include "ToolWitness.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

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
        write("canon/IMG_1.JPG", "2024:05:06 11:05:00", "2024:13:41 77:00:00");
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

    void write(const std::string &name, const std::string &stamp,
               const std::string &modified = {}) {
        little::PhotoFields fields;
        fields.original = fields.digitized = stamp;
        fields.modified = modified.empty() ? stamp : modified;
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
            {"nikon/P5060003.JPG", "10:07:00"}, {"phone/P5060004.JPG", "10:10:00"},
            {"canon/P5060005.JPG", "10:10:00"}, {"nikon/P5060006.JPG", "10:17:00"},
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
    QDropEvent drop({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &drop);
    waitForReading(3);
    expectAsRead();

    // A shot of the canon is dragged onto its twin of the phone.
    const auto centerOf = [this](const char *name) {
        return strip().placeOf(*strip().strip()->indexOf(*pic(name))).center();
    };
    const QPoint from = centerOf("IMG_2"), to = centerOf("PXL_2");
    QTest::mousePress(&strip(), Qt::LeftButton, {}, from);
    for (int part = 1; part <= 8; ++part)
        QTest::mouseMove(&strip(), from + (to - from) * part / 8, 10);
    EXPECT_TRUE(strip().isDragging());
    QTest::mouseRelease(&strip(), Qt::LeftButton, {}, to);
    expectCanonMended();

    // The nikon's clock meant Berlin, and its files are to say Tokyo's time.
    auto *folders = m_window->findChild<QListView *>();
    QTest::mouseClick(folders->viewport(), Qt::LeftButton, {},
                      folders->visualRect(folders->model()->index(2, 0)).center());
    m_window->run(CommandId::FolderZones);
    QWidget *zones = sheet();
    QTest::keyClicks(zones->findChild<QLineEdit *>(), QStringLiteral("berlin"));
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
    QTest::mouseClick(button(sheet(), "rename_accept"), Qt::LeftButton);
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
    void openByName(const char *folder, std::size_t count) {
        press(Qt::Key_O, Qt::ControlModifier);
        QWidget *dialog = sheet();
        wait([&] { return dialog->isAncestorOf(focus()); });
        type(m_disk.path(folder));
        press(Qt::Key_Return);
        waitForReading(count);
        wait([this] { return m_window->isActiveWindow() && focus() != nullptr; });
    }
};

TEST_F(KeyboardStory, MendsATripOfThreeCameras) {
    wait([this] { return m_window->isActiveWindow(); });
    openByName("phone", 1);
    openByName("canon", 2);
    openByName("nikon", 3);
    expectAsRead();

    press(Qt::Key_F3);
    press(Qt::Key_End); // IMG_2
    press(Qt::Key_M, Qt::ControlModifier);
    const QString twin = QStringLiteral("10:10:00");
    for (int i = 0; i < 40 && !strip().shared().drag->proposedDate().contains(twin); ++i)
        press(Qt::Key_Left);
    press(Qt::Key_Return);
    expectCanonMended();

    press(Qt::Key_F2);
    press(Qt::Key_End);
    press(Qt::Key_T, Qt::ControlModifier);
    QWidget *zones = sheet();
    wait([&] { return zones->isAncestorOf(focus()); });
    type("berlin");
    QRadioButton *target = radio(zones, tokyoAsTarget());
    for (int i = 0; i < 60 && !(focus()->parent() == target->parent() &&
                                qobject_cast<QRadioButton *>(focus()));
         ++i)
        press(Qt::Key_Tab);
    for (int i = 0; i < 5 && !target->isChecked(); ++i)
        press(Qt::Key_Down);
    press(Qt::Key_Return);
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

    wait([this] { return m_window->isActiveWindow(); });
    press(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    QWidget *names = sheet();
    wait([&] { return names->isAncestorOf(focus()); });
    tabTo(button(names, "rename_accept"));
    press(Qt::Key_Space);
    wait([this] { return session().saveFlow().isIdle() && order().front() == "P5060001"; });
    expectMended();
}

/// No control without a name, no command without keys.
TEST_F(Story, EveryControlHasANameAndEveryActionKeys) {
    const auto expectNames = [](const QWidget *root) {
        for (const QWidget *each : root->findChildren<QWidget *>()) {
            const bool isPartOfAnother =
                each->focusProxy() || each->objectName().startsWith(QLatin1String("qt_"));
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
    for (const CommandId id : {CommandId::FolderZones, CommandId::RenameAll, CommandId::Preferences,
                               CommandId::ErrorLog, CommandId::Shortcuts, CommandId::About}) {
        m_window->run(id);
        QWidget *open = sheet();
        expectNames(open);
        open->close();
        QTest::qWait(10);
    }
    for (const QAction *action : m_window->findChildren<QAction *>()) {
        const bool isOurs = !action->text().isEmpty() && !action->menu() &&
                            !action->objectName().startsWith(QLatin1String("_q_"));
        if (isOurs)
            EXPECT_FALSE(action->shortcut().isEmpty()) << action->text().toStdString();
    }
}

} // namespace
} // namespace chronomender
