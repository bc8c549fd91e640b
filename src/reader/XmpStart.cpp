// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpScan.h"

#include "BoxCursor.h"
#include "Cr3Walk.h"
#include "HeifWalk.h"
#include "JpegWalk.h"
#include "PngWalk.h"
#include "WebpWalk.h"

namespace chronomender {

namespace {

constexpr std::uint16_t kTiffTagXmp = 700;

/// The packet that tag 700 of the first directory tells. Its value counts as an offset in the file,
/// as in every file that begins with its header, and only where a packet begins there; else it is
/// taken from the header.
std::optional<ByteBlock> findTiffPacket(const ByteRange &file, const DatesData &known) {
    if (!known.tiffHeaderStartOffset)
        return std::nullopt;
    const TiffHeader header{*known.tiffHeaderStartOffset,
                            known.isHeaderIntel ? ByteOrder::Intel : ByteOrder::Motorola};
    const auto block = TiffBlock::at(file, header);
    std::array<std::optional<TiffEntry>, 1> entry;
    if (!block || !block->findEntries(block->firstDirectory(), std::array{kTiffTagXmp}, entry) ||
        !entry[0])
        return std::nullopt;
    // A count of nothing is not believed: a packet tells its own end.
    const std::uint64_t length =
        entry[0]->declared > kTiffInlineRoom ? entry[0]->declared : file.length();
    for (const std::uint64_t offset :
         {std::uint64_t{entry[0]->value}, header.offset + entry[0]->value})
        if (isXmpPacketAt(file, offset))
            return ByteBlock{offset, std::min(length, file.left(offset))};
    return std::nullopt;
}

/// The last packet in front of the Exif segment, which the walk for dates found already, else the
/// first one anywhere in front of the picture.
std::optional<ByteBlock> findJpgPacket(const ByteRange &file, const DatesData &known) {
    return known.jpgXmpOffset ? jpgXmpPacketAt(file, *known.jpgXmpOffset) : firstJpgXmpPacket(file);
}

} // namespace

std::optional<ByteBlock> findXmpPacket(FileWindow &window, FileFormatType format,
                                       const DatesData &known) {
    const ByteRange file(window);
    switch (format) {
    case FileFormatJpeg:
        return findJpgPacket(file, known);
    case FileFormatHeif:
    case FileFormatAvif:
        return findHeifBlocks(file).xmp;
    case FileFormatWebp:
        return findWebpBlocks(file).xmp;
    case FileFormatPng:
        return findPngBlocks(file).xmp;
    case FileFormatCr3Xmp:
        return findCr3Blocks(file).xmp;
    case FileFormatRaw:
        return isBoxFile(file) ? findCr3Blocks(file).xmp : findTiffPacket(file, known);
    case FileFormatTiff:
    case FileFormatNone:
        return findTiffPacket(file, known);
    default:
        return std::nullopt;
    }
}

} // namespace chronomender
