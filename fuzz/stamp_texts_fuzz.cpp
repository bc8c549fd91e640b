// SPDX-License-Identifier: GPL-3.0-or-later
#include "Require.h"
#include "StampSyntax.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace chronomender;
    const Bytes bytes(reinterpret_cast<const char *>(data), size);
    if (const auto stamp = exifTimeStampFromData(bytes)) {
        require(stamp->size() == 19);
        // An unreadable stamp is no date, and no date is unreadable.
        require(isValidZeroStamp(*stamp) != civilFromExifTimeStamp(*stamp).has_value());
        require(!isUnreadableStamp(*stamp) || isValidZeroStamp(*stamp));
    }
    if (const auto fields = civilFromExifTimeStamp(bytes))
        require(fields->year >= 1 && fields->day >= 1 && fields->day <= 31 &&
                verifyDateData(bytes));
    if (const auto zone = exifOffsetFromData(bytes)) {
        const auto seconds = secondsFromExifOffset(*zone);
        require(!seconds || (std::abs(*seconds) <= 18 * 3600 && *seconds % 60 == 0));
    }
    (void)secondsFromExifOffset(bytes);
    (void)verifyGpsDateStampData(bytes);
    return 0;
}
