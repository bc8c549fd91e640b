// SPDX-License-Identifier: GPL-3.0-or-later
#include "RowTexts.h"
#include "Texts.h"
#include "WindowSession.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

// How folders and files come into a window's session, and leave it.

namespace chronomender {
namespace {

struct OpenRefusal {
    OpenFolderResult result;
    const char *key;
};
constexpr std::array<OpenRefusal, 5> openRefusals{{
    {OpenFolderResult::NotFound, "dropRefusal_notFound"},
    {OpenFolderResult::NotAFolder, "dropRefusal_notFound"},
    {OpenFolderResult::NoAccess, "dropRefusal_noAccess"},
    {OpenFolderResult::NameNotUtf8, "dropRefusal_nameNotUtf8"},
    {OpenFolderResult::LibraryOfAnotherProgram, "dropRefusal_libraryOfAnotherProgram"},
}};

std::string line(const std::string &path, const char *reasonKey) {
    return path + ": " + text(reasonKey);
}

} // namespace

void WindowSession::openPathsWithOptions(const std::vector<std::string> &paths) {
    m_questions.importOptions(paths, [this, paths](const std::optional<KeyStates> &chosen) {
        if (chosen)
            openPaths(paths, *chosen);
    });
}

void WindowSession::openPaths(const std::vector<std::string> &paths, const KeyStates &keyStates) {
    if (isChangeRefused({}))
        return;
    const DropPlan plan = planDrop(paths);
    for (const RefusedPath &refused : plan.refused)
        m_readingNotes.push_back(line(refused.path, textKey(refused.refusal)));
    for (const DropJob &job : plan.jobs)
        openJob(job, keyStates);
    if (m_selectedFolders.empty() && !folders().empty())
        selectFolders({folders().front()});
    Q_EMIT foldersChanged();
    if (m_runningReads == 0)
        tellReadingNotes();
}

void WindowSession::openJob(const DropJob &job, const KeyStates &keyStates) {
    MySingleFolderPtr folder;
    const OpenFolderResult result = m_controller->addFolder({job.path, keyStates}, &folder);
    if (folder)
        return read(folder, job.names, keyStates);
    const auto refusal = std::ranges::find(openRefusals, result, &OpenRefusal::result);
    if (refusal != openRefusals.end())
        m_readingNotes.push_back(line(job.path, refusal->key));
}

void WindowSession::read(const MySingleFolderPtr &folder, const std::vector<std::string> &names,
                         const KeyStates &keyStates) {
    const auto job = m_jobs.begin(JobKind::Import, text("job_reading", {folder->sfFolder}),
                                  [this] { m_controller->cancellation().request(); });
    m_reading[folder.get()] = folder.get();
    m_completeFolders.erase(folder.get()); // it may get more items
    ++m_runningReads;
    ImportRequest request{
        folder, names, keyStates, CompletionScope::WhereCameraIsMissing,
        [job](ImportProgress progress) { job->report(progress.done, progress.total); }};
    m_controller->startImport(
        std::move(request),
        [this, folder, job](const ImportOutcome &outcome) { readingEnded(folder, outcome); });
}

void WindowSession::itemsReady(const MySingleFolderPtr &folder,
                               const std::vector<MySinglePicPtr> &items) {
    m_reading.erase(folder.get());
    m_controller->buildNewSource();
    m_thumbnails->addImagesWithoutThumb(items);
    TimelineStrip &strip = timelines().mainTimeline();
    if (!strip.selection.picSelection && !strip.theSource.empty())
        timelines().simpleSelectThumb(strip.theSource.front(), strip);
    tellEverything();
}

void WindowSession::readingEnded(const MySingleFolderPtr &folder, const ImportOutcome &outcome) {
    std::erase_if(m_reading, [&](const auto &entry) { return entry.second == folder.get(); });
    noteReading(outcome);
    readEnded();
    const std::size_t count = outcome.items.size();
    tell(count == 1 ? text("status_read_one", {folder->sfFolder})
                    : text("status_read", {numberText(count), folder->sfFolder}));
}

void WindowSession::readEnded() {
    --m_runningReads;
    if (m_runningReads == 0 && m_saveFlow->isIdle())
        m_controller->cancellation().clear();
    m_controller->buildNewSource();
    tellEverything();
    if (m_runningReads == 0)
        tellReadingNotes();
}

/// A camera's serial number, a lens or a place in a file beside the photo is read when a filter
/// asks for such things.
void WindowSession::completeForFilter() {
    if (!m_controller->filters().needsLateValues() || !m_saveFlow->isIdle())
        return;
    for (const MySingleFolderPtr &folder : folders())
        if (!isBeingRead(*folder) && m_completeFolders.insert(folder.get()).second)
            complete(folder);
}

void WindowSession::complete(const MySingleFolderPtr &folder) {
    const auto job = m_jobs.begin(JobKind::Import, text("job_completing", {folder->sfFolder}),
                                  [this] { m_controller->cancellation().request(); });
    ++m_runningReads;
    m_controller->completeFolder(folder, [this, job] { readEnded(); });
}

void WindowSession::noteReading(const ImportOutcome &outcome) {
    for (const SkippedEntry &entry : outcome.skipped)
        if (entry.reason != SkipReason::Cancelled)
            m_readingNotes.push_back(line(entry.path, textKey(entry.reason)));
    for (const ImportError &error : outcome.importErrors)
        m_readingNotes.push_back(line(error.path, textKey(error.id)));
}

void WindowSession::tellReadingNotes() {
    if (!m_readingNotes.empty())
        m_questions.notice(text("reading_message"), std::exchange(m_readingNotes, {}));
}

void WindowSession::removeFolders(const std::vector<MySingleFolderPtr> &folders) {
    if (isChangeRefused(folders) || folders.empty())
        return;
    if (unsavedOf(folders).empty())
        return dropFolders(folders);
    const Confirmation question{text("removeFolders_message"),
                                text("removeFolders_information"),
                                text("removeFolders_accept"),
                                {},
                                true};
    m_questions.confirm(question, [this, folders](Answer answer) {
        if (answer == Answer::Accepted)
            dropFolders(folders);
    });
}

void WindowSession::dropFolders(const std::vector<MySingleFolderPtr> &folders) {
    if (isChangeRefused(folders))
        return;
    std::unordered_set<const void *> gone;
    std::vector<MySinglePicPtr> pics;
    for (const MySingleFolderPtr &folder : folders) {
        gone.insert(folder.get());
        m_completeFolders.erase(folder.get());
        for (const MySinglePicPtr &pic : folder->sfPicDetails_fullArray)
            for (const MySinglePicPtr &half : {pic, pic->group.bundleDependentImage})
                if (half && gone.insert(half.get()).second)
                    pics.push_back(half);
    }
    m_thumbnails->forget(pics);
    m_controller->undoManager().removeAllActionsWithTargets(gone);
    m_controller->droppedFolders().remove(folders);
    m_controller->buildNewSource();
    tellEverything();
}

void WindowSession::checkFolders() {
    auto look = [folders = this->folders()] {
        std::vector<bool> isThere;
        isThere.reserve(folders.size());
        for (const MySingleFolderPtr &folder : folders)
            isThere.push_back(folder->unlockedSecUrl().has_value());
        return std::pair(folders, isThere);
    };
    m_folderCheck.run(std::move(look), [this](const auto &found) {
        bool hasChanged = false;
        for (std::size_t i = 0; i < found.first.size(); ++i)
            hasChanged |=
                std::exchange(found.first[i]->isDisconnected, !found.second[i]) == found.second[i];
        if (hasChanged)
            Q_EMIT foldersChanged();
    });
}

void WindowSession::setThumbnailSettings(const ThumbnailSettings &settings) {
    if (settings == m_thumbnails->settings())
        return;
    m_thumbnails->setSettings(settings);
    m_previews->setRawJpgDisplayType(settings.rawJpgDisplayType);
    for (const MySingleFolderPtr &folder : folders())
        m_thumbnails->addImagesWithoutThumb(folder->sfPicDetails_fullArray);
    Q_EMIT thumbsChanged();
    Q_EMIT previewsChanged();
}

void WindowSession::thumbnailsProgressed() {
    const Thumbnails::Progress progress = m_thumbnails->progress();
    if (progress.waiting == 0)
        return m_thumbnailsJob.reset();
    if (!m_thumbnailsJob)
        m_thumbnailsJob = m_jobs.begin(JobKind::Thumbnails, text("job_thumbnails"),
                                       [this] { m_thumbnails->stopBackgroundGeneration(); });
    m_thumbnailsJob->report(progress.finished, progress.finished + progress.waiting);
}

} // namespace chronomender
