// SPDX-License-Identifier: GPL-3.0-or-later
#include "WalkFuzz.h"
#include "XmpValues.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace chronomender;
    const std::string_view text = fuzz::textOf(data, size);
    unsigned subtype = 0;
    const XmpStampType type = verifiedXmpDateDataType(text, subtype);
    if (type != XmpStampType::Invalid) {
        const std::size_t zone = type == XmpStampType::Zoned ? xmpZoneLength(subtype) : 0;
        // Clock and zone stand apart, so that both can be written.
        if (size < xmpClockLength(subtype) + zone || isXmpDateWithoutTime(text))
            std::abort();
        (void)isXmpZoneInRange(text, type, subtype);
    }
    for (const XmpAxis axis : {XmpAxis::Latitude, XmpAxis::Longitude}) {
        for (const std::string_view reference : {"", "S", "W"}) {
            const auto degrees = degreesFromXmpCoordinate(text, reference, axis);
            if (degrees && !std::isfinite(*degrees))
                std::abort();
        }
    }
    return 0;
}
