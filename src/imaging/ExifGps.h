// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PropertyDictionary.h"

#include <exiv2/exif.hpp>

namespace chronomender {

/// The position in a picture's GPS directory. None unless both coordinates and both references are
/// there and lie on the globe; 0/0 is what devices without a fix write, and counts as none.
std::optional<PropertyDictionary::Gps> gpsOfExif(const Exiv2::ExifData &exif);

} // namespace chronomender
