// SPDX-License-Identifier: GPL-3.0-or-later
#include "WalkFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace chronomender;
    fuzz::readMovieAs(fuzz::textOf(data, size), FileFormatQuickTime);
    return 0;
}
