// SPDX-License-Identifier: GPL-3.0-or-later
#include "Thumbnails.h"

#include "PictureWorkers.h"
#include "ThumbCache.h"
#include "ThumbItems.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace chronomender {

namespace {

/// Items of one round, and with how many of them left the next one is collected.
constexpr std::size_t kMostItemsOfARound = 151, kFewLeft = 32;
constexpr QSize kSizeOfSuppressed{200, 200};

std::string_view reasonKey(const ThumbItem &item) {
    return item.didEXIFThumbFail ? "thumb_noneInFile" : thumbReasonKey(*item.failure);
}

} // namespace

struct Thumbnails::State {
    explicit State(ThumbnailSettings given)
        : settings(given),
          cache(given.decodedBytes, given.compressedBytes),
          workers(given.threads, PictureWorkers::Urgency::Background, [this] { heapDelivered(); }) {
        cache.setWillEvictObject([this](std::uint32_t) { stopAllOnFirstEvictMAIN(); });
        nextRound.setSingleShot(true);
        QObject::connect(&nextRound, &QTimer::timeout, &nextRound, [this] { runThumbs(); });
    }

    ThumbAnswer answer(const MySinglePicPtr &pic, ThumbSide side);
    void change(const ThumbnailSettings &now);
    bool isMadeAnew(const MySinglePic &pic, const ThumbItem &item,
                    const ThumbnailSettings &before) const;
    bool autoBGThumbGeneration() const {
        return settings.autoBGThumbGeneration && !isBackgroundStopped;
    }
    void addImageWithoutThumb(const MySinglePicPtr &pic);
    bool want(const MySinglePicPtr &pic, bool isSeen);
    void takeBack();
    void runThumbs();
    PictureWorkers::Task task(const MySinglePicPtr &pic, const ThumbItem &item);
    void ranAutoBGThumb(std::uint32_t id, std::uint32_t generation, BuiltThumb built);
    void heapDelivered();
    void stopAllOnFirstEvictMAIN();
    void soon() {
        if (!nextRound.isActive())
            nextRound.start();
    }

    ThumbnailSettings settings;
    ThumbCache cache;
    ThumbItems items;
    Changed changed;
    std::function<void()> paused;
    bool isAutoBGThumbsPaused = false, isBackgroundStopped = false;
    std::vector<std::uint32_t> changedIds;
    QTimer nextRound;
    PictureWorkers workers; // ends before all that its deliveries use
};

ThumbAnswer Thumbnails::State::answer(const MySinglePicPtr &pic, ThumbSide side) {
    const ThumbItem *item = items.find(pic->sessionUniqueId);
    const ThumbEntry *entry = cache.entry(pic->sessionUniqueId);
    if (entry && entry->isDecoded()) {
        if (!item->isBuilt && item->stage == ThumbStage::Idle)
            addImageWithoutThumb(pic); // what is there is of older times
        const bool isRemade = item->stage != ThumbStage::Idle;
        const auto state = isRemade ? ThumbState::Pending : ThumbState::Ready;
        if (side == ThumbSide::Mini || entry->prevThumb.isNull())
            return {state, entry->miniThumb, side != ThumbSide::Mini};
        const bool isMaxi = side == ThumbSide::Maxi && !entry->maxiThumb.isNull();
        return {state, isMaxi ? entry->maxiThumb : entry->prevThumb};
    }
    if (item && item->failure)
        return {ThumbState::Unsupported, {}, false, reasonKey(*item)};
    addImageWithoutThumb(pic);
    return {};
}

void Thumbnails::State::change(const ThumbnailSettings &now) {
    const ThumbnailSettings before = std::exchange(settings, now);
    if (now.autoBGThumbGeneration != before.autoBGThumbGeneration)
        isBackgroundStopped = false;
    takeBack(); // what nobody began is made as it is wanted now
    for (const std::uint32_t id : items.ids()) {
        ThumbItem &item = *items.find(id);
        const MySinglePicPtr pic = item.pic.lock();
        if (!pic || !isMadeAnew(*pic, item, before))
            continue;
        items.renew(item);
        items.addBackground(id, false);
    }
    soon();
}

