// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieProperties.h"

#include "CameraText.h"
#include "MovieFile.h"

extern "C" {
#include <libavutil/log.h>
}

#include <chrono>

namespace chronomender {

namespace {

constexpr std::chrono::seconds kLongestRead{5};

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

} // namespace

std::optional<MovieProperties> readMovieProperties(const std::string &path) {
    const PicturePatience patience(kLongestRead, nullptr);
    const Movie movie = openMovie(path, patience);
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
