// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieTrack.h"
#include "MovieWalk.h"
#include "QuickTimeHeader.h"
#include "QuickTimeMetadata.h"
#include "RiffWalk.h"

namespace chronomender {

namespace {

/// The first parts of each kind in a movie box. Found before any of them is read, since tracks are
/// understood with the header's time scale, wherever that stands.
struct MovieParts {
    std::optional<ByteRange> header, userData;
    std::vector<MetadataItem> items;
    std::vector<ByteRange> tracks;
};

MovieParts partsOf(const ByteRange &movie, const ReadBudget &budget) {
    MovieParts parts;
    MovieBoxes boxes(movie, budget);
    while (const auto box = boxes.next()) {
        if (box->type == kBoxMvhd && !parts.header)
            parts.header = box->body;
        else if (box->type == kBoxTrak && parts.tracks.size() < kMostTracks)
            parts.tracks.push_back(box->body);
        else if (box->type == kBoxMeta && parts.items.empty())
            parts.items = readMetadataItems(*box, budget);
        else if (box->type == kBoxUdta && !parts.userData)
            parts.userData = box->body;
    }
    return parts;
}

/// Text of the user data, as QuickTime writes it or as an item of the list inside.
std::string userText(const std::optional<ByteRange> &userData, std::uint32_t type,
                     const ReadBudget &budget) {
    if (!userData)
        return {};
    if (const auto box = findBox(*userData, type, budget)) {
        const auto text = readUserDataText(box->body);
        return textOf(text ? &*text : nullptr);
    }
    const auto meta = findBox(*userData, kBoxMeta, budget);
    const auto item = meta ? readItemOfType(*meta, type, budget) : std::nullopt;
    return textOf(item ? &*item : nullptr);
}

void takeTracks(const MovieParts &parts, std::uint32_t timeScale, const ReadBudget &budget,
                MovieDetails &details) {
    for (const ByteRange &range : parts.tracks) {
        const MovieTrack track = readMovieTrack(range, timeScale, budget);
        if (details.width == 0 && details.height == 0) {
            details.width = track.width;
            details.height = track.height;
        }
        details.hasLivePhotoInfo = details.hasLivePhotoInfo || track.hasLivePhotoInfo;
        if (!details.stillImageTime)
            details.stillImageTime = track.firstEditTime;
    }
}

} // namespace

MovieDetails readMovieDetails(FileWindow &window) {
    if (isRiffMovie(window))
        return readRiffDetails(window);
    MovieDetails details;
    const ReadBudget budget(window);
    const auto movie = findMovieBox(window, false, budget);
    if (!movie)
        return details;
    const MovieParts parts = partsOf(*movie, budget);
    details.make = textOf(find(parts.items, kKeyMake));
    details.model = textOf(find(parts.items, kKeyModel));
    if (details.make.empty() && details.model.empty()) {
        details.make = userText(parts.userData, kBoxMak, budget);
        details.model = userText(parts.userData, kBoxMod, budget);
    }
    details.contentIdentifier = textOf(find(parts.items, kKeyContentIdentifier));
    std::vector<Finding> unused; // the header's own walk tells them
    const auto header = parts.header ? readMVHDData(*parts.header, unused) : std::nullopt;
    if (!header)
        return details;
    details.movDuration = header->duration;
    takeTracks(parts, header->timeScale, budget, details);
    return details;
}

} // namespace chronomender
