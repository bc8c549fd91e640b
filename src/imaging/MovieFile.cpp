// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieFile.h"

extern "C" {
#include <libavutil/dict.h>
}

#include <sys/stat.h>

namespace chronomender {

namespace {

/// Playlists and the like would lead to other files and to the network.
constexpr const char *kReadFormats = "avi,matroska,webm,mpeg,mpegts,asf,mov,mp4";
constexpr const char *kProtocol = "file";
constexpr std::int64_t kMostProbedBytes = 2 << 20;
constexpr std::int64_t kMostProbedMicroseconds = 2'000'000;

int isOverdue(void *patience) {
    return static_cast<const PicturePatience *>(patience)->isOver() ? 1 : 0;
}

struct FreeOptions {
    void operator()(AVDictionary *options) const { av_dict_free(&options); }
};

bool isRegularFile(const std::string &path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0;
}

} // namespace

Movie openMovie(const std::string &path, const PicturePatience &patience) {
    AVFormatContext *movie = isRegularFile(path) ? avformat_alloc_context() : nullptr;
    if (!movie)
        return nullptr;
    movie->interrupt_callback = {isOverdue, const_cast<PicturePatience *>(&patience)};
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

} // namespace chronomender
