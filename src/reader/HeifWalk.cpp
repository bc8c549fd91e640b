// SPDX-License-Identifier: GPL-3.0-or-later
#include "HeifWalk.h"

#include "BoxCursor.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>

namespace chronomender {

namespace {

constexpr unsigned kMostTopLevelBoxes = 51; // `ftyp` and what is in front of `meta`
constexpr unsigned kMostItems = 65536;
/// Item name, content type and encoding are looked at as far as this.
constexpr std::uint64_t kLongestItemTexts = 256;

/// One of the two items that are looked for.
struct WantedItem {
    std::optional<std::uint32_t> number;
    std::optional<ByteRange> place;
};
enum : std::size_t { Exif, Xmp, kItems };
using Wanted = std::array<WantedItem, kItems>;

struct MetaBoxes {
    std::optional<Box> itemList, itemLocations, itemData;
};

std::optional<Box> findMeta(const ByteRange &file) {
    BoxCursor boxes(file, BoxLevel::TopLevel, kMostTopLevelBoxes);
    auto box = boxes.next();
    if (!box || box->type != boxType("ftyp"))
        return std::nullopt;
    while ((box = boxes.next()) && box->type != boxType("mdat")) {
        if (box->type == boxType("meta"))
            return box->isComplete ? box : std::nullopt;
    }
    return std::nullopt;
}

MetaBoxes findMetaBoxes(const Box &meta) {
    MetaBoxes found;
    BoxCursor children(metaChildren(meta), BoxLevel::Inside);
    while (const auto child = children.next()) {
        if (!child->isComplete)
            break;
        for (auto &[type, slot] : {std::pair{boxType("iinf"), &found.itemList},
                                   std::pair{boxType("iloc"), &found.itemLocations},
                                   std::pair{boxType("idat"), &found.itemData}}) {
            if (child->type == type && !*slot)
                *slot = child;
        }
    }
    return found;
}

/// Whether a `mime` item says in its texts, from `at` on, that it is a plain XMP packet. A packet
/// that is compressed cannot be read in place.
bool isPlainXmp(const ByteRange &entry, std::uint64_t at, MetadataBlocks &blocks) {
    const auto length = std::min(entry.left(at), kLongestItemTexts);
    const auto texts = entry.header(at, static_cast<std::size_t>(length));
    const std::size_t type = texts ? texts->find('\0') : std::string_view::npos;
    if (type == std::string_view::npos || !texts->substr(type + 1).starts_with(kXmpContentType))
        return false;
    const std::string_view behind = texts->substr(type + 1 + kXmpContentType.size());
    if (behind.size() < 2 || behind[1] == '\0')
        return behind.empty() || behind[0] == '\0';
    if (behind[0] == '\0')
        blocks.findings.push_back({"XMP", entry.absolute(at), FindingReason::Compressed});
    return false;
}

void readItem(const Box &box, Wanted &wanted, MetadataBlocks &blocks) {
    const auto version = box.body.number(0, 1);
    if (box.type != boxType("infe") || !version ||
        (*version != kItemVersionShort && *version != kItemVersionLong))
        return;
    const std::size_t width = *version == kItemVersionLong ? 4 : 2;
    const std::uint64_t typeAt = kItemNumberAt + width + kItemProtectionLength;
    const auto number = box.body.number(kItemNumberAt, width);
    const auto type = box.body.number(typeAt, kItemTypeLength);
    if (!number || !type)
        return;
    const bool isExif = *type == boxType("Exif");
    const bool isXmp = *type == boxType("mime") && !wanted[Xmp].number &&
                       isPlainXmp(box.body, typeAt + kItemTypeLength, blocks);
    if (isExif && !wanted[Exif].number)
        wanted[Exif].number = static_cast<std::uint32_t>(*number);
    if (isXmp)
        wanted[Xmp].number = static_cast<std::uint32_t>(*number);
}

bool isListed(const WantedItem &item) {
    return item.number.has_value();
}

/// The numbers of the wanted items; false when the list is cut off or too long to be read.
bool readItemList(const Box &list, const ReadBudget &budget, Wanted &wanted,
                  MetadataBlocks &blocks) {
    const auto version = list.body.number(0, 1);
    const std::size_t width = version && *version > 0 ? 4 : 2;
    const auto count = list.body.number(kItemCountAt, width);
    if (!count)
        return false;
    const std::uint64_t begin = kItemCountAt + width;
    const auto most = static_cast<unsigned>(std::min<std::uint64_t>(*count, kMostItems));
    BoxCursor entries(list.body.part(begin, list.body.length()), BoxLevel::Inside, most);
    for (unsigned i = 0; i < most && !std::ranges::all_of(wanted, isListed); ++i) {
        if (budget.isSpent()) {
            blocks.findings.push_back({"iinf", list.whole.absolute(0), FindingReason::ScanLimit});
            return false;
        }
        const auto entry = entries.next();
        if (!entry || !entry->isComplete)
            return false;
        readItem(*entry, wanted, blocks);
    }
    return true;
}

/// Reads the numbers of a location record one after the other. A number that is not there makes
/// all that follow absent.
class RecordReader {
public:
    RecordReader(const ByteRange &table, std::uint64_t at) : m_table(table), m_at(at) {}

    std::uint64_t next(std::uint64_t width) {
        if (width == 0)
            return 0;
        const auto number = m_table.number(m_at, static_cast<std::size_t>(width));
        m_isIntact = m_isIntact && number;
        m_at += width;
        return number.value_or(0);
    }
    void skip(std::uint64_t count, std::uint64_t width) { m_at += count * width; }
    bool isIntact() const { return m_isIntact; }

private:
    ByteRange m_table;
    std::uint64_t m_at;
    bool m_isIntact = true;
};

/// The widths in bytes of the numbers in the records.
struct RecordForm {
    unsigned version = 0;
    std::uint64_t offset = 0, length = 0, base = 0, index = 0;

