// SPDX-License-Identifier: GPL-3.0-or-later
#include "FormatWalks.h"

#include "BoxCursor.h"
#include "ExifWalk.h"
#include "HeaderSearch.h"
#include "HeifWalk.h"
#include "JpegWalk.h"
#include "PngWalk.h"
#include "WebpWalk.h"

#include <algorithm>
#include <array>

namespace chronomender {

namespace {

/// How the Exif data of a format are found.
enum class Walk : std::uint8_t {
    None,        ///< the format keeps no Exif dates
    JpegMarkers, ///< by marker segments; nothing found is final
    FileStart,   ///< only at the start of the file
    Scan,        ///< at the start of the file, else anywhere
    Cr3Boxes,    ///< by boxes, in several blocks
    HeifBoxes,   ///< by boxes; anywhere when their structure is broken
    PngChunks,   ///< by chunks; anywhere when their structure is broken
    WebpChunks,  ///< by chunks; nothing found is final
};

struct FormatWalk {
    FileFormatType format;
    Walk walk;
};

// The scan is for raw, unknown and broken files only: in others a header found by chance would be
// wrong.
constexpr std::array kFormatWalks{
    FormatWalk{FileFormatJpeg, Walk::JpegMarkers}, FormatWalk{FileFormatHeif, Walk::HeifBoxes},
    FormatWalk{FileFormatAvif, Walk::HeifBoxes},   FormatWalk{FileFormatPng, Walk::PngChunks},
    FormatWalk{FileFormatWebp, Walk::WebpChunks},  FormatWalk{FileFormatTiff, Walk::FileStart},
    FormatWalk{FileFormatRaw, Walk::Scan},         FormatWalk{FileFormatNone, Walk::Scan},
};

Walk walkFor(const ByteRange &file, FileFormatType format, std::string_view extension) {
    if (format == FileFormatRaw && isBoxFile(file))
        return Walk::Cr3Boxes;
    // It has no TIFF header to be searched for, but a file of that name may be one.
    if (isBoxedRaw(format, extension))
        return Walk::FileStart;
    const auto found = std::ranges::find(kFormatWalks, format, &FormatWalk::format);
    return found == kFormatWalks.end() ? Walk::None : found->walk;
}

void readJpeg(const ByteRange &file, DatesData &dates) {
    const JpgOffsets offsets = readJpgHeader(file);
    dates.jpgXmpOffset = offsets.xmp;
    readExifAt(file, offsets.tiff, dates);
}

void readScanned(FileWindow &window, DatesData &dates) {
    const HeaderScan scan = scanForHeader(window);
    if (scan.hasReachedLimit)
        dates.findings.push_back({"TIFFHeader", kMostScannedBytes, FindingReason::ScanLimit});
    readExifAt(ByteRange(window), scan.header, dates);
}

void readCr3(const ByteRange &file, DatesData &dates) {
    const Cr3Blocks blocks = findCr3Blocks(file);
    dates.isHeaderIntel = blocks.isHeaderIntel;
    if (blocks.xmp)
        dates.cr3XmpOffset = blocks.xmp->offset;
    readCr3Exif(file, blocks, dates);
}

/// Reads the Exif block of a walk, and nothing outside of it; answers false when there may be one
/// elsewhere.
bool readBlocks(const ByteRange &file, const MetadataBlocks &blocks, DatesData &dates) {
    dates.findings.insert(dates.findings.end(), blocks.findings.begin(), blocks.findings.end());
    if (!blocks.exif)
        return !blocks.isBroken;
    const ByteRange block = file.part(blocks.exif->offset, blocks.exif->length);
    const auto header = headerAt(block, 0);
    if (!header)
        dates.findings.push_back({"Exif", blocks.exif->offset, FindingReason::BrokenStructure});
    readExifAt(block, header, dates);
    return header.has_value();
}

void readByWalk(FileWindow &window, Walk walk, DatesData &dates) {
    const ByteRange file(window);
    switch (walk) {
    case Walk::None:
        return;
    case Walk::JpegMarkers:
        return readJpeg(file, dates);
    case Walk::FileStart:
        return readExifAt(file, headerAtFileStart(file), dates);
    case Walk::Scan:
        return readScanned(window, dates);
    case Walk::Cr3Boxes:
        return readCr3(file, dates);
    case Walk::HeifBoxes:
        if (!readBlocks(file, findHeifBlocks(file), dates))
            readScanned(window, dates);
        return;
    case Walk::PngChunks:
    case Walk::WebpChunks: {
        const MetadataBlocks blocks =
            walk == Walk::PngChunks ? findPngBlocks(file) : findWebpBlocks(file);
        if (blocks.xmp)
            dates.xmpHeaderStartOffset = blocks.xmp->offset;
        if (!readBlocks(file, blocks, dates) && walk == Walk::PngChunks)
            readScanned(window, dates);
        return;
    }
    }
}

} // namespace

void readExifAt(const ByteRange &range, const std::optional<TiffHeader> &header, DatesData &dates) {
    if (header)
        readExif(range, *header, dates);
}

void readDatesByFormat(FileWindow &window, FileFormatType format, std::string_view extension,
                       DatesData &dates) {
    readByWalk(window, walkFor(ByteRange(window), format, extension), dates);
}

} // namespace chronomender
