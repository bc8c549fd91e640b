// SPDX-License-Identifier: GPL-3.0-or-later
#include "RiffWalk.h"

#include "BoxCursor.h"
#include "MovieWalk.h"
#include "RiffFormat.h"

namespace chronomender {

namespace {

constexpr std::uint32_t kListHeader = boxType("hdrl"), kListInfo = boxType("INFO"),
                        kListStream = boxType("strl");
constexpr std::uint32_t kChunkDate = boxType("IDIT"), kChunkSoftware = boxType("ISFT"),
                        kChunkMovieHeader = boxType("avih"), kChunkStreamHeader = boxType("strh");
constexpr std::uint32_t kVideoStream = boxType("vids");

/// "Thu Jan 20 08:16:08 2022", a line feed and a zero byte. Cameras write other forms as well;
/// those cannot be written back in their own shape and count as absent.
constexpr std::uint64_t kRiffDateLength = 26;
constexpr std::size_t kLongestInfo = 256;

/// AVIMAINHEADER and AVISTREAMHEADER: where the numbers stand.
constexpr std::size_t kAviWidthAt = 32, kAviHeaderLength = 40;
constexpr std::size_t kStreamScaleAt = 20, kStreamRateAt = 24, kStreamLengthAt = 32,
                      kStreamHeaderLength = 36;

/// The chunks of the first "AVI " form.
std::optional<ByteRange> movieChunks(FileWindow &window) {
    const ByteRange file(window);
    const auto start = file.bytes(0, kRiffHeaderLength + kRiffTypeLength);
    if (!start || start->substr(0, 4) != "RIFF" || start->substr(8) != "AVI ")
        return std::nullopt;
    const std::uint32_t length = number32(start->substr(4), ByteOrder::Intel);
    return file.part(kRiffHeaderLength, length).from(kRiffTypeLength);
}

std::string infoText(const ByteRange &movie, const ReadBudget &budget) {
    const auto info = findList(movie, kListInfo, budget);
    const auto software = info ? findChunk(*info, kChunkSoftware, budget) : std::nullopt;
    if (!software || software->body.length() > kLongestInfo)
        return {};
    const auto text = software->body.bytes(0, static_cast<std::size_t>(software->body.length()));
    return text ? std::string(text->substr(0, text->find('\0'))) : std::string();
}

std::uint32_t intelNumber(std::string_view bytes, std::size_t at) {
    return number32(bytes.substr(at), ByteOrder::Intel);
}

/// Seconds of the picture stream: its length counts frames over the whole file, also where the
/// movie goes on in further forms.
double videoDuration(const ByteRange &header, const ReadBudget &budget) {
    RiffCursor chunks(header, budget);
    while (const auto chunk = chunks.next()) {
        const auto type =
            chunk->type == boxType("LIST") ? chunk->body.bytes(0, kRiffTypeLength) : std::nullopt;
        if (!type || number32(*type, ByteOrder::Motorola) != kListStream)
            continue;
        const auto stream = findChunk(chunk->body.part(kRiffTypeLength, chunk->body.length()),
                                      kChunkStreamHeader, budget);
        const auto bytes = stream ? stream->body.bytes(0, kStreamHeaderLength) : std::nullopt;
        if (!bytes || number32(*bytes, ByteOrder::Motorola) != kVideoStream)
            continue;
        const double rate = intelNumber(*bytes, kStreamRateAt);
        return rate > 0 ? intelNumber(*bytes, kStreamLengthAt) / rate *
                              intelNumber(*bytes, kStreamScaleAt)
                        : -1;
    }
    return -1;
}

} // namespace

bool isRiffMovie(FileWindow &window) {
    return movieChunks(window).has_value();
}

std::optional<MovieHeader> readRiffHeader(FileWindow &window) {
    const ReadBudget budget(window);
    const auto movie = movieChunks(window);
    const auto header = movie ? findList(*movie, kListHeader, budget) : std::nullopt;
    const auto date = header ? findChunk(*header, kChunkDate, budget) : std::nullopt;
    if (!date || !date->isComplete || date->body.length() != kRiffDateLength)
        return std::nullopt;
    const auto bytes = date->body.bytes(0, kRiffDateLength);
    if (!bytes)
        return std::nullopt;
    MovieHeader result;
    result.movieType = MovieType::Riff;
    result.riffCreaDate = LocatedBytes{date->body.absolute(0), kRiffDateLength, Bytes(*bytes)};
    result.infoString = infoText(*movie, budget);
    return result;
}

MovieDetails readRiffDetails(FileWindow &window) {
    MovieDetails details;
    const ReadBudget budget(window);
    const auto movie = movieChunks(window);
    const auto header = movie ? findList(*movie, kListHeader, budget) : std::nullopt;
    if (!header)
        return details;
    if (const auto main = findChunk(*header, kChunkMovieHeader, budget))
        if (const auto bytes = main->body.bytes(0, kAviHeaderLength)) {
            details.width = static_cast<std::int32_t>(intelNumber(*bytes, kAviWidthAt));
            details.height = static_cast<std::int32_t>(intelNumber(*bytes, kAviWidthAt + 4));
        }
    details.movDuration = videoDuration(*header, budget);
    return details;
}

} // namespace chronomender
