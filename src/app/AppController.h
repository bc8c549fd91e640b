// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Alignment.h"
#include "AlternativeReading.h"
#include "Cancellation.h"
#include "DateDrag.h"
#include "DropByOrder.h"
#include "ErrorLog.h"
#include "FileLayer.h"
#include "FilterSourceController.h"
#include "FolderDrag.h"
#include "ImportDriver.h"
#include "Marking.h"
#include "MyDroppedFolders.h"
#include "MyTimelinesController.h"
#include "RenameRun.h"
#include "SaveDriver.h"
#include "SourceBuilder.h"
#include "SupportFolders.h"
#include "SystemZoneChange.h"
#include "SystemZoneWatch.h"
#include "UndoManager.h"
#include "UserDefaults.h"
#include "ZoneChange.h"
#include "Zones.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace chronomender {

/// What the parts of the program are made of; a test replaces any of them.
struct AppServices {
    std::unique_ptr<FileLayer> files;
    std::unique_ptr<UserDefaults> defaults;
    std::unique_ptr<Zones> zones;
    std::function<Date()> now;
    /// Whether a save waits until what it wrote is on the disk.
    RunJournal::Durability durability = RunJournal::Durability::Synced;
    std::string runName = {}; ///< what the log of errors calls a run of this program
};
/// The operating system's files, zones and clock, and the user's stored preferences.
AppServices systemServices();

/// The composition root: owns the session's folders and the rooms' controllers and wires them; all
/// rules live in the rooms. Created, used and destroyed on the main thread.
///
/// Imports and saves are started here and run on their own threads: an operation returns at once,
/// and its `finished` is called on the main thread from the event loop, exactly once, unless the
/// controller is destroyed before. A rename is a kind of save. Only one save operation runs at a
/// time, and no folder may be changed while it does. Only items in the list of the last
/// `buildNewSource` are saved.
class AppController {
public:
    using Progress = std::function<void(std::size_t done, std::size_t total)>;

    AppController(AppServices services, ImportQuestions &questions);
    /// Asks a running operation to stop and waits for it.
    ~AppController();
    AppController(const AppController &) = delete;
    AppController &operator=(const AppController &) = delete;

    MyDroppedFolders &droppedFolders() { return m_droppedFolders; }
    const std::vector<MySinglePicPtr> &source_full() const { return m_source->source_full(); }
    const Zones &zones() const { return *m_services.zones; }
    UserDefaults &defaults() { return *m_services.defaults; }
    const UserDefaults &defaults() const { return *m_services.defaults; }
    UndoManager &undoManager() { return m_undo; }
    const UndoManager &undoManager() const { return m_undo; }
    Cancellation &cancellation() { return m_cancellation; }

    /// Puts right what runs left that were killed, and tells of each file; nothing, at little cost,
    /// when there was none. Whoever starts a session calls it first.
    std::vector<RecoveredFile> recoverInterruptedRuns();
    bool hasInterruptedRuns() const { return RunJournal::hasUnfinished(supportFolder()); }

    /// Makes the folder part of the session (without importing it) and says where its zones stand.
    /// `folder` takes the new folder, or with AlreadyOpen the one that is there.
    OpenFolderResult addFolder(const FolderRequest &request, MySingleFolderPtr *folder = nullptr);

    /// Called on the main thread for each folder that an import finds inside another.
    void setFolderAdded(ImportDriver::FolderAdded folderAdded) {
        m_importDriver.setFolderAdded(std::move(folderAdded));
    }
    /// Called on the main thread when items of a folder became part of the session, before their
    /// cameras are read late; `startImport`'s `finished` comes behind all of that.
    void setItemsReady(ImportDriver::ItemsReady itemsReady) {
        m_importDriver.setItemsReady(std::move(itemsReady));
    }
    /// Folders that are to get one sequence of dates are told here before the first of them is
    /// imported.
    DelayedImports &delayedImports() { return m_importDriver.delayedImports(); }

    /// Imports on the import thread, publishes the items here, and reads cameras late. Names that
    /// the folder holds already are left out; a file that stands in the session under another name
    /// is told as skipped. Folders found inside become folders of the session behind their parent
    /// and are imported with the same choices; `finished` tells of all of them together.
    void startImport(ImportRequest request, std::function<void(ImportOutcome)> finished);
    /// Reads late, of all items of the folder, what an import leaves out: what filters ask that
    /// need late values. `finished` may come at once, where there is nothing to read.
    void completeFolder(const MySingleFolderPtr &folder, std::function<void()> finished);
    /// Sorts the visible list again, and filters it.
    void buildNewSource();
    /// The views that show the visible list; without them the session has none. They outlive the
    /// controller.
    void setSourceViews(SourceViews *views);
    SourceBuilder &sourceBuilder() { return *m_source; }
    MyTimelinesController &timelines() { return m_timelines; }
    const MyTimelinesController &timelines() const { return m_timelines; }
    FilterSourceController &filters() { return *m_filters; }
    const FilterSourceController &filters() const { return *m_filters; }
    /// Shows only items that a map has chosen, or that stand in these folders; none: all.
    void setSelectedPicsToFilter(std::optional<PicSet> pics);
    void setFoldersFilter(std::optional<std::vector<MySingleFolderPtr>> folders);
    const std::optional<std::vector<MySingleFolderPtr>> &foldersFilter() const {
        return m_foldersFilter;
    }
    /// Marks items as keepers or rejected; the filters follow.
    Marking &marking() { return m_marking; }
    /// Starts the drag of a thumbnail; see DateDrag.
    std::unique_ptr<DateDrag> beginDateDrag(const MySinglePicPtr &dragged, TimelineStrip &strip);
    /// Ends it, with its dates. The list is to be built again.
    DateChangeOutcome commitDateDrag(DateDrag &drag);

