// SPDX-License-Identifier: GPL-3.0-or-later
#include "WalkFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace chronomender;
    const std::string_view bytes = fuzz::textOf(data, size);
    (void)fileFormatTypeForContent(bytes, "png");
    fuzz::readAs(bytes, FileFormatPng);
    return 0;
}
