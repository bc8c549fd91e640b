// SPDX-License-Identifier: GPL-3.0-or-later
#include "CellMarks.h"

#include "DaylightSavingChecks.h"
#include "ItemAlerts.h"
#include "MySingleFolder.h"

#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace chronomender {
namespace {

bool isClockDoubtful(const MySinglePic &pic, const FilterContext &context) {
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    return hasBundleDstDivergence(pic) || hasBundleDstAmbiguityAtImport(pic) ||
           (folder && hasBundleDstAmbiguityAtExport(pic, *folder, context.zones));
}

bool isDateDoubtful(const MySinglePic &pic, const FilterContext &context) {
    return isMetaLessWith70Problem(pic) || hasEmptyMetaTagsAndThatsImportant(pic, context) ||
           hasBundleMinorDateDifferencesAndThatsImportant(pic) ||
           hasBundleMajorDateDifference(pic) || hasIgnoredEmbeddedMetasAndThatsImportant(pic) ||
           isPreferringFileDateAndThatsImportant(pic) || hasGroupDivergenceAndThatsImportant(pic);
}

CellMarks kindMark(const MySinglePic &pic) {
    if (const MySinglePicPtr &dependent = pic.group.bundleDependentImage)
        return dependent->isMovie() ? MarkLivePhoto : MarkRawAndJpeg;
    return pic.isMovie() ? CellMarks{MarkMovie} : CellMarks{0};
}

// Shapes in a square of side 1.

QPainterPath star() {
    constexpr int tips = 5;
    QPolygonF points;
    for (int i = 0; i < 2 * tips; ++i) {
        const double angle = std::numbers::pi * i / tips, radius = i % 2 ? 0.21 : 0.5;
        points << QPointF(0.5 + radius * std::sin(angle), 0.53 - radius * std::cos(angle));
    }
    QPainterPath path;
    path.addPolygon(points);
    path.closeSubpath();
    return path;
}

QPainterPath cross() {
    QPainterPath bar;
    bar.addRoundedRect(-0.5, -0.1, 1, 0.2, 0.08, 0.08);
    const auto turned = [&](double degrees) {
        return QTransform().translate(0.5, 0.5).rotate(degrees).map(bar);
    };
    return turned(45).united(turned(-45));
}

/// "!" as a hole.
QPainterPath exclamation(double top, double bottom) {
    QPainterPath path;
    const double dot = 0.14, gap = 0.07;
    path.addRoundedRect(0.43, top, 0.14, bottom - top - dot - gap, 0.05, 0.05);
    path.addEllipse(0.43, bottom - dot, dot, dot);
    return path;
}

QPainterPath triangle() {
    QPainterPath path;
    path.addPolygon(QPolygonF({{0.5, 0.02}, {1, 0.95}, {0, 0.95}}));
    path.closeSubpath();
    return path.subtracted(exclamation(0.32, 0.86));
}

QPainterPath disc(double radius) {
    QPainterPath path;
    path.addEllipse(QPointF(0.5, 0.5), radius, radius);
    return path;
}

QPainterPath errorDisc() {
    return disc(0.5).subtracted(exclamation(0.2, 0.82));
}

/// "?" as a hole in a disc: nobody knows where the file is.
QPainterPath question() {
    QPainterPath line(QPointF(0.34, 0.38));
    line.cubicTo(0.34, 0.12, 0.68, 0.14, 0.67, 0.37);
    line.cubicTo(0.66, 0.5, 0.5, 0.48, 0.5, 0.64);
    QPainterPathStroker pen;
    pen.setWidth(0.12);
    QPainterPath hole = pen.createStroke(line);
    hole.addEllipse(QPointF(0.5, 0.79), 0.08, 0.08);
    hole.setFillRule(Qt::WindingFill);
    return disc(0.5).subtracted(hole);
}

QPainterPath twoSheets() {
    QPainterPath back, front;
    back.addRect(0.3, 0.02, 0.68, 0.68);
    front.addRect(0.02, 0.3, 0.68, 0.68);
    QPainterPath rim;
    rim.addRect(-0.06, 0.22, 0.84, 0.84);
    return back.subtracted(rim).united(front);
}

QPainterPath rings() {
    return disc(0.5).subtracted(disc(0.36)).united(disc(0.2));
}

QPainterPath play() {
    QPainterPath path;
    path.addPolygon(QPolygonF({{0.16, 0.04}, {0.96, 0.5}, {0.16, 0.96}}));
    path.closeSubpath();
    return path;
}

QPainterPath savedNot() {
    return disc(0.38);
}

enum class Corner : std::uint8_t { TopLeft, TopRight, BottomLeft, BottomRight };
constexpr std::size_t cornerCount = 4;

struct Sign {
    CellMark mark;
    Corner corner;
    QColor PaintPalette::*color;
    QPainterPath (*shape)();
};
/// Signs of one corner stand one behind the other along the edge, in this order.
constexpr std::array<Sign, 10> signs{{
    {MarkKeeper, Corner::TopLeft, &PaintPalette::keeper, star},
    {MarkRejected, Corner::TopLeft, &PaintPalette::rejected, cross},
    {MarkMissing, Corner::TopRight, &PaintPalette::danger, question},
    {MarkError, Corner::TopRight, &PaintPalette::danger, errorDisc},
    {MarkClockDanger, Corner::TopRight, &PaintPalette::danger, triangle},
    {MarkAlert, Corner::TopRight, &PaintPalette::warning, triangle},
    {MarkRawAndJpeg, Corner::BottomLeft, &PaintPalette::text, twoSheets},
    {MarkLivePhoto, Corner::BottomLeft, &PaintPalette::text, rings},
    {MarkMovie, Corner::BottomLeft, &PaintPalette::text, play},
    {MarkUnsaved, Corner::BottomRight, &PaintPalette::unsaved, savedNot},
}};

/// The same shapes are drawn on every thumbnail of every frame.
const QPainterPath &shapeOf(std::size_t sign) {
    static const auto shapes = [] {
        std::array<QPainterPath, signs.size()> made;
        std::ranges::transform(signs, made.begin(), [](const Sign &each) { return each.shape(); });
        return made;
    }();
    return shapes[sign];
}

double signSide(const QRectF &thumb) {
    return std::round(std::clamp(thumb.width() / 7, 12.0, 20.0));
}

QRectF placeOf(const QRectF &thumb, Corner corner, int rank) {
    const double side = signSide(thumb), margin = 2, step = (side + 1) * rank;
    const bool isRight = corner == Corner::TopRight || corner == Corner::BottomRight;
    const bool isBottom = corner == Corner::BottomLeft || corner == Corner::BottomRight;
    const double x = isRight ? thumb.right() - margin - side - step : thumb.left() + margin + step;
    return {x, isBottom ? thumb.bottom() - margin - side : thumb.top() + margin, side, side};
}

void paintSign(QPainter &painter, const QRectF &place, const QColor &color,
               const QPainterPath &shape, const PaintPalette &palette) {
    constexpr double round = 0.25, inset = 0.12;
    QColor ground = palette.window;
    ground.setAlphaF(0.9F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(place, round * place.width(), round * place.width());
    const double side = place.width() * (1 - 2 * inset);
    painter.save();
    painter.translate(place.topLeft() + QPointF(inset, inset) * place.width());
    painter.scale(side, side);
    painter.setBrush(color);
    painter.drawPath(shape);
    painter.restore();
}

} // namespace

CellMarks cellMarks(const MySinglePic &pic, const FilterContext &context) {
    const FileUnchangedState file = pic.bundleUnchangedState();
    const bool isMissing = file == FileUnchangedState::NotFound;
    const bool isOther = file != FileUnchangedState::Unchanged && !isMissing;
    const std::pair<bool, CellMark> questions[] = {
        {pic.marks.isKeeper, MarkKeeper},
        {pic.marks.isRejected, MarkRejected},
        {isClockDoubtful(pic, context), MarkClockDanger},
        {isDateDoubtful(pic, context), MarkAlert},
        {isOther || hasBundleSaveError(pic) || pic.rename.hasRenameError != 0, MarkError},
        {isMissing, MarkMissing},
        {!pic.importState.isLeftAlone && pic.isUnsavedOrGroupHarmonized(), MarkUnsaved},
    };
    CellMarks marks = kindMark(pic);
    for (const auto &[isTrue, mark] : questions)
        if (isTrue)
            marks |= mark;
    return marks;
}

void paintMarks(QPainter &painter, const QRectF &thumb, CellMarks marks,
                const PaintPalette &palette) {
    if (marks == 0)
        return;
    std::array<int, cornerCount> ranks{};
    painter.setRenderHint(QPainter::Antialiasing, true);
    for (std::size_t i = 0; i < signs.size(); ++i) {
        const Sign &sign = signs[i];
        if (!(marks & sign.mark))
            continue;
        const int rank = ranks[static_cast<std::size_t>(sign.corner)]++;
        paintSign(painter, placeOf(thumb, sign.corner, rank), palette.*sign.color, shapeOf(i),
                  palette);
    }
}

QRectF markPlace(const QRectF &thumb, CellMark mark) {
    return placeOf(thumb, std::ranges::find(signs, mark, &Sign::mark)->corner, 0);
}

} // namespace chronomender
