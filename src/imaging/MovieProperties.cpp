// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieProperties.h"

#include "CameraText.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/dict.h>
#include <libavutil/log.h>
}

#include <chrono>
#include <memory>
#include <sys/stat.h>

namespace chronomender {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kLongestRead{5};
/// Playlists and the like would lead to other files and to the network.
constexpr const char *kReadFormats = "avi,matroska,webm,mpeg,mpegts,asf,mov,mp4";
constexpr const char *kProtocol = "file";
constexpr std::int64_t kMostProbedBytes = 2 << 20;
constexpr std::int64_t kMostProbedMicroseconds = 2'000'000;

int isOverdue(void *deadline) {
    return Clock::now() > *static_cast<const Clock::time_point *>(deadline) ? 1 : 0;
}

struct CloseMovie {
    void operator()(AVFormatContext *movie) const { avformat_close_input(&movie); }
};
using Movie = std::unique_ptr<AVFormatContext, CloseMovie>;

struct FreeOptions {
    void operator()(AVDictionary *options) const { av_dict_free(&options); }
};

Movie openMovie(const std::string &path, Clock::time_point &deadline) {
    AVFormatContext *movie = avformat_alloc_context();
    if (!movie)
        return nullptr;
    movie->interrupt_callback = {isOverdue, &deadline};
    movie->probesize = kMostProbedBytes;
    movie->max_analyze_duration = kMostProbedMicroseconds;
    AVDictionary *options = nullptr;
    av_dict_set(&options, "format_whitelist", kReadFormats, 0);
    av_dict_set(&options, "protocol_whitelist", kProtocol, 0);
    // The protocol in front keeps a colon in a file's name from choosing another one. A movie that
    // cannot be opened is freed by the call.
    const std::string address = std::string(kProtocol) + ':' + path;
    const int result = avformat_open_input(&movie, address.c_str(), nullptr, &options);
    const std::unique_ptr<AVDictionary, FreeOptions> unused(options);
    return result < 0 ? nullptr : Movie(movie);
}

const AVCodecParameters *videoOf(const AVFormatContext &movie) {
    for (unsigned i = 0; i < movie.nb_streams; ++i) {
        if (movie.streams[i]->codecpar->codec_type == AVMEDIA_TYPE_VIDEO)
            return movie.streams[i]->codecpar;
    }
    return nullptr;
}

bool isComplete(const AVFormatContext &movie) {
    const AVCodecParameters *video = videoOf(movie);
    return movie.duration > 0 && video && video->width > 0;
}

std::string textOf(const AVFormatContext &movie, std::initializer_list<const char *> keys) {
    for (const char *key : keys) {
        if (const AVDictionaryEntry *entry = av_dict_get(movie.metadata, key, nullptr, 0))
            return cameraText(entry->value);
    }
    return {};
}

bool isRegularFile(const std::string &path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0;
}

} // namespace

std::optional<MovieProperties> readMovieProperties(const std::string &path) {
    if (!isRegularFile(path))
        return std::nullopt;
    Clock::time_point deadline = Clock::now() + kLongestRead;
    const Movie movie = openMovie(path, deadline);
    if (!movie)
        return std::nullopt;
    // Some containers tell length and size in their first bytes only by the pictures in them.
    if (!isComplete(*movie))
        avformat_find_stream_info(movie.get(), nullptr);
    MovieProperties properties;
    if (movie->duration > 0)
        properties.duration = static_cast<double>(movie->duration) / AV_TIME_BASE;
    if (const AVCodecParameters *video = videoOf(*movie)) {
        properties.width = video->width;
        properties.height = video->height;
    }
    properties.make = textOf(*movie, {"com.apple.quicktime.make", "make"});
    properties.model = textOf(*movie, {"com.apple.quicktime.model", "model"});
    return properties;
}

void muteMovieLibrary() {
    av_log_set_level(AV_LOG_QUIET);
}

} // namespace chronomender
