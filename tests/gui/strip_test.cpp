// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripArea.h"

#include "InspectorFacts.h"
#include "LittleTimelines.h"
#include "LittleWindow.h"
#include "NeighbourFacts.h"
#include "ShiftFacts.h"
#include "Texts.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QTest>
#include <QUrl>

namespace chronomender {
namespace {

/// Six shots of two cameras by turns, an hour apart: a, c, e of the first and b, d, f of the
/// second.
class StripTest : public ::testing::Test {
protected:
    StripTest() {
        const char *names = "abcdef";
        for (int i = 0; i < 6; ++i)
            window.photo(i % 2 ? "nikon" : "canon", std::string(1, names[i]) + ".jpg",
                         "2024:05:06 " + std::to_string(10 + i) + ":00:00");
        window.open({"canon", "nikon"});
        QObject::connect(&session, &WindowSession::statusTold, &session,
                         [this](const QString &words) { status = words; });
        area.resize(1000, area.sizeHint().height());
        area.show();
        area.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&area));
        view.setFocus();
        nikon = session.folders()[1];
    }

    little::LittleWindow window;
    WindowSession &session = window.session;
    StripArea area{session};
    StripView &view = area.firstView();
    TimelineStrip &strip = session.timelines().mainTimeline();
    QString status;
    MySingleFolderPtr nikon;

    std::string shown() const { return names(strip.shown()); }
    static std::string names(const std::vector<MySinglePicPtr> &list) {
        std::string joined;
        for (const MySinglePicPtr &pic : list)
            joined += pic->spName[0];
        return joined;
    }
    std::string selected() const { return little::Timelines::selected(strip); }
    MySinglePicPtr pic(char name) const {
        for (const MySinglePicPtr &each : strip.theSource)
            if (each->spName[0] == name)
                return each;
        return nullptr;
    }
    absl::Duration nikonShift() const { return nikon->sfDateModificationsTimeInterval; }

    /// In the view, of the item that stands at the index of the list shown.
    QPointF place(std::int64_t index, double fromMiddle = 0) const {
        return QPointF(view.placeOf(index).center()) + QPointF(fromMiddle, 0);
    }
    QPointF placeOf(char name, double fromMiddle = 0) const {
        return place(static_cast<std::int64_t>(shown().find(name)), fromMiddle);
    }
    void mouse(QEvent::Type type, QPointF position, Qt::KeyboardModifiers modifiers = {}) {
        const bool isRelease = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, position, view.mapToGlobal(position),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          isRelease ? Qt::NoButton : Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(&view, &event);
    }
    void press(QPointF at, Qt::KeyboardModifiers modifiers = {}) {
        mouse(QEvent::MouseButtonPress, at, modifiers);
    }
    void move(QPointF to) { mouse(QEvent::MouseMove, to); }
    void release(QPointF at) { mouse(QEvent::MouseButtonRelease, at); }
    void click(char name, Qt::KeyboardModifiers modifiers = {}) {
        press(placeOf(name), modifiers);
        release(placeOf(name));
    }
    /// Takes an item up and holds it over another.
    void dragOver(char item, char target, double fromMiddle = 0) {
        press(placeOf(item));
        move(placeOf(item, 30));
        move(placeOf(target, fromMiddle));
    }
    /// What stands beside the strip tells of b and its folder as if the drag were done.
    void expectPanelsFollow(const std::string &date) {
        const DateDrag *drag = session.dateDrag();
        ASSERT_NE(drag, nullptr);
        const Zones &zones = session.zones();
        const NeighbourFacts around = neighbourFacts(strip, pic('b'), zones, drag);
        EXPECT_EQ(around[1].date, date);
        EXPECT_EQ(around[2].distance, "2 h later");
        EXPECT_EQ(around[0].distance, text("preview_sameTime"));
        NewDateContext context = session.controller().liveContext();
        context.drag = drag->liveDragOf(*pic('b'));
        const InspectorFacts facts =
            inspectorFacts({pic('b')}, context, filterContext(zones, session.defaults()));
        EXPECT_EQ(facts.date, date);
        EXPECT_THAT(facts.files[0].slots[0].newText, testing::HasSubstr("10:00:00"));
        const ShiftFacts shift =
            shiftFacts(session.selectedCompound(), {pic('b')}, false, zones, drag);
        EXPECT_EQ(shift.fields.dmDirection, "-");
        EXPECT_EQ(shift.fields.dmHours, "1");
        EXPECT_THAT(shift.hint, testing::EndsWith(date));
        EXPECT_FALSE(shift.isShifted) << "there is nothing to reset yet";
    }
    void key(Qt::Key which, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&view, which, modifiers);
    }
};

