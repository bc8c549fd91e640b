// SPDX-License-Identifier: GPL-3.0-or-later
#include "InspectorFacts.h"

#include "DateTexts.h"
#include "DisplayZone.h"
#include "ItemTexts.h"
#include "MyCompoundFolder.h"
#include "SlotViews.h"
#include "StampConversions.h"
#include "Texts.h"
#include "TimeTexts.h"
#include "ZoneLookup.h"

#include <algorithm>
#include <cmath>

namespace chronomender {
namespace {

/// Rows with something to say.
class Facts {
public:
    void add(const char *key, std::string value, bool isMixed = false) {
        if (!value.empty())
            m_rows.push_back({text(key), std::move(value), isMixed});
    }
    void addMixed(const char *key) { add(key, text("inspector_mixed"), true); }
    /// What items say together, in `words`; nothing where none of them says anything.
    template<class Value, class Words>
    void add(const char *key, const Combined<Value> &shared, Words words) {
        if (shared.isMixed())
            addMixed(key);
        else if (shared.value)
            add(key, std::string(words(*shared.value)));
    }
    std::vector<FactRow> take() { return std::move(m_rows); }

private:
    std::vector<FactRow> m_rows;
};

std::string sizeText(const MySinglePic &pic) {
    const CameraInfo &camera = pic.camera;
    if (camera.pivImageWidth <= 0 || camera.pivImageHeight <= 0)
        return {};
    return std::to_string(camera.pivImageWidth) + " × " + std::to_string(camera.pivImageHeight);
}

std::string durationText(double seconds) {
    return seconds < 0 ? std::string() : spanText(absl::Seconds(std::ceil(seconds)));
}

std::string arrow(const std::string &from, const std::string &to) {
    return from == to ? from : from + " → " + to;
}

std::string zonesOf(const MySinglePic &pic, const MySingleFolder &folder, const Zones &zones) {
    return arrow(sourceTimeZoneForPic(pic, folder, zones).name,
                 targetTimeZoneForPic(pic, folder, zones).name);
}

absl::Duration wayOf(const NewDateContext &liveContext) {
    return liveContext.drag ? liveContext.drag->tempMoveDateByDuringLiveMod : absl::ZeroDuration();
}

std::vector<FactRow> factsOf(const MySinglePic &pic, const MySingleFolder &folder,
                             const NewDateContext &liveContext, const Zones &zones) {
    Facts facts;
    facts.add("inspector_dateFrom", sourceText(pic));
    facts.add("inspector_zones", zonesOf(pic, folder, zones));
    facts.add("inspector_shift", shiftText(pic.presentShift() + wayOf(liveContext)));
    facts.add("inspector_camera", pic.camera.pivMakeModel);
    facts.add("inspector_lens", pic.camera.lens);
    facts.add("inspector_size", sizeText(pic));
    facts.add("inspector_duration", durationText(pic.movie.movDuration));
    facts.add("inspector_location", locationText(pic));
    return facts.take();
}

/// The slot that an item's date comes from; "" for the types that have none.
std::string_view sourceSlotName(SpType type) {
    const auto isAnyOf = [type](auto... types) { return ((type == types) || ...); };
    if (isAnyOf(SpTypeExifOriginal, SpTypeMovieRiff, SpTypeMovieMvhdCreation, SpTypeMovieMdta))
        return "exifDateTimeOriginal";
    if (type == SpTypeExifDigitized)
        return "exifDateTimeDigitized";
    if (isAnyOf(SpTypeTiffDateTime, SpTypeMovieMvhdModification))
        return "tiffDateTime";
    return {};
}

std::vector<SlotRow> slotsOf(const MySinglePic &pic, const MySingleFolder &folder,
                             const NewDateContext &liveContext, const Zones &zones) {
    const auto copy = std::make_shared<MySinglePic>(pic);
    NewDateContext context = liveContext;
    context.isSavingInProgress = false; // what a save calculates, it keeps in a copy of its own
    calculateNewDates(*copy, context);
    std::vector<SlotRow> rows;
    const char *kind = pic.isMovie() ? "slot_movie_" : "slot_";
    for (const SlotView &view : slotViews(*copy, folder, zones)) {
        const bool isFileDate = view.name.starts_with("file");
        SlotRow row;
        row.label = text((isFileDate ? "slot_" : kind) + std::string(view.name));
        row.oldText = view.oldDate ? readableText(*view.oldDate, view.oldZone) : "–";
        row.newText = newDateText(view);
        row.remark = view.isStorable ? std::string() : resultText(view, SlotTense::Planned);
        row.isSource = view.name == sourceSlotName(pic.spType);
        rows.push_back(std::move(row));
    }
    return rows;
}

FileFacts fileFacts(const MySinglePic &pic, const MySingleFolder &folder,
                    const NewDateContext &liveContext, const Zones &zones) {
    return {{}, factsOf(pic, folder, liveContext, zones), slotsOf(pic, folder, liveContext, zones)};
}

std::vector<RowNote> notesOf(const MySinglePic &pic) {
    std::vector<RowNote> notes;
    if (isUnsaved(pic))
        notes.push_back({text("inspector_unsaved"), RowTone::Unsaved});
    if (pic.importState.isLeftAlone)
        notes.push_back({text("inspector_leftAlone"), RowTone::Plain});
    if (pic.importState.isExtraHardLink)
        notes.push_back({text("inspector_hardLinks"), RowTone::Plain});
    return notes;
}

InspectorFacts ofOne(const MySinglePic &pic, const MySingleFolder &folder,
                     const NewDateContext &liveContext, const FilterContext &context) {
    InspectorFacts facts;
    facts.title = nameWithCompanions(pic);
    facts.folder = folder.sfFolder;
    facts.colorIndex = folder.colorIndex;
    facts.date = dayAndTimeText(shifted(pic.spDateTimeModified(), wayOf(liveContext)),
                                displayZone(pic, folder, context.zones));
    facts.notes = notesOf(pic);
    facts.alerts = alertRows(pic, context);
    facts.files.push_back(fileFacts(pic, folder, liveContext, context.zones));
    if (const MySinglePicPtr &dependent = pic.group.bundleDependentImage) {
        facts.files.push_back(fileFacts(*dependent, folder, liveContext, context.zones));
        facts.files.front().title = pic.spName;
        facts.files.back().title = dependent->spName;
    }
    return facts;
}

/// What several items say together.
class Shared {
public:
    explicit Shared(const FilterContext &context) : m_context(context) {}

