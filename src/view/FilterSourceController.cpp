// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterSourceController.h"

namespace chronomender {

FilterSourceController::FilterSourceController(UserDefaults &defaults, const Zones &zones,
                                               const SourceViews &views, Rebuild rebuild)
    : m_defaults(defaults), m_zones(zones), m_views(views), m_rebuild(std::move(rebuild)) {}

void FilterSourceController::didChangePredicate(const std::optional<Predicate> &) {}
void FilterSourceController::filterRelevantChangeWasMade(std::string_view) {}
void FilterSourceController::endFilterTimerNow() {}
void FilterSourceController::refreshFilterAfterDelay() {}
bool FilterSourceController::isRatingFilterActiveAndRelevant() const {
    return false;
}
bool FilterSourceController::isAnyFilterActive() const {
    return false;
}
void FilterSourceController::disableFilters() {}
bool FilterSourceController::needsLateValues() const {
    return false;
}
std::vector<FilterTemplate> FilterSourceController::updateSource() const {
    return {};
}

} // namespace chronomender
