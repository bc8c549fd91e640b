// SPDX-License-Identifier: GPL-3.0-or-later
#include "WalkFuzz.h"

// The header at the start of the file, and the scan for one in raw files.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace chronomender;
    const std::string_view bytes = fuzz::textOf(data, size);
    (void)fileFormatTypeForContent(bytes, "tif");
    fuzz::readAs(bytes, FileFormatTiff);
    fuzz::readAs(bytes, FileFormatRaw);
    return 0;
}
