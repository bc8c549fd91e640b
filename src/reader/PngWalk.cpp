// SPDX-License-Identifier: GPL-3.0-or-later
#include "PngWalk.h"

#include "PngFormat.h"

#include <algorithm>
#include <array>

namespace chronomender {

namespace {

/// The language tag and the translated keyword together; XMP has neither.
constexpr std::uint64_t kLongestTextFields = 256;

struct Chunk {
    std::uint64_t at = 0;
    std::uint32_t length = 0;
    std::array<char, 4> type{};

    std::string_view typeName() const { return {type.data(), type.size()}; }
    std::uint64_t next() const { return at + kPngChunkOverhead + length; }
    bool isLike(const Chunk &other) const { return length == other.length && type == other.type; }
};

/// The chunk at `at`; none where the file has no room for one.
std::optional<Chunk> chunkAt(const ByteRange &file, std::uint64_t at) {
    if (file.left(at) < kPngChunkOverhead)
        return std::nullopt;
    const auto header = file.header(at, kPngChunkHeader);
    if (!header)
        return std::nullopt;
    Chunk chunk{at, number32(*header, ByteOrder::Motorola), {}};
    header->copy(chunk.type.data(), chunk.type.size(), 4);
    return chunk;
}

/// Encoders cut the picture into image chunks of one length. From the second such chunk on, the
/// last one of the run is found by steps that double as long as they meet a chunk like it, and then
/// halve: a few reads instead of thousands.
Chunk lastOfRun(const ByteRange &file, Chunk chunk) {
    const std::uint64_t stride = kPngChunkOverhead + chunk.length;
    const auto isInRun = [&](std::uint64_t steps) {
        const auto there = steps <= file.left(chunk.at) / stride
                               ? chunkAt(file, chunk.at + steps * stride)
                               : std::nullopt;
        return there && there->isLike(chunk);
    };
    std::uint64_t in = 0, step = 1;
    while (isInRun(in + step)) {
        in += step;
        step *= 2;
    }
    while (step /= 2) {
        if (isInRun(in + step))
            in += step;
    }
    chunk.at += in * stride;
    return chunk;
}

/// The packet of an `iTXt` chunk with the keyword of XMP, when it is in plain text.
void readText(const ByteRange &data, MetadataBlocks &blocks) {
    if (blocks.xmp || data.header(0, kPngXmpKeyword.size()) != kPngXmpKeyword)
        return;
    const std::uint64_t compressionAt = kPngXmpKeyword.size();
    const auto compression = data.number(compressionAt, kPngCompressionLength);
    if (compression.value_or(0) >> 8 != 0) {
        blocks.findings.push_back({"XMP", data.absolute(0), FindingReason::Compressed});
        return;
    }
    const std::uint64_t fieldsAt = compressionAt + kPngCompressionLength;
    const auto length = std::min(data.left(fieldsAt), kLongestTextFields);
    const auto fields = data.header(fieldsAt, static_cast<std::size_t>(length));
    const std::size_t language = fields ? fields->find('\0') : std::string_view::npos;
    const std::size_t keyword =
        language == std::string_view::npos ? language : fields->find('\0', language + 1);
    if (keyword == std::string_view::npos) {
        blocks.findings.push_back({"XMP", data.absolute(0), FindingReason::BrokenStructure});
        return;
    }
    const std::uint64_t textAt = fieldsAt + keyword + 1;
    blocks.xmp = ByteBlock{data.absolute(textAt), data.left(textAt)};
}

void readChunk(const ByteRange &file, const Chunk &chunk, MetadataBlocks &blocks) {
    const ByteRange data = file.part(chunk.at + kPngChunkHeader, chunk.length);
    if (chunk.typeName() == kPngExifChunk && !blocks.exif)
        blocks.exif = ByteBlock{data.absolute(0), data.length()};
    else if (chunk.typeName() == kPngTextChunk)
        readText(data, blocks);
}

/// Walks until both blocks are found; false when the chunks end without their end chunk.
bool walkChunks(const ByteRange &file, MetadataBlocks &blocks) {
    const ReadBudget budget = file.budget();
    std::optional<Chunk> last;
    std::uint64_t at = kPngFirstChunk;
    while (!blocks.exif || !blocks.xmp) {
        auto chunk = chunkAt(file, at);
        if (!chunk)
            return false;
        if (chunk->typeName() == kPngEndChunk)
            return true;
        if (budget.isSpent()) {
            blocks.findings.push_back({"PNG", at, FindingReason::ScanLimit});
            return true;
        }
        readChunk(file, *chunk, blocks);
        if (chunk->next() > file.length())
            return false;
        if (chunk->typeName() == kPngImageChunk && last && chunk->isLike(*last))
            chunk = lastOfRun(file, *chunk);
        at = chunk->next();
        last = chunk;
    }
    return true;
}

} // namespace

MetadataBlocks findPngBlocks(const ByteRange &file) {
    MetadataBlocks blocks;
    const bool isPng =
        file.length() >= kPngShortestFile && file.header(0, kPngSignature.size()) == kPngSignature;
    blocks.isBroken = !isPng || !walkChunks(file, blocks);
    if (blocks.isBroken)
        blocks.findings.push_back({"PNG", 0, FindingReason::BrokenStructure});
    return blocks;
}

} // namespace chronomender
