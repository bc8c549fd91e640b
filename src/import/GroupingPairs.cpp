// SPDX-License-Identifier: GPL-3.0-or-later
#include "GroupingPairs.h"

#include "MovieFilling.h"
#include "MovieStampConversions.h"
#include "StampConversions.h"

#include <algorithm>
#include <array>

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

/// What both clocks showed; zones are left out of it, as a movie says its own and a still may not.
bool areStampsOfOneMoment(const MySinglePic &movie, const MySinglePic &still) {
    const auto &stamp = still.singlePicAttributes.exifDateTimeOriginal;
    const absl::TimeZone utc = absl::UTCTimeZone();
    const OptionalDate stillDate =
        stamp ? dateFromExifData(stamp->data, nullptr, utc) : std::nullopt;
    const OptionalDate movieDate = dateIgnoringFromMDTATimeStamp(qTMetaDateString(movie), utc);
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
