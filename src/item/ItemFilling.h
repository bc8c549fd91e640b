// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DatesData.h"
#include "FileLayer.h"
#include "MySingleFolder.h"
#include "Zones.h"

namespace chronomender {

/// Fills the item's attributes, OLD slots, zone and GPS values from what the reader found. `xmp`
/// is what was read of the file's packet, where the rule of `isXmpRead` asks for it.
void setImageAttributesFromTheDatesData(MySinglePic &pic, DatesData dates,
                                        const MySingleFolder &folder, const Zones &zones,
                                        XmpDateInfos xmp = {});
/// Stores size and times of the file, takes the two file-date slots, and moves a type whose
/// modification stamp is younger than the file. Runs after the stamps are in.
void setImageAttributesFromFileAttributes(MySinglePic &pic, const FileAttributes &attributes,
                                          int dateComparisonThresold);
/// Takes size, times and identity of the file as they are now into the proof, and its times into
/// the two file-date slots; nothing else changes.
void takeFileAttributes(MySinglePic &pic, const FileAttributes &now);
void validateMetaNormalization(MySinglePic &pic);
void validateFilesystemNormalization(MySinglePic &pic);

/// Coordinates within their ranges; 0/0 means that a receiver had none.
bool isUsableLocation(double latitude, double longitude);
/// Coordinates from the recorded GPS values; a location at 0/0 or out of range is none.
void setLocationFromData(MySinglePic &pic);

/// Reads a photo's open file again: size, times, offsets, stamps, and the main date by the item's
/// type (after the external tool has written the file). Stamps without a zone are read in `zone`.
/// False when the file cannot be read.
bool refreshInternalData(MySinglePic &pic, const OpenFile &file, const FileAttributes &attributes,
                         const absl::TimeZone &zone);

} // namespace chronomender
