// SPDX-License-Identifier: GPL-3.0-or-later
#include "SelectionMemory.h"

#include <algorithm>
#include <utility>

namespace chronomender {
namespace {

Shown shownOn(const TimelineStrip &strip) {
    return strip.isShelf() ? Shown::OnShelf : Shown::OnMainStrip;
}

bool isGone(const MySinglePicPtr &pic) {
    return pic && pic->positions.indexInSource_full < 0;
}

std::int64_t indexOf(const MySinglePicPtr &pic) {
    return pic ? pic->positions.indexInSource_filtered : -1;
}

bool areSame(const PicSelection &a, const PicSelection &b) {
    return a.picSelection == b.picSelection && a.multiSelectionNEW == b.multiSelectionNEW;
}

/// A set of several; of one item, the main selection says it all.
PicSet shownOf(PicSet pics, Shown where) {
    std::erase_if(pics, [&](const MySinglePicPtr &pic) { return !isShown(*pic, where); });
    return pics.size() > 1 ? std::move(pics) : PicSet();
}

} // namespace

void SelectionMemory::remember(const TimelineStrip &strip, const SourceViews &views) {
    const PicSelection &selection = strip.selection;
    if (m_hidden && !areSame(selection, m_standIn))
        m_hidden.reset();
    m_oldCurrentIndex = indexOf(selection.picSelection);
    m_focused = selection.picSelection ? selection.picSelection
                                       : views.picToKeepFocusedDuringFilterAction();
    m_place = m_focused ? views.focusPlace(*m_focused) : std::nullopt;
}

void SelectionMemory::dropWhatIsGone(TimelineStrip &strip,
                                     const std::vector<MySinglePicPtr> &source_full) {
    PicSelection &selection = strip.selection;
    std::erase_if(selection.multiSelectionNEW, isGone);
    if (isGone(selection.picSelection))
        selection.picSelection = nearestShownTo(source_full, selection.picSelection,
                                                selection.multiSelectionNEW, shownOn(strip));
    if (!selection.picSelection || selection.multiSelectionNEW.size() == 1)
        selection.multiSelectionNEW.clear();
    if (!m_hidden)
        return;
    std::erase_if(m_hidden->preFilter_multiSelection, isGone);
    if (isGone(m_hidden->preFilter_selection))
        m_hidden.reset();
    m_standIn = selection;
}

void SelectionMemory::bringThrough(TimelineStrip &strip,
                                   const std::vector<MySinglePicPtr> &source_full,
                                   SourceViews &views) {
    PicSelection &selection = strip.selection;
    const Shown where = shownOn(strip);
    if (m_hidden && isShown(*m_hidden->preFilter_selection, where))
        return comeBack(selection, where, views);
    if (isGone(m_focused)) {
        if (!selection.picSelection && m_oldCurrentIndex >= 0 && !strip.theSource.empty())
            selection.picSelection = strip.theSource[std::min(
                static_cast<std::size_t>(m_oldCurrentIndex), strip.theSource.size() - 1)];
        m_focused = selection.picSelection;
    }
    const bool lacksStandIn = m_hidden && !m_hidden->preFilter_justFocus && !selection.picSelection;
    if (lacksStandIn || (m_focused && !isShown(*m_focused, where))) {
        handOver(selection, source_full, where, views);
    } else if (m_focused) {
        selection.multiSelectionNEW = shownOf(std::move(selection.multiSelectionNEW), where);
        views.focusPic(m_focused, m_place);
    }
    if (m_hidden)
        m_standIn = selection;
    m_focused.reset();
}

void SelectionMemory::comeBack(PicSelection &selection, Shown where, SourceViews &views) {
    const Hidden back = *std::exchange(m_hidden, std::nullopt);
    if (!back.preFilter_justFocus)
        selection = {back.preFilter_selection, shownOf(back.preFilter_multiSelection, where)};
    views.focusPic(back.preFilter_selection, back.preFilter_place);
}

void SelectionMemory::handOver(PicSelection &selection,
                               const std::vector<MySinglePicPtr> &source_full, Shown where,
                               SourceViews &views) {
    if (!m_hidden)
        m_hidden = {m_focused, selection.multiSelectionNEW, m_place, !selection.picSelection};
    const MySinglePicPtr &hidden = m_hidden->preFilter_selection;
    PicSet rest = shownOf(selection.multiSelectionNEW, where);
    MySinglePicPtr next = nearestShownTo(source_full, hidden, selection.multiSelectionNEW, where);
    if (!next || !isShown(*next, where))
        next = nextShownAfter(source_full, hidden, true, where);
    if (!m_hidden->preFilter_justFocus)
        selection = {next, std::move(rest)};
    if (next)
        views.focusPic(next, m_place);
}

bool SelectionMemory::hasIndexChanged(const TimelineStrip &strip) const {
    return indexOf(strip.selection.picSelection) != m_oldCurrentIndex;
}

} // namespace chronomender
