// SPDX-License-Identifier: GPL-3.0-or-later
//
// Long random sequences of everything that a user does to the visible list. After every step the
// list is held against one made in the plainest way; in the end everything is taken back.
#include "AlternativeReading.h"
#include "DateDrag.h"
#include "FilterSourceController.h"
#include "LittleItem.h"
#include "Marking.h"
#include "NaturalCompare.h"
#include "SourceBuilder.h"
#include "ZoneChange.h"
#include "ZoneLookup.h"

#include <gtest/gtest.h>

#include <random>

namespace chronomender {
namespace {

using namespace little;

constexpr int sequences = 200, stepsOfEach = 100;

/// A filter and the same question asked directly.
struct Filter {
    const char *text;
    bool (*matches)(const MySinglePic &);
};
constexpr Filter filters[] = {
    {"spName CONTAINS[cd] \"img\"",
     [](const MySinglePic &pic) { return pic.spName.starts_with("IMG"); }},
    {"NOT spName ENDSWITH[c] \"9.JPG\" AND filter_mediaType == 0",
     [](const MySinglePic &pic) {
         return !pic.spName.ends_with("9.jpg") && !pic.group.bundleDependentImage;
     }},
    {"filter_rating != -1", [](const MySinglePic &pic) { return !pic.marks.isRejected; }},
    {"filter_miscState_0 == 1",
     [](const MySinglePic &pic) { return pic.isUnsavedOrGroupHarmonized(); }},
    {"filter_mediaType == 3 OR filter_dateTimeModified < \"2024-10-27T00:30:00Z\"",
     [](const MySinglePic &pic) {
         return pic.group.bundleDependentImage ||
                (pic.hasCorrectableDate() &&
                 pic.spDateTimeModified_sort() < utc(2024, 10, 27, 0, 30));
     }},
    {"spName == \"nothing\"", [](const MySinglePic &) { return false; }},
};

/// Everything about an item that a correction can change.
std::string factsOf(const MySinglePic &pic) {
    std::string facts = utcText(pic.spDateTimeOriginal) + ' ' + utcText(pic.spDateTimeModified()) +
                        ' ' + absl::FormatDuration(pic.shift.singlePicModification);
    for (const SlotDescription &slot : slotDescriptions)
        for (const OptionalDate &date : {pic.slots.*slot.oldDate, pic.slots.*slot.newDate})
            facts += ' ' + (date ? utcText(*date) : "-");
    const ZoneFlags &zones = pic.zones;
    for (const std::int64_t number : std::initializer_list<std::int64_t>{
             static_cast<std::int64_t>(pic.spType), zones.isUnsavedDueToTZC,
             zones.dstDivergenceState, zones.dstAmbiguityAtImportState,
             zones.usesAltTimeAtAmbiguityReason, zones.majorDateDifferenceType, pic.marks.isKeeper,
             pic.marks.isRejected, pic.save.shouldAddExifDateTimeTags,
             pic.positions.indexInSource_full, pic.positions.indexInFolder_full})
        facts += ' ' + std::to_string(number);
    return facts;
}

std::string factsOf(const MySingleFolder &folder) {
    const DateModificationFields &shown = folder.sfDateModifications;
    std::string facts =
        std::to_string(static_cast<int>(folder.sfEditMode)) + ' ' +
        absl::FormatDuration(folder.sfDateModificationsTimeInterval) + ' ' + shown.dmDirection +
        shown.dmDays + ':' + shown.dmHours + ':' + shown.dmMinutes + ':' + shown.dmSeconds + ' ' +
        std::to_string(folder.hasChangedDirection) + std::to_string(folder.singlePicModeImages) +
        ' ' + utcText(*folder.sfFrom) + ' ' + utcText(*folder.sfTill);
    for (const ZoneAssignments *side : {&folder.sourceTimeZones, &folder.targetTimeZones}) {
        facts += side->folderDefault ? ' ' + side->folderDefault->persistedName() : " -";
        for (const auto &[id, choice] : side->ofItems)
            facts += ' ' + std::to_string(id) + '=' + choice.persistedName();
    }
    return facts;
}

/// A session with folders of both modes, equal dates, pairs and a night whose hour repeats.
class SessionSteps {
public:
    explicit SessionSteps(unsigned seed) : m_random(seed) {
        m_zones.setSystemZone(zone("Europe/Berlin"));
        m_defaults.setForThisRun("isFilterActive", "1");
        for (const EditMode mode : {EditMode::Together, EditMode::Single, EditMode::Single})
            addFolder(mode);
        MySingleFolder &third = *m_folders.droppedFolders()[2];
        assignZones(
            third,
            {ZoneChoice::named(zone("Europe/London")), ZoneChoice::named(zone("Asia/Tokyo"))},
            m_zones, 3);
        sfUpdatePicsFromAndTill(third);
        m_timelines.addTimelineOfMode(TimelineKind::Shelf, false);
        m_builder.buildNewSource();
    }

