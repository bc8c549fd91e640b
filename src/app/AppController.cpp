// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppController.h"

#include "DateModifications.h"
#include "MainThread.h"

#include <absl/time/clock.h>

#include <utility>

namespace chronomender {
AppServices systemServices() {
    return {makeSystemFileLayer(), std::make_unique<UserDefaults>(userDefaultsPath()),
            std::make_unique<Zones>(), [] { return absl::Now(); }};
}

AppController::AppController(AppServices services, ImportQuestions &questions)
    : m_services(std::move(services)),
      m_systemZoneChange(*m_services.zones, *m_services.defaults, m_droppedFolders, m_services.now),
      m_timelines(m_undo, [this] { buildNewSource(); }),
      m_marking(m_undo,
                [this](std::string_view key) { m_filters->filterRelevantChangeWasMade(key); }),
      m_importDriver({*m_services.zones, *m_services.defaults, questions, m_cancellation, m_undo,
                      m_droppedFolders}),
      m_journal(supportFolder(), m_services.durability),
      m_tool(
          {supportFolder(), [this] { return m_services.defaults->stringForKey("exifToolPath"); }}),
      m_errorLog(supportFolder()),
      m_saveDriver(m_droppedFolders.droppedFolders(),
                   SaveServices{*m_services.files, *m_services.zones, *m_services.defaults, m_undo,
                                m_cancellation, m_journal, m_tool, m_services.now,
                                [this](std::size_t done, std::size_t total) {
                                    if (m_saveProgress)
                                        m_saveProgress(done, total);
                                },
                                [this](std::string_view titleKey) {
                                    if (m_saveStepBegins)
                                        m_saveStepBegins(titleKey);
                                }}) {
    mainThread::initialise();
    setSourceViews(nullptr);
    auto renameRun = makeRenameRun();
    m_renameRun = renameRun.get();
    m_saveDriver.appendStep(std::move(renameRun));
}

AppController::~AppController() {
    m_cancellation.request();
    mainThread::beginShutdown();
    m_importDriver.waitForDone();
    m_saveWorker.waitForDone();
}

std::vector<RecoveredFile> AppController::recoverInterruptedRuns() {
    if (!hasInterruptedRuns())
        return {};
    return RunJournal::recover(supportFolder(), *m_services.files);
}

OpenFolderResult AppController::addFolder(const FolderRequest &request, MySingleFolderPtr *folder) {
    MySingleFolderPtr opened;
    const OpenFolderResult result = openFolder(request, m_droppedFolders, nullptr, opened);
    if (folder && opened)
        *folder = std::move(opened);
    return result;
}

void AppController::startImport(ImportRequest request,
                                std::function<void(ImportOutcome)> finished) {
    m_importDriver.start(std::move(request),
                         [finished = std::move(finished), pause = m_systemZoneChange.pause()](
                             ImportOutcome outcome) { finished(std::move(outcome)); });
}

void AppController::completeFolder(const MySingleFolderPtr &folder,
                                   std::function<void()> finished) {
    m_importDriver.complete(folder, std::move(finished));
}

void AppController::setSourceViews(SourceViews *views) {
    m_views = views ? views : &m_noViews;
    m_filters = std::make_unique<FilterSourceController>(
        *m_services.defaults, *m_services.zones, *m_views,
        [this](NewSelection selection, Refilter refilter) {
            m_source->buildNewSourceWithNewSelectionOption(selection, refilter);
        });
    m_source = std::make_unique<SourceBuilder>(m_droppedFolders, m_timelines, *m_views, [this] {
        const std::optional<Predicate> &filter = m_filters->filter_finalPredicate();
        return SourceRestrictions{.predicate = m_filters->compiled(),
                                  .selectedPicsToFilter =
                                      m_selectedPicsToFilter ? &*m_selectedPicsToFilter : nullptr,
                                  .folders = m_foldersFilter,
                                  .filter_finalPredicate = filter ? &*filter : nullptr};
    });
}

void AppController::setSelectedPicsToFilter(std::optional<PicSet> pics) {
    m_selectedPicsToFilter = std::move(pics);
    m_source->buildNewSourceWithNewSelectionOption(NewSelection::Choose, Refilter::RefilterOnly);
}

void AppController::setFoldersFilter(std::optional<std::vector<MySingleFolderPtr>> folders) {
    m_foldersFilter = std::move(folders);
    m_source->buildNewSourceWithNewSelectionOption(NewSelection::Choose, Refilter::RefilterOnly);
}

void AppController::buildNewSource() {
    m_source->buildNewSource();
}

std::unique_ptr<DateDrag> AppController::beginDateDrag(const MySinglePicPtr &dragged,
                                                       TimelineStrip &strip) {
    return DateDrag::begin(dragged, m_timelines, strip,
                           absl::Seconds(m_services.defaults->integerForKey("dragGapOuterEdges")));
}

DateChangeOutcome AppController::commitDateDrag(DateDrag &drag) {
    return drag.commit(m_undo);
}

DateChangeOutcome AppController::dropByOrder(const DropByOrder &drop) {
    return chronomender::dropByOrder(drop, m_undo);
}

DateChangeOutcome AppController::shiftFolder(MySingleFolder &folder, absl::Duration totalShift) {
    return dragChangedDates(totalShift, folder, m_undo);
}

DateChangeOutcome AppController::shiftItems(const std::vector<MySinglePicPtr> &items,
                                            absl::Duration difference) {
    return dragMovesValuesBy(difference, items, m_undo);
}

ZoneUndo AppController::zoneUndo() {
    return {m_undo, *m_services.zones, dateComparisonThresold()};
}

std::size_t AppController::setMovieClock(MySingleFolder &folder, bool isLocal) {
    return changeMovieClock(folder, isLocal, zoneUndo());
}

std::size_t AppController::setZones(MySingleFolder &folder, const ZoneWish &wish) {
    return setZones(std::vector{folder.shared_from_this()}, wish);
}

std::size_t AppController::setZones(const std::vector<MySingleFolderPtr> &folders,
                                    const ZoneWish &wish) {
    return assignZones(folders, wish, zoneUndo());
}

std::size_t AppController::setZones(const std::vector<MySinglePicPtr> &items,
                                    const ZoneWish &wish) {
    return assignZones(items, wish, zoneUndo());
}

std::size_t AppController::useAlternative(const std::vector<MySinglePicPtr> &items,
                                          AlternativeTarget target, bool isAlternative) {
    return useAmbiguityAlternative(items, target, isAlternative, *m_services.zones, m_undo);
}

void AppController::addMissingDateTags(const std::vector<MySinglePicPtr> &items, bool shouldAdd) {
    const UndoGroup group(m_undo);
    for (const MySinglePicPtr &pic : items)
        for (const MySinglePicPtr &half : {pic, pic->group.bundleDependentImage})
            if (half)
                changeMissingDateTags(*half, shouldAdd, m_undo);
}

AlignOutcome AppController::align(AlignCommand command, const AlignSelection &selection) {
    return realignSelection(command, selection, liveContext(), m_undo);
}

void AppController::startWatchingSystemZone() {
    if (!m_systemZoneWatch)
        m_systemZoneWatch.emplace(m_services.zones->systemPlaces(),
                                  [this] { m_systemZoneChange.systemTimeZoneDidChange(); });
}

NewDateContext AppController::liveContext() const {
    NewDateContext context = chronomender::liveContext(*m_services.defaults, m_services.now());
    // The worker is busy from the moment of asking on.
    context.isSavingInProgress = m_saveWorker.isBusy() || m_saveDriver.isSavingInProgress();
    return context;
}

int AppController::dateComparisonThresold() const {
    return m_services.defaults->integerForKey("dateComparisonThresold");
}

void AppController::startPreProcess(SaveRequest request, Progress progress,
                                    std::function<void(PreProcessResult)> finished) {
    m_saveProgress = std::move(progress);
    m_saveWorker.run(
        [this, request = std::move(request)] { return m_saveDriver.preProcessThread(request); },
        [finished = std::move(finished),
         pause = m_systemZoneChange.pause()](PreProcessResult result) {
            result.zonePause = pause;
            finished(std::move(result));
        });
}

void AppController::startContinueProcess(SaveRequest request, PreProcessResult preProcess,
                                         Progress progress,
                                         std::function<void(SaveRunResult)> finished) {
    m_saveProgress = std::move(progress);
    m_saveWorker.run(
        [this, request = std::move(request), preProcess = std::move(preProcess)] {
            SaveRunResult result = m_saveDriver.continueProcessThread(request, preProcess);
            logErrors(result);
            return result;
        },
        [finished = std::move(finished), pause = m_systemZoneChange.pause()](SaveRunResult result) {
            finished(std::move(result));
        });
}

std::unique_ptr<RenameRun> AppController::makeRenameRun() {
    RenameRun::Session session{
        [this] { return m_renameChoices ? m_renameChoices : renameChoices(*m_services.defaults); },
        [this](const SaveRequest &request) {
            return renameScope(request, m_droppedFolders.droppedFolders(), source_full());
        }};
    return std::make_unique<RenameRun>(
        std::move(session), RenameServices{*m_services.files, *m_services.zones, m_cancellation,
                                           m_journal, [this](std::size_t done, std::size_t total) {
                                               if (m_saveProgress)
                                                   m_saveProgress(done, total);
                                           }});
}

void AppController::startRenamePreview(SaveRequest request, Progress progress,
                                       std::function<void(std::vector<ItemRename>)> finished) {
    m_saveProgress = std::move(progress);
    m_saveWorker.run(
        [this, request = std::move(request)] { return m_renameRun->renamePreview(request); },
        [finished = std::move(finished), pause = m_systemZoneChange.pause()](
            std::vector<ItemRename> outcome) { finished(std::move(outcome)); });
}

void AppController::logErrors(const SaveRunResult &result) const {
    const std::string errors = actionErrorText(result.errors, result.toolErrors);
    if (!errors.empty())
        m_errorLog.append(m_services.now(), m_services.runName, errors);
}

} // namespace chronomender
