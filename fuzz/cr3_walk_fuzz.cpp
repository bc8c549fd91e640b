// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleHeif.h"
#include "WalkFuzz.h"

// What stands behind the file type box, which tells the format.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace chronomender;
    const std::string_view bytes = fuzz::textOf(data, size);
    (void)fileFormatTypeForContent(bytes, "cr3");
    const std::string boxed = little::fileType("crx ", "isom").append(bytes);
    fuzz::readAs(boxed, FileFormatRaw);
    return 0;
}
