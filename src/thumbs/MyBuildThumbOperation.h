// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Cancellation.h"
#include "PictureSource.h"
#include "ThumbEntry.h"

#include <optional>
#include <string>
#include <string_view>

namespace chronomender {

class MySinglePic;

/// What one run of an operation made, or why it made nothing.
struct BuiltThumb {
    std::optional<ThumbEntry> entry;
    PictureFailure failure{};      ///< without an entry
    bool didEXIFThumbFail = false; ///< only an embedded picture was wanted, and there is none
};

/// Makes one item's thumbnail, from bytes that were kept or from its file. It holds copies of what
/// it needs and never looks at the item, so it may run on any thread.
struct MyBuildThumbOperation {
    std::string path;
    QByteArray compressedData; ///< empty: from the file
    KeepMaxi keepMaxi = KeepMaxi::No;
    /// Also with `EmbeddedOnly`, one that does not reach the normal size is made anew.
    PictureChoice choice = PictureChoice::EmbeddedIfLargeEnough;

    BuiltThumb buildThumb(const Cancellation &cancellation) const;
};

/// What a group of a raw and its JPEG shows: 0 its master, 1 the other half.
enum class RawJpgDisplayType : int { Master = 0, Dependent = 1 };

/// The file that shows what an item is. Main thread, as it reads the item.
std::string thumbSourcePath(const MySinglePic &pic, RawJpgDisplayType rawJpgDisplayType);

/// The words for a failure, by the key of their text.
std::string_view thumbReasonKey(PictureFailure failure);

} // namespace chronomender
