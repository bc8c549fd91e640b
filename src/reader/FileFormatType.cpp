// SPDX-License-Identifier: GPL-3.0-or-later
#include "FileFormatType.h"

#include "ExifFormat.h"
#include "JpegFormat.h"
#include "PngFormat.h"
#include "TiffFormat.h"
#include "WebpFormat.h"

#include <algorithm>
#include <iterator>
#include <span>
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
    {0, kJpegSignature, FileFormatJpeg},
    {0, kPngSignature, FileFormatPng},
    {0, "GIF87a", FileFormatGif},
    {0, "GIF89a", FileFormatGif},
};

/// What a RIFF file holds, by the four letters behind its length.
constexpr Signature kRiffForms[]{
    {kRiffFormAt, kWebpForm, FileFormatWebp},
    {kRiffFormAt, "AVI ", FileFormatOtherMovie},
};

struct BrandFormat {
    std::string_view brand; ///< what it begins with
    FileFormatType format;
};

// ISO/IEC 14496-12, 4.3, and the brands registered for pictures and movies.
constexpr BrandFormat kBrands[]{
    {"heic", FileFormatHeif},  {"heix", FileFormatHeif},  {"hevc", FileFormatHeif},
    {"mif1", FileFormatHeif},  {"msf1", FileFormatHeif},  {"avif", FileFormatAvif},
    {"avis", FileFormatAvif},  {"crx ", FileFormatRaw},   {"qt  ", FileFormatQuickTime},
    {"iso", FileFormatMpeg4},  {"mp4", FileFormatMpeg4},  {"avc1", FileFormatMpeg4},
    {"M4V", FileFormatMpeg4},  {"3gp", FileFormatMpeg4},  {"3g2", FileFormatMpeg4},
    {"3ge", FileFormatMpeg4},  {"MSNV", FileFormatMpeg4}, {"mmp4", FileFormatMpeg4},
    {"dash", FileFormatMpeg4}, {"f4v ", FileFormatMpeg4}, {"XAVC", FileFormatMpeg4},
    {"NDSC", FileFormatMpeg4},
};

/// With what a QuickTime file can begin that is older than the file type box.
constexpr std::string_view kOldQuickTimeAtoms[]{"moov", "mdat", "wide", "free", "skip", "pnot"};

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

bool hasSignature(std::string_view bytes, const Signature &signature) {
    return bytes.size() >= signature.at && bytes.substr(signature.at).starts_with(signature.bytes);
}

std::optional<FileFormatType> formatOfBrand(std::string_view brand) {
    const auto found = std::ranges::find_if(
        kBrands, [&](const BrandFormat &known) { return brand.starts_with(known.brand); });
    return found == std::end(kBrands) ? std::nullopt : std::optional(found->format);
}

bool isHeifFormat(std::optional<FileFormatType> format) {
    return format == FileFormatHeif || format == FileFormatAvif;
}

/// The file type box holds a major brand, a version, and further brands that the file fits. These
/// count where the major one is unknown, and tell AV1 from other pictures of a general brand.
std::optional<FileFormatType> formatOfBrands(std::string_view bytes) {
    constexpr std::size_t kBrandLength = 4, kMajorAt = 8, kFurtherAt = 16;
    const std::size_t length =
        std::min<std::size_t>(bytes.size(), number32(bytes, ByteOrder::Motorola));
    if (length < kMajorAt + kBrandLength)
        return std::nullopt;
    const std::string_view major = bytes.substr(kMajorAt, kBrandLength);
    const auto majorFormat = formatOfBrand(major);
    const bool isGeneral = major == "mif1" || major == "msf1";
    if (majorFormat && !isGeneral)
        return majorFormat;
    std::optional<FileFormatType> further;
    for (std::size_t at = kFurtherAt; at + kBrandLength <= length; at += kBrandLength) {
        const auto format = formatOfBrand(bytes.substr(at, kBrandLength));
        if (format == FileFormatAvif)
            return FileFormatAvif;
        if (!further || (isHeifFormat(format) && !isHeifFormat(further)))
            further = format;
    }
    return majorFormat ? majorFormat : further;
}

/// What the boxes at the beginning say. A file whose name promises a still is no movie.
std::optional<FileFormatType> formatOfBoxes(std::string_view bytes, std::string_view extension) {
    constexpr std::size_t kTypeAt = 4, kHeaderLength = 8;
    if (bytes.size() < kHeaderLength)
        return std::nullopt;
    const std::string_view type = bytes.substr(kTypeAt, 4);
    std::optional<FileFormatType> format;
    if (type == "ftyp")
        format = formatOfBrands(bytes);
    else if (std::ranges::find(kOldQuickTimeAtoms, type) != std::end(kOldQuickTimeAtoms))
        format = FileFormatQuickTime;
    const bool isRefused =
        format && isMovieFormat(*format) && isStillFormat(fileFormatTypeForExtension(extension));
    return isRefused ? std::nullopt : format;
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
    const bool isRiff = firstBytes.starts_with(kRiffSignature);
    const std::span<const Signature> signatures =
        isRiff ? std::span<const Signature>(kRiffForms) : std::span<const Signature>(kSignatures);
    for (const Signature &signature : signatures) {
        if (hasSignature(firstBytes, signature))
            return signature.format;
    }
    if (const auto order = byteOrderOfTiffMagic(firstBytes)) {
        const bool isRaw = fileFormatTypeForExtension(extension) == FileFormatRaw ||
                           hasDngVersion(firstBytes, *order);
        return isRaw ? FileFormatRaw : FileFormatTiff;
    }
    return formatOfBoxes(firstBytes, extension);
}

std::string_view formatName(FileFormatType type) {
    const auto found = std::ranges::find(kNames, type, &FormatName::format);
    return found == std::end(kNames) ? kNames[0].name : found->name;
}

} // namespace chronomender
