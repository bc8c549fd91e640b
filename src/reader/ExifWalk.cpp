// SPDX-License-Identifier: GPL-3.0-or-later
#include "ExifWalk.h"

#include "AppleNote.h"
#include "ExifFormat.h"
#include "ExifValues.h"
#include "GpsWalk.h"
#include "HeaderSearch.h"

#include <algorithm>
#include <array>

namespace chronomender {

namespace {

// The tags that are looked for in one go; those in front of kSharedTags may stand in either
// directory.
enum Wanted : std::size_t {
    Original,
    Digitized,
    ZoneOriginal,
    ZoneDigitized,
    ZoneModified,
    kSharedTags,
    Modified = kSharedTags,
    ExifPointer,
    GpsPointer,
    EmbeddedJpeg,
    Make,
    Model,
    kAllTags
};

// In the order of Wanted.
constexpr std::array<std::uint16_t, kAllTags> kTags{
    kTagDateTimeOriginal,
    kTagDateTimeDigitized,
    kTagOffsetTimeOriginal,
    kTagOffsetTimeDigitized,
    kTagOffsetTime,
    kTagDateTime,
    kTagExifDirectory,
    kTagGpsDirectory,
    kTagEmbeddedJpeg,
    kTagMake,
    kTagModel,
};

using Entries = std::array<std::optional<TiffEntry>, kAllTags>;

struct StampSlot {
    Wanted tag;
    const char *name;
    std::optional<LocatedBytes> DatesData::*slot;
};

constexpr std::array kStampSlots{
    StampSlot{Original, "ExifDateTimeOriginal", &DatesData::exifDateTimeOriginal},
    StampSlot{Digitized, "ExifDateTimeDigitized", &DatesData::exifDateTimeDigitized},
    StampSlot{Modified, "TIFFDateTime", &DatesData::tiffDateTime},
};

constexpr std::array kZoneSlots{
    StampSlot{ZoneOriginal, "ExifOffsetTimeOriginal", &DatesData::exifOffsetTimeOriginal},
    StampSlot{ZoneDigitized, "ExifOffsetTimeDigitized", &DatesData::exifOffsetTimeDigitized},
    StampSlot{ZoneModified, "TIFFOffsetTime", &DatesData::exifOffsetTiffTime},
};

/// A Panasonic raw file keeps a JPEG with an Exif block of its own; that block's first directory
/// gives the modification stamp when the outer one has none.
void readEmbeddedStamp(const TiffBlock &outer, const TiffEntry &jpeg, DatesData &dates) {
    constexpr std::uint64_t kHeaderInJpeg = 12; // SOI, APP1 marker, length, "Exif" and two zeros
    const auto inner = outer.range().from(jpeg.value + kHeaderInJpeg);
    const auto header = inner ? headerAt(*inner, 0) : std::nullopt;
    if (!header || header->offset != 0 || header->order != outer.order())
        return;
    const auto block = TiffBlock::at(*inner, *header);
    if (!block)
        return;
    Entries entries;
    block->findEntries(block->firstDirectory(), std::span(kTags), std::span(entries));
    if (entries[Modified])
        readStamp(*block, *entries[Modified], "TIFFDateTime", dates.tiffDateTime, dates.findings);
}

/// Follows the pointer to a further directory, unless it leads back to one that was read before.
bool isNewDirectory(const TiffBlock &block, const std::optional<TiffEntry> &pointer,
                    std::span<const std::uint32_t> visited, const char *name, DatesData &dates) {
    if (!pointer || pointer->value < kTiffHeaderLength)
        return false;
    if (std::ranges::find(visited, pointer->value) == visited.end())
        return true;
    dates.findings.push_back(
        {name, block.range().absolute(pointer->inlineAt), FindingReason::DirectoryLoop});
    return false;
}

/// The Exif directory wins over what the first directory has for the shared tags.
void takeExifEntries(const TiffBlock &block, std::uint32_t directory, Entries &entries) {
    std::array<std::optional<TiffEntry>, kSharedTags> inner;
    block.findEntries(directory, std::span(kTags).first<kSharedTags>(), std::span(inner));
    for (std::size_t i = 0; i < kSharedTags; ++i) {
        if (inner[i])
            entries[i] = inner[i];
    }
}

void readValues(const TiffBlock &block, const Entries &entries, DatesData &dates) {
    for (const StampSlot &slot : kStampSlots) {
        if (entries[slot.tag])
            readStamp(block, *entries[slot.tag], slot.name, dates.*slot.slot, dates.findings);
    }
    for (const StampSlot &slot : kZoneSlots) {
        if (entries[slot.tag])
            readZoneStamp(block, *entries[slot.tag], slot.name, dates.*slot.slot, dates.findings);
    }
    if (entries[Make])
        dates.make = readText(block, *entries[Make], kLongestCameraText);
    if (entries[Model])
        dates.model = readText(block, *entries[Model], kLongestCameraText);
}

/// A block of a CR3 file and what its first directory has of the wanted tags.
struct Cr3Directory {
    std::optional<TiffBlock> block;
    Entries entries;
};

std::optional<TiffBlock> tiffBlock(const ByteRange &file, const std::optional<ByteBlock> &place) {
    if (!place)
        return std::nullopt;
    const ByteRange range = file.part(place->offset, place->length);
    const auto header = headerAt(range, 0);
    return header ? TiffBlock::at(range, *header) : std::nullopt;
}

Cr3Directory cr3Directory(const ByteRange &file, const std::optional<ByteBlock> &place) {
    Cr3Directory directory{tiffBlock(file, place), {}};
    if (const auto &block = directory.block)
        block->findEntries(block->firstDirectory(), std::span(kTags), std::span(directory.entries));
    return directory;
}

} // namespace

void readExif(const ByteRange &range, const TiffHeader &header, DatesData &dates) {
    dates.tiffHeaderStartOffset = range.absolute(header.offset);
    dates.isHeaderIntel = header.order == ByteOrder::Intel;
    const auto block = TiffBlock::at(range, header);
    if (!block)
        return;
    Entries entries;
    std::array<std::uint32_t, 2> visited{block->firstDirectory(), block->firstDirectory()};
    if (!block->findEntries(visited[0], std::span(kTags), std::span(entries)))
        return;
    if (isNewDirectory(*block, entries[ExifPointer], visited, "ExifDirectory", dates)) {
        visited[1] = entries[ExifPointer]->value;
        takeExifEntries(*block, visited[1], entries);
    }
    readValues(*block, entries, dates);
    if (dates.make == kAppleMake && visited[1] != visited[0])
        dates.livePhoto = readLivePhotoMarks(*block, visited[1]);
    if (isNewDirectory(*block, entries[GpsPointer], visited, "GPSDirectory", dates))
        readGps(*block, entries[GpsPointer]->value, dates);
    if (!entries[Modified] && entries[EmbeddedJpeg])
        readEmbeddedStamp(*block, *entries[EmbeddedJpeg], dates);
}

void readCr3Exif(const ByteRange &file, const Cr3Blocks &blocks, DatesData &dates) {
    Cr3Directory first = cr3Directory(file, blocks.cmt1);
    const Cr3Directory exif = cr3Directory(file, blocks.cmt2);
    for (std::size_t tag = 0; tag < kAllTags; ++tag) {
        if (exif.entries[tag]) // the block that is read last wins
            first.entries[tag].reset();
    }
    if (first.block)
        readValues(*first.block, first.entries, dates);
    if (exif.block)
        readValues(*exif.block, exif.entries, dates);
    if (const auto gps = tiffBlock(file, blocks.cmt4))
        readGps(*gps, gps->firstDirectory(), dates);
}

} // namespace chronomender
