// SPDX-License-Identifier: GPL-3.0-or-later
#include "LivePhotoTimes.h"

#include "StampConversions.h"

#include <charconv>

namespace chronomender {
namespace {

constexpr int firstSimplerGeneration = 13;
constexpr int simpler = 1, notSimpler = -1;

/// 13 of "iPhone 13 Pro"; 0 for a second word that is no number, none without a second word.
std::optional<int> generationOf(std::string_view model) {
    const std::size_t blank = model.find(' ');
    const std::size_t begin = model.find_first_not_of(' ', blank);
    if (blank == std::string_view::npos || begin == std::string_view::npos)
        return std::nullopt;
    int number = 0;
    std::from_chars(model.data() + begin, model.data() + model.size(), number);
    return number;
}

bool ignoresEmbeddedData(const MySinglePic &pic) {
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    return folder && folder->isEXIFIgnored;
}

OptionalDate stampTime(const MySinglePic &pic) {
    if (ignoresEmbeddedData(pic))
        return std::nullopt;
    for (const StampSlot slot : stampSlots) {
        const LocatedBytes *stamp = pic.stamp(slot);
        const bool isPassedOver =
            slot == StampSlot::Modification && pic.spType == SpTypeTiffYoungerThanFile;
        if (!stamp || isPassedOver)
            continue;
        const LocatedBytes *zoneStamp = pic.zoneStamp(slot);
        const OptionalDate date = dateFromExifData(
            stamp->data, zoneStamp ? &zoneStamp->data : nullptr, absl::UTCTimeZone());
        if (isCleanDate(date))
            return date;
    }
    return pic.spDateTimeOriginal;
}

} // namespace

absl::Duration subSeconds(const MySinglePic &pic) {
    return absl::Milliseconds(pic.livePhoto.subsecTimeOriginal.value_or(0));
}

bool hasSubSeconds(const MySinglePic &pic) {
    return pic.livePhoto.subsecTimeOriginal.has_value() &&
           (!ignoresEmbeddedData(pic) || pic.stamp(StampSlot::Original));
}

bool usesSimplerLPExactTime(MySinglePic &pic) {
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    const MySinglePicPtr &dependent = pic.group.bundleDependentImage;
    if (!folder || !folder->sortFolderLPsByMov || !dependent || !dependent->isMovie())
        return false;
    int &cached = pic.livePhoto.usesSimplerLPExactTime_cached;
    if (cached == 0 && !(pic.camera.make.empty() && pic.camera.model.empty()))
        cached = generationOf(pic.camera.model).value_or(0) < firstSimplerGeneration ? notSimpler
                                                                                     : simpler;
    return cached == simpler;
}

OptionalDate livePhotoExactTime(MySinglePic &pic) {
    if (usesSimplerLPExactTime(pic))
        return pic.group.bundleDependentImage->spDateTimeOriginal;
    OptionalDate &cached = pic.livePhoto.livePhotoExactTimeCached;
    if (!cached)
        if (const OptionalDate date = stampTime(pic))
            cached = *date + subSeconds(pic);
    return cached;
}

OptionalDate livePhotoStartTime(MySinglePic &pic) {
    const OptionalDate exact = livePhotoExactTime(pic);
    if (!exact || usesSimplerLPExactTime(pic))
        return exact;
    const MySinglePicPtr &movie = pic.group.bundleDependentImage;
    if (!movie || !movie->movie.livePhotoStillImageTime)
        return std::nullopt;
    return *exact - absl::Seconds(*movie->movie.livePhotoStillImageTime);
}

bool lateValidateLivePhoto(const MySinglePic &pic) {
    const MySinglePicPtr &movie = pic.group.bundleDependentImage;
    const std::string &id = pic.livePhoto.UUID;
    return movie && !id.empty() && id == movie->livePhoto.UUID;
}

} // namespace chronomender
