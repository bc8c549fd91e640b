// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MyDroppedFolders.h"
#include "UserDefaults.h"
#include "Zones.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace chronomender {

/// What the user is told when dates changed because the computer's zone did.
struct SystemZoneAlert {
    std::string messageText, infoText, defButton;
};

/// Who wants to know; each may be empty. Called on the main thread, in this order.
struct SystemZoneCallbacks {
    std::function<void()> abortDateChange; ///< before anything moves: a drag goes by present dates
    std::function<void()> userDateFormatterUpdated;
    std::function<void(const SystemZoneAlert &)> alert;
    std::function<void()> expertRelevantChangeWasMade;
};

/// What happens to the session when the system's zone changes: every date that was read in it is
/// read again. Workers read the zones, so an import or a save holds a pause, and a change during it
/// is made up for behind it. Main thread.
class SystemZoneChange {
public:
    /// Holds changes back as long as any copy lives; may be given up on any thread.
    using Pause = std::shared_ptr<const void>;

    SystemZoneChange(Zones &zones, const UserDefaults &defaults,
                     const MyDroppedFolders &droppedFolders, std::function<Date()> now);
    SystemZoneChange(const SystemZoneChange &) = delete;
    SystemZoneChange &operator=(const SystemZoneChange &) = delete;

    void setCallbacks(SystemZoneCallbacks callbacks) { m_callbacks = std::move(callbacks); }
    Pause pause();
    void systemTimeZoneDidChange();

private:
    void pauseEnded();
    std::size_t updateEveryFileDate();
    void tell(std::size_t changedItems);

    Zones &m_zones;
    const UserDefaults &m_defaults;
    const MyDroppedFolders &m_droppedFolders;
    std::function<Date()> m_now;
    SystemZoneCallbacks m_callbacks;
    OptionalDate m_lastTZC;
    std::weak_ptr<const void> m_pause;
    bool m_isTimezoneRefreshPaused = false; ///< a change waits for the end of a pause
    std::shared_ptr<const bool> m_alive = std::make_shared<const bool>(true);
};

} // namespace chronomender
