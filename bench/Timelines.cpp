// SPDX-License-Identifier: GPL-3.0-or-later
#include "Timelines.h"

#include "DateDrag.h"
#include "SourceBuilder.h"
#include "Trip.h"

#include <algorithm>
#include <map>

namespace chronomender::bench {
namespace {

using Clock = std::chrono::steady_clock;

template<class Work>
std::chrono::duration<double> timeOf(Work work) {
    const auto begin = Clock::now();
    work();
    return Clock::now() - begin;
}

bool isInOrder(const std::vector<MySinglePicPtr> &list) {
    return std::ranges::is_sorted(
        list, {}, [](const MySinglePicPtr &pic) { return pic->spDateTimeModified_sort(); });
}

} // namespace

struct Timelines::Trip {
    Zones zones;
    UndoManager undo;
    SourceViews views;
    MyDroppedFolders folders;
    MyTimelinesController timelines{undo, [] {}};
    std::optional<CompiledPredicate> predicate;
    std::optional<SourceBuilder> builder;
    std::size_t itemCount = 0;
    TripCounts counts;

    MySingleFolder &first() { return *folders.droppedFolders().front(); }
    void makeBuilder() {
        builder.emplace(folders, timelines, views, [this] {
            return SourceRestrictions{.predicate = predicate ? &*predicate : nullptr};
        });
    }
    void build(Refilter refilter) {
        builder->buildNewSourceWithNewSelectionOption(NewSelection::Choose, refilter);
    }
    bool isComplete() const {
        const auto &list = builder->source_full();
        return list.size() == itemCount && isInOrder(list) && timelines.source_filtered() == list;
    }
};

Timelines::Timelines(std::size_t itemCount) : m_trip(std::make_unique<Trip>()) {
    Trip &trip = *m_trip;
    trip.itemCount = itemCount;
    trip.counts = addTrip(trip.folders, trip.zones, itemCount);
    trip.makeBuilder();
    trip.build(Refilter::FullBuild);
}

Timelines::~Timelines() = default;

Timelines &Timelines::ofSize(std::size_t itemCount) {
    static std::map<std::size_t, Timelines> trips;
    return trips.try_emplace(itemCount, itemCount).first->second;
}

Timelines::Figure Timelines::firstBuild() {
    m_trip->makeBuilder();
    const auto time = timeOf([&] { m_trip->build(Refilter::FullBuild); });
    return {time, m_trip->isComplete() ? m_trip->itemCount : 0};
}

Timelines::Figure Timelines::fullRebuild() {
    absl::Duration &shift = m_trip->first().sfDateModificationsTimeInterval;
    const absl::Duration before = shift;
    shift = before + absl::Seconds(5);
    const auto time = timeOf([&] { m_trip->build(Refilter::FullBuild); });
    const bool isRight = m_trip->isComplete();
    shift = before;
    m_trip->build(Refilter::FullBuild);
    return {time, isRight && m_trip->isComplete() ? m_trip->itemCount : 0};
}

Timelines::Figure Timelines::refilterByText() {
    return refilter("spName CONTAINS[c] \"7\"", m_trip->counts.namesWith7);
}

Timelines::Figure Timelines::refilterByState() {
    return refilter("filter_miscState_6 == 1", m_trip->counts.alerts);
}

Timelines::Figure Timelines::refilter(const char *predicate, std::size_t expected) {
    const auto parsed = parsePredicate(predicate);
    const auto *filter = std::get_if<Predicate>(&parsed);
    if (!filter)
        return {};
    m_trip->predicate.emplace(*filter, FilterContext{m_trip->zones});
    const auto time = timeOf([&] { m_trip->build(Refilter::RefilterOnly); });
    const bool isRight = m_trip->timelines.source_filtered().size() == expected &&
                         m_trip->builder->filteredImagesCount() == m_trip->itemCount - expected;
    m_trip->predicate.reset();
    m_trip->build(Refilter::RefilterOnly);
    return {time, isRight && m_trip->isComplete() ? m_trip->itemCount : 0};
}

Timelines::Figure Timelines::dragStep() {
    TimelineStrip &strip = m_trip->timelines.mainTimeline();
    const auto &shots = m_trip->first().sfPicDetails_fullArray;
    const auto drag =
        DateDrag::begin(shots[shots.size() / 2], m_trip->timelines, strip, absl::Seconds(60));
    if (!drag)
        return {};
    constexpr std::size_t steps = 20;
    bool isRight = true;
    std::chrono::duration<double> sum{};
    for (std::size_t step = 1; step <= steps; ++step) {
        const auto target = static_cast<std::int64_t>(step * strip.theSource.size() / (steps + 1));
        sum += timeOf([&] { drag->moveTo({DragType::Between, target}); });
        const auto &shown = strip.shown();
        isRight = isRight && shown.size() == m_trip->itemCount &&
                  std::ranges::is_sorted(shown, {}, [&](const MySinglePicPtr &pic) {
                      return drag->tempTimeDuringLiveMod(*pic);
                  });
    }
    return {sum / steps, isRight ? shots.size() : 0};
}

Timelines::Figure Timelines::visibleRange() {
    constexpr std::size_t queries = 100'000;
    constexpr double width = 1600;
    const TimelineGeometry &geometry = m_trip->timelines.mainTimeline().geometry;
    const auto count = static_cast<std::int64_t>(m_trip->itemCount);
    const double cell = geometry.cellWidth();
    const auto shown = static_cast<std::int64_t>(width / cell);
    bool isRight = true;
    const auto time = timeOf([&] {
        for (std::size_t query = 0; query < queries; ++query) {
            const auto item = static_cast<std::int64_t>(query) % (count - 2 * shown);
            const IndexRange range = geometry.visibleThumbsRangeExtendedBy(
                0, 0, static_cast<double>(item) * cell, width, count);
            isRight = isRight && range.begin <= item && range.end >= item + shown &&
                      range.count() <= shown + 3;
        }
    });
    return {time / queries, isRight ? m_trip->itemCount : 0};
}

} // namespace chronomender::bench