    std::string facts() const {
        std::string all;
        for (const MySingleFolderPtr &folder : m_folders.droppedFolders())
            all += factsOf(*folder) + '\n';
        for (const MySinglePicPtr &pic : m_builder.source_full())
            all += pic->spName + ' ' + factsOf(*pic) +
                   (m_timelines.source_allShelfs().contains(pic) ? " on the shelf\n" : "\n");
        return all;
    }

    void step() {
        switch (below(11)) {
        case 0:
            return shiftFolder();
        case 1:
            return shiftItems();
        case 2:
        case 3:
            return drag();
        case 4:
            return filter(below(2) ? &filters[below(std::size(filters))] : nullptr);
        case 5:
        case 6:
            return select();
        case 7:
            return shelf();
        case 8:
            return below(2) ? readOtherwise() : changeMode();
        case 9:
            return mark();
        default:
            return backAndForth();
        }
    }

    void takeEverythingBack() {
        filter(nullptr);
        while (m_undo.canUndo())
            undo();
    }

    void check() const {
        const auto full = plainlySorted();
        ASSERT_EQ(m_builder.source_full(), full);
        std::vector<MySinglePicPtr> shown, hidden, shelf;
        for (const MySinglePicPtr &pic : full) {
            const bool isHidden = m_filter && !m_filter->matches(*pic);
            const bool isOnShelf = m_timelines.source_allShelfs().contains(pic);
            if (isHidden)
                hidden.push_back(pic);
            else
                (isOnShelf ? shelf : shown).push_back(pic);
        }
        ASSERT_EQ(m_timelines.source_filtered(), shown);
        ASSERT_EQ(m_builder.allFilteredImages(), hidden);
        ASSERT_EQ(m_builder.filteredImagesCount(), hidden.size());
        if (m_timelines.hasShelf()) {
            ASSERT_EQ(m_timelines.secondTimeline()->theSource, shelf);
        }
        checkIndices(full, shown);
        if (m_selection == NewSelection::Keep)
            return;
        for (const MySinglePicPtr &pic : m_timelines.mainTimeline().selection.pics())
            ASSERT_TRUE(m_builder.isVisible(*pic)) << pic->spName << " is selected unseen";
    }

private:
    void addFolder(EditMode mode) {
        const MySingleFolderPtr folder = makeFolder(mode);
        m_folders.append(folder);
        for (int number = 7; number < 15; ++number) {
            const auto date = utc(2024, 10, 27, 0, 25) + absl::Minutes(5) * below(12);
            const auto name = (below(2) ? "IMG_" : "dsc_") + std::to_string(number) + ".jpg";
            const MySinglePicPtr pic = addItem(folder, SpTypeExifOriginal, date, name);
            pic->slots.exifDateTimeOriginalOLD = date;
            pic->singlePicAttributes.exifDateTimeOriginal =
                located(absl::FormatTime("%E4Y:%m:%d %H:%M:%S", date, zone("Europe/Berlin").rules));
            updateAllDatesAfterUpdatingTimezone(*pic, *folder, m_zones, 3);
        }
        addItem(folder, SpTypeUnsupported, InfinitePast(), "IMG_0.xyz");
        const auto raw = addItem(folder, SpTypeExifOriginal, utc(2024, 10, 27, 1), "IMG_20.cr2");
        makeDependent(addItem(folder, SpTypeExifOriginal, utc(2024, 10, 27, 1), "IMG_20.jpg"), raw);
        sfUpdatePicsFromAndTill(*folder);
    }

