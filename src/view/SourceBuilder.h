// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CompiledPredicate.h"
#include "DisplayOrder.h"
#include "MyDroppedFolders.h"
#include "MyTimelinesController.h"
#include "PicSet.h"
#include "SelectionMemory.h"
#include "SourceViews.h"
#include "VisibleNeighbours.h"

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace chronomender {

enum class NewSelection : bool { Keep, Choose };
/// The order of items cannot have changed: only the filters run again.
enum class Refilter : bool { FullBuild, RefilterOnly };

/// What narrows the list beside the shelf.
struct SourceRestrictions {
    const CompiledPredicate *predicate = nullptr; ///< of the filters; null: none
    const PicSet *selectedPicsToFilter = nullptr; ///< items chosen on a map; null: all
    std::optional<std::vector<MySingleFolderPtr>> folders = {}; ///< one's own folders only
    const Predicate *filter_finalPredicate = nullptr;           ///< what `predicate` was made of
};

/// Builds the one visible list of all media of all folders in display order: by the date shown,
/// then by name in natural order, then by folder, then by order of creation. Takes out what the
/// filters hide and what lies on the shelf, numbers the items, and brings the selection through.
/// Main thread.
class SourceBuilder {
public:
    using AskRestrictions = std::function<SourceRestrictions()>;
    /// The references outlive the builder; `restrictions` is asked at each build.
    SourceBuilder(const MyDroppedFolders &folders, MyTimelinesController &timelines,
                  SourceViews &views, AskRestrictions restrictions);

    /// Builds as an import or another change asks for it, unless too many ask at once.
    void buildNewSource(const MySingleFolder *sender = nullptr);
    /// Builds and brings the selection through: what a filter hides comes back with its old
    /// selection when the filter goes.
    void buildNewSourceWithNewSelectionOption(NewSelection selection, Refilter refilter);
    void buildNewSourceUsingOptimizedRefilterOnly(Refilter refilter);

    /// How many builds an import has waiting; see buildNewSource.
    std::uint32_t isBlockedThroughExpress = 0;

    const std::vector<MySinglePicPtr> &source_full() const { return m_order.source_full(); }
    /// Items hidden by filters, in order. Items on a shelf count only where a filter hides them.
    std::vector<MySinglePicPtr> allFilteredImages() const;
    std::size_t filteredImagesCount() const { return m_filteredImagesCount; }
    bool isHiddenByFilter(const MySinglePic &pic) const;
    /// The item stands on the main strip or on a shelf.
    bool isVisible(const MySinglePic &pic) const { return isShown(pic, Shown::OnEither); }

    /// The member of the set that is nearest to the item among the visible ones; see
    /// nearestShownTo.
    MySinglePicPtr nearestVisibleTo(const MySinglePicPtr &pic, const PicSet &candidates) const;
    /// The first visible item behind this one; with `useLooping` from the start again.
    MySinglePicPtr nextVisibleAfter(const MySinglePicPtr &pic, bool useLooping) const;

private:
    void markItems(const SourceRestrictions &restrictions);
    void mark(const PicSet &pics, std::uint8_t mark);
    bool isListUnchanged() const;
    std::vector<MySinglePicPtr> numbered(std::vector<MySinglePicPtr> former);
    bool refreshShelf();
    void tellFilterStatus();
    std::vector<TimelineStrip *> selectableTimelines();

    const MyDroppedFolders &m_folders;
    MyTimelinesController &m_timelines;
    SourceViews &m_views;
    AskRestrictions m_restrictions;
    DisplayOrder m_order;
    std::vector<std::uint8_t> m_marks; ///< by position in source_full: hidden, on a shelf
    std::size_t m_filteredImagesCount = 0;
    bool m_pauseBuildingSource = false;
    std::optional<Predicate> m_lastFilterPredicate;
    std::array<SelectionMemory, 2> m_selectionMemory; ///< of the main and the second strip
};

} // namespace chronomender
