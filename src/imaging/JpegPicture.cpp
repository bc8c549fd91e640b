// SPDX-License-Identifier: GPL-3.0-or-later
#include "JpegPicture.h"

#include "ExifThumbnail.h"
#include "JpegDecoder.h"
#include "JpegWalk.h"
#include "UprightImage.h"

#include <algorithm>

namespace chronomender {

UprightPicture jpegPicture(PictureFile &file, const PictureWish &wish) {
    const auto frame = jpegFrameSize(file.range());
    const QSize size = frame ? QSize(frame->width, frame->height) : QSize();
    const ExifPictureFacts exif = readExifPictureFacts(file.range());
    UprightPicture thumbnail = failed(PictureFailure::NoPicture);
    if (wish.choice != PictureChoice::Decoded && exif.thumbnail) {
        const std::string bytes = file.bytes(exif.thumbnail->offset, exif.thumbnail->length);
        const QImage found = decodeJpeg(bytes, kLongestExifThumbnail, wish.patience).image;
        const QImage cut = turnedUpright(withoutBars(found, size), exif.orientation);
        const int side = std::max(cut.width(), cut.height());
        const int whole = size.isEmpty() ? wish.side : std::max(size.width(), size.height());
        const QImage image = cut.isNull() ? cut : scaledToSide(cut, wish.side);
        thumbnail = pictureOr(image, true, PictureFailure::NoPicture);
        if (side >= std::min(wish.side, whole))
            return thumbnail;
    }
    if (wish.choice == PictureChoice::EmbeddedOnly)
        return thumbnail;
    if (file.length() > kMostPictureBytes)
        return thumbnail.failure ? failed(PictureFailure::TooLarge) : thumbnail;
    UprightPicture picture = decodeJpeg(file.bytes(0, file.length()), wish.side, wish.patience);
    if (picture.failure && !thumbnail.failure)
        return thumbnail;
    picture.image = turnedUpright(picture.image, exif.orientation);
    return picture;
}

} // namespace chronomender
