// SPDX-License-Identifier: GPL-3.0-or-later
#include "PropertyDictionary.h"

#include "CameraText.h"
#include "ExifGps.h"
#include "FileLayer.h"

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <memory>
#include <mutex>
#include <sys/stat.h>

namespace chronomender {

namespace {

/// The library maps whole files into memory and walks what it finds there; nothing that a camera
/// writes as a picture is larger.
constexpr off_t mostBytes = off_t{2} << 30;

void lockXmp(void *mutex, bool shouldLock) {
    auto &recursive = *static_cast<std::recursive_mutex *>(mutex);
    if (shouldLock)
        recursive.lock();
    else
        recursive.unlock();
}

bool isReadableSize(const std::string &path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0 &&
           status.st_size <= mostBytes;
}

using Find = Exiv2::ExifData::const_iterator (*)(const Exiv2::ExifData &);

std::string textOf(const Exiv2::ExifData &exif, Find find) {
    const auto found = find(exif);
    return found == exif.end() ? std::string() : cameraText(found->toString());
}

/// A tag's text, or for files without the tag what the camera's maker note says.
std::string textOf(const Exiv2::ExifData &exif, const char *key, Find otherwise) {
    const auto found = exif.findKey(Exiv2::ExifKey(key));
    std::string text = found == exif.end() ? std::string() : cameraText(found->toString());
    if (!text.empty())
        return text;
    const auto other = otherwise(exif);
    return other == exif.end() ? std::string() : cameraText(other->print(&exif));
}

int orientationOf(const Exiv2::ExifData &exif) {
    const auto found = Exiv2::orientation(exif);
    const long value = found == exif.end() || found->count() == 0 ? 1 : found->toLong();
    return value >= 1 && value <= 8 ? static_cast<int>(value) : 1;
}

std::int32_t pixelsOf(const Exiv2::ExifData &exif, int measured, const char *key) {
    if (measured > 0)
        return measured;
    const auto found = exif.findKey(Exiv2::ExifKey(key));
    const long stated = found == exif.end() || found->count() == 0 ? 0 : found->toLong();
    return static_cast<std::int32_t>(std::clamp<long>(stated, 0, INT32_MAX));
}

PropertyDictionary dictionaryOf(const Exiv2::Image &image) {
    const Exiv2::ExifData &exif = image.exifData();
    PropertyDictionary dictionary;
    dictionary.make = textOf(exif, Exiv2::make);
    dictionary.model = textOf(exif, Exiv2::model);
    dictionary.lens = textOf(exif, "Exif.Photo.LensModel", Exiv2::lensName);
    dictionary.serialNumber = textOf(exif, "Exif.Photo.BodySerialNumber", Exiv2::serialNumber);
    dictionary.pixelWidth = pixelsOf(exif, image.pixelWidth(), "Exif.Photo.PixelXDimension");
    dictionary.pixelHeight = pixelsOf(exif, image.pixelHeight(), "Exif.Photo.PixelYDimension");
    dictionary.orientation = orientationOf(exif);
    dictionary.gps = gpsOfExif(exif);
    dictionary.mimeType = image.mimeType();
    return dictionary;
}

} // namespace

void initialiseImaging() {
    static std::recursive_mutex xmpMutex;
    static std::once_flag once;
    std::call_once(once, [] {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::LogMsg::setHandler(nullptr);
        Exiv2::XmpParser::initialize(lockXmp, &xmpMutex);
        Exiv2::enableBMFF(true);
    });
}

std::optional<PropertyDictionary> readPropertyDictionary(const std::string &path) {
    try {
        if (!isReadableSize(path))
            return std::nullopt;
        const std::unique_ptr<Exiv2::Image> image(Exiv2::ImageFactory::open(path).release());
        if (!image)
            return std::nullopt;
        image->readMetadata();
        return dictionaryOf(*image);
    } catch (...) { // damaged files are daily life, and the library throws more than its own type
        return std::nullopt;
    }
}

} // namespace chronomender
