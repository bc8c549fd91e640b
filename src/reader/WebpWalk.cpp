// SPDX-License-Identifier: GPL-3.0-or-later
#include "WebpWalk.h"

#include "WebpFormat.h"

namespace chronomender {

namespace {

bool isWebp(const ByteRange &file) {
    return file.length() >= kWebpShortestFile &&
           file.header(0, kRiffSignature.size()) == kRiffSignature &&
           file.header(kRiffFormAt, kWebpForm.size()) == kWebpForm;
}

void readChunk(std::string_view type, const ByteRange &data, MetadataBlocks &blocks) {
    const bool isXmp = type == kWebpXmpChunk || type == kWebpXmpChunkWithZero;
    auto *slot = type == kWebpExifChunk ? &blocks.exif : isXmp ? &blocks.xmp : nullptr;
    if (slot && !*slot && data.length() > 0)
        *slot = ByteBlock{data.absolute(0), data.length()};
}

/// Walks until both blocks are found or the file ends; false when a chunk is cut off.
bool walkChunks(const ByteRange &file, MetadataBlocks &blocks) {
    const ReadBudget budget = file.budget();
    std::uint64_t at = kWebpFirstChunk;
    while (!blocks.exif || !blocks.xmp) {
        const auto header = file.header(at, kWebpChunkHeader);
        if (!header)
            return true;
        // Some writers count the byte that fills up an odd length, some do not, and some leave it
        // out. No type begins with a zero byte, so a chunk is taken where its letters stand.
        if (header->front() == '\0') {
            const auto late = file.header(at + 1, kWebpChunkHeader);
            if (!late || late->front() == '\0')
                return !late;
            ++at;
            continue;
        }
        if (budget.isSpent()) {
            blocks.findings.push_back({"WebP", at, FindingReason::ScanLimit});
            return true;
        }
        const std::string type(header->substr(0, 4));
        const std::uint32_t length = number32(header->substr(4), ByteOrder::Intel);
        const ByteRange data = file.part(at + kWebpChunkHeader, length);
        readChunk(type, data, blocks);
        if (data.length() < length)
            return false;
        at += kWebpChunkHeader + length;
    }
    return true;
}

} // namespace

MetadataBlocks findWebpBlocks(const ByteRange &file) {
    MetadataBlocks blocks;
    blocks.isBroken = !isWebp(file) || !walkChunks(file, blocks);
    if (blocks.isBroken)
        blocks.findings.push_back({"WebP", 0, FindingReason::BrokenStructure});
    return blocks;
}

} // namespace chronomender
