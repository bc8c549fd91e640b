// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SourceViews.h"
#include "TimelineStrip.h"
#include "VisibleNeighbours.h"

#include <optional>

namespace chronomender {

/// Brings the selection of one strip through builds of the visible list. What a filter hides is
/// remembered and comes back when it shows again, unless the user selected something else
/// meanwhile. Main thread.
class SelectionMemory {
public:
    /// Before a build: what is selected, and where it shows.
    void remember(const TimelineStrip &strip, const SourceViews &views);
    /// After each build: items that left the session leave the selection.
    void dropWhatIsGone(TimelineStrip &strip, const std::vector<MySinglePicPtr> &source_full);
    /// After that, where the build may choose another selection.
    void bringThrough(TimelineStrip &strip, const std::vector<MySinglePicPtr> &source_full,
                      SourceViews &views);
    /// The main item, or its place in the list, is another than before the build.
    bool hasIndexChanged(const TimelineStrip &strip) const;

private:
    /// What is wished for but hidden.
    struct Hidden {
        MySinglePicPtr preFilter_selection;
        PicSet preFilter_multiSelection;
        std::optional<FocusPlace> preFilter_place;
        bool preFilter_justFocus = false; ///< it was not selected, but stood in the user's focus
    };
    void comeBack(PicSelection &selection, Shown where, SourceViews &views);
    void handOver(PicSelection &selection, const std::vector<MySinglePicPtr> &source_full,
                  Shown where, SourceViews &views);

    std::optional<Hidden> m_hidden;
    PicSelection m_standIn; ///< what took over for it
    // Of the build that is under way.
    std::int64_t m_oldCurrentIndex = -1;
    MySinglePicPtr m_focused; ///< the main item; without one what the views keep in place
    std::optional<FocusPlace> m_place;
};

} // namespace chronomender
