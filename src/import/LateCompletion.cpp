// SPDX-License-Identifier: GPL-3.0-or-later
#include "LateCompletion.h"

namespace chronomender {

namespace {

/// Shorter words are no camera: a dash, a blank.
constexpr std::size_t shortestMake = 2, shortestModel = 3, shortestKnown = 2;

void completeCamera(CameraInfo &camera, const PropertyDictionary &properties) {
    if (properties.make.empty() || properties.model.empty())
        return;
    const bool isKnown = camera.pivMakeModel.size() >= shortestKnown;
    const bool isPoor =
        properties.make.size() < shortestMake || properties.model.size() < shortestModel;
    if (isKnown && isPoor)
        return;
    camera.make = properties.make;
    camera.model = properties.model;
    camera.pivMakeModel = completeMakerModelString(camera.make, camera.model);
}

} // namespace

bool lacksCamera(const MySinglePic &pic) {
    return isStillFormat(pic.fileFormatType) && pic.camera.pivMakeModel.size() < shortestKnown &&
           !pic.importState.wasLocationDataSearched;
}

void completeItem(MySinglePic &pic, const PropertyDictionary &properties) {
    pic.importState.wasLocationDataSearched = true;
    if (!isStillFormat(pic.fileFormatType)) {
        pic.camera.pivImageWidth = pic.camera.pivImageHeight = -1;
        return;
    }
    if (properties.pixelWidth > 0 && properties.pixelHeight > 0) {
        pic.camera.pivImageWidth = properties.pixelWidth;
        pic.camera.pivImageHeight = properties.pixelHeight;
    }
    completeCamera(pic.camera, properties);
    if (!pic.hasLocation() && properties.gps) {
        pic.location.gpsLat = properties.gps->latitude;
        pic.location.gpsLong = properties.gps->longitude;
    }
}

} // namespace chronomender
