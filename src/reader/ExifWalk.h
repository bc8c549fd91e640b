// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Cr3Walk.h"
#include "DatesData.h"
#include "TiffBlock.h"

namespace chronomender {

/// Reads the dates, zone stamps, camera texts and GPS values behind a TIFF header into `dates`.
///
/// The first directory and, through their pointers, the Exif and the GPS directory are read, each
/// once and to its end. For tags that may stand in both, the Exif directory wins. Values that do
/// not pass their check are left out, each by itself, with a finding.
/// Nothing outside `range` is looked at, and the header's place counts from its beginning.
void readExif(const ByteRange &range, const TiffHeader &header, DatesData &dates);

/// The same for a Canon CR3 file, which spreads the directories over blocks of their own.
void readCr3Exif(const ByteRange &file, const Cr3Blocks &blocks, DatesData &dates);

} // namespace chronomender
