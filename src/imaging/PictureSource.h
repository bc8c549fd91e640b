// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Cancellation.h"

#include <QImage>

#include <cstdint>
#include <optional>
#include <string>

namespace chronomender {

/// Which picture of a file is wanted. Movies have one kind only: a frame near their beginning.
enum class PictureChoice : std::uint8_t {
    EmbeddedOnly,          ///< a thumbnail or preview inside the file, of any size
    EmbeddedIfLargeEnough, ///< such a one that reaches the wanted side, else the decoded picture
    Decoded,               ///< the picture itself
};

enum class PictureFailure : std::uint8_t {
    CannotBeOpened,
    DamagedOrUnknown, ///< nothing that the libraries can decode
    TooLarge,         ///< more memory or time than one picture may take
    NoPicture,        ///< a medium without one: a sound, or a photo without an embedded thumbnail
    Cancelled,        ///< told to stop; says nothing of the file
};

/// A picture that stands upright, in sRGB, with its longer side at most as long as wished; or why
/// there is none.
struct UprightPicture {
    QImage image;
    bool isEmbedded = false;               ///< not decoded from the picture itself
    std::optional<PictureFailure> failure; ///< where `image` is null
};

/// The picture of a photo or movie, `maxPixelSize` pixels at the longer side, or its own size where
/// that is smaller. Where decoding fails an embedded picture that is too small is still answered.
///
/// The content decides what the file is; the name only tells raw from TIFF. Reads the file and
/// nothing else. Any thread; never throws; memory and time are bounded, whatever the file says of
/// itself. `cancellation` may be null and must outlive the call.
UprightPicture newImageFromSource(const std::string &path, int maxPixelSize, PictureChoice choice,
                                  const Cancellation *cancellation = nullptr);

} // namespace chronomender
