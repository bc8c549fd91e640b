// SPDX-License-Identifier: GPL-3.0-or-later
#include "LateCompletion.h"

#include "Parallel.h"

namespace chronomender {
namespace {

bool wants(const MySinglePic &pic, CompletionScope scope) {
    switch (scope) {
    case CompletionScope::None:
        return false;
    case CompletionScope::WhereCameraIsMissing:
        return pic.camera.pivMakeModel.empty();
    case CompletionScope::All:
        return true;
    }
    return false;
}

void fillIfEmpty(std::string &place, const std::string &value) {
    if (place.empty())
        place = value;
}

} // namespace

std::vector<MySinglePicPtr> itemsToComplete(const std::vector<MySinglePicPtr> &items,
                                            CompletionScope scope) {
    std::vector<MySinglePicPtr> wanted;
    for (const MySinglePicPtr &pic : items)
        if (wants(*pic, scope))
            wanted.push_back(pic);
    return wanted;
}

PropertyDictionaries readDictionaries(const std::vector<MySinglePicPtr> &items,
                                      const Cancellation &cancellation) {
    PropertyDictionaries dictionaries(items.size());
    parallelFor(
        items.size(),
        [&](std::size_t i) { dictionaries[i] = readPropertyDictionary(items[i]->spPath()); },
        [&] { return cancellation.isRequested(); });
    return dictionaries;
}

void applyDictionary(MySinglePic &pic, const PropertyDictionary &dictionary) {
    CameraInfo &camera = pic.camera;
    if (camera.make.empty() && camera.model.empty()) {
        camera.make = dictionary.make;
        camera.model = dictionary.model;
    }
    fillIfEmpty(camera.pivMakeModel, completeMakerModelString(camera.make, camera.model));
    fillIfEmpty(camera.lens, dictionary.lens);
    if (camera.pivImageWidth == 0) {
        camera.pivImageWidth = dictionary.pixelWidth;
        camera.pivImageHeight = dictionary.pixelHeight;
    }
    // A recorded location that was judged to be none stays none.
    if (!pic.hasLocation() && !pic.singlePicAttributes.gpsLocation && dictionary.gps) {
        pic.location.gpsLat = dictionary.gps->latitude;
        pic.location.gpsLong = dictionary.gps->longitude;
    }
}

} // namespace chronomender
