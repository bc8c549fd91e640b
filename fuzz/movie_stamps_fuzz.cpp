// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieStampSyntax.h"
#include "Require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace chronomender;
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    (void)isValidQtCreationDateData(text);
    (void)isValidQtLocationData(text);
    if (const auto fields = civilFromRiffTimeStamp(text))
        require(fields->year >= 1 && fields->month <= 12 && fields->day <= 31);
    if (const auto measure = measureData(text)) {
        require(measure->int1() > 0 && measure->frac1() > 0);
        require(measure->int2() > 0 && measure->frac2() > 0);
        require(measure->longitudeEnd <= size);
    }
    return 0;
}
