// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TiffWriter.h"

#include <absl/time/civil_time.h>

#include <optional>
#include <string>

namespace chronomender::tools {

struct Position {
    double latitude = 0, longitude = 0; ///< degrees
    absl::CivilSecond utc;              ///< GPS time
};

/// What a camera writes about one picture, about seventy tags with all of it set.
struct CameraRecord {
    ByteOrder order = ByteOrder::Intel;
    std::string make, model, lens;
    absl::CivilSecond wallClock;                 ///< shot, digitised and modified
    std::optional<absl::CivilSecond> edited;     ///< the modification stamp, where it differs
    std::optional<std::string> zoneStamp;        ///< "+09:00"; none for a camera without zones
    std::optional<std::string> fractionOfSecond; ///< digits
    std::optional<Position> position;
    std::uint32_t width = 0, height = 0;
    bool isCompressed = true; ///< some tags are for compressed pictures only (Exif 2.32, 4.6.8)
    std::string makerNote;    ///< opaque bytes; "" for none
    std::string thumbnail;    ///< a JPEG stream; "" for none
};

/// "2026:04:11 09:12:40" (Exif 2.32, 4.6.5).
std::string exifStamp(absl::CivilSecond time);

/// Adds the record's tags; the image's own (sizes, strips) are the caller's affair.
void addCameraTags(TiffWriter &tiff, const CameraRecord &record);

} // namespace chronomender::tools
