// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MovieProperties.h"
#include "MySinglePic.h"
#include "PropertyDictionary.h"

namespace chronomender {

/// What the libraries tell of an item's file beyond what its import read.
struct LateProperties {
    std::optional<PropertyDictionary> picture;
    std::optional<MovieProperties> movie;
};

/// The item's camera is unknown although its format is one that the libraries read. Such items
/// are completed after the import; their dates never wait for that.
bool lacksCamera(const MySinglePic &pic);

/// Reads what the item can be completed from. A raw file whose size the image library does not know
/// is searched for its preview, which tells size and camera in its place; camera and location that
/// the file does not tell are taken from an XMP sidecar. Of movies only those are
/// read whose container tells nothing to the import. Changes nothing, any thread.
LateProperties readLateProperties(const MySinglePic &pic);

/// Completes the item: camera, lens, size, a movie's duration, and a location where none was found
/// in the file's own tags. Nothing that is known is replaced by less. Touches nothing but the item;
/// different items may be completed at the same time, before a view shows them.
void completeItem(MySinglePic &pic, const LateProperties &properties);
void completeItem(MySinglePic &pic, const PropertyDictionary &properties);

} // namespace chronomender
