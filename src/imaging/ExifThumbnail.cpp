// SPDX-License-Identifier: GPL-3.0-or-later
#include "ExifThumbnail.h"

#include "JpegFormat.h"
#include "JpegWalk.h"
#include "TiffBlock.h"

#include <array>

namespace chronomender {

namespace {

// CIPA DC-008, 4.6.4: the second directory describes the thumbnail.
constexpr std::uint16_t kTagOrientation = 274;
constexpr std::uint16_t kTagThumbnailAt = 513, kTagThumbnailLength = 514;
constexpr std::uint64_t kMostThumbnailBytes = 1 << 20;

int orientationOf(const TiffBlock &block, std::uint32_t directory) {
    std::array<std::optional<TiffEntry>, 1> found;
    block.findEntries(directory, std::array{kTagOrientation}, found);
    const auto bytes = found[0] ? block.range().bytes(found[0]->inlineAt, 2) : std::nullopt;
    const int orientation = bytes ? number16(*bytes, block.order()) : 1;
    return orientation >= 1 && orientation <= 8 ? orientation : 1;
}

std::uint32_t directoryBehind(const TiffBlock &block, std::uint32_t directory) {
    const auto count = block.range().bytes(directory, kTiffCountLength);
    if (!count)
        return 0;
    const auto next = block.range().bytes(std::uint64_t{directory} + kTiffCountLength +
                                              number16(*count, block.order()) * kTiffEntryLength,
                                          4);
    return next ? number32(*next, block.order()) : 0;
}

std::optional<ByteBlock> thumbnailOf(const TiffBlock &block, std::uint32_t directory) {
    std::array<std::optional<TiffEntry>, 2> found;
    block.findEntries(directory, std::array{kTagThumbnailAt, kTagThumbnailLength}, found);
    if (!found[0] || !found[1])
        return std::nullopt;
    const std::uint64_t offset = found[0]->value, length = found[1]->value;
    const auto start = block.range().bytes(offset, kJpegSignature.size());
    if (start != kJpegSignature || length > kMostThumbnailBytes ||
        length > block.range().left(offset))
        return std::nullopt;
    return ByteBlock{block.range().absolute(offset), length};
}

} // namespace

ExifPictureFacts readExifPictureFacts(const ByteRange &jpeg) {
    const auto header = readJpgHeader(jpeg).tiff;
    const auto block = header ? TiffBlock::at(jpeg, *header) : std::nullopt;
    if (!block)
        return {};
    const std::uint32_t first = block->firstDirectory();
    return {orientationOf(*block, first), thumbnailOf(*block, directoryBehind(*block, first))};
}

} // namespace chronomender
