// SPDX-License-Identifier: GPL-3.0-or-later
#include "CompoundLivePhotos.h"

#include "LivePhotoTimes.h"
#include "NaturalCompare.h"

#include <algorithm>
#include <tuple>

namespace chronomender {
namespace {

/// How far movies that meet may part. Frames come 30 to a second.
constexpr absl::Duration sameStart = absl::Milliseconds(61);
constexpr absl::Duration largestGap = absl::Milliseconds(200);
constexpr absl::Duration earlierEnd = absl::Milliseconds(500);

struct Span {
    Date start, end;
};

/// The time of an item's movie; none for an item that is no live photo or lacks what is needed.
std::optional<Span> spanOf(MySinglePic &pic) {
    const MySinglePicPtr &movie = pic.group.bundleDependentImage;
    if (!movie || !movie->isMovie() || !movie->movie.livePhotoStillImageTime ||
        movie->movie.movDuration < 0 || !hasSubSeconds(pic))
        return std::nullopt;
    const OptionalDate start = livePhotoStartTime(pic);
    if (!start)
        return std::nullopt;
    return Span{*start, *start + absl::Seconds(movie->movie.movDuration)};
}

bool doSpansMeet(const Span &first, const Span &second) {
    const absl::Duration later = second.start - first.start;
    const absl::Duration longer = second.end - first.end;
    const bool isWithin =
        later >= -sameStart && first.end - second.start >= -largestGap && longer >= -earlierEnd;
    const bool isTogether = absl::AbsDuration(later) < sameStart && longer > -sameStart;
    return isWithin || isTogether;
}

auto size(const MySinglePic &pic) {
    return std::tuple(pic.camera.pivImageWidth, pic.camera.pivImageHeight);
}

auto kind(const MySinglePic &pic) {
    return std::tuple(size(pic), size(*pic.group.bundleDependentImage),
                      std::string_view(pic.camera.make), std::string_view(pic.camera.model));
}

void link(const MySinglePicPtr &first, const MySinglePicPtr &second) {
    first->livePhoto.compoundLivePhotoNext = second;
    second->livePhoto.compoundLivePhotoPrev = first;
}

void unlink(MySinglePic &pic) {
    if (const auto next = pic.livePhoto.compoundLivePhotoNext.lock())
        next->livePhoto.compoundLivePhotoPrev.reset();
    if (const auto previous = pic.livePhoto.compoundLivePhotoPrev.lock())
        previous->livePhoto.compoundLivePhotoNext.reset();
    pic.livePhoto.compoundLivePhotoNext.reset();
    pic.livePhoto.compoundLivePhotoPrev.reset();
}

std::vector<MySinglePicPtr> neighboursOf(const MySinglePic &pic) {
    std::vector<MySinglePicPtr> found;
    for (const auto &link :
         {pic.livePhoto.compoundLivePhotoPrev, pic.livePhoto.compoundLivePhotoNext})
        if (auto neighbour = link.lock())
            found.push_back(std::move(neighbour));
    return found;
}

/// The main list in the order of shooting.
class ShootingOrder {
public:
    explicit ShootingOrder(const MySingleFolder &folder) : m_pics(folder.sfPicDetails_fullArray) {
        const NaturalCompare order;
        std::ranges::sort(m_pics, [&](const MySinglePicPtr &a, const MySinglePicPtr &b) {
            const OptionalDate first = livePhotoExactTime(*a), second = livePhotoExactTime(*b);
            if (first != second)
                return first < second;
            const int compared =
                order.compare(a->spSortNameCachedErrorOrReal(), b->spSortNameCachedErrorOrReal());
            return compared != 0 ? compared < 0 : a->sessionUniqueId < b->sessionUniqueId;
        });
    }

    std::ptrdiff_t size() const { return std::ssize(m_pics); }
    std::ptrdiff_t placeOf(const MySinglePic &pic) const {
        return std::ranges::find(m_pics, &pic, &MySinglePicPtr::get) - m_pics.begin();
    }
    /// Links the two where they overlap; places outside the list are nobody.
    LivePhotoOverlap test(std::ptrdiff_t first, std::ptrdiff_t second) const {
        if (first < 0 || second >= size())
            return LivePhotoOverlap::None;
        const MySinglePicPtr &a = m_pics[static_cast<std::size_t>(first)];
        const MySinglePicPtr &b = m_pics[static_cast<std::size_t>(second)];
        const LivePhotoOverlap overlap = doLivePhotosOverlap(*a, *b);
        if (overlap == LivePhotoOverlap::Overlap)
            link(a, b);
        return overlap;
    }

private:
    std::vector<MySinglePicPtr> m_pics;
};

bool isWanted(const UserDefaults &defaults) {
    return defaults.boolForKey("shouldVisualizeOverlappingLivePhotos");
}

} // namespace

LivePhotoOverlap doLivePhotosOverlap(MySinglePic &first, MySinglePic &second) {
    const auto firstSpan = spanOf(first);
    const auto secondSpan = firstSpan ? spanOf(second) : std::nullopt;
    if (!secondSpan || first.livePhoto.compoundLivePhotoNext.lock().get() == &second ||
        !doSpansMeet(*firstSpan, *secondSpan) || kind(first) != kind(second))
        return LivePhotoOverlap::None;
    return first.livePhoto.customRendered == second.livePhoto.customRendered
               ? LivePhotoOverlap::Overlap
               : LivePhotoOverlap::HdrBreaker;
}

void refreshCompoundLivePhotosStates(MySingleFolder &folder, const UserDefaults &defaults) {
    if (!isWanted(defaults))
        return;
    for (const MySinglePicPtr &pic : folder.sfPicDetails_fullArray)
        unlink(*pic);
    if (folder.bundleDependentsLivePhotos.size() < 2)
        return;
    const ShootingOrder order(folder);
    for (std::ptrdiff_t i = 1; i < order.size(); ++i)
        if (order.test(i - 1, i) == LivePhotoOverlap::HdrBreaker) {
            order.test(i - 1, i + 1);
            order.test(i - 2, i);
        }
}

std::vector<MySinglePicPtr> refreshCompoundLivePhotosStatesFor(MySinglePic &pic,
                                                               const UserDefaults &defaults) {
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    if (!folder || !isWanted(defaults))
        return {};
    std::vector<MySinglePicPtr> changed = neighboursOf(pic);
    unlink(pic);
    const ShootingOrder order(*folder);
    const std::ptrdiff_t i = order.placeOf(pic);
    if (i < order.size()) {
        if (order.test(i - 1, i) == LivePhotoOverlap::HdrBreaker)
            order.test(i - 2, i);
        if (order.test(i, i + 1) == LivePhotoOverlap::HdrBreaker)
            order.test(i, i + 2);
    }
    for (const MySinglePicPtr &neighbour : neighboursOf(pic)) {
        const auto known = std::ranges::find(changed, neighbour);
        if (known != changed.end())
            changed.erase(known);
        else
            changed.push_back(neighbour);
    }
    return changed;
}

} // namespace chronomender
