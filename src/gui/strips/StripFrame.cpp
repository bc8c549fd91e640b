// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripFrame.h"

#include "StripWords.h"

#include <utility>

namespace chronomender {
namespace {

ThumbSide sideFor(double pixels) {
    if (pixels <= static_cast<int>(ThumbSide::Mini))
        return ThumbSide::Mini;
    return pixels <= static_cast<int>(ThumbSide::Normal) ? ThumbSide::Normal : ThumbSide::Maxi;
}

CellPicture pictureOf(ThumbState state) {
    switch (state) {
    case ThumbState::Ready:
        return CellPicture::Ready;
    case ThumbState::Unsupported:
        return CellPicture::Unsupported;
    case ThumbState::Pending:
        break;
    }
    return CellPicture::Pending;
}

} // namespace

StripPicture stripFrame(const StripShared &shared, const TimelineStrip &strip,
                        const StripMetrics &metrics, const MySinglePicPtr &cursor,
                        double pixelRatio) {
    WindowSession &session = shared.session;
    const FilterContext filters = shared.filters();
    std::optional<ShownDrag> live;
    if (shared.drag) {
        live = shared.drag->live();
        if (shared.drag->strip() != &strip)
            live->target = {};
    }
    const ThumbSide side = sideFor((shared.thumbSize - 2) * pixelRatio);
    const auto fill = [&](const MySinglePicPtr &pic, CellData &cell) {
        ThumbAnswer answer = shared.thumbnail(pic, side);
        cell.picture = pictureOf(answer.state);
        cell.image = std::move(answer.image);
        cell.isOwnSize = answer.isMiniFallBack;
        if (cell.image.isNull())
            cell.caption = kindText(*pic);
    };
    StripPicture picture = layOutStrip({strip, metrics, filters, session.zones().systemZone().rules,
                                        fill, live ? &*live : nullptr, cursor});
    if (strip.count() == 0)
        picture.emptyText = emptyStripText(session, strip);
    return picture;
}

double scrollXToShow(const TimelineStrip &strip, std::int64_t index) {
    const double middle = strip.geometry.centerOf(index), half = strip.geometry.cellWidth();
    const double left = strip.scrollX, right = left + strip.width;
    if (middle - half >= left && middle + half <= right)
        return left;
    if (middle < left - strip.width || middle > right + strip.width)
        return middle - strip.width / 2;
    return middle - half < left ? middle - half : middle + half - strip.width;
}

} // namespace chronomender
