// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CompiledPredicate.h"
#include "FilterTemplates.h"
#include "SourceBuilder.h"
#include "SourceViews.h"
#include "UserDefaults.h"

#include <QTimer>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

/// How long what is switched and filtered by holds: a command's filter is not the user's.
enum class FilterMemory : bool { ThisRun, Stored };

/// The filters of the session: what the editor shows, what runs, and when it runs again. There are
/// two: the editor's, while "isFilterActive" is on, and one by the rating, while
/// "isRatingFilterActive" is on and the two are not combined into one ("areFiltersCombined"), where
/// the editor's has a row about the rating. Main thread, with an event loop.
class FilterSourceController {
public:
    /// `rebuild` builds the visible list anew with the final predicate of this controller.
    using Rebuild = std::function<void(NewSelection, Refilter)>;
    FilterSourceController(UserDefaults &defaults, const Zones &zones, const SourceViews &views,
                           Rebuild rebuild);

    /// A new predicate from the editor (or none): completes it, filters by it, and keeps it for the
    /// next session as "lastActiveFilterPredicate".
    void didChangePredicate(const std::optional<Predicate> &predicate,
                            FilterMemory memory = FilterMemory::Stored);
    /// A filter was switched on or off: filters anew by what the editor shows.
    void refreshFilter();
    /// What the editor shows while its filter is on; none also for an editor without a condition.
    const std::optional<Predicate> &filter_sourcePredicate() const { return m_source; }
    const std::optional<Predicate> &filter_finalPredicate() const { return m_final; }
    /// The final predicate ready to run; null when nothing is filtered.
    const CompiledPredicate *compiled() const { return m_compiled ? &*m_compiled : nullptr; }

    /// A value behind a filter key changed on some item. While a grid fills the screen the filter
    /// waits for a second without a change, so that nobody's item is gone before it is rated.
    void filterRelevantChangeWasMade(std::string_view key);
    /// Runs a filter that waits, now.
    void endFilterTimerNow();

    bool isRatingFilterActiveAndRelevant() const;
    /// Some filter is switched on, be there anything to filter by or not.
    bool isAnyFilterActive() const;
    /// Switches both filters off.
    void disableFilters(FilterMemory memory = FilterMemory::Stored);
    /// The final predicate asks values that an import does not read at once: cameras, lenses,
    /// locations.
    bool needsLateValues() const;

    /// The templates as a menu shows them.
    std::vector<FilterTemplate> updateSource() const;
    std::vector<FilterTemplate> allSources;

private:
    void update();
    std::optional<Predicate>
    combinePredicatesIfSeperated(const std::optional<Predicate> &predicate) const;
    bool isRelevant(std::string_view key) const;
    void refreshFilterAfterDelay();
    void keep(std::string_view key, std::string_view value, FilterMemory memory);

    UserDefaults &m_defaults;
    const Zones &m_zones;
    const SourceViews &m_views;
    Rebuild m_rebuild;
    std::optional<Predicate> m_shown, m_source, m_final;
    std::optional<CompiledPredicate> m_compiled;
    NewSelection m_waitingSelection = NewSelection::Choose;
    QTimer m_refreshFilterTimer;
};

} // namespace chronomender
