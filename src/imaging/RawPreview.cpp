// SPDX-License-Identifier: GPL-3.0-or-later
#include "RawPreview.h"

#include "ExivImage.h"
#include "JpegDecoder.h"
#include "UprightImage.h"

#include <algorithm>
#include <memory>

namespace chronomender {

namespace {

int sideOf(const Exiv2::PreviewProperties &preview) {
    return static_cast<int>(
        std::min<std::uint64_t>(std::max(preview.width_, preview.height_), INT32_MAX));
}

QSize sizeOf(const Exiv2::PreviewProperties &preview) {
    return {static_cast<int>(std::min<std::uint64_t>(preview.width_, INT32_MAX)),
            static_cast<int>(std::min<std::uint64_t>(preview.height_, INT32_MAX))};
}

UprightPicture previewOf(const Exiv2::Image &image, const PictureWish &wish) {
    const Exiv2::PreviewManager manager(image);
    Exiv2::PreviewPropertiesList previews = manager.getPreviewProperties();
    std::erase_if(previews, [](const auto &each) {
        return each.mimeType_ != "image/jpeg" || each.size_ > kMostPictureBytes / 8;
    });
    if (previews.empty())
        return failed(PictureFailure::NoPicture);
    std::ranges::stable_sort(previews, {}, sideOf);
    const auto reaching =
        std::ranges::find_if(previews, [&](const auto &each) { return sideOf(each) >= wish.side; });
    const auto &chosen = reaching == previews.end() ? previews.back() : *reaching;
    const Exiv2::PreviewImage bytes = manager.getPreviewImage(chosen);
    const QImage found = decodeJpeg({reinterpret_cast<const char *>(bytes.pData()), bytes.size()},
                                    wish.side, wish.patience)
                             .image;
    const auto orientation = Exiv2::orientation(image.exifData());
    const bool isTold = orientation != image.exifData().end() && orientation->count() > 0;
    const QSize largest = sizeOf(previews.back());
    const QSize stated(image.pixelWidth(), image.pixelHeight());
    const bool isStated = stated.width() > largest.width() && stated.height() > largest.height();
    return pictureOr(turnedUpright(withoutBars(found, isStated ? stated : largest),
                                   isTold ? static_cast<int>(orientation->toLong()) : 1),
                     true, PictureFailure::NoPicture);
}

} // namespace

UprightPicture rawPreview(const PictureFile &file, const PictureWish &wish) {
    try {
        const std::unique_ptr<Exiv2::Image> image(Exiv2::ImageFactory::open(file.path()).release());
        if (!image || isMovie(*image))
            return failed(PictureFailure::NoPicture);
        image->readMetadata();
        return previewOf(*image, wish);
    } catch (...) { // damaged files are daily life, and the library throws more than its own type
        return failed(PictureFailure::NoPicture);
    }
}

} // namespace chronomender
