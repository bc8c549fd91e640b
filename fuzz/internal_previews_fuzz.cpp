// SPDX-License-Identifier: GPL-3.0-or-later
#include "WalkFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace chronomender;
    static little::MemoryFile file;
    const std::string_view bytes = fuzz::textOf(data, size);
    if (!file.fill(bytes))
        std::abort();
    FileWindow window(file.descriptor(), bytes.size(), false);
    constexpr std::uint64_t kMostBytes = 1 << 20;
    const auto preview = savereadInternalJPGs(window, kMostBytes);
    if (!preview)
        return 0;
    const auto &[offset, length] = preview->bytes;
    const bool isInside = offset <= size && length <= size - offset;
    if (!isInside || !bytes.substr(offset).starts_with("\xFF\xD8\xFF") ||
        !bytes.substr(offset, length).ends_with("\xFF\xD9"))
        std::abort();
    return 0;
}
