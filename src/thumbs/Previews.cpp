// SPDX-License-Identifier: GPL-3.0-or-later
#include "Previews.h"

#include "PictureWorkers.h"

#include <QTimer>

#include <algorithm>
#include <list>
#include <thread>
#include <unordered_map>
#include <utility>

namespace chronomender {

namespace {

/// Sides are rounded up to this, so that a window that is being resized does not ask anew with
/// every pixel.
constexpr int kSideStep = 256;
/// A user who leafs on no longer looks at what was asked for before.
constexpr std::size_t kMostAsked = 8;
constexpr int kMostThreads = 2;
/// Also of entries without a picture.
constexpr std::size_t kMostEntries = 64;

/// Half of the processors are left for the thumbnails of a folder that just came.
int threadCount() {
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()) / 2, 1, kMostThreads);
}

int longerSide(const QImage &image) {
    return std::max(image.width(), image.height());
}

} // namespace

struct Previews::State {
    struct Entry {
        QImage image;
        std::optional<PictureFailure> failure;
        int side = 0;                 ///< that was asked for when `image` was made
        int askedSide = 0;            ///< that is asked for now; 0: none
        int queuedSide = 0;           ///< that a worker was given; 0: none
        std::uint32_t generation = 0; ///< tells an entry from an older one of the same item
        std::string path;
        std::weak_ptr<MySinglePic> pic;
    };

    explicit State(std::size_t most)
        : mostBytes(most), workers(threadCount(), PictureWorkers::Urgency::WaitedFor, [] {}) {
        nextRound.setSingleShot(true);
        QObject::connect(&nextRound, &QTimer::timeout, &nextRound, [this] { runAsked(); });
    }

    PreviewAnswer answer(const MySinglePicPtr &pic, int side);
    void ask(const MySinglePicPtr &pic, Entry &entry, int side);
    void runAsked();
    void ran(std::uint32_t id, std::uint32_t generation, int side, const UprightPicture &picture);
    void setRawJpgDisplayType(RawJpgDisplayType type);
    void use(std::uint32_t id);
    void remove(std::uint32_t id);
    void dropOld();

    std::size_t mostBytes, bytes = 0;
    RawJpgDisplayType rawJpgDisplayType = RawJpgDisplayType::Master;
    std::unordered_map<std::uint32_t, Entry> entries;
    std::list<std::uint32_t> used, asked; // the last one in front
    std::uint32_t generations = 0;
    std::function<void(std::uint32_t)> changed;
    QTimer nextRound;
    PictureWorkers workers; // ends before all that its deliveries use
};

PreviewAnswer Previews::State::answer(const MySinglePicPtr &pic, int side) {
    const std::uint32_t id = pic->sessionUniqueId;
    const int rounded = (std::max(side, 1) + kSideStep - 1) / kSideStep * kSideStep;
    const auto [found, isNew] = entries.try_emplace(id);
    Entry &entry = found->second;
    if (isNew)
        entry.generation = ++generations;
    use(id);
    // One that did not reach the side it was made for is as large as it gets.
    const bool isLargest = !entry.image.isNull() && longerSide(entry.image) < entry.side;
    if (isLargest || (!entry.image.isNull() && entry.side >= rounded))
        return {ThumbState::Ready, entry.image};
    if (entry.failure)
        return {ThumbState::Unsupported, {}, thumbReasonKey(*entry.failure)};
    ask(pic, entry, rounded);
    return {ThumbState::Pending, entry.image};
}

void Previews::State::setRawJpgDisplayType(RawJpgDisplayType type) {
    const RawJpgDisplayType before = std::exchange(rawJpgDisplayType, type);
    for (const std::uint32_t id : std::list(used)) {
        const MySinglePicPtr pic = entries.at(id).pic.lock();
        if (!pic || thumbSourcePath(*pic, before) != thumbSourcePath(*pic, type))
            remove(id);
    }
}

void Previews::State::use(std::uint32_t id) {
    used.remove(id); // a handful of entries
    used.push_front(id);
}

void Previews::State::ask(const MySinglePicPtr &pic, Entry &entry, int side) {
    entry.askedSide = side;
    entry.path = thumbSourcePath(*pic, rawJpgDisplayType);
    entry.pic = pic;
    asked.remove(pic->sessionUniqueId);
    asked.push_front(pic->sessionUniqueId);
    if (asked.size() > kMostAsked)
        asked.pop_back();
    if (!nextRound.isActive())
        nextRound.start();
}

void Previews::State::runAsked() {
    for (const std::uint32_t id : workers.takeBack()) {
        if (const auto found = entries.find(id); found != entries.end())
            found->second.queuedSide = 0;
    }
    std::vector<PictureWorkers::Task> tasks;
    for (const std::uint32_t id : asked) {
        Entry &entry = entries.at(id);
        if (entry.queuedSide >= entry.askedSide)
            continue;
        entry.queuedSide = entry.askedSide;
        tasks.push_back({id, [this, id, generation = entry.generation, side = entry.askedSide,
                              path = entry.path](const Cancellation &cancellation) {
                             const UprightPicture picture = newImageFromSource(
                                 path, side, PictureChoice::EmbeddedIfLargeEnough, &cancellation);
                             return [this, id, generation, side, picture] {
                                 ran(id, generation, side, picture);
                             };
                         }});
    }
    workers.add(std::move(tasks));
}

void Previews::State::ran(std::uint32_t id, std::uint32_t generation, int side,
                          const UprightPicture &picture) {
    const auto found = entries.find(id);
    if (found == entries.end() || found->second.generation != generation)
        return;
    Entry &entry = found->second;
    bytes -= static_cast<std::size_t>(entry.image.sizeInBytes());
    entry.image = picture.image;
    entry.failure = picture.failure;
    entry.side = side;
    entry.queuedSide = 0;
    bytes += static_cast<std::size_t>(entry.image.sizeInBytes());
    if (entry.askedSide <= side)
        asked.remove(id);
    dropOld();
    if (changed)
        changed(id);
}

void Previews::State::dropOld() {
    while ((bytes > mostBytes || used.size() > kMostEntries) && used.size() > 1)
        remove(used.back());
}

void Previews::State::remove(std::uint32_t id) {
    const auto found = entries.find(id);
    if (found == entries.end())
        return;
    bytes -= static_cast<std::size_t>(found->second.image.sizeInBytes());
    entries.erase(found);
    used.remove(id);
    asked.remove(id);
}

Previews::Previews(std::size_t mostBytes) : m_state(std::make_unique<State>(mostBytes)) {}
Previews::~Previews() = default;

void Previews::setRawJpgDisplayType(RawJpgDisplayType type) {
    m_state->setRawJpgDisplayType(type);
}
void Previews::setChanged(std::function<void(std::uint32_t)> changed) {
    m_state->changed = std::move(changed);
}
PreviewAnswer Previews::preview(const MySinglePicPtr &pic, int side) {
    return pic ? m_state->answer(pic, side) : PreviewAnswer();
}
void Previews::forget(const MySinglePicPtr &pic) {
    m_state->remove(pic->sessionUniqueId);
}

} // namespace chronomender