    int below(std::size_t end) {
        return std::uniform_int_distribution<int>(0, static_cast<int>(end) - 1)(m_random);
    }
    const MySingleFolderPtr &anyFolder() {
        return m_folders.droppedFolders()[static_cast<std::size_t>(below(3))];
    }
    MySinglePicPtr anyPic(const std::vector<MySinglePicPtr> &pics) {
        return pics.empty() ? nullptr : pics[static_cast<std::size_t>(below(pics.size()))];
    }
    absl::Duration anyShift() { return absl::Milliseconds(500) * (below(4000) - 2000); }
    void rebuild(Refilter refilter) {
        m_selection = below(2) ? NewSelection::Choose : NewSelection::Keep;
        m_builder.buildNewSourceWithNewSelectionOption(m_selection, refilter);
    }

    void shiftFolder() {
        const MySingleFolderPtr &folder = anyFolder();
        if (folder->sfEditMode == EditMode::Together)
            dragChangedDates(anyShift(), *folder, m_undo);
        rebuild(Refilter::FullBuild);
    }
    void shiftItems() {
        const MySingleFolderPtr &folder = anyFolder();
        const auto &pics = folder->sfPicDetails_fullArray;
        if (folder->sfEditMode == EditMode::Single)
            dragMovesValuesBy(anyShift(), {pics[static_cast<std::size_t>(below(4))], pics[5]},
                              m_undo);
        rebuild(Refilter::FullBuild);
    }
    void changeMode() {
        const MySingleFolderPtr &folder = anyFolder();
        const bool isSingle = folder->sfEditMode == EditMode::Single;
        changeEditMode(*folder, isSingle ? EditMode::Together : EditMode::Single, m_undo);
        rebuild(Refilter::FullBuild);
    }
    void readOtherwise() {
        useAmbiguityAlternative({anyPic(anyFolder()->sfPicDetails_fullArray)},
                                AlternativeTarget::Master, below(2) == 1, m_zones, m_undo);
        rebuild(Refilter::FullBuild);
    }
    void filter(const Filter *filter) {
        m_filter = filter;
        m_selection = NewSelection::Choose;
        if (!filter)
            return m_filters.didChangePredicate(std::nullopt);
        const auto parsed = parsePredicate(filter->text);
        ASSERT_TRUE(std::holds_alternative<Predicate>(parsed)) << filter->text;
        m_filters.didChangePredicate(std::get<Predicate>(parsed));
    }
    void select() {
        TimelineStrip &strip = m_timelines.mainTimeline();
        const MySinglePicPtr pic = anyPic(strip.theSource);
        if (!pic)
            return;
        if (below(2))
            m_timelines.simpleSelectThumb(pic, strip);
        else
            m_timelines.multiSelectAllFrom(pic, strip);
    }
    void shelf() {
        TimelineStrip *second = m_timelines.secondTimeline();
        if (below(2) || !second) {
            m_timelines.addSelectionFromToShelf(m_timelines.mainTimeline(), true);
        } else if (const MySinglePicPtr pic = anyPic(second->theSource)) {
            m_timelines.simpleSelectThumb(pic, *second);
            m_timelines.addSelectionFromToShelf(*second, false);
        }
    }
    void mark() {
        constexpr Rating ratings[] = {Rating::None, Rating::Keeper, Rating::Rejected};
        const PicSet marked = m_timelines.mainTimeline().selection.pics();
        m_marking.setRating({marked.begin(), marked.end()}, ratings[below(3)]);
    }
    void drag() {
        TimelineStrip &strip = m_timelines.mainTimeline();
        const MySinglePicPtr dragged = anyPic(strip.theSource);
        const auto drag =
            dragged ? DateDrag::begin(dragged, m_timelines, strip, absl::Minutes(1)) : nullptr;
        if (!drag)
            return;
        const std::string before = facts();
        for (int move = 0; move < 3; ++move)
            drag->moveTo({static_cast<DragType>(below(6)), below(strip.theSource.size() + 1)});
        ASSERT_EQ(facts(), before) << "a drag under way changes nothing";
        const auto expected = strip.shown();
        if (below(4) == 0) {
            drag->cancel();
            ASSERT_EQ(facts(), before);
            return;
        }
        const DateChangeOutcome outcome = drag->commit(m_undo);
        rebuild(Refilter::FullBuild);
        if (outcome == DateChangeOutcome::Done && !m_filter) {
            ASSERT_EQ(m_timelines.source_filtered(), expected) << "dropped as it was shown";
        }
    }
    void undo() {
        m_undo.undo();
        rebuild(Refilter::FullBuild);
    }
    void backAndForth() {
        for (int times = below(4); times > 0; --times)
            undo();
        for (int times = below(4); times > 0; --times)
            m_undo.redo();
        rebuild(Refilter::FullBuild);
    }

