// SPDX-License-Identifier: GPL-3.0-or-later
#include "GroupingPairs.h"

#include "StampConversions.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace chronomender {
namespace {

constexpr absl::Duration sameMoment = absl::Seconds(300);
constexpr absl::Duration clockStep = absl::Hours(1);
constexpr int lastHourOfSteps = 5;
/// Shorter words are no camera: a dash, a blank.
constexpr std::size_t shortestCamera = 2;

constexpr std::array typesOfRaws{SpTypeExifOriginal,          SpTypeExifDigitized,
                                 SpTypeTiffDateTime,          SpTypeTiffYoungerThanFile,
                                 SpTypeEmptyOriginalFileDate, SpTypeEmptyOriginalFixedDate};

bool isTypeOfRaw(SpType type) {
    return std::find(typesOfRaws.begin(), typesOfRaws.end(), type) != typesOfRaws.end();
}

bool mayCamerasBeOne(const CameraInfo &a, const CameraInfo &b) {
    return a.pivMakeModel.size() < shortestCamera || b.pivMakeModel.size() < shortestCamera ||
           a.pivMakeModel == b.pivMakeModel;
}

bool hasSaveError(const MySinglePic &pic) {
    return pic.save.saveErrorType != 0;
}

/// The first 19 characters of "2024-05-06T07:08:09+0200" read as UTC, whatever zone follows.
OptionalDate wallClockOfMetaDate(const Bytes &bytes) {
    constexpr std::size_t length = 19;
    constexpr std::array<std::pair<std::size_t, char>, 3> marks{{{4, '-'}, {7, '-'}, {10, 'T'}}};
    if (bytes.size() < length)
        return std::nullopt;
    std::string stamp = bytes.substr(0, length);
    for (const auto &[place, mark] : marks) {
        if (stamp[place] != mark)
            return std::nullopt;
        stamp[place] = ':';
    }
    const auto fields = civilFromExifTimeStamp(stamp);
    return fields ? OptionalDate(instantFromCivil(*fields, absl::UTCTimeZone())) : std::nullopt;
}

bool areStampsOfOneMoment(const MySinglePic &movie, const MySinglePic &still) {
    const auto &stillStamp = still.singlePicAttributes.exifDateTimeOriginal;
    const auto &movieStamp = movie.singlePicAttributes.qtMetaDate;
    if (!stillStamp || !movieStamp)
        return false;
    const OptionalDate stillDate = dateFromExifData(stillStamp->data, nullptr, absl::UTCTimeZone());
    const OptionalDate movieDate = wallClockOfMetaDate(movieStamp->data);
    return isCleanDate(stillDate) && isCleanDate(movieDate) &&
           isBundlingAllowedForUtcDates(*stillDate, *movieDate);
}

} // namespace

bool isRawToPic(const MySinglePic &raw, const MySinglePic &other, const MySingleFolder &folder) {
    if (other.fileFormatType != FileFormatJpeg)
        return false;
    if (folder.isEXIFIgnored)
        return true;
    return mayCamerasBeOne(raw.camera, other.camera) && isTypeOfRaw(raw.spType) &&
           isInRange(other.spType, SpTypeExifOriginal, SpTypeNoTagsFileDate) &&
           !hasSaveError(raw) && !hasSaveError(other);
}

bool isLiveMovieToPic(const MySinglePic &movie, const MySinglePic &still,
                      const MySingleFolder &folder) {
    if (still.fileFormatType != FileFormatJpeg && still.fileFormatType != FileFormatHeif)
        return false;
    if (folder.isEXIFIgnored)
        return true;
    const std::string &id = still.livePhoto.UUID;
    if (!id.empty() && id == movie.livePhoto.UUID && movie.spType != SpTypeMovieFileDate &&
        movie.spType != SpTypeMovieRiff)
        return true;
    return movie.spType == SpTypeMovieMdta && still.spType == SpTypeExifOriginal &&
           !movie.camera.pivMakeModel.empty() &&
           movie.camera.pivMakeModel == still.camera.pivMakeModel && !hasSaveError(movie) &&
           !hasSaveError(still) && areStampsOfOneMoment(movie, still);
}

bool isBundlingAllowedForUtcDates(Date still, Date movie) {
    const absl::Duration difference = distance(still, movie);
    if (difference <= sameMoment)
        return true;
    return difference - clockStep <= sameMoment && isDstExceptionForUtcDate(still, movie);
}

bool isDstExceptionForUtcDate(Date still, Date movie) {
    const CivilFields first = civilFromInstant(still, absl::UTCTimeZone());
    const CivilFields second = civilFromInstant(movie, absl::UTCTimeZone());
    if (first.hour > lastHourOfSteps)
        return false;
    const bool isRising = first.minute == 59 && second.minute == 0;
    const bool isFalling = first.minute == 0 && second.minute == 59;
    const int hours = second.hour - first.hour;
    return (hours == 0 && (isRising || isFalling)) || (hours == 2 && isRising) ||
           (hours == -2 && isFalling);
}

} // namespace chronomender
