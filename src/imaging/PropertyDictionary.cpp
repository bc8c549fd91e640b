// SPDX-License-Identifier: GPL-3.0-or-later
#include "PropertyDictionary.h"

#include "CameraText.h"
#include "ExifGps.h"
#include "ExivImage.h"
#include "FileLayer.h"
#include "MovieProperties.h"

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

constexpr off_t mostSidecarBytes = off_t{16} << 20;

bool isReadableSize(const std::string &path, off_t most) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0 &&
           status.st_size <= most;
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

std::int32_t pixelsOf(const Exiv2::ExifData &exif, const char *key) {
    const auto found = exif.findKey(Exiv2::ExifKey(key));
    const long stated = found == exif.end() || found->count() == 0 ? 0 : found->toLong();
    return static_cast<std::int32_t>(std::clamp<long>(stated, 0, INT32_MAX));
}

std::string objectNameOf(const Exiv2::IptcData &iptc) {
    const auto found = iptc.findKey(Exiv2::IptcKey("Iptc.Application2.ObjectName"));
    return found == iptc.end() ? std::string() : cameraText(found->toString());
}

PropertyDictionary dictionaryOf(const Exiv2::Image &image) {
    constexpr int kFirstTurned = 5; // from here on width and height are exchanged
    const Exiv2::ExifData &exif = image.exifData();
    PropertyDictionary dictionary;
    dictionary.make = textOf(exif, Exiv2::make);
    dictionary.model = textOf(exif, Exiv2::model);
    dictionary.lens = textOf(exif, "Exif.Photo.LensModel", Exiv2::lensName);
    dictionary.serialNumber = textOf(exif, "Exif.Photo.BodySerialNumber", Exiv2::serialNumber);
    dictionary.pixelWidth = std::max(image.pixelWidth(), 0);
    dictionary.pixelHeight = std::max(image.pixelHeight(), 0);
    dictionary.orientation = orientationOf(exif);
    dictionary.exifWidth = pixelsOf(exif, "Exif.Photo.PixelXDimension");
    dictionary.exifHeight = pixelsOf(exif, "Exif.Photo.PixelYDimension");
    if (dictionary.orientation >= kFirstTurned)
        std::swap(dictionary.exifWidth, dictionary.exifHeight);
    dictionary.gps = gpsOfExif(exif);
    dictionary.objectName = objectNameOf(image.iptcData());
    dictionary.mimeType = image.mimeType();
    return dictionary;
}

/// What the library tells of the picture that `open` gives; none when it fails.
template<class Open>
std::optional<PropertyDictionary> readWith(Open open) {
    try {
        const std::unique_ptr<Exiv2::Image> image(open().release());
        if (!image || isMovie(*image))
            return std::nullopt;
        image->readMetadata();
        return dictionaryOf(*image);
    } catch (...) { // damaged files are daily life, and the library throws more than its own type
        return std::nullopt;
    }
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
        muteMovieLibrary();
    });
}

std::optional<PropertyDictionary> readPropertyDictionary(const std::string &path) {
    if (!isReadableSize(path, mostBytes))
        return std::nullopt;
    return readWith([&] { return Exiv2::ImageFactory::open(path); });
}

std::optional<PropertyDictionary> readPropertyDictionaryOf(std::string_view bytes) {
    const auto *data = reinterpret_cast<const Exiv2::byte *>(bytes.data());
    return readWith(
        [&] { return Exiv2::ImageFactory::open(data, static_cast<long>(bytes.size())); });
}

std::optional<PropertyDictionary> readSidecarDictionary(const std::string &path) {
    constexpr std::string_view sidecarType = "application/rdf+xml";
    if (!isReadableSize(path, mostSidecarBytes))
        return std::nullopt;
    // The library tells the properties of a packet as the Exif tags that they stand for.
    auto dictionary = readWith([&] { return Exiv2::ImageFactory::open(path); });
    return dictionary && dictionary->mimeType == sidecarType ? dictionary : std::nullopt;
}

} // namespace chronomender
