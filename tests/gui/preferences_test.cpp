// SPDX-License-Identifier: GPL-3.0-or-later
#include "Appearance.h"
#include "Controls.h"
#include "LittlePicture.h"
#include "LittleWindow.h"
#include "MainWindow.h"
#include "PreferencesSheet.h"
#include "Texts.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

#include <set>

namespace chronomender {
namespace {

template<class Control>
Control *controlOf(const QWidget &sheet, const QString &name) {
    for (Control *each : sheet.findChildren<Control *>())
        if (each->accessibleName() == name)
            return each;
    return nullptr;
}

TEST(PreferencesSheet, AppliesAtOnceAndPutsBack) {
    little::LittleWindow window;
    UserDefaults &defaults = window.session.defaults();
    PreferencesSheet sheet(window.session, nullptr);
    sheet.setAttribute(Qt::WA_DeleteOnClose, false);
    sheet.open();
    std::string told;
    QObject::connect(&sheet, &PreferencesSheet::preferenceChanged, &sheet,
                     [&](const QString &key) { told += key.toStdString() + ' '; });
    const QString subfolders = QStringLiteral("Read subfolders, too");
    auto *box = controlOf<QCheckBox>(sheet, subfolders);
    auto *depth = controlOf<QSpinBox>(sheet, QStringLiteral("Subfolders up to this depth"));
    ASSERT_TRUE(box && depth);
    EXPECT_FALSE(depth->isEnabled());
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_TRUE(defaults.boolForKey("isSubFolderAutoImportEnabled"));
    EXPECT_TRUE(depth->isEnabled());
    auto *reset = controlOf<QToolButton>(
        sheet, QString::fromStdString(text("prefs_resetOf", {subfolders.toStdString()})));
    ASSERT_TRUE(reset && !reset->isHidden());
    reset->click();
    EXPECT_FALSE(defaults.boolForKey("isSubFolderAutoImportEnabled") || box->isChecked());
    EXPECT_TRUE(reset->isHidden());
    EXPECT_EQ(told, "isSubFolderAutoImportEnabled isSubFolderAutoImportEnabled ");
}

TEST(PreferencesSheet, ThumbnailsFollowAtOnce) {
    const little::TemporaryFolder disk;
    qputenv("CHRONOMENDER_HOME", QByteArray::fromStdString(disk.path("home")));
    for (const char *name : {"a/1.jpg", "a/2.jpg", "a/3.jpg", "a/4.jpg"})
        disk.write(name, little::pictureFile(little::fourQuarters(300, 200), "jpeg") + name);
    MainWindow window({makeSystemFileLayer(), std::make_unique<UserDefaults>(),
                       std::make_unique<Zones>(), [] { return absl::Now(); }});
    WindowSession &session = window.session();
    window.show();
    window.run(CommandId::Preferences);
    auto *box =
        controlOf<QCheckBox>(window, qText("prefs_embeddedThumbs").remove(QLatin1Char('&')));
    ASSERT_TRUE(box);
    const auto shows = [&](bool isFirst, ThumbState state) {
        return little::LittleWindow::waitFor([&] {
            const auto &pics = session.timelines().source_filtered();
            const auto &pic = isFirst ? pics.front() : pics.back();
            return session.thumbnails().spThumb(pic).state == state;
        });
    };
    box->click();
    session.openPaths({disk.path("a")});
    ASSERT_TRUE(little::LittleWindow::waitFor([&] { return session.mainPic() != nullptr; }));
    EXPECT_TRUE(shows(true, ThumbState::Ready)) << "it is seen in large";
    EXPECT_TRUE(shows(false, ThumbState::Unsupported));
    box->click();
    EXPECT_TRUE(shows(false, ThumbState::Ready));
}

TEST(PreferencesSheet, EveryControlSetsWhatItShows) {
    little::LittleWindow window;
    UserDefaults &defaults = window.session.defaults();
    PreferencesSheet sheet(window.session, nullptr);
    for (QComboBox *menu : sheet.findChildren<QComboBox *>()) {
        std::set<int> values;
        for (int i = 0; i < menu->count(); ++i)
            values.insert(menu->itemData(i).toInt());
        EXPECT_EQ(values.size(), static_cast<std::size_t>(menu->count()));
        EXPECT_GE(menu->currentIndex(), 0) << menu->accessibleName().toStdString();
        menu->setCurrentIndex(menu->count() - 1);
    }
    EXPECT_EQ(defaults.integerForKey("dateChangeEXIFEXIFModDate"), 3);
    EXPECT_EQ(defaults.integerForKey("appearance"), 2);
    EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 80) << "at once";
    applyAppearance(Appearance::System);
    EXPECT_EQ(defaults.integerForKey("dragGapOuterEdges"), 86400);
    for (const QWidget *each : sheet.findChildren<QWidget *>()) {
        if (each->window() != &sheet || each->focusPolicy() == Qt::NoFocus || each->focusProxy())
            continue;
        const bool isNamed = !each->accessibleName().isEmpty() ||
                             !each->property("text").toString().isEmpty() ||
                             each->objectName().startsWith(QLatin1String("qt_")); // Qt's own
        EXPECT_TRUE(isNamed) << each->metaObject()->className();
    }
}

} // namespace
} // namespace chronomender
