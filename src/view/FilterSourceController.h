// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CompiledPredicate.h"
#include "SourceBuilder.h"
#include "SourceViews.h"
#include "UserDefaults.h"

#include <QTimer>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// A saved filter.
struct FilterTemplate {
    std::string key, name, predicate;
};

/// The filters of the session: what the editor shows, what runs, and when it runs again. Main
/// thread.
class FilterSourceController {
public:
    /// `rebuild` builds the visible list anew with the final predicate of this controller.
    using Rebuild = std::function<void(NewSelection, Refilter)>;
    FilterSourceController(UserDefaults &defaults, const Zones &zones, const SourceViews &views,
                           Rebuild rebuild);

    /// A new predicate from the editor (or none): completes it, stores it and filters by it.
    void didChangePredicate(const std::optional<Predicate> &predicate);
    const std::optional<Predicate> &filter_sourcePredicate() const { return m_source; }
    const std::optional<Predicate> &filter_finalPredicate() const { return m_final; }
    /// The final predicate ready to run; null when nothing is filtered.
    const CompiledPredicate *compiled() const { return m_compiled ? &*m_compiled : nullptr; }

    /// A value behind a filter key changed on some item.
    void filterRelevantChangeWasMade(std::string_view key);
    /// Runs a filter that waits, now.
    void endFilterTimerNow();

    bool isRatingFilterActiveAndRelevant() const;
    bool isAnyFilterActive() const;
    void disableFilters();
    /// The final predicate asks values that an import does not read at once: camera and lens.
    bool needsLateValues() const;

    /// The templates as a menu shows them.
    std::vector<FilterTemplate> updateSource() const;
    std::vector<FilterTemplate> allSources;

private:
    void refreshFilterAfterDelay();

    UserDefaults &m_defaults;
    const Zones &m_zones;
    const SourceViews &m_views;
    Rebuild m_rebuild;
    std::optional<Predicate> m_source, m_final;
    std::optional<CompiledPredicate> m_compiled;
    QTimer m_refreshFilterTimer;
};

} // namespace chronomender