    bool isUsable() const {
        return version <= kLocationVersionMost &&
               std::ranges::all_of(
                   std::array{offset, length, base, index},
                   [](std::uint64_t width) { return width == 0 || width == 4 || width == 8; });
    }
};

RecordForm recordForm(const ByteRange &table) {
    RecordForm form;
    form.version = static_cast<unsigned>(table.number(0, 1).value_or(kLocationVersionMost + 1));
    const std::uint64_t widths = table.number(kLocationWidthsAt, 2).value_or(0);
    form.offset = widths >> 12 & 0xF;
    form.length = widths >> 8 & 0xF;
    form.base = widths >> 4 & 0xF;
    form.index = form.version >= kLocationVersionMethods ? widths & 0xF : 0;
    return form;
}

struct ItemLocation {
    std::uint64_t number = 0;
    std::uint64_t method = 0;
    std::uint64_t extents = 0;
    std::uint64_t base = 0, offset = 0, length = 0; ///< of the first extent
};

ItemLocation nextLocation(RecordReader &reader, const RecordForm &form) {
    constexpr std::uint64_t kMethodMask = 0xF, kReferenceWidth = 2;
    ItemLocation location;
    location.number = reader.next(form.version >= kLocationVersionLong ? 4 : 2);
    if (form.version >= kLocationVersionMethods)
        location.method = reader.next(2) & kMethodMask;
    reader.skip(1, kReferenceWidth);
    location.base = reader.next(form.base);
    location.extents = reader.next(2);
    if (location.extents == 0)
        return location;
    reader.skip(1, form.index);
    location.offset = reader.next(form.offset);
    location.length = reader.next(form.length);
    reader.skip(location.extents - 1, form.index + form.offset + form.length);
    return location;
}

/// The first extent of an item, which is all that is looked at. A length of 0 means up to the end.
std::optional<ByteRange> firstExtent(const ItemLocation &location, const ByteRange &file,
                                     const std::optional<Box> &itemData) {
    const bool isInside = location.method == static_cast<std::uint64_t>(LocationMethod::ItemData);
    if (location.extents == 0 || (isInside && !itemData) ||
        location.method > static_cast<std::uint64_t>(LocationMethod::ItemData))
        return std::nullopt;
    const ByteRange &source = isInside ? itemData->body : file;
    if (location.offset > std::numeric_limits<std::uint64_t>::max() - location.base)
        return std::nullopt;
    const ByteRange extent = source.part(location.base + location.offset,
                                         location.length > 0 ? location.length : source.length());
    return extent.length() > 0 ? std::optional(extent) : std::nullopt;
}

bool isPlacedOrUnlisted(const WantedItem &item) {
    return !item.number || item.place;
}

/// The places of the wanted items; false when one of them is not to be had.
bool readLocations(const ByteRange &file, const MetaBoxes &boxes, const ReadBudget &budget,
                   Wanted &wanted, MetadataBlocks &blocks) {
    const ByteRange &table = boxes.itemLocations->body;
    const RecordForm form = recordForm(table);
    const std::size_t countWidth = form.version >= kLocationVersionLong ? 4 : 2;
    const std::uint64_t count = table.number(kLocationCountAt, countWidth).value_or(0);
    if (!form.isUsable())
        return false;
    RecordReader reader(table, kLocationCountAt + countWidth);
    for (std::uint64_t i = 0; i < count && !std::ranges::all_of(wanted, isPlacedOrUnlisted); ++i) {
        if (budget.isSpent())
            blocks.findings.push_back({"iloc", table.absolute(0), FindingReason::ScanLimit});
        const ItemLocation location = nextLocation(reader, form);
        if (budget.isSpent() || !reader.isIntact())
            return false;
        for (WantedItem &item : wanted) {
            if (item.number == location.number && !item.place)
                item.place = firstExtent(location, file, boxes.itemData);
        }
    }
    return std::ranges::all_of(wanted, isPlacedOrUnlisted);
}

/// The Exif item from its TIFF header on.
std::optional<ByteBlock> exifBlock(const ByteRange &item) {
    const auto distance = item.number(0, kExifItemDistanceLength);
    const std::uint64_t header = kExifItemDistanceLength + distance.value_or(0);
    if (!distance || item.left(header) == 0)
        return std::nullopt;
    return ByteBlock{item.absolute(header), item.left(header)};
}

} // namespace

MetadataBlocks findHeifBlocks(const ByteRange &file) {
    MetadataBlocks blocks;
    Wanted wanted;
    const ReadBudget budget = file.budget();
    const auto meta = findMeta(file);
    const MetaBoxes boxes = meta ? findMetaBoxes(*meta) : MetaBoxes();
    blocks.isBroken = !boxes.itemList || !boxes.itemLocations ||
                      !readItemList(*boxes.itemList, budget, wanted, blocks);
    if (!boxes.itemLocations)
        return blocks;
    blocks.isBroken = !readLocations(file, boxes, budget, wanted, blocks) || blocks.isBroken;
    if (wanted[Exif].place)
        blocks.exif = exifBlock(*wanted[Exif].place);
    if (const auto &place = wanted[Xmp].place)
        blocks.xmp = ByteBlock{place->absolute(0), place->length()};
    if (wanted[Exif].number && !blocks.exif)
        blocks.findings.push_back(
            {"Exif", meta->whole.absolute(0), FindingReason::BrokenStructure});
    return blocks;
}

} // namespace chronomender
