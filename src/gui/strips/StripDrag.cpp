// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripDrag.h"

#include "Controls.h"
#include "DragZones.h"
#include "TimeTexts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace chronomender {
namespace {

/// By place: what a drop there means, and how it is told.
struct Place {
    DragType dragType;
    const char *textKey;
};
constexpr std::array<Place, StripDrag::placesOfItem + 1> places{{
    {DragType::Between, "strip_targetInFront"},
    {DragType::SecondBefore, "strip_targetSecondBefore"},
    {DragType::Onto, "strip_targetOnto"},
    {DragType::SecondAfter, "strip_targetSecondAfter"},
    {DragType::Between, "strip_targetBehind"},
}};
constexpr int gapInFront = 0, gapBehind = StripDrag::placesOfItem;

int placeOf(DragTarget target, std::int64_t cell) {
    if (target.dragType == DragType::OuterEdge || target.dragType == DragType::Between)
        return target.index > cell ? gapBehind : gapInFront;
    return static_cast<int>(std::ranges::find(places, target.dragType, &Place::dragType) -
                            places.begin());
}

} // namespace

std::unique_ptr<StripDrag> StripDrag::begin(WindowSession &session, const MySinglePicPtr &pic,
                                            TimelineStrip &strip) {
    auto drag = session.controller().beginDateDrag(pic, strip);
    if (!drag)
        return nullptr;
    return std::unique_ptr<StripDrag>(new StripDrag(session, pic, strip, std::move(drag)));
}

StripDrag::StripDrag(WindowSession &session, const MySinglePicPtr &pic, TimelineStrip &strip,
                     std::unique_ptr<DateDrag> drag)
    : m_session(session),
      m_main(pic),
      m_strip(&strip),
      m_scrollAtStart(strip.scrollX),
      m_drag(std::move(drag)) {
    m_live.date = [this](const MySinglePic &each) { return m_drag->tempTimeDuringLiveMod(each); };
    m_live.isMoving = [this](const MySinglePicPtr &each) { return m_drag->isMoving(each); };
    m_session.setDateDrag(m_drag.get());
}

StripDrag::~StripDrag() {
    m_session.setDateDrag(nullptr);
}

TimelineStrip *StripDrag::presentStrip() {
    const auto strips = m_session.timelines().visibleTimelines();
    return std::ranges::find(strips, m_strip) == strips.end() ? nullptr : m_strip;
}

bool StripDrag::isTargetItem(const MySinglePicPtr &pic) const {
    return !m_drag->isMoving(pic) && !isMarker(pic->spDateTimeModified_sort());
}

std::vector<MySinglePicPtr> StripDrag::targetItems(const TimelineStrip &strip) const {
    std::vector<MySinglePicPtr> items;
    std::ranges::copy_if(strip.theSource, std::back_inserter(items),
                         [this](const auto &pic) { return isTargetItem(pic); });
    return items;
}

std::int64_t StripDrag::shownIndex(const MySinglePic &pic) const {
    return m_drag->tempIdxFullDuringLiveMod(pic).value_or(m_strip->indexOf(pic).value_or(0));
}

std::optional<StripDrag::Aim> StripDrag::aimAtPointer(const TimelineStrip &strip, double x) const {
    const TimelineGeometry &geometry = strip.geometry;
    const auto at = static_cast<float>(x);
    const auto found = dragTargetAtHorizontalMouseLocation(geometry, at, strip.count());
    if (found.dragType == DragType::None)
        return std::nullopt;
    const std::int64_t cell = geometry.picIndexAtHorizontalMouseLocation(at, true, strip.count());
    const auto &shown = strip.shown();
    const MySinglePicPtr &pic = shown[static_cast<std::size_t>(cell)];
    const bool isBeside = geometry.picIndexAtHorizontalMouseLocation(at, false, strip.count()) < 0;
    if (isTargetItem(pic))
        return Aim{pic, placeOf(found, cell)};
    if (!isBeside)
        return std::nullopt;
    // Left or right of all items the outermost of those that stay is meant.
    const auto isTarget = [this](const auto &each) { return isTargetItem(each); };
    if (found.index > cell) {
        const auto last = std::find_if(shown.rbegin(), shown.rend(), isTarget);
        return last == shown.rend() ? std::nullopt : std::optional(Aim{*last, gapBehind});
    }
    const auto first = std::ranges::find_if(shown, isTarget);
    return first == shown.end() ? std::nullopt : std::optional(Aim{*first, gapInFront});
}

DragTarget StripDrag::target(const TimelineStrip &strip, const Aim &aim) const {
    const auto index = strip.indexOf(*aim.pic);
    if (!index)
        return {};
    const auto &list = strip.theSource;
    const auto at = list.begin() + *index;
    const auto isStaying = [this](const auto &pic) { return !m_drag->isMoving(pic); };
    if (aim.place == gapInFront && std::none_of(list.begin(), at, isStaying))
        return {DragType::OuterEdge, 0};
    if (aim.place == gapBehind && std::none_of(at + 1, list.end(), isStaying))
        return {DragType::OuterEdge, std::ssize(list)};
    return {places[static_cast<std::size_t>(aim.place)].dragType,
            aim.place == gapBehind ? *index + 1 : *index};
}