bool Thumbnails::State::isMadeAnew(const MySinglePic &pic, const ThumbItem &item,
                                   const ThumbnailSettings &before) const {
    const bool mayLackOne = item.didEXIFThumbFail || item.stage == ThumbStage::Queued;
    return (before.autoThumbMode && !settings.autoThumbMode && mayLackOne) ||
           before.vqsFspUsesHigherResScrollingAtTheCostOfMuchRam !=
               settings.vqsFspUsesHigherResScrollingAtTheCostOfMuchRam ||
           thumbSourcePath(pic, before.rawJpgDisplayType) !=
               thumbSourcePath(pic, settings.rawJpgDisplayType);
}

void Thumbnails::State::addImageWithoutThumb(const MySinglePicPtr &pic) {
    want(pic, true);
    items.ask(pic->sessionUniqueId);
    soon();
}

/// Makes an item wait that has neither a decoded thumbnail of today nor a reason to have none; true
/// when it begins to.
bool Thumbnails::State::want(const MySinglePicPtr &pic, bool isSeen) {
    ThumbItem &item = items.item(pic);
    item.isSeen |= isSeen;
    const ThumbEntry *entry = cache.entry(pic->sessionUniqueId);
    if (item.stage != ThumbStage::Idle || item.failure ||
        (entry && entry->isDecoded() && item.isBuilt))
        return false;
    items.setStage(item, ThumbStage::Waiting);
    return true;
}

void Thumbnails::State::takeBack() {
    const std::vector<std::uint32_t> ids = workers.takeBack();
    for (auto id = ids.rbegin(); id != ids.rend(); ++id) {
        if (ThumbItem *item = items.find(*id)) {
            items.setStage(*item, ThumbStage::Waiting);
            items.addBackground(*id, true);
        }
    }
}

void Thumbnails::State::runThumbs() {
    takeBack();
    if (isAutoBGThumbsPaused)
        return;
    const auto background =
        autoBGThumbGeneration() ? ThumbItems::Background::Yes : ThumbItems::Background::No;
    std::vector<PictureWorkers::Task> tasks;
    for (const std::uint32_t id : items.takeRound(kMostItemsOfARound, background)) {
        ThumbItem *item = items.find(id);
        const MySinglePicPtr pic = item->pic.lock();
        const bool isMade = pic && !pic->isMovedToTrash;
        items.setStage(*item, isMade ? ThumbStage::Queued : ThumbStage::Idle);
        if (isMade)
            tasks.push_back(task(pic, *item));
    }
    workers.add(std::move(tasks));
    // What was taken back is background's from now on; where that is off, nobody waits for it.
    if (!autoBGThumbGeneration())
        items.clearBackground();
}

PictureWorkers::Task Thumbnails::State::task(const MySinglePicPtr &pic, const ThumbItem &item) {
    const std::uint32_t id = pic->sessionUniqueId;
    const ThumbEntry *entry = cache.entry(id);
    const bool isKept = item.isBuilt && entry; // else the bytes are of an older file
    const bool isEmbeddedOnly =
        settings.autoThumbMode && !item.wasVisisbleInPreviewsWithoutThumb && !pic->isMovie();
    MyBuildThumbOperation operation{
        thumbSourcePath(*pic, settings.rawJpgDisplayType),
        isKept ? entry->compressedData : QByteArray(),
        settings.vqsFspUsesHigherResScrollingAtTheCostOfMuchRam ? KeepMaxi::Yes : KeepMaxi::No,
        isEmbeddedOnly ? PictureChoice::EmbeddedOnly : PictureChoice::EmbeddedIfLargeEnough};
    return {id, [this, id, generation = item.generation,
                 operation = std::move(operation)](const Cancellation &cancellation) {
                BuiltThumb built = operation.buildThumb(cancellation);
                return [this, id, generation, built = std::move(built)] {
                    ranAutoBGThumb(id, generation, built);
                };
            }};
}

void Thumbnails::State::ranAutoBGThumb(std::uint32_t id, std::uint32_t generation,
                                       BuiltThumb built) {
    ThumbItem *item = items.find(id);
    if (!item || item->generation != generation)
        return;
    items.setStage(*item, ThumbStage::Idle);
    items.setBuilt(*item, true);
    item->wasVisisbleInPreviewsWithoutThumb = false;
    if (built.entry) {
        const bool isSeen = std::exchange(item->isSeen, false);
        cache.setEntry(id, std::move(*built.entry),
                       isSeen ? ThumbCache::Seen::Yes : ThumbCache::Seen::No);
    } else {
        cache.remove(id);
        item->failure = built.failure; // hadBuildThumbError
        item->didEXIFThumbFail = built.didEXIFThumbFail;
    }
    changedIds.push_back(id);
}

