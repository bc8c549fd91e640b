// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImportDriver.h"

#include "CompoundLivePhotos.h"
#include "DateModifications.h"
#include "ZoneLookup.h"

#include <deque>
#include <iterator>
#include <unordered_set>
#include <utility>

namespace chronomender {
namespace {

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

ImportDriver::ImportDriver(const ImportSession &session)
    : m_session(session),
      m_delayedImports(
          [this](const MySingleFolderPtr &folder, const std::vector<MySinglePicPtr> &items) {
              publish(folder, items);
          }) {}

/// An import of a folder, and of all folders that turn up inside it.
struct ImportDriver::Job {
    std::deque<ImportRequest> waiting;
    ImportOutcome total;
    std::function<void(ImportOutcome)> finished;
};

void ImportDriver::start(ImportRequest request, std::function<void(ImportOutcome)> finished) {
    if (request.keyStates.dateSequence && !m_delayedImports.isDelayed(*request.folder))
        m_delayedImports.addDrop(*request.keyStates.dateSequence, {request.folder});
    const auto job = std::make_shared<Job>();
    job->finished = std::move(finished);
    job->waiting.push_back(std::move(request));
    runNext(job);
}

void ImportDriver::runNext(const JobPtr &job) {
    if (job->waiting.empty()) {
        job->finished(std::move(job->total));
        return;
    }
    ImportRequest request = std::move(job->waiting.front());
    job->waiting.pop_front();
    auto work = [this, request] {
        const ImportServices services{
            m_session.zones,
            m_session.defaults,
            m_session.questions,
            m_session.cancellation,
            request.progress,
            &m_sessionFiles,
            [](std::function<void()> call) { mainThread::callAndWait(std::move(call)); }};
        return updatePicData(*request.folder, {request.names, request.keyStates}, services);
    };
    m_thread.run(std::move(work), [this, job, request](ImportOutcome outcome) {
        importEnded(job, request, std::move(outcome));
    });
}

void ImportDriver::importEnded(const JobPtr &job, const ImportRequest &request,
                               ImportOutcome outcome) {
    addSubfolders(job, request, outcome);
    // What a dependent's own steps would take back belongs to its master now.
    std::unordered_set<const void *> dependents;
    for (const MergedGroup &group : outcome.merged)
        dependents.insert(group.dependent.get());
    m_session.undo.removeAllActionsWithTargets(dependents);
    if (m_delayedImports.isDelayed(*request.folder))
        m_delayedImports.hold(*request.folder, outcome.items);
    else
        publish(request.folder, outcome.items);
    m_delayedImports.removeDelayer(*request.folder);
    if (m_session.cancellation.isRequested())
        m_delayedImports.finishAll();
    const std::vector<MySinglePicPtr> items = outcome.items;
    append(job->total, std::move(outcome));
    completeLate(request, items, [this, job] { runNext(job); });
}

void ImportDriver::complete(const MySingleFolderPtr &folder, std::function<void()> finished) {
    completeLate({folder, {}, {}, CompletionScope::All, {}}, folder->sfPicDetails_fullArray,
                 std::move(finished));
}

/// Behind their parent, in natural order, each folder once under whatever path.
void ImportDriver::addSubfolders(const JobPtr &job, const ImportRequest &request,
                                 ImportOutcome &outcome) {
    std::vector<ImportRequest> requests;
    MySingleFolderPtr last = request.folder;
    for (const std::string &path : outcome.subfolders) {
        MySingleFolderPtr folder;
        const OpenFolderResult result =
            openFolder({path, request.keyStates}, m_session.droppedFolders, last, folder);
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

void ImportDriver::publish(const MySingleFolderPtr &folder,
                           const std::vector<MySinglePicPtr> &items) {
    auto &list = folder->sfPicDetails_fullArray;
    list.insert(list.end(), items.begin(), items.end());
    sfUpdatePicsFromAndTill(*folder);
    folder->mediaTypesState = folder->presentMediaTypesState();
    validateTZCUnsaved(*folder, m_session.zones);
    refreshCompoundLivePhotosStates(*folder, m_session.defaults);
    if (m_itemsReady)
        m_itemsReady(folder, items);
}

void ImportDriver::completeLate(const ImportRequest &request,
                                const std::vector<MySinglePicPtr> &items,
                                std::function<void()> finished) {
    auto wanted = itemsToComplete(items, request.completion);
    if (wanted.empty() || m_session.cancellation.isRequested()) {
        finished();
        return;
    }
    if (!std::exchange(m_isImagingReady, true))
        initialiseImaging();
    auto work = [this, wanted] { return readDictionaries(wanted, m_session.cancellation); };
    auto apply = [this, folder = request.folder, wanted,
                  finished = std::move(finished)](const PropertyDictionaries &found) {
        completeItems(wanted, found);
        refreshCompoundLivePhotosStates(*folder, m_session.defaults);
        finished();
    };
    m_thread.run(std::move(work), std::move(apply));
}

} // namespace chronomender
