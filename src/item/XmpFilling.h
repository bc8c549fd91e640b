// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolderDataReader.h"
#include "MySinglePic.h"

#include <optional>
#include <string>

namespace chronomender {

/// The one rule of when a still image's XMP packet is looked at for dates: its tags have neither an
/// original nor a digitized stamp, be it an empty one, and there is a place where a packet can be.
/// `dates` is what the date walk of the file gave.
bool isXmpRead(const DatesData &dates, FileFormatType format);

/// The packet's dates by that rule; findings are added to `dates`. Empty where it is not read, and
/// where it tells nothing but when it was written itself.
XmpDateInfos readXmpDates(MySingleFolderDataReader &reader, FileFormatType format,
                          DatesData &dates);

/// Formats whose packet is searched for a location when the file has none elsewhere: PNG and the
/// boxed raw format.
bool isLocationSearchedInXmp(FileFormatType format, std::string_view extension);

/// Everything that the sidecar file says; empty when it says nothing of use. None when it cannot be
/// opened.
std::optional<XmpSidecar> metadataFromXMPSidecarAtPath(const std::string &path);

/// Takes date slots, their flags and the GPS time from XMP dates; wall-clock stamps are read in
/// `zone`. Runs before the file's own tags are taken, which overwrite slots and not flags.
/// `hasTiffStamp`: the file has a modification tag of its own.
void setImageAttributesFromXmpDatesData(MySinglePic &pic, XmpDateInfos xmp, bool hasTiffStamp,
                                        const absl::TimeZone &zone);

/// Coordinates from XMP texts; a location at 0/0, out of range or not readable is none, and leaves
/// the item as it is.
void setLocationFromXmp(MySinglePic &pic, const XmpLocation &xmp);

/// Takes the location of the file's own packet, with its places.
void addRelevantXmpInfos(MySinglePic &pic, XmpLocation xmp);
/// Takes what a sidecar says. Its location counts for an item that has none of its own.
void addRelevantSidecarInfos(MySinglePic &pic, XmpSidecar sidecar);

/// Looks for a location of an item without one, in the formats of `isLocationSearchedInXmp`. Opens
/// the file; does nothing when that fails.
void lateSearchXmpLocation(MySinglePic &pic);

} // namespace chronomender
