// SPDX-License-Identifier: GPL-3.0-or-later
#include "Timelines.h"

#include "DateDrag.h"
#include "SourceBuilder.h"
#include "StampConversions.h"

#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <string>

namespace chronomender::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t folderCount = 20, firstFolderShare = 10;
constexpr std::size_t alertEvery = 40, groupEvery = 25, shiftEvery = 7;

struct Camera {
    const char *prefix, *make, *model;
};
constexpr std::array<Camera, 2> cameras{
    {{"IMG_", "Canon", "Canon EOS R5"}, {"DSC_", "NIKON CORPORATION", "NIKON Z 6"}}};

std::string nameOf(const Camera &camera, std::size_t number, const char *extension) {
    const std::string digits = std::to_string(number % 10'000);
    return camera.prefix + std::string(4 - digits.size(), '0') + digits + extension;
}

void fill(MySinglePic &pic, const Camera &camera, const Zone &zone) {
    const Date date = pic.spDateTimeOriginal;
    const auto record = [&](StampSlot slot, std::optional<LocatedBytes> &value) {
        value = LocatedBytes{100, 20, *exifDataFromDate(date, zone.rules)};
        pic.slots.*description(slot).oldDate = date;
    };
    record(StampSlot::Original, pic.singlePicAttributes.exifDateTimeOriginal);
    record(StampSlot::Digitized, pic.singlePicAttributes.exifDateTimeDigitized);
    record(StampSlot::Modification, pic.singlePicAttributes.tiffDateTime);
    pic.slots.fileModificationDateOLD = date;
    pic.camera.make = camera.make;
    pic.camera.model = camera.model;
    pic.camera.pivMakeModel = completeMakerModelString(camera.make, camera.model);
}

void addJpeg(const MySinglePicPtr &raw, const MySingleFolderPtr &folder, const Zone &zone) {
    const std::string name = raw->spBaseName() + ".JPG";
    auto jpeg = MySinglePic::create(name, folder, SpTypeExifOriginal, raw->spDateTimeOriginal);
    fill(*jpeg, cameras[0], zone);
    raw->fileFormatType = FileFormatRaw;
    raw->group.bundleDependentImage = jpeg;
    jpeg->group.bundleMasterImage = raw;
    folder->bundleDependentsRawAndJPG.push_back(std::move(jpeg));
}

/// Folders come in pairs: two cameras on the same days, a third of the shots in bursts.
void addShots(const MySingleFolderPtr &folder, std::size_t index, std::size_t count,
              const Zone &zone) {
    std::mt19937 random(static_cast<unsigned>(index) + 1);
    const Camera &camera = cameras[index % cameras.size()];
    Date date = absl::FromCivil(
        absl::CivilSecond(2024, 5, 1 + 4 * static_cast<int>(index / cameras.size()), 9),
        zone.rules);
    for (std::size_t i = 0; i < count; ++i) {
        if (random() % 3 != 0)
            date += absl::Seconds(1 + random() % 60);
        const bool isGroup = i % groupEvery == 0;
        auto pic = MySinglePic::create(nameOf(camera, 1 + i, isGroup ? ".CR3" : ".JPG"), folder,
                                       SpTypeExifOriginal, date);
        fill(*pic, camera, zone);
        if (isGroup)
            addJpeg(pic, folder, zone);
        if (i % shiftEvery == 0)
            pic->shift.singlePicModification = absl::Seconds(30);
        folder->sfPicDetails_fullArray.push_back(std::move(pic));
    }
}

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
    std::size_t itemCount = 0, alerts = 0, namesWith7 = 0;

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
    const Zone home = *trip.zones.zoneWithName("Europe/Berlin");
    trip.zones.setSystemZone(home);
    const std::size_t first = itemCount / firstFolderShare;
    std::size_t left = itemCount - first;
    for (std::size_t i = 0; i < folderCount; ++i) {
        auto folder =
            MySingleFolder::initWithFolder("/trip/" + std::to_string(i), nullptr,
                                           i % 4 == 3 ? EditMode::Single : EditMode::Together);
        const std::size_t count = i == 0 ? first : left / (folderCount - i);
        left -= i == 0 ? 0 : count;
        addShots(folder, i, count, home);
        if (i % 5 == 1)
            folder->sfDateModificationsTimeInterval = absl::Seconds(3);
        if (i % 3 == 1)
            folder->targetTimeZones.folderDefault =
                ZoneChoice::named(*trip.zones.zoneWithName("Asia/Tokyo"));
        trip.folders.append(folder);
        for (std::size_t j = 0; j < count; ++j) {
            MySinglePic &pic = *folder->sfPicDetails_fullArray[j];
            trip.namesWith7 += pic.spName.find('7') != std::string::npos;
            if (j % alertEvery != 0)
                continue;
            pic.save.saveErrorType = 1;
            ++trip.alerts;
        }
    }
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
    return refilter("spName CONTAINS[c] \"7\"", m_trip->namesWith7);
}

Timelines::Figure Timelines::refilterByState() {
    return refilter("filter_miscState_6 == 1", m_trip->alerts);
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
