// SPDX-License-Identifier: GPL-3.0-or-later
#include "Cr3Walk.h"

#include "BoxCursor.h"
#include "TiffFormat.h"

namespace chronomender {

namespace {

constexpr unsigned kMostTopLevelBoxes = 51, kMostChildren = 20;

/// What a `uuid` box with this identifier holds; none for any other box.
std::optional<ByteRange> contentOf(const Box &box, std::string_view identifier) {
    if (box.type != boxType("uuid") || box.body.header(0, kUuidLength) != identifier)
        return std::nullopt;
    return box.body.from(kUuidLength);
}

ByteBlock blockOf(const ByteRange &range) {
    return {range.absolute(0), range.length()};
}

void readCanonBox(const ByteRange &content, Cr3Blocks &blocks) {
    BoxCursor children(content, BoxLevel::Inside, kMostChildren);
    while (const auto child = children.next()) {
        for (const auto &[type, slot] :
             {std::pair{boxType("CMT1"), &blocks.cmt1}, std::pair{boxType("CMT2"), &blocks.cmt2},
              std::pair{boxType("CMT4"), &blocks.cmt4}}) {
            if (child->type == type && !*slot)
                *slot = blockOf(child->body);
        }
    }
}

void readMovieBox(const Box &movie, Cr3Blocks &blocks) {
    BoxCursor children(movie.body, BoxLevel::Inside, kMostChildren);
    while (const auto child = children.next()) {
        if (const auto content = contentOf(*child, kCanonUuid)) {
            readCanonBox(*content, blocks);
            return;
        }
    }
}

} // namespace

Cr3Blocks findCr3Blocks(const ByteRange &file) {
    Cr3Blocks blocks;
    BoxCursor boxes(file, BoxLevel::TopLevel, kMostTopLevelBoxes);
    auto box = boxes.next();
    if (!box || box->type != boxType("ftyp"))
        return blocks;
    const auto hasAll = [&] { return blocks.xmp && (blocks.cmt1 || blocks.cmt2); };
    while (!hasAll() && (box = boxes.next()) && box->type != boxType("mdat")) {
        if (box->type == boxType("moov"))
            readMovieBox(*box, blocks);
        else if (const auto packet = contentOf(*box, kXmpUuid); packet && !blocks.xmp)
            blocks.xmp = blockOf(*packet);
    }
    // The order of bytes stands at the beginning of each block; the first one tells it for all.
    if (const auto &first = blocks.cmt1 ? blocks.cmt1 : blocks.cmt2) {
        const auto letters = file.bytes(first->offset, kTiffOrderMotorola.size());
        blocks.isHeaderIntel = letters != kTiffOrderMotorola;
    }
    return blocks;
}

} // namespace chronomender
