// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "XmpData.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace chronomender {

// How XMP (ISO 16684-1) is written into files: marks around a packet and names of properties. A
// value stands as an attribute, name="value", or as an element, <name>value</name>.

inline constexpr std::string_view kXmpMetaBegin = "<x:xmpmeta";
inline constexpr std::array<std::string_view, 2> kXmpPacketEnds{"</x:xmpmeta", "<?xpacket end="};

/// The namespace of XMP's own properties has two customary prefixes, "xmp:" and the older "xap:".
inline constexpr std::size_t kXmpNameMatchedFrom = 2; ///< the "p" of either

/// A property that is looked for.
struct XmpName {
    std::string_view name;
    std::size_t matchedFrom = 0;  ///< what stands in front in the name may be spelled otherwise
    std::size_t longestValue = 0; ///< a longer value is none
};

inline constexpr std::size_t kXmpLongestDate = 29;

struct XmpDateName {
    XmpProperty property;
    XmpName name;
};

inline constexpr std::array kXmpDateNames{
    XmpDateName{XmpProperty::ExifDateTimeOriginal, {"exif:DateTimeOriginal", 0, kXmpLongestDate}},
    XmpDateName{XmpProperty::ExifDateTimeDigitized, {"exif:DateTimeDigitized", 0, kXmpLongestDate}},
    XmpDateName{XmpProperty::XmpCreateDate,
                {"xmp:CreateDate", kXmpNameMatchedFrom, kXmpLongestDate}},
    XmpDateName{XmpProperty::XmpModifyDate,
                {"xmp:ModifyDate", kXmpNameMatchedFrom, kXmpLongestDate}},
    XmpDateName{XmpProperty::XmpMetadataDate,
                {"xmp:MetadataDate", kXmpNameMatchedFrom, kXmpLongestDate}},
    XmpDateName{XmpProperty::TiffDateTime, {"tiff:DateTime", 0, kXmpLongestDate}},
    XmpDateName{XmpProperty::PhotoshopDateCreated, {"photoshop:DateCreated", 0, kXmpLongestDate}},
    XmpDateName{XmpProperty::GpsTimeStamp, {"exif:GPSTimeStamp", 0, kXmpLongestDate}},
};

/// For example "xmp:CreateDate".
constexpr std::string_view xmpPropertyName(XmpProperty property) {
    return std::ranges::find(kXmpDateNames, property, &XmpDateName::property)->name.name;
}

} // namespace chronomender
