// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppController.h"

#include "DateModifications.h"
#include "FolderAccess.h"
#include "FolderNames.h"
#include "MainThread.h"
#include "SupportFolders.h"
#include "ZoneLookup.h"

#include <absl/time/clock.h>

#include <cerrno>
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

void assignZones(MySingleFolder &folder, const FolderRequest &request) {
    if (request.sourceZone)
        setTZDefaultsSource(folder, *request.sourceZone, !request.targetZone);
    if (request.targetZone)
        folder.targetTimeZones.folderDefault = request.targetZone;
}

MediaTypesState mediaStateOf(const MySingleFolder &folder) {
    unsigned state = 0;
    for (const MySinglePicPtr &pic : folder.sfPicDetails_fullArray)
        state |= static_cast<unsigned>(pic->isMovie() ? MediaTypesState::Movies
                                                      : MediaTypesState::Photos);
    return static_cast<MediaTypesState>(state);
}

} // namespace

AppServices systemServices() {
    return {makeSystemFileLayer(), std::make_unique<UserDefaults>(userDefaultsPath()),
            std::make_unique<Zones>(), [] { return absl::Now(); }};
}

AppController::AppController(AppServices services, ImportQuestions &questions)
    : m_services(std::move(services)),
      m_questions(questions),
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
    MySingleFolderPtr found = m_droppedFolders.folderWithIdentity(*attributes);
    const auto result = found ? OpenFolderResult::AlreadyOpen : OpenFolderResult::Opened;
    if (!found) {
        found = MySingleFolder::initWithFolder(path, reference, request.mode);
        assignZones(*found, request);
        m_droppedFolders.append(found);
    }
    if (folder)
        *folder = found;
    return result;
}

void AppController::startImport(ImportRequest request,
                                std::function<void(ImportOutcome)> finished) {
    auto work = [this, request] {
        const ImportServices services{*m_services.zones, *m_services.defaults, m_questions,
                                      m_cancellation,    request.progress,     &m_sessionFiles};
        return updatePicData(*request.folder, request.names, services);
    };
    auto publishAndComplete = [this, request = std::move(request),
                               finished = std::move(finished)](ImportOutcome outcome) {
        publish(*request.folder, outcome);
        completeLate(request, std::move(outcome), finished);
    };
    runOn(m_importThread, std::move(work), std::move(publishAndComplete));
}

void AppController::publish(MySingleFolder &folder, const ImportOutcome &outcome) {
    auto &list = folder.sfPicDetails_fullArray;
    list.insert(list.end(), outcome.items.begin(), outcome.items.end());
    folder.fixedDates += outcome.fixedDates;
    sfUpdatePicsFromAndTill(folder);
    folder.mediaTypesState = mediaStateOf(folder);
    validateTZCUnsaved(folder, *m_services.zones);
}

void AppController::completeLate(const ImportRequest &request, ImportOutcome outcome,
                                 std::function<void(ImportOutcome)> finished) {
    auto wanted = itemsToComplete(outcome.items, request.completion);
    if (wanted.empty() || m_cancellation.isRequested()) {
        finished(std::move(outcome));
        return;
    }
    if (!std::exchange(m_isImagingReady, true))
        initialiseImaging();
    auto work = [this, wanted] { return readDictionaries(wanted, m_cancellation); };
    auto apply = [wanted, outcome = std::move(outcome),
                  finished = std::move(finished)](const PropertyDictionaries &found) mutable {
        completeItems(wanted, found);
        finished(std::move(outcome));
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
