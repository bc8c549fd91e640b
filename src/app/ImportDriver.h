// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DelayedImports.h"
#include "FolderOpening.h"
#include "ImportRun.h"
#include "PropertyReading.h"
#include "SessionFiles.h"
#include "UndoManager.h"
#include "WorkThread.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace chronomender {

/// A batch of one folder to import; without names, the whole folder.
struct ImportRequest {
    MySingleFolderPtr folder;
    std::vector<std::string> names;
    KeyStates keyStates; ///< those that the folder was opened with, or new ones for a later batch
    CompletionScope completion = CompletionScope::WhereCameraIsMissing;
    std::function<void(ImportProgress)> progress; ///< called on the import thread; may be empty
};

/// What imports need of the session; the references outlive the driver.
struct ImportSession {
    const Zones &zones;
    const UserDefaults &defaults;
    ImportQuestions &questions;
    const Cancellation &cancellation;
    UndoManager &undo;
    MyDroppedFolders &droppedFolders;
};

/// Runs imports on the import thread, one folder after the other, and makes what they give part of
/// the session: items, groups, folders inside folders, and cameras that are read late. Main thread.
class ImportDriver {
public:
    /// A folder inside `parent` became part of the session; it is imported next.
    using FolderAdded =
        std::function<void(const MySingleFolderPtr &folder, const MySingleFolderPtr &parent)>;

    /// Items of the folder became part of the session; what is read late of them is still to come.
    using ItemsReady = std::function<void(const MySingleFolderPtr &folder,
                                          const std::vector<MySinglePicPtr> &items)>;

    explicit ImportDriver(const ImportSession &session);

    void setFolderAdded(FolderAdded folderAdded) { m_folderAdded = std::move(folderAdded); }
    void setItemsReady(ItemsReady itemsReady) { m_itemsReady = std::move(itemsReady); }
    DelayedImports &delayedImports() { return m_delayedImports; }

    /// See AppController::startImport.
    void start(ImportRequest request, std::function<void(ImportOutcome)> finished);
    /// See AppController::completeFolder.
    void complete(const MySingleFolderPtr &folder, std::function<void()> finished);
    void waitForDone() { m_thread.waitForDone(); }

private:
    struct Job;
    using JobPtr = std::shared_ptr<Job>;
    void runNext(const JobPtr &job);
    void importEnded(const JobPtr &job, const ImportRequest &request, ImportOutcome outcome);
    void addSubfolders(const JobPtr &job, const ImportRequest &request, ImportOutcome &outcome);
    void publish(const MySingleFolderPtr &folder, const std::vector<MySinglePicPtr> &items);
    void completeLate(const ImportRequest &request, const std::vector<MySinglePicPtr> &items,
                      std::function<void()> finished);

    ImportSession m_session;
    SessionFiles m_sessionFiles; ///< import thread only
    DelayedImports m_delayedImports;
    FolderAdded m_folderAdded;
    ItemsReady m_itemsReady;
    WorkThread m_thread;
    bool m_isImagingReady = false;
};

} // namespace chronomender
