// SPDX-License-Identifier: GPL-3.0-or-later
#include "GroupingPairs.h"

#include "WallClocks.h"

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

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
    const auto &stillStamp = still.singlePicAttributes.exifDateTimeOriginal;
    const auto &movieStamp = movie.singlePicAttributes.qtMetaDate;
    return movie.spType == SpTypeMovieMdta && still.spType == SpTypeExifOriginal &&
           !movie.camera.pivMakeModel.empty() &&
           movie.camera.pivMakeModel == still.camera.pivMakeModel && !hasSaveError(movie) &&
           !hasSaveError(still) && stillStamp && movieStamp &&
           areStampsOfOneMoment(stillStamp->data, movieStamp->data);
}

} // namespace chronomender
