// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterBar.h"
#include "FilterEditor.h"
#include "FilterRowWidget.h"
#include "FilterSheet.h"
#include "FilterTemplateBar.h"
#include "LittleWindow.h"
#include "QuestionSheet.h"
#include "Texts.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gmock/gmock.h>

namespace chronomender {
namespace {

using testing::ElementsAre;

class FilterSheetTest : public testing::Test {
protected:
    FilterSheetTest() {
        window.photo("canon", "IMG_1.jpg", "2024:10:27 12:00:00");
        window.photo("canon", "IMG_2.jpg", "2024:10:28 12:00:00");
        window.photo("nikon", "DSC_3.jpg", "2024:10:28 12:00:12");
        window.open({"canon", "nikon"});
        openSheet();
    }
    ~FilterSheetTest() override { delete sheet; } // it looks at the session until its end
    void openSheet() {
        sheet = new FilterSheet(window.session, nullptr);
        sheet->open();
        EXPECT_TRUE(QTest::qWaitForWindowActive(sheet));
    }
    std::vector<std::string> names() {
        std::vector<std::string> all;
        for (const MySinglePicPtr &pic : window.session.timelines().source_filtered())
            all.push_back(pic->spBaseName());
        return all;
    }
    /// Waits, as the list follows a moment later.
    bool waitForCount(std::size_t count) {
        return window.waitFor([&] { return names().size() == count; });
    }
    void press(Qt::Key key, int times = 1) {
        for (int i = 0; i < times; ++i)
            QTest::keyClick(sheet->focusWidget(), key);
    }
    void type(const char *words) {
        QTest::keyClicks(sheet->focusWidget(), QString::fromUtf8(words));
    }
    QPushButton *button(const QWidget *of, const char *key) {
        for (QPushButton *each : of->findChildren<QPushButton *>())
            if (each->text() == QString::fromStdString(text(key)))
                return each;
        ADD_FAILURE() << "no button " << key;
        return nullptr;
    }
    std::string focusName() { return sheet->focusWidget()->accessibleName().toStdString(); }

    little::LittleWindow window;
    QPointer<FilterSheet> sheet;
};

TEST_F(FilterSheetTest, TwoRowsByKeyboardFilterAndComeBackAsATemplate) {
    press(Qt::Key_Tab, 2);
    type("img");
    ASSERT_TRUE(waitForCount(2));
    press(Qt::Key_Tab); // nothing to remove
    EXPECT_EQ(focusName(), "Condition 1: add a condition below");
    press(Qt::Key_Space);
    EXPECT_EQ(focusName(), "Condition 2: what is asked");
    press(Qt::Key_Down, 4); // a date
    press(Qt::Key_Tab);
    press(Qt::Key_Down, 2); // after
    press(Qt::Key_Tab);
    press(Qt::Key_Home);
    type("2024-10-28");
    ASSERT_TRUE(waitForCount(1));
    EXPECT_THAT(names(), ElementsAre("IMG_2"));

    button(sheet, "filter_templateSave")->click();
    auto *question = sheet->findChild<QuestionSheet *>();
    QTest::keyClicks(question->findChild<QLineEdit *>(), QStringLiteral("Second day"));
    QTest::keyClick(question, Qt::Key_Return);
    button(sheet, "filter_reset")->click();
    EXPECT_EQ(names().size(), 3U);
    EXPECT_FALSE(window.session.defaults().boolForKey("isFilterActive"));
    sheet->close();
    openSheet();
    auto *templates = sheet->findChild<FilterTemplateBar *>()->findChild<QComboBox *>();
    templates->setFocus();
    press(Qt::Key_Down);
    EXPECT_THAT(names(), ElementsAre("IMG_2"));
    EXPECT_TRUE(templates->hasFocus());
    EXPECT_EQ(templates->currentText(), QStringLiteral("Second day"));
    EXPECT_EQ(sheet->findChildren<FilterRowWidget *>().size(), 3); // one of them is to go
}

TEST_F(FilterSheetTest, ARangeBeginsWithAllDaysAndEndsWithItsLast) {
    press(Qt::Key_End); // of the kinds
    const auto days = sheet->findChildren<QDateEdit *>();
    ASSERT_EQ(days.size(), 2);
    EXPECT_EQ(days[0]->date(), QDate(2024, 10, 27));
    EXPECT_EQ(days[1]->date(), QDate(2024, 10, 28));
    days[1]->setFocus();
    press(Qt::Key_End);
    press(Qt::Key_Down);
    ASSERT_TRUE(waitForCount(1));
    EXPECT_THAT(names(), ElementsAre("IMG_1"));
    press(Qt::Key_Down); // a day before the first one
    press(Qt::Key_Return);
    EXPECT_EQ(days[0]->date(), QDate(2024, 10, 26));
}

TEST_F(FilterSheetTest, ShowsTheRunningFilterAndKeepsWhatIsTypedLast) {
    sheet->close();
    FilterBar bar(window.session);
    QTest::keyClicks(bar.findChild<QLineEdit *>(), QStringLiteral("DSC"));
    bar.finishTyping();
    openSheet();
    EXPECT_EQ(sheet->findChildren<FilterRowWidget *>().size(), 2); // a name or a camera
    QToolButton *remove =
        sheet->findChildren<FilterRowWidget *>().back()->findChild<QToolButton *>();
    remove->setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(focusName(), "Condition 1: what is asked");
    EXPECT_FALSE(sheet->findChild<QToolButton *>()->isEnabled());
    press(Qt::Key_Tab, 2);
    press(Qt::Key_End);
    type("_");
    press(Qt::Key_Return);
    EXPECT_TRUE(window.waitFor([&] { return sheet.isNull(); }));
    EXPECT_EQ(window.session.defaults().stringForKey("lastActiveFilterPredicate"),
              R"((spName CONTAINS[cd] "DSC_"))");
}

TEST_F(FilterSheetTest, AFilterBeyondRowsIsShownUntilOneStartsAnew) {
    sheet->close();
    const std::string text = R"(NOT (spName CONTAINS[cd] "IMG"))";
    filterBy(std::get<Predicate>(parsePredicate(text)), window.session.controller().filters(),
             window.session.defaults());
    openSheet();
    auto *shown = sheet->findChild<QPlainTextEdit *>();
    EXPECT_EQ(shown->toPlainText().toStdString(), text);
    EXPECT_TRUE(shown->isReadOnly() && shown->isVisible());
    EXPECT_THAT(names(), ElementsAre("DSC_3"));
    button(sheet, "filter_startAnew")->click();
    EXPECT_EQ(names().size(), 3U);
    EXPECT_EQ(focusName(), "Condition 1: what is asked");
}

} // namespace
} // namespace chronomender
