// SPDX-License-Identifier: GPL-3.0-or-later
#include "HeifWalk.h"

#include "BoxCursor.h"
#include "HeifLocations.h"

#include <algorithm>
#include <array>

namespace chronomender {

namespace {

constexpr unsigned kMostTopLevelBoxes = 51; // `ftyp` and what is in front of `meta`
constexpr unsigned kMostMetaChildren = 50;
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
    BoxCursor children(metaChildren(meta), BoxLevel::Inside, kMostMetaChildren);
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

bool isPlacedOrUnlisted(const WantedItem &item) {
    return !item.number || item.place;
}

/// The places of the wanted items; false when one of them is not to be had.
bool readLocations(const ByteRange &file, const MetaBoxes &boxes, const ReadBudget &budget,
                   Wanted &wanted, MetadataBlocks &blocks) {
    const ByteRange &table = boxes.itemLocations->body;
    ItemLocations locations(table);
    while (!std::ranges::all_of(wanted, isPlacedOrUnlisted)) {
        if (budget.isSpent()) {
            blocks.findings.push_back({"iloc", table.absolute(0), FindingReason::ScanLimit});
            return false;
        }
        const auto location = locations.next();
        if (!location)
            return false;
        for (WantedItem &item : wanted) {
            if (item.number == location->number && !item.place)
                item.place = firstExtent(*location, file, boxes.itemData);
        }
    }
    return true;
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
