// SPDX-License-Identifier: GPL-3.0-or-later
#include "SourceBuilder.h"

#include "DisplayOrder.h"

#include <iterator>
#include <unordered_map>

namespace chronomender {

struct SourceBuilder::Memory {};

SourceBuilder::SourceBuilder(const MyDroppedFolders &folders, MyTimelinesController &timelines,
                             SourceViews &views, AskRestrictions restrictions)
    : m_folders(folders),
      m_timelines(timelines),
      m_views(views),
      m_restrictions(std::move(restrictions)) {}

SourceBuilder::~SourceBuilder() = default;

void SourceBuilder::buildNewSource(const MySingleFolder *) {
    buildNewSourceUsingOptimizedRefilterOnly(Refilter::FullBuild);
}

void SourceBuilder::buildNewSourceWithNewSelectionOption(NewSelection, Refilter refilter) {
    buildNewSourceUsingOptimizedRefilterOnly(refilter);
}

void SourceBuilder::buildNewSourceUsingOptimizedRefilterOnly(Refilter) {
    m_sourceFull = sortedForDisplay(m_folders.droppedFolders());
    std::unordered_map<const MySingleFolder *, std::int64_t> nextInFolder;
    std::int64_t next = 0;
    for (const MySinglePicPtr &pic : m_sourceFull) {
        pic->positions.indexInSource_full = pic->positions.indexInSource_filtered = next++;
        pic->positions.indexInFolder_full = nextInFolder[pic->spSingleRealFolder().get()]++;
    }
    m_timelines.setSource_filtered(m_sourceFull, false);
    m_views.sourceChanged();
}

std::vector<MySinglePicPtr> SourceBuilder::allFilteredImages() const {
    return {};
}
bool SourceBuilder::isHiddenByFilter(const MySinglePic &) const {
    return false;
}
bool SourceBuilder::isVisible(const MySinglePic &) const {
    return true;
}
MySinglePicPtr SourceBuilder::nearestVisibleTo(const MySinglePicPtr &, const PicSet &) const {
    return nullptr;
}
MySinglePicPtr SourceBuilder::nextVisibleAfter(const MySinglePicPtr &, bool) const {
    return nullptr;
}

} // namespace chronomender
