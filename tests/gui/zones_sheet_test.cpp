// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleWindow.h"
#include "Texts.h"
#include "ZoneList.h"
#include "ZonesSheet.h"

#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>
#include <QTest>

namespace chronomender {
namespace {

class ZonesSheetTest : public ::testing::Test {
protected:
    little::LittleWindow window;

    ZonesSheetTest() {
        window.photo("canon", "a.jpg", "2024:07:01 10:00:00");
        window.photo("canon", "b.jpg", "2024:07:01 12:00:00");
        window.photo("phone", "c.jpg", "2024:07:01 10:30:00", "+09:00");
        window.open({"canon", "phone"});
    }
    QPointer<ZonesSheet> open(ZonesSheet::Subject subject) {
        QPointer<ZonesSheet> sheet(new ZonesSheet(window.session, subject, nullptr));
        sheet->open();
        const auto models = sheet->findChildren<ZoneListModel *>();
        EXPECT_TRUE(little::LittleWindow::waitFor([&] { return models.back()->rowCount() > 0; }));
        return sheet;
    }
    static std::string zoneOf(const ZoneAssignments &side) {
        return side.folderDefault ? side.folderDefault->persistedName() : "";
    }
};

TEST_F(ZonesSheetTest, GivesAFolderAZoneByKeyboardInOneStep) {
    const QPointer<ZonesSheet> sheet = open(ZonesSheet::Subject::SelectedFolders);
    EXPECT_FALSE(sheet->wish().source || sheet->wish().target);
    QWidget *field = sheet->focusWidget();
    ASSERT_TRUE(qobject_cast<QLineEdit *>(field)) << "the search has the focus";
    QTest::keyClicks(field, QStringLiteral("kath"));
    QTest::keyClick(field, Qt::Key_Down); // an older name of the place
    QTest::keyClick(field, Qt::Key_Up);
    EXPECT_EQ(sheet->wish().source->persistedName(), "Asia/Kathmandu");
    EXPECT_FALSE(sheet->wish().target);
    const MySingleFolder &canon = *window.session.folders().front();
    EXPECT_EQ(zoneOf(canon.sourceTimeZones), "") << "before it is applied";

    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(little::LittleWindow::waitFor([&] { return sheet.isNull(); }));
    EXPECT_EQ(zoneOf(canon.sourceTimeZones), "Asia/Kathmandu");
    EXPECT_EQ(zoneOf(canon.targetTimeZones), "_UNCHANGED_LEFT_FOLDER");
    EXPECT_FALSE(window.session.hasUnsavedChanges());
    window.session.undo();
    EXPECT_EQ(zoneOf(canon.sourceTimeZones) + zoneOf(canon.targetTimeZones), "");
    EXPECT_FALSE(window.session.controller().undoManager().canUndo());
}

TEST_F(ZonesSheetTest, LeavesWhatIsMixedAsItIs) {
    const auto folders = window.session.folders();
    const Zones &zones = window.session.zones();
    const auto tokyo = ZoneChoice::named(*zones.zoneWithName("Asia/Tokyo"));
    window.session.edit([&](AppController &app) { app.setZones(*folders[0], {tokyo, tokyo}); });
    window.session.selectFolders(folders);
    const QPointer<ZonesSheet> sheet = open(ZonesSheet::Subject::SelectedFolders);
    const auto buttons = sheet->findChildren<QRadioButton *>();
    EXPECT_TRUE(std::ranges::none_of(buttons, &QRadioButton::isChecked));
    const auto own = std::ranges::find_if(buttons, [](const QRadioButton *each) {
        return each->text() == QString::fromStdString(text("zones_targetOwn"));
    });
    ASSERT_NE(own, buttons.end());
    (*own)->click();
    QTest::keyClick(sheet, Qt::Key_Return);
    EXPECT_EQ(zoneOf(folders[0]->sourceTimeZones), "Asia/Tokyo");
    EXPECT_EQ(zoneOf(folders[1]->sourceTimeZones), "");
    EXPECT_EQ(zoneOf(folders[0]->targetTimeZones) + zoneOf(folders[1]->targetTimeZones),
              "_OWN_OWN");
}

TEST_F(ZonesSheetTest, GivesSelectedItemsTheirOwnZone) {
    const auto pics = window.pics();
    window.session.select([&](MyTimelinesController &strips) {
        strips.simpleSelectThumb(pics[1], strips.mainTimeline());
    });
    const QPointer<ZonesSheet> sheet = open(ZonesSheet::Subject::SelectedItems);
    QTest::keyClicks(sheet->focusWidget(), QStringLiteral("+5:30"));
    QTest::keyClick(sheet->focusWidget(), Qt::Key_Return);
    const MySingleFolder &canon = *window.session.folders().front();
    EXPECT_EQ(zoneOf(canon.sourceTimeZones), "");
    ASSERT_EQ(canon.sourceTimeZones.ofItems.size(), 1U);
    const auto &[id, choice] = *canon.sourceTimeZones.ofItems.begin();
    EXPECT_EQ(id, pics[1]->sessionUniqueId);
    EXPECT_EQ(choice.persistedName(), "+05:30");
}

} // namespace
} // namespace chronomender
