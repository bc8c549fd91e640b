// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripPainter.h"

#include "Canvas.h"
#include "DateDrag.h"
#include "LittleTimelines.h"

namespace chronomender {
namespace {

/// Ten items an hour apart; in the zone in use the first five are of one day, the others of the
/// next.
class Strip : public ::testing::Test {
protected:
    static void SetUpTestSuite() { needApplication(); }

    Strip() {
        strip.geometry = metrics.geometry;
        strip.width = 600;
    }
    StripPicture layOut(const ShownDrag *drag = nullptr) const {
        return layOutStrip({strip, metrics, filters, zone, [](auto &, CellData &) {}, drag});
    }
    Canvas draw(const StripPicture &picture, double ratio = 1) const {
        return {QSizeF(strip.width, metrics.height), Qt::magenta,
                [&](QPainter &painter) { paintStrip(painter, picture, palette); }, ratio};
    }
    Canvas drawAt(double scrollX) {
        strip.scrollX = scrollX;
        return draw(layOut());
    }
    bool isText(const Canvas &canvas, double left, double width) const {
        const auto isInk = [&](const QColor &each) { return contrast(each, palette.strip) > 4; };
        return canvas.share({left, 0, width, metrics.titleHeight}, isInk) > 0.02;
    }

    little::Timelines trip;
    TimelineStrip &strip = trip.timelines.mainTimeline();
    const absl::TimeZone zone = absl::FixedTimeZone(-5 * 3600);
    const Zones zones;
    const FilterContext filters{zones};
    const StripMetrics metrics = stripMetrics(QFont(), 128);
    const PaintPalette palette = paletteOf(false);
    const double cell = metrics.geometry.cellWidth();
};

TEST_F(Strip, asksOnlyWhatIsInView) {
    strip.scrollX = 3 * cell + 20;
    std::string asked;
    layOutStrip({strip, metrics, filters, zone,
                 [&](const MySinglePicPtr &pic, CellData &) { asked += pic->spName; }});
    EXPECT_EQ(asked, "defgh");
}

TEST_F(Strip, daysKeepTheirTitlesInSight) {
    const double border = 5 * cell + 16; // where the second day begins
    EXPECT_TRUE(isText(drawAt(0), 16, 80));
    EXPECT_TRUE(isText(drawAt(2.4 * cell), 0, 80)) << "sticks to the left edge";
    const Canvas both = drawAt(3 * cell);
    EXPECT_TRUE(isText(both, 0, 80));
    EXPECT_TRUE(isText(both, border - 3 * cell, 80));
    EXPECT_FALSE(isText(both, 200, border - 3 * cell - 201));
    // The next day pushes it out, and the two never overlap.
    const Canvas pushed = drawAt(border - 30);
    EXPECT_TRUE(isText(pushed, 30, 80));
    EXPECT_FALSE(isText(pushed, 23, 6)) << "room between the two";

    strip.scrollX = 3 * cell;
    const StripPicture picture = layOut();
    ASSERT_EQ(picture.chapters.size(), 2U);
    EXPECT_EQ(picture.chapters[0].title, QStringLiteral("Tue, 30 Apr 2024"));
    EXPECT_EQ(picture.chapters[1].title, QStringLiteral("Wed, 1 May 2024"));
    EXPECT_EQ(picture.chapters[1].left, border - 3 * cell);
    EXPECT_EQ(picture.cells.front().data.label, QStringLiteral("21:00:00"));
}

TEST_F(Strip, tellsASelectionAndTheFolderInQuestion) {
    trip.act("b +c");
    strip.theDrawerSelection = trip.canon->folderSortGeneral;
    const StripPicture picture = layOut();
    EXPECT_EQ(picture.cells[1].data.selection, CellSelection::Member);
    EXPECT_EQ(picture.cells[2].data.selection, CellSelection::Main);
    EXPECT_EQ(picture.cells[3].data.selection, CellSelection::None);
    EXPECT_TRUE(picture.cells[0].data.isInDrawer);
    EXPECT_FALSE(picture.cells[1].data.isInDrawer);
}

TEST_F(Strip, showsWhatADragWouldGive) {
    const auto drag = DateDrag::begin(trip.pic('a'), trip.timelines, strip, absl::Seconds(60));
    ASSERT_TRUE(drag);
    drag->moveTo({DragType::Onto, 3});
    ShownDrag live{
        [&](const MySinglePic &pic) { return drag->tempTimeDuringLiveMod(pic); },
        [&](const MySinglePicPtr &pic) { return pic->spSingleRealFolder() == trip.canon; },
        {DragType::Onto, 2}};
    const StripPicture picture = layOut(&live);
    EXPECT_EQ(picture.cells[0].data.label, QStringLiteral("20:00:00"));
    EXPECT_FALSE(picture.cells[0].data.isMoving);
    EXPECT_TRUE(picture.cells[1].data.isMoving);

    struct Case {
        DragType type;
        double x; ///< from the left edge of cell 2
    };
    const double middle = metrics.geometry.borderMarginVertical + 64;
    for (const Case &each :
         {Case{DragType::Between, 0}, Case{DragType::OuterEdge, 0}, Case{DragType::SecondBefore, 4},
          Case{DragType::SecondAfter, 140}, Case{DragType::Onto, 5}}) {
        live.target = {each.type, 2};
        const Canvas canvas = draw(layOut(&live));
        const double left = 16 + 2 * cell;
        EXPECT_TRUE(Canvas::isNear(canvas.at({left + each.x, middle}), palette.dropTarget))
            << static_cast<int>(each.type);
        EXPECT_FALSE(Canvas::isNear(canvas.at({left + 72, middle}), palette.dropTarget));
    }
}

TEST_F(Strip, keepsTheCallOutInView) {
    StripPicture picture = layOut();
    for (const QPointF pointer : {QPointF(590, 2), QPointF(-40, 170), QPointF(300, 100)}) {
        picture.callOut = {pointer, QStringLiteral("27 Oct 2024 10:00:05"), QStringLiteral("+1")};
        const Canvas with = draw(picture);
        EXPECT_GT(with.share({0, 0, 600, metrics.height}, palette.window) * 600 * metrics.height,
                  3000)
            << pointer.x();
    }
}

TEST_F(Strip, looksTheSameAtTwiceThePixels) {
    trip.act("b +c");
    const StripPicture picture = layOut();
    const QImage usual = draw(picture).image;
    QImage fine = draw(picture, 2).image;
    fine.setDevicePixelRatio(1);
    ASSERT_EQ(fine.size(), usual.size() * 2);
    fine = fine.scaled(usual.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    double difference = 0;
    for (int y = 0; y < usual.height(); ++y)
        for (int x = 0; x < usual.width(); ++x)
            difference += std::abs(qGray(usual.pixel(x, y)) - qGray(fine.pixel(x, y)));
    EXPECT_LT(difference / (usual.width() * usual.height()), 2);
}

TEST_F(Strip, saysWhenItIsEmpty) {
    strip.theSource.clear();
    StripPicture picture = layOut();
    EXPECT_TRUE(picture.chapters.empty());
    const QRectF all(0, 0, 600, metrics.height);
    EXPECT_EQ(draw(picture).share(all, palette.dimText), 0);
    picture.emptyText = QStringLiteral("Nothing");
    EXPECT_GT(draw(picture).share(all, palette.dimText), 0);
}

} // namespace
} // namespace chronomender
