// SPDX-License-Identifier: GPL-3.0-or-later
#include "Canvas.h"
#include "FolderRowPainter.h"
#include "PreviewPainter.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

const QColor magenta(255, 0, 255), blue(0, 90, 255);

/// Light and dark.
class PanelPainters : public ::testing::TestWithParam<bool> {
protected:
    static void SetUpTestSuite() { needApplication(); }

    FolderRowPicture row(const QString &name) const {
        FolderRowPicture picture;
        picture.swatch = magenta;
        picture.name = name;
        picture.count = QStringLiteral("14 items");
        picture.lines = {{{QStringLiteral("11 Apr 2026"), palette.dimText}},
                         {{QStringLiteral("14 unsaved"), palette.unsaved},
                          {QStringLiteral("1 alert"), palette.warning}}};
        return picture;
    }
    /// The row in the middle of a larger picture.
    Canvas draw(const FolderRowPicture &picture) const {
        return {QSizeF(300, 200), palette.window, [&](QPainter &painter) {
                    paintFolderRow(painter, placeOf(picture), picture, font, palette);
                }};
    }
    QRectF placeOf(const FolderRowPicture &picture) const {
        return {50, 50, 200, double(folderRowHeight(picture, font))};
    }

    QFont font;
    PaintPalette palette = paletteOf(GetParam());
};

TEST_P(PanelPainters, aRowStaysInItsPlaceAndKeepsItsCount) {
    const FolderRowPicture shortRow = row(QStringLiteral("canon"));
    const FolderRowPicture longRow = row(QString(80, QLatin1Char('m')));
    const QRectF place = placeOf(longRow);
    const Canvas canvas = draw(longRow);
    for (const QRectF &outside : {QRectF(0, 0, 300, 49), QRectF(0, 50, 49, 100),
                                  QRectF(251, 50, 49, 100), QRectF(0, place.bottom() + 1, 300, 20)})
        EXPECT_EQ(canvas.share(outside, palette.window), 1) << outside.top();
    EXPECT_GT(canvas.share(place, magenta), 0);
    // The count is drawn the same, however long the name is.
    const double width = QFontMetricsF(font).horizontalAdvance(longRow.count);
    const QRect count = QRectF(place.right() - width - 2, place.top(), width, 20).toRect();
    EXPECT_EQ(canvas.image.copy(count), draw(shortRow).image.copy(count));
}

TEST_P(PanelPainters, remarksCanBeReadOnASelectedRow) {
    FolderRowPicture selected = row({});
    selected.lines.clear();
    selected.isSelected = true;
    const QColor ground = draw(selected).at(placeOf(selected).center());
    EXPECT_FALSE(Canvas::isNear(ground, palette.window));
    for (const QColor &color :
         {palette.text, palette.dimText, palette.unsaved, palette.warning, palette.danger})
        EXPECT_GE(contrast(color, ground), 4.5) << color.name().toStdString();
}

TEST_P(PanelPainters, theMainShotIsTheLargestWhateverTheShape) {
    for (const QSizeF size : {QSizeF(1200, 300), QSizeF(800, 600), QSizeF(400, 900)}) {
        const std::array<QRectF, 3> places = previewPlaces(size, font);
        for (std::size_t i = 0; i < places.size(); ++i) {
            EXPECT_TRUE(QRectF({}, size).contains(places[i])) << size.width() << ' ' << i;
            EXPECT_FALSE(places[i].intersects(places[(i + 1) % 3])) << size.width() << ' ' << i;
            EXPECT_LE(places[i].width() * places[i].height(),
                      places[1].width() * places[1].height());
        }
        EXPECT_LT(places[0].center().x(), places[2].center().x());
    }
    EXPECT_EQ(previewPlaces({1200, 300}, font)[1].top(), 0);
    EXPECT_GT(previewPlaces({400, 900}, font)[0].top(), previewPlaces({400, 900}, font)[1].top());
}

TEST_P(PanelPainters, aPictureKeepsItsShape) {
    PreviewPicture preview;
    preview.image = QImage(200, 100, QImage::Format_RGB32);
    preview.image.fill(blue);
    preview.folder = magenta;
    const QRectF cell(0, 0, 300, 300), place = previewImagePlace(cell, font);
    const auto draw = [&] {
        return Canvas(cell.size(), palette.window, [&](QPainter &painter) {
            paintPreview(painter, cell, preview, font, palette);
        });
    };
    const double expected = place.width() * place.width() / 2 / (place.width() * place.height());
    EXPECT_NEAR(draw().share(place, blue), expected, 0.02);
    EXPECT_GT(draw().share(cell, magenta), 0);
    preview.image = {};
    preview.placeholder = QStringLiteral("No picture");
    EXPECT_GT(draw().share(place, palette.cell), 0.8);
    EXPECT_LT(draw().share(place, palette.cell), 1);
}

INSTANTIATE_TEST_SUITE_P(Appearance, PanelPainters, ::testing::Bool());

} // namespace
} // namespace chronomender
