// SPDX-License-Identifier: GPL-3.0-or-later
#include "SystemZoneWatch.h"

#include <QStringList>

#include <sys/stat.h>

#include <utility>

namespace chronomender {
namespace {

std::string folderOf(const std::string &path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

} // namespace

SystemZoneWatch::SystemZoneWatch(zoneDatabase::SystemPlaces places, Changed changed,
                                 std::chrono::milliseconds rest)
    : m_places(std::move(places)), m_changed(std::move(changed)), m_seen(present()) {
    m_rest.setSingleShot(true);
    m_rest.setInterval(rest);
    const auto restart = [this] { m_rest.start(); };
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_rest, restart);
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_rest, restart);
    QObject::connect(&m_rest, &QTimer::timeout, &m_rest, [this] { settled(); });
    watchPlaces();
}

SystemZoneWatch::Seen SystemZoneWatch::present() const {
    Seen seen{zoneDatabase::systemZoneName(m_places)};
    struct stat file = {};
    if (!m_places.environment && stat(m_places.link.c_str(), &file) == 0) {
        seen.inode = file.st_ino;
        seen.size = file.st_size;
        seen.modifiedSeconds = file.st_mtim.tv_sec;
        seen.modifiedNanoseconds = file.st_mtim.tv_nsec;
    }
    return seen;
}

/// A file is watched through the link, so that after each change it is another one.
void SystemZoneWatch::watchPlaces() {
    QStringList files, folders;
    for (const std::string &place : {m_places.link, m_places.textFile}) {
        files << QString::fromStdString(place);
        folders << QString::fromStdString(folderOf(place));
    }
    m_watcher.removePaths(files);
    m_watcher.addPaths(files + folders);
}

void SystemZoneWatch::settled() {
    watchPlaces();
    Seen now = present();
    if (std::exchange(m_seen, now) != now)
        m_changed();
}

} // namespace chronomender
