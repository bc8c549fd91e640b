// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySinglePic.h"

#include <optional>

namespace chronomender {

/// Where a view shows its focused item, so that a rebuilt list can show it in the same place.
struct FocusPlace {
    double focusX = 0;     ///< horizontal, in the view
    double focusYGrid = 0; ///< vertical; of a grid only
};

/// What the visible list asks of the views that show it, and tells them. All functions have an
/// answer that fits a session without views. Main thread.
class SourceViews {
public:
    virtual ~SourceViews() = default;

    /// Where the item is shown now; none when no view shows it.
    virtual std::optional<FocusPlace> focusPlace(const MySinglePic &) const { return std::nullopt; }
    /// The item that stays in place while nothing is selected; null when no view shows one.
    virtual MySinglePicPtr picToKeepFocusedDuringFilterAction() const { return nullptr; }
    /// The list or the shelf was replaced or renumbered: draw again.
    virtual void sourceChanged() {}
    /// The list is the same: only what stands beside the thumbnails is out of date.
    virtual void addDateTimeLayers() {}
    virtual void restoreScrollPosition() {}
    /// Shows the item, at the place where another was shown before if that is given.
    virtual void focusPic(const MySinglePicPtr & /*pic*/,
                          std::optional<FocusPlace> /*keepingInPlaceAt*/) {}
    /// "changedPicSelectionCurrentIndex"
    virtual void selectionIndexChanged() {}
    /// A filter hides so many items now.
    virtual void showFilterStatus(std::size_t /*hidden*/) {}
    /// A grid fills the screen: a filter waits until the user has stopped rating.
    virtual bool isGridFullScreen() const { return false; }
    /// One folder alone is selected in the list of folders.
    virtual bool isOneFolderSelected() const { return true; }
    /// Arrow keys are moving items live: the list keeps its members meanwhile.
    virtual bool isArrowsLiveMoveEnabled() const { return false; }
};

} // namespace chronomender