void Thumbnails::State::heapDelivered() {
    if (workers.waiting() < kFewLeft)
        runThumbs();
    if (const auto ids = std::exchange(changedIds, {}); changed && !ids.empty())
        changed(ids);
}

/// Once bytes are lost there is no room for all: making more in the background would only throw
/// others out.
void Thumbnails::State::stopAllOnFirstEvictMAIN() {
    if (!autoBGThumbGeneration())
        return;
    isBackgroundStopped = true;
    items.clearBackground();
    if (paused)
        paused();
}

Thumbnails::Thumbnails(ThumbnailSettings settings) : m_state(std::make_unique<State>(settings)) {}
Thumbnails::~Thumbnails() = default;

const ThumbnailSettings &Thumbnails::settings() const {
    return m_state->settings;
}
void Thumbnails::setSettings(const ThumbnailSettings &settings) {
    m_state->change(settings);
}

void Thumbnails::setChanged(Changed changed) {
    m_state->changed = std::move(changed);
}
void Thumbnails::setPausedForEviction(std::function<void()> paused) {
    m_state->paused = std::move(paused);
}

ThumbAnswer Thumbnails::spThumb(const MySinglePicPtr &pic, ThumbSide side) {
    return pic ? m_state->answer(pic, side) : ThumbAnswer();
}

QSize Thumbnails::validatedThumbSize(const MySinglePicPtr &pic) const {
    const ThumbEntry *entry = pic ? m_state->cache.entry(pic->sessionUniqueId) : nullptr;
    return entry ? entry->largestThumbSize : kSizeOfSuppressed;
}

void Thumbnails::setOnScreen(const std::vector<MySinglePicPtr> &pics) {
    std::vector<std::uint32_t> ids;
    bool isNews = false;
    for (const MySinglePicPtr &pic : pics) {
        isNews |= m_state->want(pic, true);
        ids.push_back(pic->sessionUniqueId);
    }
    if (!isNews && ids == m_state->items.onScreen())
        return;
    m_state->items.setOnScreen(std::move(ids));
    m_state->soon();
}

void Thumbnails::addImagesWithoutThumb(const std::vector<MySinglePicPtr> &pics) {
    if (!autoBGThumbGeneration())
        return;
    for (const MySinglePicPtr &pic : pics) {
        if (m_state->cache.contains(pic->sessionUniqueId))
            continue; // what it was made from is kept, and decoded when somebody looks
        m_state->want(pic, false);
        m_state->items.addBackground(pic->sessionUniqueId, false);
    }
    m_state->soon();
}

void Thumbnails::updateThumb(const MySinglePicPtr &pic) {
    m_state->items.renew(m_state->items.item(pic));
    m_state->items.ask(pic->sessionUniqueId);
    m_state->soon();
}

void Thumbnails::setVisibleInPreviews(const MySinglePicPtr &pic) {
    if (!m_state->settings.autoThumbMode || m_state->cache.contains(pic->sessionUniqueId))
        return;
    ThumbItem &item = m_state->items.item(pic);
    const bool mayBeDecoded = !item.failure || item.didEXIFThumbFail;
    if (mayBeDecoded && !std::exchange(item.wasVisisbleInPreviewsWithoutThumb, true))
        updateThumb(pic);
}

void Thumbnails::forget(const std::vector<MySinglePicPtr> &pics) {
    for (const MySinglePicPtr &pic : pics) {
        m_state->items.forget(pic->sessionUniqueId);
        m_state->cache.remove(pic->sessionUniqueId);
    }
}

void Thumbnails::setIsAutoBGThumbsPaused(bool isPaused) {
    m_state->isAutoBGThumbsPaused = isPaused;
    m_state->soon();
}
void Thumbnails::stopBackgroundGeneration() {
    m_state->stopAllOnFirstEvictMAIN();
    m_state->soon(); // what is queued for nobody is taken back
}
bool Thumbnails::autoBGThumbGeneration() const {
    return m_state->autoBGThumbGeneration();
}
Thumbnails::Progress Thumbnails::progress() const {
    return {m_state->items.waitingToBeBuilt(), m_state->items.built()};
}

} // namespace chronomender
