// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace chronomender {

/// What kind of file a medium is. The numbers stand in saved sessions and never change.
enum class FileFormatType : std::int32_t {
    FileFormatNone = 0,
    FileFormatJpeg = 1,
    FileFormatHeif = 2,
    FileFormatRaw = 3,
    FileFormatTiff = 4,
    FileFormatWebp = 5,
    FileFormatPict = 6,
    FileFormatGif = 7,
    FileFormatPng = 8,
    FileFormatAvif = 9,
    FileFormatCr3Xmp = 10, ///< never stored on an item; only told to the XMP reader
    FileFormatQuickTime = 20,
    FileFormatMpeg4 = 21,
    FileFormatOtherMovie = 50,
};
using enum FileFormatType;

/// True for formats 1 to 15: files that are read and shown as still images.
constexpr bool isStillFormat(FileFormatType type) {
    return type >= FileFormatJpeg && static_cast<std::int32_t>(type) <= 15;
}

/// True for formats 20, 21 and 50.
constexpr bool isMovieFormat(FileFormatType type) {
    return type == FileFormatQuickTime || type == FileFormatMpeg4 || type == FileFormatOtherMovie;
}

/// A raw file that is a box structure (ISO/IEC 14496-12) without a TIFF header of its own.
/// `extension` is without the dot, in any letter case.
bool isBoxedRaw(FileFormatType type, std::string_view extension);

/// The format that a file name's extension promises; FileFormatNone for anything that is no medium.
/// `extension` is without the dot, in any letter case. Example: "CR2" gives FileFormatRaw.
FileFormatType fileFormatTypeForExtension(std::string_view extension);

/// The format that the first bytes of a file prove, or none when they say nothing. Content wins
/// over the extension wherever it answers. `extension` only decides between raw and TIFF behind a
/// TIFF header. At least 32 bytes should be given where the file has them; a DNG version tag is
/// looked for only in the bytes that are given.
std::optional<FileFormatType> fileFormatTypeForContent(std::string_view firstBytes,
                                                       std::string_view extension);

/// Lower-case English name for people and for JSON, for example "jpeg", "raw", "quicktime".
std::string_view formatName(FileFormatType type);

} // namespace chronomender
