// SPDX-License-Identifier: GPL-3.0-or-later
#include "FileFormatType.h"

#include "ExifFormat.h"
#include "JpegFormat.h"
#include "TiffFormat.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace chronomender {

namespace {

struct ExtensionFormat {
    std::string_view extension; ///< lower case
    FileFormatType format;
};

constexpr ExtensionFormat kExtensions[]{
    {"jpg", FileFormatJpeg},       {"jpeg", FileFormatJpeg},       {"jpe", FileFormatJpeg},
    {"heic", FileFormatHeif},      {"heif", FileFormatHeif},       {"hif", FileFormatHeif},
    {"3fr", FileFormatRaw},        {"arw", FileFormatRaw},         {"cr2", FileFormatRaw},
    {"cr3", FileFormatRaw},        {"crw", FileFormatRaw},         {"dcr", FileFormatRaw},
    {"dng", FileFormatRaw},        {"erf", FileFormatRaw},         {"fff", FileFormatRaw},
    {"gpr", FileFormatRaw},        {"iiq", FileFormatRaw},         {"k25", FileFormatRaw},
    {"kdc", FileFormatRaw},        {"mef", FileFormatRaw},         {"mos", FileFormatRaw},
    {"mrw", FileFormatRaw},        {"nef", FileFormatRaw},         {"nrw", FileFormatRaw},
    {"orf", FileFormatRaw},        {"pef", FileFormatRaw},         {"ptx", FileFormatRaw},
    {"raf", FileFormatRaw},        {"raw", FileFormatRaw},         {"rw2", FileFormatRaw},
    {"rwl", FileFormatRaw},        {"sr2", FileFormatRaw},         {"srf", FileFormatRaw},
    {"srw", FileFormatRaw},        {"x3f", FileFormatRaw},         {"tif", FileFormatTiff},
    {"tiff", FileFormatTiff},      {"webp", FileFormatWebp},       {"pct", FileFormatPict},
    {"pict", FileFormatPict},      {"gif", FileFormatGif},         {"png", FileFormatPng},
    {"avif", FileFormatAvif},      {"mov", FileFormatQuickTime},   {"qt", FileFormatQuickTime},
    {"3g2", FileFormatMpeg4},      {"3gp", FileFormatMpeg4},       {"m4v", FileFormatMpeg4},
    {"mp4", FileFormatMpeg4},      {"avi", FileFormatOtherMovie},  {"m2ts", FileFormatOtherMovie},
    {"mkv", FileFormatOtherMovie}, {"mpeg", FileFormatOtherMovie}, {"mpg", FileFormatOtherMovie},
    {"mts", FileFormatOtherMovie}, {"wmv", FileFormatOtherMovie},
};

struct Signature {
    std::size_t at;
    std::string_view bytes;
    FileFormatType format;
};

constexpr Signature kSignatures[]{
    {0, kJpegSignature, FileFormatJpeg}, {0, "\x89PNG\r\n\x1A\n", FileFormatPng},
    {0, "GIF87a", FileFormatGif},        {0, "GIF89a", FileFormatGif},
    {8, "WEBP", FileFormatWebp},
};

struct BrandFormat {
    std::string_view brand;
    FileFormatType format;
};

constexpr BrandFormat kBrands[]{
    {"heic", FileFormatHeif}, {"heix", FileFormatHeif}, {"hevc", FileFormatHeif},
    {"mif1", FileFormatHeif}, {"msf1", FileFormatHeif}, {"avif", FileFormatAvif},
    {"avis", FileFormatAvif},
};

struct FormatName {
    FileFormatType format;
    std::string_view name;
};

constexpr FormatName kNames[]{
    {FileFormatNone, "none"},   {FileFormatJpeg, "jpeg"},        {FileFormatHeif, "heif"},
    {FileFormatRaw, "raw"},     {FileFormatTiff, "tiff"},        {FileFormatWebp, "webp"},
    {FileFormatPict, "pict"},   {FileFormatGif, "gif"},          {FileFormatPng, "png"},
    {FileFormatAvif, "avif"},   {FileFormatCr3Xmp, "cr3"},       {FileFormatQuickTime, "quicktime"},
    {FileFormatMpeg4, "mpeg4"}, {FileFormatOtherMovie, "movie"},
};

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    for (char &c : lower) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return lower;
}

/// ISO/IEC 14496-12, 4.3: the file type box holds a major brand, a version, and further brands.
std::optional<FileFormatType> formatOfBrands(std::string_view bytes) {
    constexpr std::size_t kMajorBrandAt = 8, kBrandLength = 4;
    if (bytes.size() < kMajorBrandAt + kBrandLength || bytes.substr(4, 4) != "ftyp")
        return std::nullopt;
    const std::string_view major = bytes.substr(kMajorBrandAt, kBrandLength);
    const auto found = std::ranges::find(kBrands, major, &BrandFormat::brand);
    return found == std::end(kBrands) ? std::nullopt : std::optional(found->format);
}

/// True when the first directory holds a DNG version, as far as it lies in `bytes`.
bool hasDngVersion(std::string_view bytes, ByteOrder order) {
    if (bytes.size() < kTiffFirstDirectoryAt + 4)
        return false;
    const std::uint32_t directory = number32(bytes.substr(kTiffFirstDirectoryAt), order);
    if (directory >= bytes.size() || bytes.size() - directory < kTiffCountLength)
        return false;
    bytes.remove_prefix(directory);
    std::size_t count = number16(bytes, order);
    bytes.remove_prefix(kTiffCountLength);
    for (; count > 0 && bytes.size() >= kTiffEntryLength; --count) {
        if (number16(bytes, order) == kTagDngVersion)
            return true;
        bytes.remove_prefix(kTiffEntryLength);
    }
    return false;
}

} // namespace

bool isBoxedRaw(FileFormatType type, std::string_view extension) {
    return type == FileFormatRaw && lowerCase(extension) == "cr3";
}

FileFormatType fileFormatTypeForExtension(std::string_view extension) {
    const std::string lower = lowerCase(extension);
    const auto found = std::ranges::find(kExtensions, lower, &ExtensionFormat::extension);
    return found == std::end(kExtensions) ? FileFormatNone : found->format;
}

std::optional<FileFormatType> fileFormatTypeForContent(std::string_view firstBytes,
                                                       std::string_view extension) {
    for (const Signature &signature : kSignatures) {
        if (firstBytes.size() >= signature.at &&
            firstBytes.substr(signature.at).starts_with(signature.bytes) &&
            (signature.format != FileFormatWebp || firstBytes.starts_with("RIFF")))
            return signature.format;
    }
    if (const auto order = byteOrderOfTiffMagic(firstBytes)) {
        const bool isRaw = fileFormatTypeForExtension(extension) == FileFormatRaw ||
                           hasDngVersion(firstBytes, *order);
        return isRaw ? FileFormatRaw : FileFormatTiff;
    }
    return formatOfBrands(firstBytes);
}

std::string_view formatName(FileFormatType type) {
    const auto found = std::ranges::find(kNames, type, &FormatName::format);
    return found == std::end(kNames) ? kNames[0].name : found->name;
}

} // namespace chronomender
