// SPDX-License-Identifier: GPL-3.0-or-later
#include "PictureSource.h"

#include "HeifPicture.h"
#include "JpegPicture.h"
#include "MoviePicture.h"
#include "NameParts.h"
#include "PictureFile.h"
#include "QtPicture.h"
#include "RawPicture.h"

#include <algorithm>
#include <iterator>

namespace chronomender {

namespace {

using Decode = UprightPicture (*)(PictureFile &, const PictureWish &);

/// What reads a format, and what is tried where that fails: a name tells raw from TIFF only for
/// most files, and some HEIF files are movies without a still. `FileFormatNone` stands for what
/// the first bytes do not tell, as of many raw formats and of movies.
struct Decoder {
    FileFormatType format;
    Decode decode, otherwise;
};
constexpr Decode kMovie = [](PictureFile &file, const PictureWish &wish) {
    return moviePicture(file, wish);
};
constexpr Decode kRaw = [](PictureFile &file, const PictureWish &wish) {
    return rawPicture(file, wish);
};
constexpr Decode kHeif = [](PictureFile &file, const PictureWish &wish) {
    return heifPicture(file, wish);
};
template<FileFormatType format>
constexpr Decode kQt =
    [](PictureFile &file, const PictureWish &wish) { return qtPicture(file, format, wish); };
constexpr Decoder kDecoders[]{
    {FileFormatNone, kRaw, kMovie},
    {FileFormatJpeg, jpegPicture, nullptr},
    {FileFormatHeif, kHeif, kMovie},
    {FileFormatAvif, kHeif, kMovie},
    {FileFormatRaw, kRaw, kQt<FileFormatTiff>},
    {FileFormatTiff, kQt<FileFormatTiff>, kRaw},
    {FileFormatWebp, kQt<FileFormatWebp>, nullptr},
    {FileFormatGif, kQt<FileFormatGif>, nullptr},
    {FileFormatPng, kQt<FileFormatPng>, nullptr},
    {FileFormatQuickTime, kMovie, nullptr},
    {FileFormatMpeg4, kMovie, nullptr},
    {FileFormatOtherMovie, kMovie, nullptr},
};

/// The name only says what is tried first where the first bytes say nothing.
FileFormatType formatOf(PictureFile &file) {
    const std::string_view path = file.path();
    const std::string_view extension = extensionOfName(path.substr(path.find_last_of('/') + 1));
    const bool isMovieByName = isMovieFormat(fileFormatTypeForExtension(extension));
    return fileFormatTypeForContent(file.firstBytes(), extension)
        .value_or(isMovieByName ? FileFormatOtherMovie : FileFormatNone);
}

UprightPicture pictureOf(PictureFile &file, const PictureWish &wish) {
    const auto *decoder = std::ranges::find(kDecoders, formatOf(file), &Decoder::format);
    if (decoder == std::end(kDecoders))
        return failed(PictureFailure::DamagedOrUnknown);
    UprightPicture picture = decoder->decode(file, wish);
    if (picture.failure != PictureFailure::DamagedOrUnknown || !decoder->otherwise)
        return picture;
    UprightPicture other = decoder->otherwise(file, wish);
    return other.failure == PictureFailure::TooLarge ? picture : other;
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
