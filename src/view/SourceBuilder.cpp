// SPDX-License-Identifier: GPL-3.0-or-later
#include "SourceBuilder.h"

#include "ItemPrefetch.h"

#include <algorithm>
#include <utility>

namespace chronomender {
namespace {

/// What takes an item out of the main list, and what a map has chosen.
enum Mark : std::uint8_t { Hidden = 1, OnShelf = 2, Chosen = 4 };

constexpr std::uint32_t tooManyBuilds = 25, lastBuild = 1;

bool isOnMainStrip(std::uint8_t marks) {
    return (marks & (Hidden | OnShelf)) == 0;
}

/// Which of the folders are among the open ones; all of them where none are given.
std::vector<bool> openFolders(const std::vector<MySingleFolderPtr> &all,
                              const std::optional<std::vector<MySingleFolderPtr>> &open) {
    std::vector<bool> isOpen;
    isOpen.reserve(all.size());
    for (const MySingleFolderPtr &folder : all)
        isOpen.push_back(!open || std::ranges::find(*open, folder) != open->end());
    return isOpen;
}

} // namespace

SourceBuilder::SourceBuilder(const MyDroppedFolders &folders, MyTimelinesController &timelines,
                             SourceViews &views, AskRestrictions restrictions)
    : m_folders(folders),
      m_timelines(timelines),
      m_views(views),
      m_restrictions(std::move(restrictions)) {}

void SourceBuilder::buildNewSource(const MySingleFolder *sender) {
    if (isBlockedThroughExpress >= tooManyBuilds)
        m_pauseBuildingSource = true;
    if (isBlockedThroughExpress == lastBuild)
        m_pauseBuildingSource = false;
    if (m_pauseBuildingSource && sender && sender->isEXIFIgnored)
        return;
    buildNewSourceWithNewSelectionOption(NewSelection::Keep, Refilter::FullBuild);
}

void SourceBuilder::buildNewSourceWithNewSelectionOption(NewSelection selection,
                                                         Refilter refilter) {
    const std::vector<TimelineStrip *> strips = selectableTimelines();
    for (std::size_t i = 0; i < strips.size(); ++i)
        m_selectionMemory[i].remember(*strips[i], m_views);
    buildNewSourceUsingOptimizedRefilterOnly(refilter);
    tellFilterStatus();

    bool hasIndexChanged = false;
    const std::vector<TimelineStrip *> present = selectableTimelines();
    for (std::size_t i = 0; i < std::min(strips.size(), present.size()); ++i) {
        SelectionMemory &memory = m_selectionMemory[i];
        memory.dropWhatIsGone(*present[i], source_full());
        if (selection == NewSelection::Choose)
            memory.bringThrough(*present[i], source_full(), m_views);
        hasIndexChanged = hasIndexChanged || memory.hasIndexChanged(*present[i]);
    }
    if (present.size() == 1)
        m_selectionMemory[1] = {};
    else if (selection == NewSelection::Choose)
        m_timelines.enforceSelectionExclusivityFor(m_timelines.focusedTimeline(), false);
    if (selection == NewSelection::Keep)
        m_views.restoreScrollPosition();
    if (hasIndexChanged)
        m_views.selectionIndexChanged();
}

void SourceBuilder::buildNewSourceUsingOptimizedRefilterOnly(Refilter refilter) {
    const bool isFullBuild = refilter == Refilter::FullBuild || source_full().empty();
    if (isFullBuild)
        m_order.sort(m_folders.droppedFolders());
    const std::vector<std::uint8_t> formerMarks = std::move(m_marks);
    markItems(m_restrictions());

    const bool isReplaced = isFullBuild || !isListUnchanged();
    if (isReplaced || m_marks != formerMarks) {
        std::vector<MySinglePicPtr> &present = m_timelines.mainTimeline().theSource;
        std::vector<MySinglePicPtr> list = numbered(std::move(present));
        if (isReplaced)
            m_timelines.setSource_filtered(std::move(list), false);
        else
            present = std::move(list);
    }
    const bool isShelfChanged = refreshShelf();
    if (isReplaced || isShelfChanged)
        m_views.sourceChanged();
    else
        m_views.addDateTimeLayers();
}

/// Items on a shelf can be hidden as well: they do not show there, then.
void SourceBuilder::markItems(const SourceRestrictions &restrictions) {
    m_marks.assign(source_full().size(), 0);
    m_filteredImagesCount = 0;
    mark(m_timelines.source_allShelfs(), OnShelf);
    const auto &[predicate, chosen, folders, _] = restrictions;
    const bool isAnyChosen = chosen && !chosen->empty();
    if (!predicate && !isAnyChosen && !folders)
        return;
    if (isAnyChosen)
        mark(*chosen, Chosen);
    const std::vector<bool> isOpen = openFolders(m_order.folders(), folders);
    // Items that move by arrow keys would leave the list under the user's hands.
    const bool keepsMembers = m_views.isArrowsLiveMoveEnabled();
    for (std::size_t i = 0; i < m_marks.size(); ++i) {
        prefetchAhead(source_full(), i);
        const MySinglePic &pic = *source_full()[i];
        const bool isLetThrough = keepsMembers ? isVisible(pic)
                                               : isOpen[m_order.folderIndexAt(i)] &&
                                                     (!isAnyChosen || (m_marks[i] & Chosen) != 0) &&
                                                     (!predicate || predicate->matches(pic));
        if (isLetThrough)
            continue;
        m_marks[i] |= Hidden;
        ++m_filteredImagesCount;
    }
}

void SourceBuilder::mark(const PicSet &pics, std::uint8_t mark) {
    for (const MySinglePicPtr &pic : pics)
        if (const auto position = m_order.positionOf(*pic))
            m_marks[*position] |= mark;
}

bool SourceBuilder::isListUnchanged() const {
    const std::vector<MySinglePicPtr> &present = m_timelines.source_filtered();
    std::size_t next = 0;
    for (std::size_t i = 0; i < m_marks.size(); ++i)
        if (isOnMainStrip(m_marks[i])) {
            if (next == present.size() || present[next] != source_full()[i])
                return false;
            ++next;
        }
    return next == present.size();
}

/// Gives the items their places among the visible ones; the list of the main strip.
std::vector<MySinglePicPtr> SourceBuilder::numbered(std::vector<MySinglePicPtr> former) {
    std::vector<MySinglePicPtr> list;
    list.reserve(static_cast<std::size_t>(std::ranges::count_if(m_marks, isOnMainStrip)));
    std::vector<std::int64_t> nextInFolder(m_order.folders().size());
    for (std::size_t i = 0; i < m_marks.size(); ++i) {
        if (i + kPrefetchDistance < m_marks.size())
            prefetch(&source_full()[i + kPrefetchDistance]->positions);
        const MySinglePicPtr &pic = source_full()[i];
        ListPositions &positions = pic->positions;
        positions.indexInFolder_filtered =
            m_marks[i] & Hidden ? -1 : nextInFolder[m_order.folderIndexAt(i)]++;
        const std::int64_t formerIndex = positions.indexInSource_filtered;
        positions.indexInSource_filtered = -1;
        if (!isOnMainStrip(m_marks[i]))
            continue;
        positions.indexInSource_filtered = std::ssize(list);
        list.push_back(takenFrom(former, formerIndex, pic));
    }
    return list;
}

/// Whether the shelf shows something else now.
bool SourceBuilder::refreshShelf() {
    const TimelineStrip *shelf = m_timelines.secondTimeline();
    if (!m_timelines.hasShelf() || m_timelines.source_allShelfs().empty())
        return false;
    std::vector<MySinglePicPtr> visible;
    for (std::size_t i = 0; i < m_marks.size(); ++i)
        if ((m_marks[i] & (Hidden | OnShelf)) == OnShelf)
            visible.push_back(source_full()[i]);
    const bool isChanged = visible != shelf->theSource;
    m_timelines.refreshShelfsAfterSourceUpdate(std::move(visible), [this](const MySinglePic &pic) {
        return m_order.positionOf(pic).has_value();
    });
    return isChanged;
}

void SourceBuilder::tellFilterStatus() {
    const Predicate *filter = m_restrictions().filter_finalPredicate;
    if (!filter || m_lastFilterPredicate == *filter)
        return;
    m_lastFilterPredicate = *filter;
    if (m_filteredImagesCount > 0)
        m_views.showFilterStatus(m_filteredImagesCount);
}

std::vector<TimelineStrip *> SourceBuilder::selectableTimelines() {
    std::vector<TimelineStrip *> strips{&m_timelines.mainTimeline()};
    if (TimelineStrip *second = m_timelines.secondTimeline())
        strips.push_back(second);
    return strips;
}

std::vector<MySinglePicPtr> SourceBuilder::allFilteredImages() const {
    std::vector<MySinglePicPtr> hidden;
    for (std::size_t i = 0; i < m_marks.size(); ++i)
        if (m_marks[i] & Hidden)
            hidden.push_back(source_full()[i]);
    return hidden;
}

bool SourceBuilder::isHiddenByFilter(const MySinglePic &pic) const {
    const auto position = m_order.positionOf(pic);
    return position && (m_marks[*position] & Hidden);
}

MySinglePicPtr SourceBuilder::nearestVisibleTo(const MySinglePicPtr &pic,
                                               const PicSet &candidates) const {
    return nearestShownTo(source_full(), pic, candidates, Shown::OnEither);
}

MySinglePicPtr SourceBuilder::nextVisibleAfter(const MySinglePicPtr &pic, bool useLooping) const {
    return nextShownAfter(source_full(), pic, useLooping, Shown::OnEither);
}

} // namespace chronomender
