// SPDX-License-Identifier: GPL-3.0-or-later
#include "HeifPicture.h"

#include "UprightImage.h"

#include <libheif/heif.h>

#include <algorithm>
#include <memory>
#include <mutex>
#include <vector>

namespace chronomender {

namespace {

struct FreeHeif {
    void operator()(heif_context *context) const { heif_context_free(context); }
    void operator()(heif_image_handle *handle) const { heif_image_handle_release(handle); }
    void operator()(heif_image *image) const { heif_image_release(image); }
    void operator()(heif_decoding_options *options) const { heif_decoding_options_free(options); }
};
using Context = std::unique_ptr<heif_context, FreeHeif>;
using Handle = std::unique_ptr<heif_image_handle, FreeHeif>;

constexpr int kMostThumbnails = 16;

PictureFailure failureOf(const heif_error &error) {
    return error.subcode == heif_suberror_Security_limit_exceeded
               ? PictureFailure::TooLarge
               : PictureFailure::DamagedOrUnknown;
}

QSize sizeOf(const Handle &handle) {
    return {heif_image_handle_get_width(handle.get()), heif_image_handle_get_height(handle.get())};
}

QColorSpace profileOf(const Handle &handle) {
    constexpr std::size_t mostBytes = 4 << 20;
    const std::size_t length = heif_image_handle_get_raw_color_profile_size(handle.get());
    if (length == 0 || length > mostBytes)
        return {};
    QByteArray profile(static_cast<int>(length), '\0');
    const heif_error error = heif_image_handle_get_raw_color_profile(handle.get(), profile.data());
    return error.code == heif_error_Ok ? QColorSpace::fromIccProfile(profile) : QColorSpace();
}

/// Turned and mirrored as the file's own properties say (ISO/IEC 23008-12, 6.5.10): the library
/// applies them, and the Exif orientation beside them has no say.
UprightPicture decoded(const Handle &handle, int side, bool isEmbedded) {
    const std::unique_ptr<heif_decoding_options, FreeHeif> options(heif_decoding_options_alloc());
    options->convert_hdr_to_8bit = 1;
    heif_image *decodedImage = nullptr;
    const heif_error error = heif_decode_image(handle.get(), &decodedImage, heif_colorspace_RGB,
                                               heif_chroma_interleaved_RGBA, options.get());
    const std::unique_ptr<heif_image, FreeHeif> image(decodedImage);
    if (error.code != heif_error_Ok)
        return failed(failureOf(error));
    int stride = 0;
    const std::uint8_t *rows =
        heif_image_get_plane_readonly(image.get(), heif_channel_interleaved, &stride);
    if (!rows)
        return failed(PictureFailure::DamagedOrUnknown);
    const bool hasAlpha = heif_image_handle_has_alpha_channel(handle.get());
    const QImage seen(rows, heif_image_get_primary_width(image.get()),
                      heif_image_get_primary_height(image.get()), stride,
                      hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGBX8888);
    return pictureOr(inScreenColours(scaledToSide(seen, side), profileOf(handle)), isEmbedded,
                     PictureFailure::DamagedOrUnknown);
}

/// The smallest thumbnail that reaches `side`, else the largest; null without any.
Handle thumbnailOf(const Handle &picture, int side) {
    std::vector<heif_item_id> ids(kMostThumbnails);
    const int count =
        heif_image_handle_get_list_of_thumbnail_IDs(picture.get(), ids.data(), kMostThumbnails);
    Handle best;
    const auto sideOf = [](const Handle &handle) {
        return std::max(sizeOf(handle).width(), sizeOf(handle).height());
    };
    for (int i = 0; i < std::min(count, kMostThumbnails); ++i) {
        heif_image_handle *opened = nullptr;
        heif_image_handle_get_thumbnail(picture.get(), ids[static_cast<std::size_t>(i)], &opened);
        Handle handle(opened);
        const bool isBetter =
            handle && (!best || (sideOf(best) < side
                                     ? sideOf(handle) > sideOf(best)
                                     : sideOf(handle) >= side && sideOf(handle) < sideOf(best)));
        if (isBetter)
            best = std::move(handle);
    }
    return best;
}

UprightPicture decodedThumbnail(const Handle &picture, const PictureWish &wish) {
    const Handle thumbnail = thumbnailOf(picture, wish.side);
    if (!thumbnail ||
        pixelsOf(sizeOf(thumbnail).width(), sizeOf(thumbnail).height()) > kMostDecodedPixels)
        return failed(PictureFailure::NoPicture);
    UprightPicture found = decoded(thumbnail, wish.side, true);
    found.image = withoutBars(found.image, sizeOf(picture));
    return found.image.isNull() ? failed(PictureFailure::NoPicture) : found;
}

} // namespace

UprightPicture heifPicture(const PictureFile &file, const PictureWish &wish) {
    static std::once_flag once;
    std::call_once(once, [] { heif_init(nullptr); });
    const Context context(heif_context_alloc());
    heif_context_set_max_decoding_threads(context.get(), 0); // on this thread
    heif_error error = heif_context_read_from_file(context.get(), file.path().c_str(), nullptr);
    heif_image_handle *primary = nullptr;
    if (error.code == heif_error_Ok)
        error = heif_context_get_primary_image_handle(context.get(), &primary);
    const Handle picture(primary);
    if (error.code != heif_error_Ok || !picture)
        return failed(failureOf(error));
    const QSize size = sizeOf(picture);
    UprightPicture thumbnail = failed(PictureFailure::NoPicture);
    if (wish.choice != PictureChoice::Decoded)
        thumbnail = decodedThumbnail(picture, wish);
    const int whole = std::max(size.width(), size.height());
    const int found = std::max(thumbnail.image.width(), thumbnail.image.height());
    if (wish.choice == PictureChoice::EmbeddedOnly ||
        (!thumbnail.failure && found >= std::min(wish.side, whole)))
        return thumbnail;
    if (wish.patience.isOver())
        return failed(wish.patience.failureOr(PictureFailure::TooLarge));
    UprightPicture large = pixelsOf(size.width(), size.height()) > kMostDecodedPixels
                               ? failed(PictureFailure::TooLarge)
                               : decoded(picture, wish.side, false);
    return large.failure && !thumbnail.failure ? thumbnail : large;
}

} // namespace chronomender
