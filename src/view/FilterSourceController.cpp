// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterSourceController.h"

#include "PredicateRewriting.h"

#include <algorithm>
#include <chrono>
#include <initializer_list>

namespace chronomender {
namespace {

constexpr std::chrono::seconds kPause{1};
constexpr std::string_view kRating = "filter_rating", kLocation = "filter_miscState_1";

bool hasAnyKey(const Predicate &predicate, std::initializer_list<std::string_view> keys) {
    return std::ranges::any_of(keys, [&](std::string_view key) { return hasKey(predicate, key); });
}

} // namespace

FilterSourceController::FilterSourceController(UserDefaults &defaults, const Zones &zones,
                                               const SourceViews &views, Rebuild rebuild)
    : m_defaults(defaults), m_zones(zones), m_views(views), m_rebuild(std::move(rebuild)) {
    m_refreshFilterTimer.setSingleShot(true);
    m_refreshFilterTimer.setInterval(kPause);
    m_refreshFilterTimer.callOnTimeout([this] { refreshFilterAfterDelay(); });
}

void FilterSourceController::didChangePredicate(const std::optional<Predicate> &predicate,
                                                FilterMemory memory) {
    m_shown = predicate == emptyPredicate() ? std::nullopt : predicate;
    keep("lastActiveFilterPredicate", m_shown ? predicateFormat(*m_shown) : "", memory);
    refreshFilter();
}

void FilterSourceController::refreshFilter() {
    update();
    m_rebuild(NewSelection::Choose, Refilter::RefilterOnly);
}

void FilterSourceController::update() {
    m_refreshFilterTimer.stop();
    m_source = m_defaults.boolForKey("isFilterActive") ? m_shown : std::nullopt;
    std::optional<Predicate> own;
    if (m_source)
        own = completeFilterPredicate(optimizedAlternative(*m_source));
    m_final = combinePredicatesIfSeperated(own);
    m_compiled.reset();
    if (m_final)
        m_compiled.emplace(*m_final,
                           FilterContext{m_zones, m_defaults.boolForKey("highlightEmptyMetaTags")});
}

std::optional<Predicate> FilterSourceController::combinePredicatesIfSeperated(
    const std::optional<Predicate> &predicate) const {
    if (!isRatingFilterActiveAndRelevant())
        return predicate;
    return combined(m_defaults.boolForKey("ratingFilterSelectedOption") ? RatingFilter::Keepers
                                                                        : RatingFilter::NotRejected,
                    predicate);
}

bool FilterSourceController::isRelevant(std::string_view key) const {
    if (!m_final)
        return false;
    if (key == kLocation) // a place that was given waits for a save as well
        return hasAnyKey(*m_final, {"filter_miscState_0", kLocation});
    if (key == "filter_miscState")
        return hasAnyKey(*m_final, {"filter_miscState_0", "filter_miscState_4",
                                    "filter_miscState_5", "filter_miscState_6"});
    return mentions(*m_final, key);
}

void FilterSourceController::filterRelevantChangeWasMade(std::string_view key) {
    if (!isRelevant(key))
        return;
    const bool keepsSelection = key == kRating && !m_views.isOneFolderSelected();
    m_waitingSelection = keepsSelection ? NewSelection::Keep : NewSelection::Choose;
    if (m_views.isGridFullScreen() && key != kLocation)
        m_refreshFilterTimer.start();
    else
        refreshFilterAfterDelay();
}

void FilterSourceController::refreshFilterAfterDelay() {
    m_refreshFilterTimer.stop();
    m_rebuild(m_waitingSelection, Refilter::RefilterOnly);
}

void FilterSourceController::endFilterTimerNow() {
    if (m_refreshFilterTimer.isActive())
        refreshFilterAfterDelay();
}

bool FilterSourceController::isRatingFilterActiveAndRelevant() const {
    return m_defaults.boolForKey("isRatingFilterActive") &&
           !m_defaults.boolForKey("areFiltersCombined");
}

bool FilterSourceController::isAnyFilterActive() const {
    return m_defaults.boolForKey("isFilterActive") || isRatingFilterActiveAndRelevant();
}

void FilterSourceController::disableFilters(FilterMemory memory) {
    for (const std::string_view key : {"isFilterActive", "isRatingFilterActive"})
        keep(key, "0", memory);
    refreshFilter();
}

bool FilterSourceController::needsLateValues() const {
    return m_final && chronomender::needsLateValues(*m_final);
}

std::vector<FilterTemplate> FilterSourceController::updateSource() const {
    return templatesForMenu(allSources, m_defaults.boolForKey("areFiltersCombined"));
}

void FilterSourceController::keep(std::string_view key, std::string_view value,
                                  FilterMemory memory) {
    if (memory == FilterMemory::Stored)
        m_defaults.set(key, value);
    else
        m_defaults.setForThisRun(key, value);
}

} // namespace chronomender
