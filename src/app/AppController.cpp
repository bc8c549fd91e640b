// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppController.h"

#include "CompoundLivePhotos.h"
#include "DateModifications.h"
#include "FolderAccess.h"
#include "FolderNames.h"
#include "MainThread.h"
#include "MovieClock.h"
#include "SupportFolders.h"
#include "ZoneLookup.h"

#include <absl/time/clock.h>

#include <cerrno>
#include <deque>
#include <iterator>
#include <utility>

namespace chronomender {
namespace {

OpenFolderResult resultOf(const FileError &error) {
    switch (error.code) {
    case EACCES:
    case EPERM:
        return OpenFolderResult::NoAccess;
    case ENOTDIR:
        return OpenFolderResult::NotAFolder;
    default:
        return OpenFolderResult::NotFound;
    }
}

void apply(const KeyStates &keyStates, MySingleFolder &folder) {
    folder.isEXIFIgnored = keyStates.isEXIFIgnored;
    const AdaptedZone &zone = keyStates.adaptedZone;
    if (zone.source)
        setTZDefaultsSource(folder, *zone.source, !zone.target);
    if (zone.target)
        folder.targetTimeZones.folderDefault = zone.target;
}

/// What was settled for a folder holds for the folders inside it.
void inherit(MySingleFolder &folder, const MySingleFolder &parent) {
    folder.importDepth = parent.importDepth + 1;
    folder.areMovieOptionsSettled = parent.areMovieOptionsSettled;
    folder.isQuicktimeMDTADateEnabled = parent.isQuicktimeMDTADateEnabled;
    folder.isQuicktimeMVHDTimezoneCorrectionEnabled =
        parent.isQuicktimeMVHDTimezoneCorrectionEnabled;
}

template<class Value>
void append(std::vector<Value> &all, std::vector<Value> more) {
    all.insert(all.end(), std::make_move_iterator(more.begin()),
               std::make_move_iterator(more.end()));
}

void append(ImportOutcome &total, ImportOutcome outcome) {
    append(total.items, std::move(outcome.items));
    append(total.merged, std::move(outcome.merged));
    append(total.skipped, std::move(outcome.skipped));
    append(total.importErrors, std::move(outcome.importErrors));
    append(total.subfolders, std::move(outcome.subfolders));
    total.wasCancelled = total.wasCancelled || outcome.wasCancelled;
    total.fixedDates += outcome.fixedDates;
}

} // namespace

AppServices systemServices() {
    return {makeSystemFileLayer(), std::make_unique<UserDefaults>(userDefaultsPath()),
            std::make_unique<Zones>(), [] { return absl::Now(); }};
}

AppController::AppController(AppServices services, ImportQuestions &questions)
    : m_services(std::move(services)),
      m_questions(questions),
      m_delayedImports(
          [this](const MySingleFolderPtr &folder, const std::vector<MySinglePicPtr> &items) {
              publish(*folder, items);
          }),
      m_saveDriver(m_droppedFolders.droppedFolders(),
                   SaveServices{*m_services.files, *m_services.zones, *m_services.defaults, m_undo,
                                m_cancellation, m_services.now,
                                [this](std::size_t done, std::size_t total) {
                                    if (m_saveProgress)
                                        m_saveProgress(done, total);
                                }}) {
    mainThread::initialise();
    m_importThread.setMaxThreadCount(1);
    m_saveWorker.setMaxThreadCount(1);
}

AppController::~AppController() {
    m_cancellation.request();
    mainThread::beginShutdown();
    m_importThread.waitForDone();
    m_saveWorker.waitForDone();
}

/// Runs `work` on the thread, then `finished` with its result on the main thread.
template<class Work, class Finished>
void AppController::runOn(QThreadPool &thread, Work work, Finished finished) {
    std::weak_ptr<const bool> alive = m_alive;
    thread.start([work = std::move(work), finished = std::move(finished), alive] {
        auto result = std::make_shared<decltype(work())>(work());
        mainThread::post([finished = finished, result, alive]() mutable {
            if (alive.lock())
                finished(std::move(*result));
        });
    });
}

OpenFolderResult AppController::addFolder(const FolderRequest &request, MySingleFolderPtr *folder) {
    MySingleFolderPtr opened;
    const OpenFolderResult result = openFolder(request, nullptr, opened);
    if (folder && opened)
        *folder = std::move(opened);
    return result;
}

OpenFolderResult AppController::openFolder(const FolderRequest &request,
                                           const MySingleFolderPtr &behind,
                                           MySingleFolderPtr &folder) {
    FileError error;
    const auto reference = FolderReference::open(request.path, &error);
    const auto attributes = reference ? reference->attributes() : std::nullopt;
    if (!attributes)
        return resultOf(error);
    const std::string path = reference->path();
    if (!isValidUtf8(path))
        return OpenFolderResult::NameNotUtf8;
    if (isRefusedFolder(path))
        return OpenFolderResult::LibraryOfAnotherProgram;
    folder = m_droppedFolders.folderWithIdentity(*attributes);
    if (folder)
        return OpenFolderResult::AlreadyOpen;
    folder = MySingleFolder::initWithFolder(path, reference, request.keyStates.sfEditMode);
    apply(request.keyStates, *folder);
    if (behind)
        m_droppedFolders.insertBehind(folder, behind);
    else
        m_droppedFolders.append(folder);
    return OpenFolderResult::Opened;
}

/// An import of a folder, and of all folders that turn up inside it.
struct AppController::ImportJob {
    std::deque<ImportRequest> waiting;
    ImportOutcome total;
    std::function<void(ImportOutcome)> finished;
};

void AppController::startImport(ImportRequest request,
                                std::function<void(ImportOutcome)> finished) {
    if (request.keyStates.dateSequence && !m_delayedImports.isDelayed(*request.folder))
        m_delayedImports.addDrop(*request.keyStates.dateSequence, {request.folder});
    const auto job = std::make_shared<ImportJob>();
    job->finished = std::move(finished);
    job->waiting.push_back(std::move(request));
    runNext(job);
}

void AppController::runNext(const ImportJobPtr &job) {
    if (job->waiting.empty()) {
        job->finished(std::move(job->total));
        return;
    }
    ImportRequest request = std::move(job->waiting.front());
    job->waiting.pop_front();
    auto work = [this, request] {
        const ImportServices services{
            *m_services.zones,
            *m_services.defaults,
            m_questions,
            m_cancellation,
            request.progress,
            &m_sessionFiles,
            [](std::function<void()> call) { mainThread::callAndWait(std::move(call)); }};
        return updatePicData(*request.folder, {request.names, request.keyStates}, services);
    };
    runOn(m_importThread, std::move(work), [this, job, request](ImportOutcome outcome) {
        importEnded(job, request, std::move(outcome));
    });
}

void AppController::importEnded(const ImportJobPtr &job, const ImportRequest &request,
                                ImportOutcome outcome) {
    addSubfolders(job, request, outcome);
    // What a dependent's own steps would take back belongs to its master now.
    for (const MergedGroup &group : outcome.merged)
        m_undo.removeAllActionsWithTarget(group.dependent.get());
    if (m_delayedImports.isDelayed(*request.folder))
        m_delayedImports.hold(*request.folder, outcome.items);
    else
        publish(*request.folder, outcome.items);
    m_delayedImports.removeDelayer(*request.folder);
    if (m_cancellation.isRequested())
        m_delayedImports.finishAll();
    const std::vector<MySinglePicPtr> items = outcome.items;
    append(job->total, std::move(outcome));
    completeLate(request, items, [this, job] { runNext(job); });
}

/// Behind their parent, in natural order, each folder once under whatever path.
void AppController::addSubfolders(const ImportJobPtr &job, const ImportRequest &request,
                                  ImportOutcome &outcome) {
    std::vector<ImportRequest> requests;
    MySingleFolderPtr last = request.folder;
    for (const std::string &path : outcome.subfolders) {
        MySingleFolderPtr folder;
        const OpenFolderResult result = openFolder({path, request.keyStates}, last, folder);
        if (result == OpenFolderResult::AlreadyOpen)
            continue;
        if (result != OpenFolderResult::Opened) {
            outcome.skipped.push_back({path, result == OpenFolderResult::NameNotUtf8
                                                 ? SkipReason::NameNotUtf8
                                                 : SkipReason::Unreadable});
            continue;
        }
        inherit(*folder, *request.folder);
        m_delayedImports.addDelayer(folder, *request.folder);
        if (m_folderAdded)
            m_folderAdded(folder, request.folder);
        requests.push_back({folder, {}, request.keyStates, request.completion, request.progress});
        last = folder;
    }
    request.folder->importDepth = 0;
    job->waiting.insert(job->waiting.begin(), requests.begin(), requests.end());
}

void AppController::publish(MySingleFolder &folder, const std::vector<MySinglePicPtr> &items) {
    auto &list = folder.sfPicDetails_fullArray;
    list.insert(list.end(), items.begin(), items.end());
    sfUpdatePicsFromAndTill(folder);
    folder.mediaTypesState = folder.presentMediaTypesState();
    validateTZCUnsaved(folder, *m_services.zones);
    refreshCompoundLivePhotosStates(folder, *m_services.defaults);
}

void AppController::completeLate(const ImportRequest &request,
                                 const std::vector<MySinglePicPtr> &items,
                                 std::function<void()> finished) {
    auto wanted = itemsToComplete(items, request.completion);
    if (wanted.empty() || m_cancellation.isRequested()) {
        finished();
        return;
    }
    if (!std::exchange(m_isImagingReady, true))
        initialiseImaging();
    auto work = [this, wanted] { return readDictionaries(wanted, m_cancellation); };
    auto apply = [this, folder = request.folder, wanted,
                  finished = std::move(finished)](const PropertyDictionaries &found) {
        completeItems(wanted, found);
        refreshCompoundLivePhotosStates(*folder, *m_services.defaults);
        finished();
    };
    runOn(m_importThread, std::move(work), std::move(apply));
}

void AppController::buildNewSource() {
    m_source.buildNewSource(m_droppedFolders.droppedFolders());
}

DateChangeOutcome AppController::shiftFolder(MySingleFolder &folder, absl::Duration totalShift) {
    return dragChangedDates(totalShift, folder, m_undo);
}

DateChangeOutcome AppController::shiftItems(const std::vector<MySinglePicPtr> &items,
                                            absl::Duration difference) {
    return dragMovesValuesBy(difference, items, m_undo);
}

std::size_t AppController::setMovieClock(MySingleFolder &folder, bool isLocal) {
    const std::size_t changed = setQuicktimeMVHDTimezoneCorrection(
        folder, isLocal, *m_services.zones, defaults().integerForKey("dateComparisonThresold"));
    if (changed > 0)
        sfUpdatePicsFromAndTill(folder);
    return changed;
}

void AppController::startPreProcess(SaveRequest request, Progress progress,
                                    std::function<void(PreProcessResult)> finished) {
    m_saveProgress = std::move(progress);
    runOn(
        m_saveWorker,
        [this, request = std::move(request)] { return m_saveDriver.preProcessThread(request); },
        std::move(finished));
}

void AppController::startContinueProcess(SaveRequest request, PreProcessResult preProcess,
                                         Progress progress,
                                         std::function<void(SaveRunResult)> finished) {
    m_saveProgress = std::move(progress);
    runOn(
        m_saveWorker,
        [this, request = std::move(request), preProcess = std::move(preProcess)] {
            return m_saveDriver.continueProcessThread(request, preProcess);
        },
        std::move(finished));
}

} // namespace chronomender
