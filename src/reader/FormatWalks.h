// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DatesData.h"
#include "FileFormatType.h"
#include "TiffBlock.h"

#include <optional>
#include <string_view>

namespace chronomender {

/// Finds the Exif data of a file in the way of its format, and reads them into `dates`, with the
/// places of its XMP as far as they are met on the way. PICT, GIF and movies have none.
void readDatesByFormat(FileWindow &window, FileFormatType format, std::string_view extension,
                       DatesData &dates);

/// Reads the Exif data behind a header, if there is one.
void readExifAt(const ByteRange &range, const std::optional<TiffHeader> &header, DatesData &dates);

} // namespace chronomender
