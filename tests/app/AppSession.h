// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppController.h"
#include "EventLoopWait.h"
#include "LittlePhoto.h"
#include "TemporaryFolder.h"

#include <QCoreApplication>

#include <absl/time/clock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace chronomender {

/// Leaves files with empty date tags alone.
class LeaveAlone : public ImportQuestions {
public:
    MovieOptions movieOptions(const MySingleFolder &) override { return {}; }
    PerFolderImportOptions emptyTagOptions(const MySingleFolder &) override {
        PerFolderImportOptions options;
        options.withEmptyExifFixDate = PerFolderImportOptions::EmptyTags::LeaveAlone;
        return options;
    }
};

/// A session in UTC (or another zone, after a restart) with registered defaults, over files of its
/// own.
class AppSession : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        static int count = 1;
        static char name[] = "app_tests";
        static char *arguments[] = {name, nullptr};
        static const QCoreApplication application(count, arguments);
    }

    AppSession() { restart(); }

    void restart(const char *systemZone = "UTC") {
        auto zones = std::make_unique<Zones>();
        zones->setSystemZone(*zones->zoneWithName(systemZone));
        restart(std::move(zones), [] { return absl::Now(); });
    }
    void restart(std::unique_ptr<Zones> zones, std::function<Date()> now) {
        m_controller.reset();
        AppServices services{makeSystemFileLayer(), std::make_unique<UserDefaults>(),
                             std::move(zones), std::move(now)};
        m_controller = std::make_unique<AppController>(std::move(services), m_questions);
    }

    AppController &app() { return *m_controller; }
    const little::TemporaryFolder &disk() const { return m_disk; }

    std::string writePhoto(const std::string &name,
                           const std::string &stamp = "2024:05:06 07:08:09") {
        little::PhotoFields fields;
        fields.original = fields.digitized = fields.modified = stamp;
        fields.bodyLength = 500;
        return m_disk.write(name, little::jpegPhoto(fields).bytes);
    }

    OpenFolderResult open(const std::string &path, MySingleFolderPtr *folder = nullptr,
                          const KeyStates &keyStates = {}) {
        FolderRequest request;
        request.path = path;
        request.keyStates = keyStates;
        return app().addFolder(request, folder);
    }

    ImportOutcome import(const MySingleFolderPtr &folder, const KeyStates &keyStates = {}) {
        ImportRequest request;
        request.folder = folder;
        request.keyStates = keyStates;
        return waitFor<ImportOutcome>(
            [&](auto finished) { app().startImport(std::move(request), finished); });
    }

    /// Opens and imports a folder and builds the visible list.
    MySingleFolderPtr openAndImport(const std::string &path, const KeyStates &keyStates = {}) {
        MySingleFolderPtr folder;
        EXPECT_EQ(open(path, &folder, keyStates), OpenFolderResult::Opened);
        import(folder, keyStates);
        app().buildNewSource();
        return folder;
    }

    PreProcessResult preProcess() {
        return waitFor<PreProcessResult>(
            [&](auto finished) { app().startPreProcess({}, {}, finished); });
    }
    SaveRunResult goOn(const PreProcessResult &plan) {
        return waitFor<SaveRunResult>(
            [&](auto finished) { app().startContinueProcess({}, plan, {}, finished); });
    }

private:
    little::TemporaryFolder m_disk;
    LeaveAlone m_questions;
    std::unique_ptr<AppController> m_controller;
};

} // namespace chronomender
