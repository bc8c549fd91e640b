// SPDX-License-Identifier: GPL-3.0-or-later
#include "MyBuildThumbOperation.h"

#include "MySinglePic.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace chronomender {

namespace {

struct ReasonKey {
    PictureFailure failure;
    std::string_view key;
};
constexpr ReasonKey kReasonKeys[]{
    {PictureFailure::CannotBeOpened, "thumb_cannotBeOpened"},
    {PictureFailure::DamagedOrUnknown, "thumb_damagedOrUnknown"},
    {PictureFailure::TooLarge, "thumb_tooLarge"},
    {PictureFailure::NoPicture, "thumb_noPicture"},
    {PictureFailure::Cancelled, "thumb_damagedOrUnknown"}, // never shown
};

bool isTooSmall(const QImage &image) {
    return !image.isNull() &&
           std::max(image.width(), image.height()) < static_cast<int>(ThumbSide::Normal);
}

} // namespace

BuiltThumb MyBuildThumbOperation::buildThumb(const Cancellation &cancellation) const {
    if (cancellation.isRequested())
        return {{}, PictureFailure::Cancelled};
    if (!compressedData.isEmpty()) {
        if (auto entry = setSpThumbFromCompressedData(compressedData, keepMaxi))
            return {std::move(entry), {}};
    }
    const auto side = keepMaxi == KeepMaxi::Yes ? ThumbSide::Maxi : ThumbSide::Normal;
    const auto make = [&](PictureChoice kind) {
        return newImageFromSource(path, static_cast<int>(side), kind, &cancellation);
    };
    UprightPicture picture = make(choice);
    const bool isEmbeddedOnly = choice == PictureChoice::EmbeddedOnly;
    if (isEmbeddedOnly && isTooSmall(picture.image)) {
        if (UprightPicture decoded = make(PictureChoice::Decoded); !decoded.image.isNull())
            picture = std::move(decoded);
    }
    return {setSpThumb(picture.image, keepMaxi),
            picture.failure.value_or(PictureFailure::DamagedOrUnknown),
            isEmbeddedOnly && picture.failure == PictureFailure::NoPicture};
}

std::string thumbSourcePath(const MySinglePic &pic, RawJpgDisplayType rawJpgDisplayType) {
    const MySinglePicPtr &dependent = pic.group.bundleDependentImage;
    const bool isDependentShown =
        rawJpgDisplayType == RawJpgDisplayType::Dependent && dependent && !dependent->isMovie();
    return isDependentShown ? dependent->spPath() : pic.spPath();
}

std::string_view thumbReasonKey(PictureFailure failure) {
    return std::ranges::find(kReasonKeys, failure, &ReasonKey::failure)->key;
}

} // namespace chronomender
