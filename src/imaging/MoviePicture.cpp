// SPDX-License-Identifier: GPL-3.0-or-later
#include "MoviePicture.h"

#include "MovieFile.h"
#include "UprightImage.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/display.h>
#include <libavutil/pixdesc.h>
#include <libswscale/swscale.h>
}

#include <algorithm>
#include <cmath>

namespace chronomender {

namespace {

constexpr std::chrono::seconds kLongestFrame{5};
constexpr std::int64_t kMostFramePixels = 100'000'000;
constexpr std::int64_t kMostPacketBytes = 64 << 20;
/// Movies often begin with a dark or shaken picture.
constexpr std::int64_t kFrameAt = AV_TIME_BASE;
constexpr int kLeastLinesOfHd = 720;

struct FreeCodec {
    void operator()(AVCodecContext *codec) const { avcodec_free_context(&codec); }
};
struct FreeFrame {
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
};
struct FreePacket {
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
};
struct FreeScaler {
    void operator()(SwsContext *scaler) const { sws_freeContext(scaler); }
};
using Codec = std::unique_ptr<AVCodecContext, FreeCodec>;
using Frame = std::unique_ptr<AVFrame, FreeFrame>;
using Packet = std::unique_ptr<AVPacket, FreePacket>;

Codec openCodec(const AVStream &stream, const AVCodec *decoder) {
    Codec codec(avcodec_alloc_context3(decoder));
    if (!codec || avcodec_parameters_to_context(codec.get(), stream.codecpar) < 0)
        return nullptr;
    codec->thread_count = 1; // one movie for each worker is enough to do
    codec->max_pixels = kMostFramePixels;
    return avcodec_open2(codec.get(), decoder, nullptr) < 0 ? nullptr : std::move(codec);
}

/// Feeds packets of the stream until a frame comes out; null when none does.
Frame nextFrame(AVFormatContext &movie, int stream, AVCodecContext &codec,
                const PicturePatience &patience) {
    Frame frame(av_frame_alloc());
    const Packet packet(av_packet_alloc());
    std::int64_t bytesLeft = kMostPacketBytes;
    bool isAtEnd = false;
    while (frame && packet && !patience.isOver()) {
        const int result = avcodec_receive_frame(&codec, frame.get());
        if (result == 0)
            return frame;
        if (result != AVERROR(EAGAIN) || bytesLeft < 0)
            break;
        isAtEnd = isAtEnd || av_read_frame(&movie, packet.get()) < 0;
        if (isAtEnd) {
            avcodec_send_packet(&codec, nullptr); // hands out what it holds back
            continue;
        }
        bytesLeft -= packet->size;
        if (packet->stream_index == stream)
            avcodec_send_packet(&codec, packet.get()); // a damaged one is passed over
        av_packet_unref(packet.get());
    }
    return nullptr;
}

/// The frame's size as it is to be shown: its pixels need not be squares.
QSize shownSize(const AVFrame &frame) {
    const AVRational shape = frame.sample_aspect_ratio;
    const double ratio = shape.num > 0 && shape.den > 0 ? av_q2d(shape) : 1;
    constexpr double most = 4;
    const double stretched = frame.width * std::clamp(ratio, 1 / most, most);
    return {std::max(1, static_cast<int>(std::lround(stretched))), frame.height};
}

void setColours(SwsContext &scaler, const AVFrame &frame) {
    const bool isHd =
        frame.colorspace == AVCOL_SPC_BT709 ||
        (frame.colorspace == AVCOL_SPC_UNSPECIFIED && frame.height >= kLeastLinesOfHd);
    const int space = isHd                                       ? SWS_CS_ITU709
                      : frame.colorspace == AVCOL_SPC_BT2020_NCL ? SWS_CS_BT2020
                                                                 : SWS_CS_DEFAULT;
    constexpr int one = 1 << 16;
    sws_setColorspaceDetails(&scaler, sws_getCoefficients(space),
                             frame.color_range == AVCOL_RANGE_JPEG,
                             sws_getCoefficients(SWS_CS_DEFAULT), 1, 0, one, one);
}

QImage imageOf(const AVFrame &frame, int side) {
    const auto format = static_cast<AVPixelFormat>(frame.format);
    const AVPixFmtDescriptor *descriptor = av_pix_fmt_desc_get(format);
    if (!descriptor || frame.width <= 0 || frame.height <= 0)
        return {};
    const QSize size = sizeWithSide(shownSize(frame), side);
    const std::unique_ptr<SwsContext, FreeScaler> scaler(
        sws_getContext(frame.width, frame.height, format, size.width(), size.height(),
                       AV_PIX_FMT_RGB32, SWS_AREA, nullptr, nullptr, nullptr));
    const bool hasAlpha = descriptor->flags & AV_PIX_FMT_FLAG_ALPHA;
    QImage image(size, hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    if (!scaler || image.isNull())
        return {};
    setColours(*scaler, frame);
    std::uint8_t *rows[]{image.bits()};
    const int strides[]{static_cast<int>(image.bytesPerLine())};
    const int lines =
        sws_scale(scaler.get(), frame.data, frame.linesize, 0, frame.height, rows, strides);
    return lines == size.height() ? image : QImage();
}

/// The Exif orientation for the turn that the track's matrix tells (ISO/IEC 14496-12, 8.3.2).
int orientationOf(const AVStream &stream) {
    const auto *matrix = av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, nullptr);
    const double degrees =
        matrix ? -av_display_rotation_get(reinterpret_cast<const std::int32_t *>(matrix)) : 0;
    if (std::isnan(degrees))
        return 1;
    constexpr int orientations[]{1, 6, 3, 8}; // by quarters of a turn, clockwise
    return orientations[(std::lround(degrees / 90) % 4 + 4) % 4];
}

} // namespace

UprightPicture moviePicture(const PictureFile &file, const PictureWish &wish) {
    const PicturePatience patience = wish.patience.atMost(kLongestFrame);
    const auto failure = [&](PictureFailure reason) { return failed(patience.failureOr(reason)); };
    const Movie movie = openMovie(file.path(), patience);
    if (!movie || avformat_find_stream_info(movie.get(), nullptr) < 0)
        return failure(PictureFailure::DamagedOrUnknown);
    const AVCodec *decoder = nullptr;
    const int index = av_find_best_stream(movie.get(), AVMEDIA_TYPE_VIDEO, -1, -1, &decoder, 0);
    if (index < 0)
        return failure(index == AVERROR_STREAM_NOT_FOUND ? PictureFailure::NoPicture
                                                         : PictureFailure::DamagedOrUnknown);
    const AVStream &stream = *movie->streams[index];
    const AVCodecParameters &picture = *stream.codecpar;
    if (pixelsOf(picture.width, picture.height) > kMostFramePixels)
        return failed(PictureFailure::TooLarge);
    const Codec codec = openCodec(stream, decoder);
    if (!codec)
        return failure(PictureFailure::DamagedOrUnknown);
    // Where that is not possible the first frame serves.
    if (movie->duration > 2 * kFrameAt)
        av_seek_frame(movie.get(), -1, kFrameAt, AVSEEK_FLAG_BACKWARD);
    const Frame frame = nextFrame(*movie, index, *codec, patience);
    if (!frame)
        return failure(PictureFailure::DamagedOrUnknown);
    return pictureOr(turnedUpright(imageOf(*frame, wish.side), orientationOf(stream)), false,
                     PictureFailure::DamagedOrUnknown);
}

} // namespace chronomender
