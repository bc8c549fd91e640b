// SPDX-License-Identifier: GPL-3.0-or-later
#include "RawPicture.h"

#include "JpegDecoder.h"
#include "RawPreview.h"
#include "UprightImage.h"

#include <libraw/libraw.h>

#include <algorithm>
#include <memory>
#include <optional>

namespace chronomender {

namespace {

constexpr unsigned kMostRawMegabytes = 1024;
constexpr std::uint64_t kMostRawBytes = std::uint64_t{2} << 30;

struct FreeProcessed {
    void operator()(libraw_processed_image_t *image) const { LibRaw::dcraw_clear_mem(image); }
};

int isOver(void *patience, LibRaw_progress, int, int) {
    return static_cast<const PicturePatience *>(patience)->isOver() ? 1 : 0;
}

PictureFailure failureOf(int result) {
    return result == LIBRAW_TOO_BIG || result == LIBRAW_UNSUFFICIENT_MEMORY
               ? PictureFailure::TooLarge
               : PictureFailure::DamagedOrUnknown;
}

/// The library tells a turn by the bits that its ancestors used.
int orientationOfFlip(int flip) {
    switch (flip) {
    case 3:
        return 3;
    case 5:
        return 8;
    case 6:
        return 6;
    default:
        return 1;
    }
}

/// Eight bits for each of one or three colours, row by row.
QImage imageOfBytes(const unsigned char *bytes, std::size_t length, int width, int height,
                    int colours) {
    const auto format = colours == 1 ? QImage::Format_Grayscale8 : QImage::Format_RGB888;
    if (!bytes || (colours != 1 && colours != 3) || pixelsOf(width, height) == 0 ||
        pixelsOf(width, height) * static_cast<unsigned>(colours) > length)
        return {};
    return QImage(bytes, width, height, width * colours, format).copy();
}

/// An open raw file, or why it is none. Too large for a worker's stack.
struct OpenRaw {
    std::unique_ptr<LibRaw> raw = std::make_unique<LibRaw>();
    std::optional<PictureFailure> failure;
};

OpenRaw openRaw(const PictureFile &file, const PicturePatience &patience) {
    OpenRaw open;
    open.raw->set_progress_handler(isOver, const_cast<PicturePatience *>(&patience));
    auto &parameters = open.raw->imgdata.params;
    parameters.max_raw_memory_mb = kMostRawMegabytes;
    parameters.half_size = 1;
    parameters.use_camera_wb = 1;
    parameters.output_bps = 8;
    const int result = open.raw->open_file(file.path().c_str());
    const auto &sizes = open.raw->imgdata.sizes;
    if (result != LIBRAW_SUCCESS)
        open.failure = patience.failureOr(failureOf(result));
    else if (pixelsOf(sizes.raw_width, sizes.raw_height) > kMostPicturePixels)
        open.failure = PictureFailure::TooLarge;
    return open;
}

UprightPicture thumbnailOf(const PictureFile &file, const PictureWish &wish) {
    const auto [raw, failure] = openRaw(file, wish.patience);
    if (failure)
        return failed(*failure);
    if (raw->unpack_thumb() != LIBRAW_SUCCESS)
        return failed(PictureFailure::NoPicture);
    const auto &found = raw->imgdata.thumbnail;
    QImage image;
    if (found.tformat == LIBRAW_THUMBNAIL_JPEG)
        image = decodeJpeg({found.thumb, found.tlength}, wish.side, wish.patience).image;
    else if (found.tformat == LIBRAW_THUMBNAIL_BITMAP)
        image = imageOfBytes(reinterpret_cast<const unsigned char *>(found.thumb), found.tlength,
                             found.twidth, found.theight, 3);
    if (image.isNull())
        return failed(PictureFailure::NoPicture);
    const QSize whole(raw->imgdata.sizes.width, raw->imgdata.sizes.height);
    return pictureOr(turnedUpright(withoutBars(scaledToSide(image, wish.side), whole),
                                   orientationOfFlip(raw->imgdata.sizes.flip)),
                     true, PictureFailure::NoPicture);
}

/// Turned upright by the library. What it could read only in part would mostly be black.
UprightPicture developed(const PictureFile &file, const PictureWish &wish) {
    const auto [raw, failure] = openRaw(file, wish.patience);
    if (failure)
        return failed(*failure);
    int result = raw->unpack();
    if (result == LIBRAW_SUCCESS && raw->error_count() > 0)
        result = LIBRAW_DATA_ERROR;
    if (result == LIBRAW_SUCCESS)
        result = raw->dcraw_process();
    if (result != LIBRAW_SUCCESS)
        return failed(wish.patience.failureOr(failureOf(result)));
    const std::unique_ptr<libraw_processed_image_t, FreeProcessed> made(
        raw->dcraw_make_mem_image(&result));
    if (!made || made->type != LIBRAW_IMAGE_BITMAP || made->bits != 8)
        return failed(failureOf(result));
    const QImage image =
        imageOfBytes(made->data, made->data_size, made->width, made->height, made->colors);
    if (image.isNull())
        return failed(PictureFailure::DamagedOrUnknown);
    return pictureOr(scaledToSide(image, wish.side), false, PictureFailure::DamagedOrUnknown);
}

int sideOf(const UprightPicture &picture) {
    return std::max(picture.image.width(), picture.image.height());
}

} // namespace

UprightPicture rawPicture(const PictureFile &file, const PictureWish &wish) {
    if (file.length() > kMostRawBytes) // the libraries map a file into memory
        return failed(PictureFailure::TooLarge);
    if (wish.choice == PictureChoice::Decoded)
        return developed(file, wish);
    // The library below knows one preview of each file, and mostly the largest.
    UprightPicture best = rawPreview(file, wish);
    if (sideOf(best) < wish.side) {
        UprightPicture other = thumbnailOf(file, wish);
        if (best.failure || sideOf(other) > sideOf(best))
            best = std::move(other);
    }
    const bool isUnknown = best.failure && best.failure != PictureFailure::NoPicture;
    if (wish.choice == PictureChoice::EmbeddedOnly || sideOf(best) >= wish.side || isUnknown)
        return best;
    UprightPicture large = developed(file, wish);
    return large.failure && !best.failure ? best : large;
}

} // namespace chronomender
