// SPDX-License-Identifier: GPL-3.0-or-later
#include "HeaderSearch.h"

namespace chronomender {

namespace {

constexpr std::string_view kExifIdentifier{"Exif\0\0", 6};

/// The first TIFF magic in a block. The version number 42 is the rarest of its bytes, so it leads.
std::optional<TiffHeader> firstMagicIn(std::string_view block) {
    for (std::size_t at = block.find('*'); at != std::string_view::npos;
         at = block.find('*', at + 1)) {
        for (const std::size_t before : {std::size_t{2}, std::size_t{3}}) {
            if (at < before)
                continue;
            if (const auto order = byteOrderOfTiffMagic(block.substr(at - before)))
                return TiffHeader{at - before, *order};
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<TiffHeader> headerAt(const ByteRange &file, std::uint64_t offset) {
    const auto identifier = file.bytes(offset, kExifIdentifier.size());
    if (identifier && *identifier == kExifIdentifier)
        offset += kExifIdentifier.size();
    const auto magic = file.bytes(offset, kTiffMagicLength);
    const auto order = magic ? byteOrderOfTiffMagic(*magic) : std::nullopt;
    return order ? std::optional(TiffHeader{offset, *order}) : std::nullopt;
}

std::optional<TiffHeader> headerAtFileStart(const ByteRange &file) {
    const auto letters = file.bytes(0, kTiffOrderIntel.size());
    if (letters && *letters == kTiffOrderIntel)
        return TiffHeader{0, ByteOrder::Intel};
    if (letters && *letters == kTiffOrderMotorola)
        return TiffHeader{0, ByteOrder::Motorola};
    return std::nullopt;
}

HeaderScan scanForHeader(FileWindow &window, std::uint64_t mostBytes) {
    if (const auto header = headerAtFileStart(ByteRange(window)))
        return {header, false};
    std::uint64_t scanned = 0;
    std::uint64_t at = window.nextData(0);
    while (scanned < mostBytes) {
        const std::string_view block = window.block(at);
        if (const auto header = firstMagicIn(block))
            return {TiffHeader{at + header->offset, header->order}, false};
        if (block.size() < FileWindow::kScanBlock)
            return {};
        // A magic may lie across two blocks.
        const std::uint64_t step = block.size() - (kTiffMagicLength - 1);
        scanned += step;
        at = window.nextData(at + step);
    }
    return {std::nullopt, true};
}

} // namespace chronomender
