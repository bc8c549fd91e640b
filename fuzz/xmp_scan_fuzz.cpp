// SPDX-License-Identifier: GPL-3.0-or-later
#include "WalkFuzz.h"
#include "XmpScan.h"

// The input is a packet without a container, and a sidecar.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace chronomender;
    const std::string_view bytes = fuzz::textOf(data, size);
    static little::MemoryFile file;
    if (!file.fill(bytes))
        std::abort();
    FileWindow window(file.descriptor(), size, false);
    std::vector<Finding> findings;
    fuzz::requireTruth(scanXmpDates(window, {0, size}, findings), bytes);
    fuzz::requireTruth(scanXmpLocation(window, {0, size}), bytes);
    const XmpSidecar sidecar = scanXmpSidecar(window, findings);
    fuzz::requireTruth(sidecar.dates, bytes);
    fuzz::requireTruth(sidecar.location, bytes);
    for (const std::string &extension : sidecar.extensions)
        if (extension.empty() || extension.find_first_of("./") != std::string::npos)
            std::abort();
    return 0;
}