TEST_F(StripTest, clicksSelect) {
    struct Step {
        char name;
        Qt::KeyboardModifiers modifiers;
        const char *selected;
    };
    const Step steps[] = {{'b', {}, "B"},
                          {'e', Qt::ControlModifier, "bE"},
                          {'b', Qt::ControlModifier, "E"},
                          {'c', Qt::ShiftModifier, "Cde"},
                          {'d', {}, "D"}, // one of several: it alone, as nothing was dragged
                          {'a', {}, "A"}};
    for (const Step &step : steps) {
        click(step.name, step.modifiers);
        EXPECT_EQ(selected(), step.selected);
    }
    press(placeOf('a', 72)); // the gap
    release(placeOf('a', 72));
    EXPECT_EQ(selected(), "");
}

TEST_F(StripTest, aRectangleSelects) {
    const auto draw = [&](char from, char to, Qt::KeyboardModifiers modifiers) {
        press(placeOf(from, 72), modifiers);
        move(placeOf(to, 72));
    };
    click('a');
    draw('b', 'd', {});
    EXPECT_EQ(selected(), "cD");
    move(placeOf('c', 72));
    EXPECT_EQ(selected(), "C");
    release(placeOf('c', 72));
    draw('a', 'c', Qt::ControlModifier);
    EXPECT_EQ(selected(), "B") << "c was selected and is not any more";
    release(placeOf('c', 72));
    draw('b', 'e', Qt::ShiftModifier);
    EXPECT_EQ(selected(), "Bcde");
    key(Qt::Key_Escape);
    EXPECT_EQ(selected(), "B");
}

TEST_F(StripTest, theStripScrollsAlongAtItsEdges) {
    area.resize(400, area.height());
    const auto reaches = [&](double x, double scrollX) {
        move({x, 60});
        return window.waitFor([&] { return std::abs(strip.scrollX - scrollX) < 1; });
    };
    view.scrollTo(0);
    press(placeOf('a', 72));
    EXPECT_TRUE(reaches(398, strip.geometry.totalWidth(6) - 400));
    EXPECT_EQ(selected(), "bcdeF");
    release({398, 60});
    view.scrollTo(1000);
    press(placeOf('f'));
    EXPECT_TRUE(reaches(2, 0));
    EXPECT_EQ(shown(), "bdface") << "before the first that stays";
    key(Qt::Key_Escape);
    EXPECT_EQ(nikonShift(), absl::ZeroDuration());
}

TEST_F(StripTest, keysWalkAndSelect) {
    struct Step {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char *selected;
    };
    click('b');
    const Step steps[] = {{Qt::Key_Right, {}, "C"},
                          {Qt::Key_Right, Qt::ShiftModifier, "cD"},
                          {Qt::Key_End, {}, "F"},
                          {Qt::Key_Right, {}, "F"},
                          {Qt::Key_Home, {}, "A"},
                          {Qt::Key_Right, Qt::ControlModifier, "A"},
                          {Qt::Key_Right, Qt::ControlModifier, "A"},
                          {Qt::Key_Space, Qt::ControlModifier, "aC"},
                          {Qt::Key_Space, {}, "A"},
                          {Qt::Key_PageDown, {}, "F"},
                          {Qt::Key_PageUp, Qt::ShiftModifier, "Abcdef"}};
    area.resize(1200, area.height());
    for (const Step &step : steps) {
        key(step.key, step.modifiers);
        EXPECT_EQ(selected(), step.selected);
    }
}

