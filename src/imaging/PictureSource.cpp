// SPDX-License-Identifier: GPL-3.0-or-later
#include "PictureSource.h"

#include "JpegPicture.h"
#include "PictureFile.h"
#include "QtPicture.h"

namespace chronomender {

namespace {

std::string_view extensionOf(std::string_view path) {
    const std::string_view name = path.substr(path.find_last_of('/') + 1);
    const std::size_t dot = name.find_last_of('.');
    return dot == std::string_view::npos ? std::string_view() : name.substr(dot + 1);
}

UprightPicture pictureOf(PictureFile &file, const PictureWish &wish) {
    const auto format = fileFormatTypeForContent(file.firstBytes(), extensionOf(file.path()));
    switch (format.value_or(FileFormatNone)) {
    case FileFormatJpeg:
        return jpegPicture(file, wish);
    case FileFormatPng:
    case FileFormatGif:
    case FileFormatWebp:
    case FileFormatTiff:
        return qtPicture(file, *format, wish);
    default:
        return failed(PictureFailure::DamagedOrUnknown);
    }
}

} // namespace

UprightPicture newImageFromSource(const std::string &path, int maxPixelSize, PictureChoice choice,
                                  const Cancellation *cancellation) {
    const PicturePatience patience(kLongestPicture, cancellation);
    const auto file = PictureFile::open(path);
    if (!file)
        return failed(PictureFailure::CannotBeOpened);
    try {
        return pictureOf(*file, {maxPixelSize, choice, patience});
    } catch (...) { // memory may run out on damaged files
        return failed(PictureFailure::TooLarge);
    }
}

} // namespace chronomender
