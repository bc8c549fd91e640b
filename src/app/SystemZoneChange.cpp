// SPDX-License-Identifier: GPL-3.0-or-later
#include "SystemZoneChange.h"

#include "DateModifications.h"
#include "MainThread.h"
#include "Texts.h"
#include "ZoneLookup.h"

#include <utility>

namespace chronomender {
namespace {

/// Several notifications of one change raise one alert.
constexpr absl::Duration sameChange = absl::Seconds(1);

void call(const std::function<void()> &callback) {
    if (callback)
        callback();
}

} // namespace

SystemZoneChange::SystemZoneChange(Zones &zones, const UserDefaults &defaults,
                                   const MyDroppedFolders &droppedFolders,
                                   std::function<Date()> now)
    : m_zones(zones),
      m_defaults(defaults),
      m_droppedFolders(droppedFolders),
      m_now(std::move(now)) {}

SystemZoneChange::Pause SystemZoneChange::pause() {
    if (auto present = m_pause.lock())
        return present;
    const auto ended = [this, alive = std::weak_ptr(m_alive)](const void *) {
        mainThread::post([this, alive] {
            if (alive.lock())
                pauseEnded();
        });
    };
    static constexpr bool onlyItsLifeCounts = true;
    Pause pause(&onlyItsLifeCounts, ended);
    m_pause = pause;
    return pause;
}

void SystemZoneChange::pauseEnded() {
    if (m_isTimezoneRefreshPaused && m_pause.expired())
        systemTimeZoneDidChange();
}

void SystemZoneChange::systemTimeZoneDidChange() {
    m_isTimezoneRefreshPaused = !m_pause.expired();
    if (m_isTimezoneRefreshPaused)
        return;
    call(m_callbacks.abortDateChange);
    if (!m_zones.refreshSystemZone())
        return;
    call(m_callbacks.userDateFormatterUpdated);
    const std::size_t changed = updateEveryFileDate();
    const Date now = m_now();
    const bool isSameChange = m_lastTZC && absl::AbsDuration(now - *m_lastTZC) <= sameChange;
    if (changed > 0 && !isSameChange)
        tell(changed);
    m_lastTZC = now;
    call(m_callbacks.expertRelevantChangeWasMade);
}

/// The number of items that show another date now.
std::size_t SystemZoneChange::updateEveryFileDate() {
    const int threshold = m_defaults.integerForKey("dateComparisonThresold");
    std::size_t changed = 0;
    for (const MySingleFolderPtr &folder : m_droppedFolders.droppedFolders()) {
        const std::size_t inFolder =
            folder->isEXIFIgnored
                ? 0
                : updateAllDatesAfterUpdatingTimezone(folder->sfPicDetails_fullArray, *folder,
                                                      m_zones, threshold);
        validateTZCUnsaved(*folder, m_zones);
        if (inFolder > 0)
            sfUpdatePicsFromAndTill(*folder);
        changed += inFolder;
    }
    return changed;
}

void SystemZoneChange::tell(std::size_t changedItems) {
    if (!m_callbacks.alert)
        return;
    m_callbacks.alert({text("alertString_TZC_majorChangesWarning_messageText"),
                       text("alertString_TZC_majorChangesWarning_infoText",
                            {m_zones.systemZone().name, std::to_string(changedItems)}),
                       text("alertString_TZC_majorChangesWarning_defButton")});
}

} // namespace chronomender