TEST_F(StripTest, keysKeepTheMainItemInView) {
    area.resize(400, area.height());
    for (const Qt::Key each : {Qt::Key_End, Qt::Key_Left, Qt::Key_Home}) {
        key(each);
        const auto index = strip.indexOf(*strip.selection.picSelection);
        EXPECT_TRUE(view.rect().contains(view.placeOf(*index))) << each;
    }
    const double before = strip.scrollX;
    QWheelEvent wheel({50, 50}, view.mapToGlobal(QPointF(50, 50)), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&view, &wheel);
    EXPECT_GT(strip.scrollX, before);
}

TEST_F(StripTest, aDragMovesTheFolderToWhereItIsDropped) {
    dragOver('b', 'a');
    EXPECT_EQ(shown(), "abcdef") << "b and a share a time, and so do d and c";
    EXPECT_EQ(view.picAt(placeOf('a')), pic('a'));
    EXPECT_EQ(pic('b')->spDateTimeModified(), pic('b')->spDateTimeOriginal) << "only shown";
    EXPECT_TRUE(view.accessibleDescription().contains(QStringLiteral("6 May 2024, 10:00:00")));
    EXPECT_TRUE(view.accessibleDescription().contains(QStringLiteral("1 h earlier")));
    expectPanelsFollow("6 May 2024, 10:00:00");
    move(placeOf('e', 62)); // behind the last item that stays
    EXPECT_EQ(shown(), "acebdf");
    release(placeOf('e', 62));
    EXPECT_EQ(nikonShift(), absl::Hours(3) + absl::Minutes(1));
    EXPECT_EQ(shown(), "acebdf");
    EXPECT_FALSE(strip.tempSource);
    EXPECT_TRUE(view.accessibleDescription().isEmpty());
    EXPECT_EQ(session.dateDrag(), nullptr);
    session.undo();
    EXPECT_EQ(nikonShift(), absl::ZeroDuration());
}

TEST_F(StripTest, theItemPointedAtStaysUnderThePointer) {
    area.resize(500, area.height());
    view.scrollTo(0);
    press(placeOf('b'));
    move(placeOf('b', 30));
    const QPointF over = placeOf('c', 62);
    move(over);
    EXPECT_EQ(shown(), "acbedf");
    EXPECT_EQ(view.picAt(over - QPointF(6, 0)), pic('c'));
    move(over + QPointF(20, 0)); // on b itself: nothing new is meant
    EXPECT_EQ(shown(), "acbedf");
    key(Qt::Key_Escape);
    EXPECT_EQ(strip.scrollX, 0);
}

TEST_F(StripTest, singleItemsSpreadInAGap) {
    session.edit([this](AppController &) { nikon->sfEditMode = EditMode::Single; });
    click('b');
    click('d', Qt::ControlModifier);
    dragOver('d', 'f', -62);
    EXPECT_EQ(shown(), "acebdf");
    release(placeOf('f', -62));
    EXPECT_EQ(absl::ToInt64Minutes(pic('b')->spDateTimeModified() - pic('e')->spDateTimeModified()),
              20);
    EXPECT_EQ(absl::ToInt64Minutes(pic('d')->spDateTimeModified() - pic('e')->spDateTimeModified()),
              40);
    EXPECT_EQ(selected(), "bD");
}

TEST_F(StripTest, aDragGivenUpLeavesDatesAlone) {
    const auto expectUntouched = [&](const char *how) {
        EXPECT_EQ(nikonShift(), absl::ZeroDuration()) << how;
        EXPECT_FALSE(strip.tempSource) << how;
        EXPECT_FALSE(session.hasUnsavedChanges()) << how;
    };
    dragOver('b', 'e');
    key(Qt::Key_Escape);
    release(placeOf('e'));
    expectUntouched("Esc");
    dragOver('b', 'e');
    move({300, 900});
    EXPECT_EQ(shown(), "abcdef");
    release({300, 900});
    expectUntouched("beside the strip");
    dragOver('b', 'e');
    Q_EMIT session.dateChangeAborted();
    release(placeOf('e'));
    expectUntouched("another zone");
    pic('b')->spType = SpTypeUnsupported;
    dragOver('b', 'e');
    EXPECT_TRUE(status.contains(QStringLiteral("b.jpg")));
    release(placeOf('e'));
    expectUntouched("no date to correct");
}