    /// Gives items dates by those of others; see chronomender::dropByOrder. The list is to be built
    /// again.
    DateChangeOutcome dropByOrder(const DropByOrder &drop);

    DateChangeOutcome shiftFolder(MySingleFolder &folder, absl::Duration totalShift);
    DateChangeOutcome shiftItems(const std::vector<MySinglePicPtr> &items,
                                 absl::Duration difference);

    /// Says whether header times of the folder's movies are the camera's own clock or UTC, and
    /// reads them again, undoably. The number of items that show another date now.
    std::size_t setMovieClock(MySingleFolder &folder, bool isLocal);

    /// Assigns zones to folders, or to single items of them, undoably; see assignZones. The number
    /// of items that show another date now.
    std::size_t setZones(MySingleFolder &folder, const ZoneWish &wish);
    std::size_t setZones(const std::vector<MySingleFolderPtr> &folders, const ZoneWish &wish);
    std::size_t setZones(const std::vector<MySinglePicPtr> &items, const ZoneWish &wish);
    /// Picks the reading of stamps that mean two instants; see useAmbiguityAlternative.
    std::size_t useAlternative(const std::vector<MySinglePicPtr> &items, AlternativeTarget target,
                               bool isAlternative);
    /// Asks for the missing date tags of items, and of their other halves, where they can be added,
    /// or takes that back; undoably.
    void addMissingDateTags(const std::vector<MySinglePicPtr> &items, bool shouldAdd = true);
    /// Puts a selection in order; see realignSelection.
    AlignOutcome align(AlignCommand command, const AlignSelection &selection);

    /// What a change of the system's zone does to the session; it waits for the end of an import
    /// and of a save (of its second stage, or until its PreProcessResult is given up).
    SystemZoneChange &systemZoneChange() { return m_systemZoneChange; }
    /// From now on such changes are noticed. A program that runs for one command has no need to.
    void startWatchingSystemZone();

    /// Files that need the external tool can be written.
    bool hasTool() const { return m_tool.program().has_value(); }

    /// What calculations for a display go by.
    NewDateContext liveContext() const;

    /// Stage one of a save; nothing is written.
    void startPreProcess(SaveRequest request, Progress progress,
                         std::function<void(PreProcessResult)> finished);
    /// What a rename goes by, in place of the preferences; none: those again.
    void setRenameChoices(std::optional<RenameChoices> choices) {
        m_renameChoices = std::move(choices);
    }
    /// What the rename of the request would do now; nothing is moved.
    void startRenamePreview(SaveRequest request, Progress progress,
                            std::function<void(std::vector<ItemRename>)> finished);
    /// Told on the save's thread what stage two begins to do, by the key of its title.
    void setSaveStepBegins(std::function<void(std::string_view titleKey)> begins) {
        m_saveStepBegins = std::move(begins);
    }
    /// Stage two. Problems in `preProcess` count as accepted. Errors go to the log, too.
    void startContinueProcess(SaveRequest request, PreProcessResult preProcess, Progress progress,
                              std::function<void(SaveRunResult)> finished);

private:
    int dateComparisonThresold() const;
    ZoneUndo zoneUndo();
    std::unique_ptr<RenameRun> makeRenameRun();
    void logErrors(const SaveRunResult &result) const;

    AppServices m_services;
    Cancellation m_cancellation;
    UndoManager m_undo;
    MyDroppedFolders m_droppedFolders;
    SystemZoneChange m_systemZoneChange;
    std::optional<SystemZoneWatch> m_systemZoneWatch;
    SourceViews m_noViews;
    SourceViews *m_views = &m_noViews;
    MyTimelinesController m_timelines;
    std::unique_ptr<FilterSourceController> m_filters;
    std::optional<PicSet> m_selectedPicsToFilter;
    std::optional<std::vector<MySingleFolderPtr>> m_foldersFilter;
    Marking m_marking;
    std::unique_ptr<SourceBuilder> m_source;
    ImportDriver m_importDriver;
    Progress m_saveProgress;
    std::function<void(std::string_view)> m_saveStepBegins;
    RunJournal m_journal;
    XtController m_tool;
    ErrorLog m_errorLog;
    std::optional<RenameChoices> m_renameChoices;
    SaveDriver m_saveDriver;
    RenameRun *m_renameRun = nullptr; ///< the driver's last step
    WorkThread m_saveWorker;
};

} // namespace chronomender
