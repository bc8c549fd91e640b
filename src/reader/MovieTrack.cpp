// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieTrack.h"

#include <array>
#include <initializer_list>

namespace chronomender {

namespace {

constexpr std::uint32_t kFirstKey = 1; ///< the key that the samples of a still's moment use

/// Goes down from box to box; none where one is missing.
std::optional<ByteRange> findPath(ByteRange range, std::initializer_list<std::uint32_t> types,
                                  const ReadBudget &budget) {
    for (const std::uint32_t type : types) {
        const auto box = findBox(range, type, budget);
        if (!box)
            return std::nullopt;
        range = box->body;
    }
    return range;
}

std::size_t versionOf(const ByteRange &fullBox) {
    const auto version = fullBox.bytes(0, 1);
    return version && version->front() != 0 ? 1 : 0;
}

std::uint32_t handlerOf(const ByteRange &track, const ReadBudget &budget) {
    const auto handler = findPath(track, {kBoxMdia, kBoxHdlr}, budget);
    const auto type = handler ? handler->bytes(kHandlerTypeAt, 4) : std::nullopt;
    return type ? number32(*type, ByteOrder::Motorola) : 0;
}

void takeSize(const ByteRange &track, const ReadBudget &budget, MovieTrack &result) {
    const auto header = findBox(track, kBoxTkhd, budget);
    if (!header)
        return;
    const std::size_t length = kTkhdLengths[versionOf(header->body)];
    const auto size = header->body.bytes(length - kTkhdSizeLength, kTkhdSizeLength);
    if (!size)
        return;
    result.width = number16(*size, ByteOrder::Motorola);
    result.height = number16(size->substr(4), ByteOrder::Motorola);
}

/// The names of a timed metadata sample's values, each under the number of its key.
void takeKeys(const ByteRange &keys, const ReadBudget &budget, MovieTrack &result) {
    MovieBoxes entries(keys, budget);
    while (const auto entry = entries.next()) {
        const auto name = findBox(entry->body, kBoxKeyd, budget);
        if (!name || name->body.length() > kLongestMovieText)
            continue;
        const auto bytes = name->body.bytes(0, static_cast<std::size_t>(name->body.length()));
        if (!bytes || bytes->size() < kKeydNamespaceLength)
            continue;
        const std::string_view key = bytes->substr(kKeydNamespaceLength);
        result.hasLivePhotoInfo = result.hasLivePhotoInfo || key == kKeyLivePhotoInfo;
        if (entry->type == kFirstKey && key == kKeyStillImageTime)
            result.isStillImageTime = true;
    }
}

void takeTimedMetadata(const ByteRange &track, const ReadBudget &budget, MovieTrack &result) {
    const auto descriptions = findPath(track, {kBoxMdia, kBoxMinf, kBoxStbl, kBoxStsd}, budget);
    if (!descriptions)
        return;
    const auto entry =
        findBox(descriptions->part(kCountedBoxStart, descriptions->length()), kBoxMebx, budget);
    if (!entry)
        return;
    const auto keys =
        findBox(entry->body.part(kSampleEntryStart, entry->body.length()), kBoxKeys, budget);
    if (keys)
        takeKeys(keys->body, budget, result);
}

/// Whether an edit shows nothing, and for how long, in units of the movie.
struct Edit {
    bool isEmpty;
    double duration;
};

Edit editOf(std::string_view bytes, std::size_t version) {
    constexpr auto order = ByteOrder::Motorola;
    if (version == 0)
        return {number32(bytes.substr(4), order) == 0xFFFFFFFF,
                static_cast<double>(number32(bytes, order))};
    return {number64(bytes.substr(8), order) == ~std::uint64_t{0},
            static_cast<double>(number64(bytes, order))};
}

/// The track's media begins behind the empty edits at its start.
double firstEditTime(const ByteRange &track, std::uint32_t timeScale, const ReadBudget &budget) {
    const auto list = findPath(track, {kBoxEdts, kBoxElst}, budget);
    if (!list)
        return 0;
    const std::size_t version = versionOf(*list);
    const std::size_t length = kEditLengths[version];
    double time = 0;
    for (std::size_t i = 0; i < kMostEdits; ++i) {
        const auto bytes = list->bytes(kCountedBoxStart + i * length, length);
        const auto edit = bytes ? std::optional(editOf(*bytes, version)) : std::nullopt;
        if (!edit || !edit->isEmpty)
            break;
        time += edit->duration;
    }
    return time / timeScale;
}

} // namespace

MovieTrack readMovieTrack(const ByteRange &track, std::uint32_t timeScale,
                          const ReadBudget &budget) {
    MovieTrack result;
    result.handler = handlerOf(track, budget);
    if (result.handler == kHandlerVideo)
        takeSize(track, budget, result);
    else if (result.handler == kHandlerMeta)
        takeTimedMetadata(track, budget, result);
    if (result.isStillImageTime)
        result.firstEditTime = firstEditTime(track, timeScale, budget);
    return result;
}

} // namespace chronomender
