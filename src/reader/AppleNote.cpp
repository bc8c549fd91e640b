// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppleNote.h"

#include "ExifFormat.h"
#include "ExifValues.h"

#include <array>
#include <charconv>

namespace chronomender {

namespace {

constexpr std::size_t kLongestNumber = 9;

std::string contentIdentifier(const TiffBlock &block, const TiffEntry &note) {
    const ByteRange range = block.range().part(note.value, note.declared);
    if (range.bytes(0, kAppleNoteHeader.size()) != kAppleNoteHeader)
        return {};
    const auto directory = TiffBlock::at(range, {0, ByteOrder::Motorola});
    constexpr std::array kTags{kAppleTagContentIdentifier};
    std::array<std::optional<TiffEntry>, kTags.size()> found;
    if (!directory ||
        !directory->findEntries(kAppleNoteDirectoryAt, std::span(kTags), std::span(found)) ||
        !found[0])
        return {};
    return readText(*directory, *found[0], kLongestContentIdentifier);
}

/// The number that a text of digits begins with, as "087" of a fraction of a second gives 87.
std::optional<int> numberOf(const std::string &text) {
    int number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return result.ec == std::errc() && number >= 0 ? std::optional(number) : std::nullopt;
}

std::optional<int> shortOf(const TiffBlock &block, const TiffEntry &entry) {
    const auto bytes = block.range().bytes(entry.inlineAt, 2);
    return bytes ? std::optional<int>(number16(*bytes, block.order())) : std::nullopt;
}

} // namespace

LivePhotoMarks readLivePhotoMarks(const TiffBlock &block, std::uint32_t exifDirectory) {
    enum : std::size_t { MakerNote, SubSecond, CustomRendered };
    constexpr std::array kTags{kTagMakerNote, kTagSubSecTimeOriginal, kTagCustomRendered};
    std::array<std::optional<TiffEntry>, kTags.size()> found;
    block.findEntries(exifDirectory, std::span(kTags), std::span(found));
    LivePhotoMarks marks;
    if (found[MakerNote])
        marks.contentIdentifier = contentIdentifier(block, *found[MakerNote]);
    if (found[SubSecond])
        marks.subsecTimeOriginal = numberOf(readText(block, *found[SubSecond], kLongestNumber));
    if (found[CustomRendered])
        marks.customRendered = shortOf(block, *found[CustomRendered]);
    return marks;
}

} // namespace chronomender
