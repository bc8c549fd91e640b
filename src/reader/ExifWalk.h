// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DatesData.h"
#include "TiffBlock.h"

namespace chronomender {

/// Reads the dates, zone stamps, camera texts and GPS values behind a TIFF header into `dates`.
///
/// The first directory and, through their pointers, the Exif and the GPS directory are read, each
/// once and to its end. For tags that may stand in both, the Exif directory wins. Values that do
/// not pass their check are left out, each by itself, with a finding.
void readExif(const ByteRange &file, const TiffHeader &header, DatesData &dates);

} // namespace chronomender
