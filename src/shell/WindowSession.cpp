// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowSession.h"

#include "DateModifications.h"
#include "RecoveryTexts.h"
#include "RowTexts.h"
#include "Texts.h"

#include <algorithm>
#include <chrono>
#include <future>
#include <utility>

namespace chronomender {
namespace {

constexpr std::chrono::milliseconds askPeriod{50};
constexpr std::size_t previewBytes = 192U << 20U;

/// Asks on the main thread and waits for the answer here, on a worker; the fallback once the work
/// was given up.
template<class Reply, class Ask>
Reply askAndWait(const Cancellation &cancellation, Reply fallback, Ask ask) {
    auto promised = std::make_shared<std::promise<Reply>>();
    std::future<Reply> answer = promised->get_future();
    mainThread::post([ask = std::move(ask), promised] {
        ask([promised](Reply reply) { promised->set_value(std::move(reply)); });
    });
    while (answer.wait_for(askPeriod) != std::future_status::ready)
        if (cancellation.isRequested())
            return fallback;
    return answer.get();
}

MySingleFolderPtr shared(const MySingleFolder &folder,
                         const std::vector<MySingleFolderPtr> &folders) {
    const auto found = std::ranges::find(folders, &folder, &MySingleFolderPtr::get);
    return found == folders.end() ? nullptr : *found;
}

/// Main where there is no second strip.
TimelineKind secondKind(const MyTimelinesController &timelines) {
    const TimelineStrip *second = timelines.secondTimeline();
    return second ? second->kind : TimelineKind::Main;
}

std::vector<MySingleFolderPtr> amongThose(const std::vector<MySingleFolderPtr> &present,
                                          const std::vector<MySingleFolderPtr> &wanted) {
    std::vector<MySingleFolderPtr> result;
    std::ranges::copy_if(present, std::back_inserter(result), [&](const auto &folder) {
        return std::ranges::find(wanted, folder) != wanted.end();
    });
    return result;
}

} // namespace

WindowSession::WindowSession(AppServices services, WindowQuestions &questions, QObject *parent)
    : QObject(parent),
      m_questions(questions),
      m_thumbnails(std::make_unique<Thumbnails>(ThumbnailSettings())),
      m_previews(std::make_unique<Previews>(previewBytes)),
      m_controller(std::make_unique<AppController>(std::move(services),
                                                   static_cast<ImportQuestions &>(*this))),
      m_saveFlow(std::make_unique<SaveFlow>(*m_controller, m_jobs, questions)) {
    m_controller->setSourceViews(this);
    m_controller->buildNewSource();
    connectParts();
}

WindowSession::~WindowSession() {
    blockSignals(true);
    m_folderCheck.waitForDone();
    m_controller->cancellation().request();
}

void WindowSession::connectParts() {
    // Not while a list is built.
    connect(this, &WindowSession::listChanged, this, &WindowSession::completeForFilter,
            Qt::QueuedConnection);
    m_thumbnails->setChanged([this](const std::vector<std::uint32_t> &) {
        thumbnailsProgressed();
        Q_EMIT thumbsChanged();
    });
    m_thumbnails->setPausedForEviction([this] { tell(text("status_thumbnailsStopped")); });
    m_previews->setChanged([this](std::uint32_t) { Q_EMIT previewsChanged(); });
    m_controller->setFolderAdded(
        [this](const MySingleFolderPtr &folder, const MySingleFolderPtr &parent) {
            const auto found = m_reading.find(parent.get());
            m_reading[folder.get()] = found == m_reading.end() ? parent.get() : found->second;
            Q_EMIT foldersChanged();
        });
    m_controller->setItemsReady(
        [this](const MySingleFolderPtr &folder, const std::vector<MySinglePicPtr> &items) {
            itemsReady(folder, items);
        });
    connect(m_saveFlow.get(), &SaveFlow::stageChanged, this, [this] {
        m_thumbnails->setIsAutoBGThumbsPaused(m_saveFlow->stage() == SaveFlow::Stage::Writing);
        Q_EMIT undoChanged();
    });
    connect(m_saveFlow.get(), &SaveFlow::ended, this, &WindowSession::saveEnded);
    m_controller->systemZoneChange().setCallbacks(
        {[this] { Q_EMIT dateChangeAborted(); }, [this] { Q_EMIT listChanged(); },
         [this](const SystemZoneAlert &alert) {
             m_questions.notice(alert.messageText, {alert.infoText});
         },
         [this] {
             m_controller->buildNewSource();
             tellEverything();
         }});
}

void WindowSession::start() {
    std::vector<std::string> lines;
    for (const RecoveredFile &file : m_controller->recoverInterruptedRuns())
        if (file.result != RecoveredFile::Result::Nothing)
            lines.push_back(recoveryText(file));
    if (!lines.empty())
        m_questions.notice(text("recovery_message"), lines);
    m_controller->startWatchingSystemZone();
}

// ---- folders and items

const std::vector<MySingleFolderPtr> &WindowSession::folders() const {
    return m_controller->droppedFolders().droppedFolders();
}

void WindowSession::selectFolders(std::vector<MySingleFolderPtr> folders) {
    folders = amongThose(this->folders(), folders);
    if (folders == m_selectedFolders)
        return;
    m_selectedFolders = std::move(folders);
    markSelectedFolder();
    Q_EMIT selectionChanged();
}

MySinglePicPtr WindowSession::mainPic() const {
    return m_controller->timelines().focusedTimeline().selection.picSelection;
}

std::vector<MySinglePicPtr> WindowSession::selectedPics() const {
    const TimelineStrip &strip = m_controller->timelines().focusedTimeline();
    std::vector<MySinglePicPtr> pics;
    std::ranges::copy_if(strip.theSource, std::back_inserter(pics),
                         [&](const auto &pic) { return strip.selection.contains(pic); });
    return pics;
}

void WindowSession::select(const std::function<void(MyTimelinesController &)> &change) {
    const TimelineKind before = secondKind(timelines());
    change(timelines());
    if (secondKind(timelines()) != before)
        Q_EMIT stripsChanged();
    followMainPic();
    Q_EMIT selectionChanged();
    Q_EMIT undoChanged();
}

/// With one folder selected, or none, that of the main item is; several were chosen together on
/// purpose.
void WindowSession::followMainPic() {
    const MySinglePicPtr pic = mainPic();
    if (!pic || m_selectedFolders.size() > 1)
        return;
    if (const MySingleFolderPtr folder = pic->spSingleRealFolder())
        m_selectedFolders = {folder};
    markSelectedFolder();
}

void WindowSession::markSelectedFolder() {
    const bool isOne = m_selectedFolders.size() == 1;
    for (TimelineStrip *strip : timelines().visibleTimelines())
        strip->theDrawerSelection = isOne ? m_selectedFolders.front()->folderSortGeneral : -1;
}

void WindowSession::tellEverything() {
    m_selectedFolders = amongThose(folders(), m_selectedFolders);
    if (m_selectedFolders.empty())
        followMainPic();
    markSelectedFolder();
    Q_EMIT foldersChanged();
    Q_EMIT listChanged();
    Q_EMIT selectionChanged();
    Q_EMIT undoChanged();
}

// ---- changes

/// A worker that reads a folder goes by its zones and its movie clock: they stay until it is done.
bool WindowSession::isChangeRefused(const std::vector<MySingleFolderPtr> &folders) {
    const bool isSaving = !m_saveFlow->isIdle();
    const bool isReading =
        std::ranges::any_of(folders, [this](const auto &each) { return isBeingRead(*each); });
    if (isSaving || isReading)
        tell(text(isSaving ? "status_waitForSave" : "status_waitForReading"));
    return isSaving || isReading;
}

bool WindowSession::edit(const std::function<void(AppController &)> &change) {
    if (isChangeRefused(m_selectedFolders))
        return false;
    change(*m_controller);
    m_controller->buildNewSource();
    tellEverything();
    return true;
}

void WindowSession::tellOutcome(DateChangeOutcome outcome) {
    if (outcome == DateChangeOutcome::RefusedOutOfBounds)
        tell(text("status_outOfBounds"));
}

void WindowSession::setDateDrag(const DateDrag *drag) {
    m_dateDrag = drag;
    Q_EMIT dateDragMoved();
}

void WindowSession::undo() {
    if (isChangeRefused(folders()))
        return;
    m_controller->undoManager().undo();
    afterUndo();
}

void WindowSession::redo() {
    if (isChangeRefused(folders()))
        return;
    m_controller->undoManager().redo();
    afterUndo();
}

/// What was touched is what the window shows.
void WindowSession::afterUndo() {
    m_controller->buildNewSource();
    const UndoManager &manager = m_controller->undoManager();
    const auto pic = manager.lastAffectedObject<MySinglePic>();
    TimelineStrip &strip = timelines().focusedTimeline();
    if (pic && strip.indexOf(*pic) && !strip.selection.contains(pic))
        timelines().simpleSelectThumb(pic, strip);
    const auto folder =
        pic ? pic->spSingleRealFolder() : manager.lastAffectedObject<MySingleFolder>();
    if (folder && std::ranges::find(m_selectedFolders, folder) == m_selectedFolders.end())
        m_selectedFolders = {folder};
    Q_EMIT stripsChanged();
    tellEverything();
}

void WindowSession::shiftSelectedFolders(const CompoundFields &fields) {
    edit([&](AppController &controller) {
        const UndoGroup group(controller.undoManager());
        for (const MySingleFolderPtr &folder : m_selectedFolders)
            if (folder->sfEditMode == EditMode::Together && !folder->isEXIFIgnored)
                tellOutcome(controller.shiftFolder(
                    *folder, timeIntervalFromFields(keepingOwnParts(*folder, fields))));
    });
}

void WindowSession::resetShift() {
    edit([&](AppController &controller) {
        const UndoGroup group(controller.undoManager());
        for (const MySingleFolderPtr &folder : m_selectedFolders) {
            folder->tempHasChangedDirection = false;
            folder->hasDSTJumperType = 0;
            if (folder->sfEditMode == EditMode::Single)
                dateValuesResetSingleMode(*folder, controller.undoManager());
            else
                controller.shiftFolder(*folder, absl::ZeroDuration());
        }
    });
}

// ---- save and rename

bool WindowSession::hasUnsavedChanges() const {
    return std::ranges::any_of(folders(),
                               [](const auto &folder) { return folder->isUnsavedFolder(); });
}

void WindowSession::save(bool ofAll, bool withoutChanges) {
    if (isChangeRefused({}))
        return;
    if (m_runningReads > 0)
        return tell(text("status_waitForReading"));
    SaveRequest request;
    request.savingAll = withoutChanges;
    if (!ofAll)
        request.onlyFolders = m_selectedFolders;
    const std::vector<MySingleFolderPtr> &concerned = ofAll ? folders() : m_selectedFolders;
    if (concerned.empty() || (!withoutChanges && unsavedOf(concerned).empty()))
        return tell(text("status_nothingToSave"));
    m_saveFlow->start(std::move(request));
}

void WindowSession::saveEnded(const SaveRunResult *result) {
    if (m_runningReads == 0)
        m_controller->cancellation().clear();
    m_controller->buildNewSource();
    tellEverything();
    if (!result)
        return tell(text("status_nothingWritten"));
    const auto saved = std::ranges::count(result->items, ItemResult::Saved, &ItemOutcome::result);
    const auto renamed =
        std::ranges::count(result->renames, RenameResult::Renamed, &ItemRename::result);
    const char *key = renamed == 0 ? "status_saved"
                      : saved == 0 ? "status_renamed"
                                   : "status_savedAndRenamed";
    const std::string savedText = numberText(saved), renamedText = numberText(renamed);
    tell(saved == 0 ? text(key, {renamed == 0 ? savedText : renamedText})
                    : text(key, {savedText, renamedText}));
}

RenameSheetViews WindowSession::renameSheetViews() const {
    RenameSheetViews views{folders(), m_controller->source_full(), m_selectedFolders, {}};
    const MyTimelinesController &strips = m_controller->timelines();
    const TimelineStrip *const both[] = {&strips.mainTimeline(), strips.secondTimeline()};
    for (std::size_t i = 0; i < views.timelines.size(); ++i) {
        if (!both[i])
            continue;
        views.timelines[i].picSelection = both[i]->selection.picSelection;
        std::ranges::copy_if(both[i]->theSource,
                             std::back_inserter(views.timelines[i].sortedAllSelectedThumbsArray),
                             [&](const auto &pic) { return both[i]->selection.contains(pic); });
    }
    return views;
}

// ---- what the import asks, on its thread

PerFolderImportOptions WindowSession::emptyTagOptions(const MySingleFolder &folder) {
    PerFolderImportOptions leaveAlone;
    leaveAlone.withEmptyExifFixDate = PerFolderImportOptions::EmptyTags::LeaveAlone;
    return askAndWait<PerFolderImportOptions>(
        m_controller->cancellation(), leaveAlone,
        [this, &folder](std::function<void(PerFolderImportOptions)> answer) {
            m_questions.emptyTagOptions(shared(folder, folders()), std::move(answer));
        });
}

MovieOptions WindowSession::movieOptions(const MySingleFolder &folder) {
    return askAndWait<MovieOptions>(m_controller->cancellation(), MovieOptions{},
                                    [this, &folder](std::function<void(MovieOptions)> answer) {
                                        m_questions.movieOptions(shared(folder, folders()),
                                                                 std::move(answer));
                                    });
}

// ---- what the visible list asks of the views

std::optional<FocusPlace> WindowSession::focusPlace(const MySinglePic &pic) const {
    const TimelineStrip &strip = m_controller->timelines().mainTimeline();
    const auto index = strip.indexOf(pic);
    if (!index || strip.width <= 0)
        return std::nullopt;
    return FocusPlace{strip.geometry.centerOf(*index) - strip.scrollX, 0};
}

MySinglePicPtr WindowSession::picToKeepFocusedDuringFilterAction() const {
    const TimelineStrip &strip = m_controller->timelines().mainTimeline();
    const auto index = strip.geometry.picAtXLocation(
        static_cast<float>(strip.scrollX + strip.width / 2), strip.count());
    return index ? strip.shown()[static_cast<std::size_t>(*index)] : nullptr;
}

void WindowSession::sourceChanged() {
    Q_EMIT listChanged();
}

void WindowSession::addDateTimeLayers() {
    Q_EMIT listChanged();
}

void WindowSession::focusPic(const MySinglePicPtr &pic,
                             std::optional<FocusPlace> keepingInPlaceAt) {
    TimelineStrip &strip = timelines().mainTimeline();
    const auto index = pic ? strip.indexOf(*pic) : std::nullopt;
    if (!index)
        return;
    const double place = keepingInPlaceAt ? keepingInPlaceAt->focusX : strip.width / 2;
    strip.scrollX = strip.geometry.clampedScrollX(strip.geometry.scrollPicToPosition(*index, place),
                                                  strip.width, strip.count());
    Q_EMIT scrolled();
}

void WindowSession::selectionIndexChanged() {
    Q_EMIT selectionChanged();
}

void WindowSession::showFilterStatus(std::size_t hidden) {
    if (hidden > 0)
        tell(text("status_hiddenByFilter", {numberText(hidden)}));
}

bool WindowSession::isOneFolderSelected() const {
    return m_selectedFolders.size() == 1;
}

} // namespace chronomender
