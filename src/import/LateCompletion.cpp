// SPDX-License-Identifier: GPL-3.0-or-later
#include "LateCompletion.h"

#include "MySingleFolderDataReader.h"

#include <algorithm>
#include <unistd.h>

namespace chronomender {

namespace {

/// Shorter words are no camera: a dash, a blank.
constexpr std::size_t shortestMake = 2, shortestModel = 3, shortestKnown = 2;

void completeCamera(CameraInfo &camera, const std::string &make, const std::string &model) {
    if (make.empty() || model.empty())
        return;
    const bool isKnown = camera.pivMakeModel.size() >= shortestKnown;
    const bool isPoor = make.size() < shortestMake || model.size() < shortestModel;
    if (isKnown && isPoor)
        return;
    camera.make = make;
    camera.model = model;
    camera.pivMakeModel = completeMakerModelString(camera.make, camera.model);
}

constexpr double unknownDuration = -1;
/// Metadata stand at the beginning of a preview, in front of its picture.
constexpr std::uint64_t mostPreviewBytes = 1 << 20;

bool hasNoSize(const PropertyDictionary &properties) {
    return properties.pixelWidth == 0 && properties.pixelHeight == 0 && properties.exifWidth == 0 &&
           properties.exifHeight == 0;
}

std::string beginningOf(const MySingleFolderDataReader &reader, const ByteBlock &block) {
    std::string bytes(static_cast<std::size_t>(std::min(block.length, mostPreviewBytes)), '\0');
    const ssize_t read =
        ::pread(reader.descriptor(), bytes.data(), bytes.size(), static_cast<off_t>(block.offset));
    bytes.resize(static_cast<std::size_t>(std::max<ssize_t>(read, 0)));
    return bytes;
}

/// What the preview inside a raw file tells, with `known` where that tells more.
std::optional<PropertyDictionary> withPreview(const std::string &path,
                                              const std::optional<PropertyDictionary> &known) {
    MySingleFolderDataReader reader;
    const auto preview = reader.open(path) ? reader.readInternalPreview() : std::nullopt;
    if (!preview)
        return known;
    const auto inside = readPropertyDictionaryOf(beginningOf(reader, preview->bytes));
    PropertyDictionary result = known.value_or(inside.value_or(PropertyDictionary()));
    if (inside && (result.make.empty() || result.model.empty())) {
        result.make = inside->make;
        result.model = inside->model;
    }
    if (inside && !result.gps)
        result.gps = inside->gps;
    result.pixelWidth = preview->width;
    result.pixelHeight = preview->height;
    return result;
}

/// What the item's sidecar tells where its file is silent.
void addSidecar(const MySinglePic &pic, std::optional<PropertyDictionary> &known) {
    const bool isSilent = !known || known->make.empty() || known->model.empty() || !known->gps;
    const auto sidecar =
        isSilent && pic.hasXMPSidecar() ? readSidecarDictionary(pic.spXMPPath()) : std::nullopt;
    if (!sidecar)
        return;
    if (!known)
        known.emplace();
    if (known->make.empty() || known->model.empty()) {
        known->make = sidecar->make;
        known->model = sidecar->model;
    }
    if (!known->gps)
        known->gps = sidecar->gps;
}

/// The pixels that the picture has, else what its Exif data say of them.
void completeSize(CameraInfo &camera, const PropertyDictionary &properties) {
    if (properties.pixelWidth > 0 && properties.pixelHeight > 0) {
        camera.pivImageWidth = properties.pixelWidth;
        camera.pivImageHeight = properties.pixelHeight;
    } else if (properties.exifWidth > 0 && properties.exifHeight > 0) {
        camera.pivImageWidth = properties.exifWidth;
        camera.pivImageHeight = properties.exifHeight;
    }
}

void completeMovie(MySinglePic &pic, const MovieProperties &properties) {
    pic.importState.wasLocationDataSearched = true;
    if (pic.movie.movDuration < 0)
        pic.movie.movDuration = properties.duration;
    if (properties.width > 0 && properties.height > 0) {
        pic.camera.pivImageWidth = properties.width;
        pic.camera.pivImageHeight = properties.height;
    }
    completeCamera(pic.camera, properties.make, properties.model);
}

} // namespace

bool lacksCamera(const MySinglePic &pic) {
    const bool isReadLate =
        isStillFormat(pic.fileFormatType) || pic.fileFormatType == FileFormatOtherMovie;
    return isReadLate && pic.camera.pivMakeModel.size() < shortestKnown &&
           !pic.importState.wasLocationDataSearched;
}

LateProperties readLateProperties(const MySinglePic &pic) {
    const std::string path = pic.spPath();
    if (isMovieFormat(pic.fileFormatType)) {
        const bool isUnread =
            pic.fileFormatType == FileFormatOtherMovie && pic.movie.movDuration == unknownDuration;
        return {std::nullopt, isUnread ? readMovieProperties(path) : std::nullopt};
    }
    LateProperties properties{readPropertyDictionary(path), std::nullopt};
    const bool isUnknown = !properties.picture || hasNoSize(*properties.picture);
    if (pic.isRaw() && isUnknown && !pic.importState.wasLocationDataSearched)
        properties.picture = withPreview(path, properties.picture);
    addSidecar(pic, properties.picture);
    return properties;
}

void completeItem(MySinglePic &pic, const LateProperties &properties) {
    if (properties.picture)
        completeItem(pic, *properties.picture);
    if (properties.movie)
        completeMovie(pic, *properties.movie);
}

void completeItem(MySinglePic &pic, const PropertyDictionary &properties) {
    if (isMovieFormat(pic.fileFormatType))
        return;
    pic.importState.wasLocationDataSearched = true;
    if (!isStillFormat(pic.fileFormatType)) {
        pic.camera.pivImageWidth = pic.camera.pivImageHeight = -1;
        return;
    }
    completeSize(pic.camera, properties);
    completeCamera(pic.camera, properties.make, properties.model);
    pic.camera.lens = properties.lens;
    pic.camera.serialNumber = properties.serialNumber;
    if (!pic.hasLocation() && properties.gps) {
        pic.location.gpsLat = properties.gps->latitude;
        pic.location.gpsLong = properties.gps->longitude;
    }
}

} // namespace chronomender
