// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittlePhoto.h"
#include "ScriptedQuestions.h"
#include "TemporaryFolder.h"
#include "WindowSession.h"

#include <absl/time/clock.h>

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <gtest/gtest.h>

namespace chronomender::little {

/// The session of a window over little photos on disk; the system's zone is Europe/Berlin.
class LittleWindow {
public:
    LittleWindow() : session(services(), questions) {}

    TemporaryFolder disk;
    ScriptedQuestions questions;
    WindowSession session;

    /// Waits for the event loop to bring something about.
    static bool waitFor(const std::function<bool()> &isThere) {
        const QDeadlineTimer deadline(std::chrono::seconds(20));
        while (!isThere() && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return isThere();
    }
    /// Its path.
    std::string photo(const std::string &folder, const std::string &name,
                      const std::string &original, const std::string &zoneStamp = {}) {
        PhotoFields fields{.original = original};
        if (!zoneStamp.empty())
            fields.zoneOriginal = zoneStamp;
        return disk.write(folder + '/' + name, jpegPhoto(fields).bytes + name);
    }
    /// Reads folders of the disk; the first of them is selected.
    void open(const std::vector<std::string> &folders) {
        std::vector<std::string> paths;
        for (const std::string &folder : folders)
            paths.push_back(disk.path(folder));
        session.openPaths(paths);
        EXPECT_TRUE(waitFor([&] {
            return session.folders().size() == folders.size() && !session.jobs().isAnyRunning();
        }));
        session.selectFolders({session.folders().front()});
    }
    std::vector<MySinglePicPtr> pics(std::size_t folder = 0) const {
        return session.folders().at(folder)->sfPicDetails_fullArray;
    }

private:
    AppServices services() const {
        qputenv("CHRONOMENDER_HOME", QByteArray::fromStdString(disk.path("home")));
        AppServices result{makeSystemFileLayer(), std::make_unique<UserDefaults>(),
                           std::make_unique<Zones>(), [] { return absl::Now(); }};
        result.zones->setSystemZone(*result.zones->zoneWithName("Europe/Berlin"));
        result.durability = RunJournal::Durability::Unsynced;
        return result;
    }
};

} // namespace chronomender::little