/// The same place in the list as it is shown, at the side of the item that is pointed at.
DragTarget StripDrag::shownTarget(const TimelineStrip &strip, const Aim &aim) const {
    const DragTarget inList = target(strip, aim);
    return {inList.dragType, shownIndex(*aim.pic) + (aim.place == gapBehind ? 1 : 0)};
}

void StripDrag::moveTo(TimelineStrip &strip, const Aim &aim, const MySinglePicPtr &anchor) {
    const std::int64_t before = shownIndex(*anchor);
    m_drag->moveTo(target(strip, aim));
    m_aim = aim;
    m_live.target = shownTarget(strip, aim);
    strip.scrollX +=
        double{strip.geometry.cellWidth()} * static_cast<double>(shownIndex(*anchor) - before);
    m_session.setDateDrag(m_drag.get());
}

void StripDrag::pointTo(double x) {
    TimelineStrip *strip = presentStrip();
    const auto aim = strip ? aimAtPointer(*strip, x) : std::nullopt;
    if (aim && !(m_aim && m_aim->pic == aim->pic && m_aim->place == aim->place))
        moveTo(*strip, *aim, aim->pic);
}

void StripDrag::pointNowhere() {
    m_drag->moveTo({});
    m_aim.reset();
    m_live.target = {};
    m_session.setDateDrag(m_drag.get());
}

void StripDrag::listChanged() {
    TimelineStrip *strip = presentStrip();
    if (!strip || !m_aim || !strip->indexOf(*m_aim->pic))
        return pointNowhere();
    moveTo(*strip, *m_aim, m_aim->pic);
}

void StripDrag::stepTo(const std::vector<MySinglePicPtr> &items, std::int64_t place) {
    TimelineStrip *strip = presentStrip();
    if (!strip || items.empty())
        return;
    const std::int64_t last = std::ssize(items) * placesOfItem;
    place = std::clamp<std::int64_t>(place, 0, last);
    // The gap behind the last item is the only one that no item is behind.
    const std::int64_t index = place == last ? std::ssize(items) - 1 : place / placesOfItem;
    const Aim aim{items[static_cast<std::size_t>(index)],
                  static_cast<int>(place - index * placesOfItem)};
    moveTo(*strip, aim, m_main);
    scrollTo(strip->scrollX);
}

void StripDrag::step(int steps) {
    TimelineStrip *strip = presentStrip();
    if (!strip)
        return;
    const std::vector<MySinglePicPtr> items = targetItems(*strip);
    const MySinglePicPtr &from = m_aim ? m_aim->pic : m_main;
    const auto next =
        std::ranges::lower_bound(items, from->positions.indexInSource_full, {},
                                 [](const auto &pic) { return pic->positions.indexInSource_full; });
    const std::int64_t present =
        (next - items.begin()) * placesOfItem + (m_aim ? m_aim->place : gapInFront);
    stepTo(items, present + steps);
}

void StripDrag::stepToEnd(bool isLast) {
    if (TimelineStrip *strip = presentStrip()) {
        const std::vector<MySinglePicPtr> items = targetItems(*strip);
        stepTo(items, isLast ? std::ssize(items) * placesOfItem : 0);
    }
}

void StripDrag::scrollTo(double scrollX) {
    if (TimelineStrip *strip = presentStrip())
        strip->scrollX = strip->geometry.clampedScrollX(scrollX, strip->width, strip->count());
}

void StripDrag::commit() {
    if (!hasTarget())
        return cancel();
    const double place = m_strip->geometry.centerOf(mainIndex()) - m_strip->scrollX;
    DateChangeOutcome outcome = DateChangeOutcome::NothingChanged;
    const bool isDone = m_session.edit(
        [&](AppController &controller) { outcome = controller.commitDateDrag(*m_drag); });
    if (!isDone)
        return cancel();
    m_session.tellOutcome(outcome);
    const TimelineStrip *strip = presentStrip();
    if (const auto index = strip ? strip->indexOf(*m_main) : std::nullopt)
        scrollTo(strip->geometry.scrollPicToPosition(
            *index, std::clamp(place, 0.0, std::max(0.0, strip->width))));
}

void StripDrag::cancel() {
    m_drag->cancel();
    scrollTo(m_scrollAtStart);
}

QString StripDrag::proposedDate() const {
    return qString(dayAndTimeText(m_drag->tempTimeDuringLiveMod(*m_main),
                                  m_session.zones().systemZone().rules));
}

QString StripDrag::shift() const {
    return qString(shiftText(m_drag->tempMoveDateByDuringLiveMod()));
}

QString StripDrag::spoken() const {
    if (!m_aim)
        return qText("strip_moving", {m_main->spName});
    const Place &place = places[static_cast<std::size_t>(m_aim->place)];
    QString words = proposedDate();
    for (const QString &part : {shift(), qText(place.textKey, {m_aim->pic->spName})})
        if (!part.isEmpty())
            words += QStringLiteral(", ") + part;
    return words;
}

} // namespace chronomender