TEST_F(StripTest, aListBuiltAnewKeepsTheTarget) {
    dragOver('b', 'c');
    window.photo("third", "x.jpg", "2024:05:06 09:00:00");
    session.openPaths({window.disk.path("third")});
    EXPECT_TRUE(window.waitFor([&] { return strip.theSource.size() == 7; }));
    EXPECT_EQ(shown().front(), 'x');
    EXPECT_EQ(strip.shown().size(), 7U);
    release(placeOf('c'));
    EXPECT_EQ(nikonShift(), absl::Hours(1)) << "b has the time of c";

    dragOver('b', 'e');
    session.controller().droppedFolders().remove({session.folders()[0]});
    session.controller().buildNewSource();
    release({500, 60});
    EXPECT_EQ(nikonShift(), absl::Hours(1)) << "the target is gone";
}

TEST_F(StripTest, arrowKeysLeadADrag) {
    struct Step {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char *words;
    };
    const Step steps[] = {
        {Qt::Key_Right, {}, "6 May 2024, 11:59:59, 59 min 59 s later, one second before c.jpg"},
        {Qt::Key_Right, {}, "6 May 2024, 12:00:00, 1 h later, same time as c.jpg"},
        {Qt::Key_Right, {}, "12:00:01, 1 h 1 s later, one second after c.jpg"},
        {Qt::Key_Right, {}, "13:00:00, 2 h later, before e.jpg"},
        {Qt::Key_Left, {}, "one second after c.jpg"},
        {Qt::Key_Right, Qt::ControlModifier, "14:01:00, 3 h 1 min later, after e.jpg"},
        {Qt::Key_Right, {}, "after e.jpg"},
        {Qt::Key_Home, {}, "09:59:00, 1 h 1 min earlier, before a.jpg"},
        {Qt::Key_End, {}, "after e.jpg"}};
    click('b');
    area.beginMoveWithArrows();
    EXPECT_TRUE(view.accessibleDescription().contains(QStringLiteral("b.jpg")));
    for (const Step &step : steps) {
        key(step.key, step.modifiers);
        EXPECT_TRUE(view.accessibleDescription().contains(QLatin1String(step.words)))
            << step.words << " is not in " << view.accessibleDescription().toStdString();
        EXPECT_TRUE(
            view.rect().intersects(view.placeOf(static_cast<std::int64_t>(shown().find('b')))));
    }
    key(Qt::Key_Escape);
    EXPECT_EQ(nikonShift(), absl::ZeroDuration());
    area.beginMoveWithArrows();
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    EXPECT_EQ(nikonShift(), absl::Hours(1));
    key(Qt::Key_Right); // an arrow is an arrow again
    EXPECT_EQ(nikonShift(), absl::Hours(1));
    EXPECT_FALSE(view.isDragging());
}

TEST_F(StripTest, everyThumbnailCanBeReadAloud) {
    QAccessible::setActive(true);
    click('b');
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(&view);
    ASSERT_EQ(list->childCount(), 6);
    EXPECT_EQ(list->text(QAccessible::Name), QStringLiteral("Timeline"));
    QAccessibleInterface *second = list->child(1);
    EXPECT_EQ(second->text(QAccessible::Name),
              QStringLiteral("b.jpg, nikon, 6 May 2024, 11:00:00, selected"));
    EXPECT_TRUE(second->state().selected);
    EXPECT_TRUE(second->state().focused);
    EXPECT_EQ(list->focusChild(), second);
    EXPECT_FALSE(list->child(0)->state().selected);
    const QPoint center = second->rect().center();
    EXPECT_EQ(list->childAt(center.x(), center.y()), second);
    EXPECT_EQ(second->parent(), list);
    list->child(3)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(selected(), "D");
    session.edit(
        [this](AppController &controller) { controller.shiftFolder(*nikon, absl::Minutes(5)); });
    EXPECT_EQ(second->text(QAccessible::Name),
              QStringLiteral("b.jpg, nikon, 6 May 2024, 11:05:00, unsaved"));
    session.removeFolders({nikon});
    EXPECT_FALSE(second->isValid());
    EXPECT_EQ(list->childCount(), 3);
    QAccessible::setActive(false);
}

