// SPDX-License-Identifier: GPL-3.0-or-later
#include "CellPainter.h"

#include "Canvas.h"
#include "LittleItem.h"

#include <tuple>

namespace chronomender {
namespace {

const QColor magenta(255, 0, 255);

class Cell : public ::testing::TestWithParam<std::tuple<bool, double>> {
protected:
    static void SetUpTestSuite() { needApplication(); }

    Canvas draw(const CellData &cell) {
        return {QSizeF(240, metrics.height + 40), palette.strip,
                [&](QPainter &painter) { paintCell(painter, places, cell, metrics, palette); },
                std::get<1>(GetParam())};
    }
    /// All that may be drawn of an item at once.
    static CellData full() {
        CellData cell;
        cell.image = picture(200, 100);
        cell.picture = CellPicture::Ready;
        cell.colorIndex = 0;
        cell.isInDrawer = cell.hasCursor = cell.isMoving = true;
        cell.selection = CellSelection::Main;
        cell.marks = 0x3FF;
        cell.label = QStringLiteral("a label far too long for any cell at all");
        return cell;
    }
    static QImage picture(int width, int height) {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(QColor(0, 90, 255));
        return image;
    }

    const PaintPalette palette = paletteOf(std::get<0>(GetParam()));
    const StripMetrics metrics = stripMetrics(QFont(), 128);
    const CellPlaces places{metrics, 40, false};
    const QColor blue{0, 90, 255};
};

TEST_P(Cell, staysWithinItsPlace) {
    const CellPlaces lowered(metrics, 40, true);
    const Canvas canvas(
        {240, metrics.height + 40}, magenta,
        [&](QPainter &painter) { paintCell(painter, lowered, full(), metrics, palette); },
        std::get<1>(GetParam()));
    const QRectF &cell = lowered.cell;
    const double right = canvas.share({cell.right(), 0, 50, metrics.height + 40}, magenta);
    EXPECT_EQ(right, 1);
    EXPECT_EQ(canvas.share({0, 0, cell.left(), metrics.height + 40}, magenta), 1);
    EXPECT_EQ(canvas.share({0, 0, 240, cell.top()}, magenta), 1);
    EXPECT_EQ(canvas.share({0, cell.bottom(), 240, 40}, magenta), 1);
    EXPECT_LT(canvas.share(cell, magenta), 0.6);
    EXPECT_GE(lowered.label.bottom(), lowered.bar.bottom() + metrics.labelHeight - 0.1);
    EXPECT_LE(lowered.label.bottom(), cell.bottom()) << "the lowest label is cut off";
}

TEST_P(Cell, tellsFolderAndSelectionApart) {
    CellData cell = full();
    cell.hasCursor = false;
    cell.colorIndex = 1;
    const QPointF atFrame(places.frame.left() + 1, places.frame.center().y());
    const QPointF atThumb(places.thumb.left() - 1, places.frame.center().y());
    const Canvas main = draw(cell);
    EXPECT_TRUE(Canvas::isNear(main.at(atFrame), palette.mainSelection));
    EXPECT_TRUE(Canvas::isNear(main.at(places.bar.center()), palette.folderColors[1]));
    cell.selection = CellSelection::Member;
    cell.colorIndex = noColorIndex;
    const Canvas member = draw(cell);
    EXPECT_TRUE(Canvas::isNear(member.at(atFrame), palette.strip));
    EXPECT_TRUE(Canvas::isNear(member.at(atThumb), palette.selection));
    EXPECT_TRUE(Canvas::isNear(member.at(places.bar.center()), palette.dimText));
    cell.selection = CellSelection::None;
    EXPECT_TRUE(Canvas::isNear(draw(cell).at(atThumb), palette.strip));
}

TEST_P(Cell, showsPicturesInTheirShape) {
    struct Case {
        QSize size;
        bool isOwnSize;
        QSizeF shown;
    };
    for (const Case &each : {Case{{200, 100}, false, {126, 63}}, Case{{50, 100}, false, {63, 126}},
                             Case{{40, 30}, true, {40, 30}}, Case{{300, 300}, true, {126, 126}}}) {
        CellData cell;
        cell.image = picture(each.size.width(), each.size.height());
        cell.isOwnSize = each.isOwnSize;
        const double covered = draw(cell).share(places.thumb, blue) * 128 * 128;
        const double wanted = each.shown.width() * each.shown.height();
        EXPECT_NEAR(covered, wanted, wanted * 0.03) << each.size.width();
    }
    CellData rejected = full();
    rejected.isMoving = false;
    const QPointF center = places.thumb.center();
    rejected.marks = 0;
    const QColor usual = draw(rejected).at(center);
    rejected.marks = MarkRejected;
    EXPECT_FALSE(Canvas::isNear(draw(rejected).at(center), usual));
}

TEST_P(Cell, drawsEverySignInItsColor) {
    const std::pair<CellMark, QColor> signs[] = {
        {MarkKeeper, palette.keeper},      {MarkRejected, palette.rejected},
        {MarkClockDanger, palette.danger}, {MarkAlert, palette.warning},
        {MarkError, palette.danger},       {MarkMissing, palette.danger},
        {MarkUnsaved, palette.unsaved},    {MarkRawAndJpeg, palette.text},
        {MarkLivePhoto, palette.text},     {MarkMovie, palette.text}};
    CellData cell;
    cell.image = picture(128, 128);
    for (const auto &[mark, color] : signs) {
        const QRectF place = markPlace(places.thumb, mark);
        cell.marks = mark;
        EXPECT_GT(draw(cell).share(place, color), 0.1) << mark;
        EXPECT_GT(contrast(color, palette.window), 3) << mark;
        cell.marks = 0;
        EXPECT_EQ(draw(cell).share(place, color), 0) << mark;
    }
    // Several in one corner do not cover each other.
    cell.marks = MarkError | MarkAlert;
    const QRectF row = markPlace(places.thumb, MarkError).adjusted(-20, 0, 0, 0);
    EXPECT_GT(draw(cell).share(row, palette.danger), 0.05);
    EXPECT_GT(draw(cell).share(row, palette.warning), 0.05);
}

TEST_P(Cell, labelsAndPlaceholdersCanBeRead) {
    CellData cell;
    cell.label = QStringLiteral("10:00:05");
    cell.caption = QStringLiteral("MKV");
    const auto legible = [](const QColor &ground) {
        return [ground](const QColor &each) { return contrast(each, ground) > 3; };
    };
    EXPECT_GT(contrast(palette.dimText, palette.strip), 4.5);
    EXPECT_GT(contrast(palette.dimText, palette.cell), 4.5);
    const Canvas pending = draw(cell);
    EXPECT_GT(pending.share(places.label, legible(palette.strip)), 0.02);
    const QRectF inner = places.thumb.adjusted(4, 4, -4, -4);
    EXPECT_GT(pending.share(inner, legible(palette.cell)), 0.005);
    cell.picture = CellPicture::Unsupported;
    EXPECT_NE(draw(cell).image, pending.image) << "no picture looks like one to come";
}

INSTANTIATE_TEST_SUITE_P(Looks, Cell, testing::Combine(testing::Bool(), testing::Values(1.0, 2.0)),
                         [](const auto &test) {
                             return std::string(std::get<0>(test.param) ? "dark" : "light") +
                                    (std::get<1>(test.param) > 1 ? "_200" : "_100");
                         });

TEST(CellMarks, tellWhatIsTrueOfAnItem) {
    const Zones zones;
    struct Case {
        CellMarks wanted;
        std::function<void(const MySinglePicPtr &)> change;
    };
    const auto add = [](SpType type, const char *name) {
        return [=](const MySinglePicPtr &pic) {
            little::makeDependent(
                little::addItem(pic->spSingleRealFolder(), type, pic->spDateTimeOriginal, name),
                pic);
        };
    };
    const Case cases[] = {
        {0, [](const MySinglePicPtr &) {}},
        {MarkKeeper, [](auto &pic) { pic->marks.isKeeper = true; }},
        {MarkRejected, [](auto &pic) { pic->marks.isRejected = true; }},
        {MarkClockDanger, [](auto &pic) { pic->zones.dstAmbiguityAtImportState = 1; }},
        {MarkClockDanger, [](auto &pic) { pic->zones.dstDivergenceState = 1; }},
        {MarkAlert, [](auto &pic) { pic->spType = SpTypeNoTagsFileDate; }},
        {MarkError | MarkUnsaved, [](auto &pic) { pic->save.saveErrorType = 4; }},
        {MarkError, [](auto &pic) { pic->rename.hasRenameError = 1; }},
        {MarkError,
         [](auto &pic) { pic->save.fileUnchangedState = FileUnchangedState::BytesDiffer; }},
        {MarkMissing,
         [](auto &pic) { pic->save.fileUnchangedState = FileUnchangedState::NotFound; }},
        {MarkUnsaved,
         [](auto &pic) {
             pic->spSingleRealFolder()->sfDateModificationsTimeInterval = absl::Seconds(3);
         }},
        {MarkRawAndJpeg, add(SpTypeExifOriginal, "IMG_1.CR3")},
        {MarkLivePhoto, add(SpTypeMovieMdta, "IMG_1.MOV")},
        {MarkMovie, [](auto &pic) { pic->spType = SpTypeMovieMvhdCreation; }},
    };
    int row = 0;
    for (const Case &each : cases) {
        const auto folder = little::makeFolder();
        const auto pic = little::addItem(folder, SpTypeExifOriginal, little::utc(2024, 5, 1, 10));
        each.change(pic);
        EXPECT_EQ(cellMarks(*pic, {zones}), each.wanted) << "row " << row;
        ++row;
    }
}

} // namespace
} // namespace chronomender
