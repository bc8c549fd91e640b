// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySinglePic.h"
#include "PropertyDictionary.h"

namespace chronomender {

/// The item's camera is unknown although its format is one that the image library reads. Such items
/// are completed after the import; their dates never wait for that.
bool lacksCamera(const MySinglePic &pic);

/// Completes an item from the image library's dictionaries: camera, size, and a location where none
/// was found in the file's own tags. Nothing that is known is replaced by less. Touches nothing but
/// the item; different items may be completed at the same time, before a view shows them.
void completeItem(MySinglePic &pic, const PropertyDictionary &properties);

} // namespace chronomender