TEST_F(StripTest, aSecondStripComesAndGoes) {
    EXPECT_EQ(area.secondView(), nullptr);
    click('c');
    session.select([](MyTimelinesController &strips) {
        strips.addSelectionFromToShelf(strips.mainTimeline(), true);
    });
    ASSERT_NE(area.secondView(), nullptr);
    EXPECT_EQ(area.findChild<QLabel *>()->text(), QStringLiteral("Shelf"));
    EXPECT_EQ(shown(), "abdef");
    EXPECT_EQ(names(area.secondView()->strip()->shown()), "c");
    EXPECT_EQ(area.secondView()->strip()->geometry.thumbSize, strip.geometry.thumbSize);
    EXPECT_GT(area.secondView()->strip()->width, 0);

    area.secondView()->setFocus();
    EXPECT_TRUE(session.timelines().mirrorFirstRespState());
    session.select([](MyTimelinesController &strips) { strips.setMirrorFirstRespState(false); });
    EXPECT_TRUE(view.hasFocus());
    session.undo();
    EXPECT_EQ(area.secondView(), nullptr);
    EXPECT_EQ(shown(), "abcdef");
    session.select([](MyTimelinesController &strips) {
        strips.addTimelineOfMode(TimelineKind::Mirror, false);
    });
    ASSERT_NE(area.secondView(), nullptr);
    dragOver('b', 'e', 62);
    EXPECT_EQ(names(area.secondView()->strip()->shown()), "acebdf") << "live in both";
    session.select([](MyTimelinesController &strips) { strips.removeSecondTimeline(); });
    EXPECT_EQ(area.secondView(), nullptr);
    release(placeOf('e'));
}

TEST_F(StripTest, opensWhatIsDropped) {
    window.photo("third", "x.jpg", "2024:05:06 09:00:00");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(window.disk.path("third")))});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&view, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent event({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&view, &event);
    EXPECT_TRUE(window.waitFor([&] { return strip.theSource.size() == 7; }));
}

TEST_F(StripTest, looksFollowSizesAndLabels) {
    const int height = view.sizeHint().height();
    area.resize(500, area.height());
    view.scrollTo(240);
    const auto atMiddle = [&] { return view.picAt({view.width() / 2.0, 90.0}); };
    const MySinglePicPtr middle = atMiddle();
    area.enlargeThumbs(2);
    EXPECT_EQ(area.thumbSize(), 160);
    EXPECT_GE(view.sizeHint().height(), height + 32);
    EXPECT_EQ(atMiddle(), middle);
    area.setThumbSize(1000);
    EXPECT_EQ(area.thumbSize(), largestThumb);
    area.setThumbSize(usualThumb);
    session.defaults().setForThisRun("displayTimelineLabels", "0");
    Q_EMIT session.listChanged();
    EXPECT_LT(view.sizeHint().height(), height);
    // Both folders show, each by its colour.
    area.resize(1000, area.height());
    const QImage image = view.grab().toImage();
    const auto barColor = [&](std::int64_t index) {
        const QRect thumb = view.placeOf(index);
        return image.pixelColor(thumb.center().x(), thumb.bottom() + 6).rgb();
    };
    EXPECT_EQ(barColor(1), barColor(3));
    EXPECT_NE(barColor(1), barColor(2));
}

} // namespace
} // namespace chronomender
