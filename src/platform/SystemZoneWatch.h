// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ZoneDatabase.h"

#include <QFileSystemWatcher>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

namespace chronomender {

/// Tells when the system's zone became another one: the link was set anew, the text file was
/// written, or the zone file behind the link was replaced. Several changes in a short time are told
/// once, and what leaves the zone as it is (anything else in the folder of the link) is not told.
/// With a zone in the environment, which goes before the link, only that zone's name counts.
///
/// Lives on the main thread, which must run its event loop, and calls back there.
class SystemZoneWatch {
public:
    using Changed = std::function<void()>;

    SystemZoneWatch(zoneDatabase::SystemPlaces places, Changed changed,
                    std::chrono::milliseconds rest = std::chrono::milliseconds(200));
    SystemZoneWatch(const SystemZoneWatch &) = delete;
    SystemZoneWatch &operator=(const SystemZoneWatch &) = delete;

private:
    /// What the zone is and which file its rules come from; zeros without such a file.
    struct Seen {
        std::string name;
        std::uint64_t inode = 0;
        std::int64_t size = 0, modifiedSeconds = 0, modifiedNanoseconds = 0;

        bool operator==(const Seen &) const = default;
    };
    Seen present() const;
    void watchPlaces();
    void settled();

    zoneDatabase::SystemPlaces m_places;
    Changed m_changed;
    Seen m_seen;
    QFileSystemWatcher m_watcher;
    QTimer m_rest;
};

} // namespace chronomender
