// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Cancellation.h"
#include "FileLayer.h"
#include "FolderDrag.h"
#include "ImportRun.h"
#include "MyDroppedFolders.h"
#include "SaveDriver.h"
#include "SourceBuilder.h"
#include "UndoManager.h"
#include "UserDefaults.h"
#include "Zones.h"

#include <memory>
#include <string>
#include <vector>

namespace chronomender {

/// What the parts of the program are made of; a test replaces any of them.
struct AppServices {
    std::unique_ptr<FileLayer> files;
    std::unique_ptr<UserDefaults> defaults;
    std::unique_ptr<Zones> zones;
    std::function<Date()> now;
};
AppServices systemServices();

/// One folder to open: what a drop or an option block says about it.
struct FolderRequest {
    std::string path;
    std::vector<std::string> names; ///< only these files; empty for the whole folder
    EditMode mode = EditMode::Together;
    std::optional<ZoneChoice> sourceZone, targetZone;
};

enum class OpenFolderResult { Opened, NotFound, NotAFolder, NoAccess, Refused };

/// The composition root: owns the session's folders and the rooms' controllers and wires them; all
/// rules live in the rooms. Created and used on the main thread.
class AppController {
public:
    AppController(AppServices services, ImportQuestions &questions);
    ~AppController();

    MyDroppedFolders &droppedFolders() { return m_droppedFolders; }
    const std::vector<MySinglePicPtr> &source_full() const { return m_source.source_full(); }
    const Zones &zones() const { return *m_services.zones; }
    UserDefaults &defaults() { return *m_services.defaults; }
    UndoManager &undoManager() { return m_undo; }
    Cancellation &cancellation() { return m_cancellation; }

    /// Makes the folder part of the session (without importing it).
    OpenFolderResult addFolder(const FolderRequest &request, MySingleFolderPtr *added = nullptr);
    /// Imports on the import thread and publishes the items here; returns when done.
    ImportOutcome importFolder(const MySingleFolderPtr &folder, std::vector<std::string> names = {},
                               std::function<void(ImportProgress)> progress = {});
    /// Sorts the visible list again.
    void buildNewSource();

    DateChangeOutcome shiftFolder(MySingleFolder &folder, absl::Duration totalShift);
    DateChangeOutcome shiftItems(const std::vector<MySinglePicPtr> &items,
                                 absl::Duration difference);

    PreProcessResult preProcess(const SaveRequest &request,
                                std::function<void(std::size_t, std::size_t)> progress = {});
    SaveRunResult continueProcess(const SaveRequest &request, const PreProcessResult &preProcess,
                                  std::function<void(std::size_t, std::size_t)> progress = {});

private:
    AppServices m_services;
    ImportQuestions &m_questions;
    Cancellation m_cancellation;
    UndoManager m_undo;
    MyDroppedFolders m_droppedFolders;
    SourceBuilder m_source;
};

} // namespace chronomender