    std::vector<MySinglePicPtr> plainlySorted() const {
        std::vector<MySinglePicPtr> pics;
        for (const MySingleFolderPtr &folder : m_folders.droppedFolders())
            pics.insert(pics.end(), folder->sfPicDetails_fullArray.begin(),
                        folder->sfPicDetails_fullArray.end());
        const NaturalCompare natural;
        std::ranges::sort(pics, [&](const MySinglePicPtr &a, const MySinglePicPtr &b) {
            if (a->spDateTimeModified_sort() != b->spDateTimeModified_sort())
                return a->spDateTimeModified_sort() < b->spDateTimeModified_sort();
            const int names = natural.compare(a->spName, b->spName);
            return names != 0 ? names < 0
                              : std::pair(a->spCategory(), a->sessionUniqueId) <
                                    std::pair(b->spCategory(), b->sessionUniqueId);
        });
        return pics;
    }

    void checkIndices(const std::vector<MySinglePicPtr> &full,
                      const std::vector<MySinglePicPtr> &shown) const {
        std::map<MySingleFolderPtr, std::int64_t> next, nextVisible;
        std::int64_t place = 0, visiblePlace = 0;
        for (const MySinglePicPtr &pic : full) {
            const MySingleFolderPtr folder = pic->spSingleRealFolder();
            const ListPositions &at = pic->positions;
            ASSERT_EQ(at.indexInSource_full, place++) << pic->spName;
            ASSERT_EQ(at.indexInFolder_full, next[folder]++) << pic->spName;
            const bool isHidden = m_filter && !m_filter->matches(*pic);
            const bool isOnShelf = m_timelines.source_allShelfs().contains(pic);
            if (!isHidden && (!isOnShelf || m_timelines.hasShelf())) {
                ASSERT_EQ(at.indexInFolder_filtered, nextVisible[folder]++) << pic->spName;
            }
            if (!isHidden && !isOnShelf) {
                ASSERT_EQ(at.indexInSource_filtered, visiblePlace++) << pic->spName;
            }
        }
        ASSERT_EQ(static_cast<std::size_t>(visiblePlace), shown.size());
    }

    std::mt19937 m_random;
    Zones m_zones;
    UserDefaults m_defaults;
    UndoManager m_undo;
    SourceViews m_views;
    MyDroppedFolders m_folders;
    const Filter *m_filter = nullptr;
    NewSelection m_selection = NewSelection::Keep; ///< of the last build
    MyTimelinesController m_timelines{m_undo, [this] { rebuild(Refilter::FullBuild); }};
    FilterSourceController m_filters{
        m_defaults, m_zones, m_views, [this](NewSelection selection, Refilter refilter) {
            m_builder.buildNewSourceWithNewSelectionOption(selection, refilter);
        }};
    Marking m_marking{m_undo,
                      [this](std::string_view key) { m_filters.filterRelevantChangeWasMade(key); }};
    SourceBuilder m_builder{m_folders, m_timelines, m_views, [this] {
                                return SourceRestrictions{m_filters.compiled(), nullptr, {}};
                            }};
};

TEST(SessionSequences, KeepTheListTrueAndCanBeTakenBackToTheBit) {
    for (unsigned seed = 1; seed <= sequences; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        SessionSteps session(seed);
        const std::string first = session.facts();
        for (int step = 0; step < stepsOfEach && !testing::Test::HasFatalFailure(); ++step) {
            SCOPED_TRACE("step " + std::to_string(step));
            session.step();
            session.check();
        }
        session.takeEverythingBack();
        session.check();
        ASSERT_EQ(session.facts(), first);
        if (testing::Test::HasFatalFailure())
            return;
    }
}

} // namespace
} // namespace chronomender