    void add(const MySinglePic &pic) {
        const MySingleFolderPtr folder = pic.spSingleRealFolder();
        if (!folder)
            return;
        m_folder.add(folder);
        m_source.add({pic.spType, pic.isDataSourceXmp()});
        m_shift.add(pic.presentShift());
        m_camera.add(pic.camera.pivMakeModel);
        m_lens.add(pic.camera.lens);
        m_zoneSource.add(sourceTimeZoneForPic(pic, *folder, m_context.zones).name);
        m_zoneTarget.add(targetTimeZoneForPic(pic, *folder, m_context.zones).name);
        m_unsaved += isUnsaved(pic) ? 1 : 0;
        addDate(pic);
        if (!m_first)
            m_first = &pic;
    }

    InspectorFacts facts(std::size_t count) const {
        InspectorFacts facts;
        facts.title = countText("inspector_items", static_cast<std::int64_t>(count));
        facts.folder = m_folder.value ? (*m_folder.value)->sfFolder : text("inspector_folders");
        facts.colorIndex = m_folder.value ? (*m_folder.value)->colorIndex : noColorIndex;
        facts.date = range();
        if (m_unsaved > 0)
            facts.notes.push_back(
                {countText("inspector_unsavedItems", m_unsaved), RowTone::Unsaved});
        facts.files.push_back({{}, rows(), {}});
        return facts;
    }

private:
    void addDate(const MySinglePic &pic) {
        const Date date = pic.spDateTimeModified();
        if (isMarker(date) || !pic.hasCorrectableDate())
            return;
        m_from = std::min(m_from, date);
        m_till = std::max(m_till, date);
    }

    std::string range() const {
        const MySingleFolderPtr folder = m_first ? m_first->spSingleRealFolder() : nullptr;
        if (!folder || m_from > m_till)
            return {};
        const absl::TimeZone zone = displayZone(*m_first, *folder, m_context.zones);
        const std::string from = dayAndTimeText(m_from, zone), till = dayAndTimeText(m_till, zone);
        return from == till ? from : from + " – " + till;
    }

    std::vector<FactRow> rows() const {
        const auto itself = [](std::string_view words) { return words; };
        Facts facts;
        facts.add("inspector_dateFrom", m_source, [&](auto) { return sourceText(*m_first); });
        if (m_zoneSource.isMixed() || m_zoneTarget.isMixed())
            facts.addMixed("inspector_zones");
        else if (m_zoneSource.value)
            facts.add("inspector_zones",
                      arrow(std::string(*m_zoneSource.value), std::string(*m_zoneTarget.value)));
        facts.add("inspector_shift", m_shift, shiftText);
        facts.add("inspector_camera", m_camera, itself);
        facts.add("inspector_lens", m_lens, itself);
        return facts.take();
    }

    const FilterContext &m_context;
    const MySinglePic *m_first = nullptr;
    Combined<MySingleFolderPtr> m_folder;
    Combined<std::pair<SpType, bool>> m_source;
    Combined<absl::Duration> m_shift;
    Combined<std::string_view> m_camera, m_lens, m_zoneSource, m_zoneTarget;
    std::int64_t m_unsaved = 0;
    Date m_from = InfiniteFuture(), m_till = InfinitePast();
};

} // namespace

InspectorFacts inspectorFacts(const std::vector<MySinglePicPtr> &pics,
                              const NewDateContext &liveContext, const FilterContext &context) {
    if (pics.empty())
        return {};
    if (pics.size() == 1) {
        const MySingleFolderPtr folder = pics.front()->spSingleRealFolder();
        return folder ? ofOne(*pics.front(), *folder, liveContext, context) : InspectorFacts();
    }
    Shared shared(context);
    for (const MySinglePicPtr &pic : pics)
        shared.add(*pic);
    InspectorFacts facts = shared.facts(pics.size());
    facts.alerts = alertRows(pics, context);
    return facts;
}

} // namespace chronomender
