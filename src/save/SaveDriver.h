// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Cancellation.h"
#include "FileLayer.h"
#include "MySingleFolder.h"
#include "NewDates.h"
#include "RunJournal.h"
#include "SaveErrors.h"
#include "SaveOutcome.h"
#include "UndoManager.h"
#include "UserDefaults.h"
#include "XtController.h"
#include "Zones.h"

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// What a run does. The numbers are those of the threads' arguments.
enum class SaveProcessType : int {
    Save = 1,
    Rename = 2,
    SaveThenRename = 3,
    SaveThenRenameAll = 4
};

/// Stage one's answer: items that would be saved, with every NEW slot filled, and the problems
/// found. Nothing has been written.
struct PreProcessResult {
    std::vector<MySingleFolderPtr> folders;
    std::vector<ItemOutcome> items;
    std::vector<PreSaveFinding> problems;
    bool wasCancelled = false;
    /// What was calculated holds in the present zones: whoever owns the zones keeps them so as long
    /// as this lives.
    std::shared_ptr<const void> zonePause = {};
    /// The save is in progress as long as this lives, at most until stage two has ended.
    std::shared_ptr<const void> savingInProgress = {};
};

struct SaveRunResult {
    std::vector<ItemOutcome> items;
    std::vector<ItemRename> renames = {};
    std::vector<SaveError> errors;
    std::string toolErrors = {}; ///< the external tool's summary of what it had to complain of
    bool wasCancelled = false;
};

struct SaveRequest {
    SaveProcessType type = SaveProcessType::Save;
    /// The current folder, or those that are selected together; empty: every folder with unsaved
    /// items, or where all are renamed, every folder.
    std::vector<MySingleFolderPtr> onlyFolders = {};
    bool savingAll = false; ///< items without changes are written as well
    /// A rename is for these items alone, in order; none: for all of the folders.
    std::optional<std::vector<MySinglePicPtr>> onlyPics = {};
};

struct SaveServices {
    FileLayer &files;
    const Zones &zones;
    const UserDefaults &defaults;
    UndoManager &undo;
    const Cancellation &cancellation;
    RunJournal &journal;
    XtController &tool;
    std::function<Date()> now;
    std::function<void(std::size_t done, std::size_t total)>
        progress; ///< any worker thread; may be empty
    /// Text key of what the worker thread begins to do in stage two; may be empty.
    std::function<void(std::string_view titleKey)> stepBegins = {};
};

class RunStep;

/// The two-stage save. Runs on one worker thread (files of different items may be proved and
/// patched side by side); every change of the model happens on the main thread, which must be
/// running its event loop, or is the calling thread.
class SaveDriver {
public:
    SaveDriver(const std::vector<MySingleFolderPtr> &folders, SaveServices services);
    ~SaveDriver();

    /// Makes the step the last one of stage two. Not while a save runs.
    void appendStep(std::unique_ptr<RunStep> step);

    /// Spans both stages and the question between them. Any thread.
    bool isSavingInProgress() const { return *m_saveInProgress != 0; }

    /// Stage one: proves every file unchanged, calculates every new date, checks what was
    /// calculated.
    PreProcessResult preProcessThread(const SaveRequest &request);
    /// Stage two, step by step: proves each file again and overwrites exactly the recorded values,
    /// then brings XMP into line where that is wanted. Problems in `preProcess` count as accepted.
    SaveRunResult continueProcessThread(const SaveRequest &request,
                                        const PreProcessResult &preProcess);

    /// How many items lie between two progress updates.
    static std::size_t piValueForCount(std::size_t count);

private:
    std::vector<MySingleFolderPtr> foldersToSave(const SaveRequest &request) const;
    std::shared_ptr<const void> beginPartOfSave();

    const std::vector<MySingleFolderPtr> &m_folders;
    SaveServices m_services;
    std::vector<std::unique_ptr<RunStep>> m_steps;
    using SaveNumber = std::atomic<unsigned>;
    /// 0: none. Results may outlive the driver and a later save, so they share and compare it.
    std::shared_ptr<SaveNumber> m_saveInProgress = std::make_shared<SaveNumber>(0);
    unsigned m_lastSave = 0;
};

} // namespace chronomender
