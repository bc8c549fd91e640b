// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpScan.h"

#include "XmpTexts.h"

namespace chronomender {

namespace {

constexpr std::size_t kLongestFileName = 255, kLongestExtension = 16;

/// Properties that name the medium of a sidecar, as an extension or as a file name.
constexpr std::array kFileNames{
    XmpName{"photoshop:SidecarForExtension", 0, kLongestExtension},
    XmpName{"crs:RawFileName", 0, kLongestFileName},
    XmpName{"xmpMM:DerivedFrom", 0, kLongestFileName},
};
constexpr std::size_t kExtensionAlone = 0; ///< the first of them needs no dot

bool isLetterOrDigit(char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
}

/// Lower case, without the dot; "" for a text that names no extension.
std::string extensionOf(const XmpText &text) {
    const std::string &name = text.value.data;
    const std::size_t dot = name.rfind('.');
    if (dot == std::string::npos && text.name != kExtensionAlone)
        return {};
    std::string extension = name.substr(dot + 1); // the whole text without a dot
    std::ranges::transform(extension, extension.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
    });
    const bool isOne =
        extension.size() <= kLongestExtension && std::ranges::all_of(extension, isLetterOrDigit);
    return isOne ? extension : std::string();
}

std::vector<std::string> scanExtensions(FileWindow &window, const ByteBlock &packet) {
    std::vector<std::string> extensions;
    for (const XmpText &text : scanXmpTexts(window, packet, kFileNames).texts) {
        std::string extension = extensionOf(text);
        if (!extension.empty() && !std::ranges::count(extensions, extension))
            extensions.push_back(std::move(extension));
    }
    return extensions;
}

/// The first "<x:xmpmeta" of the file.
std::optional<std::uint64_t> findMetaBegin(FileWindow &window) {
    std::uint64_t at = window.nextData(0);
    for (std::uint64_t looked = 0; looked < kMostXmpBytes;) {
        const std::string_view block = window.block(at);
        if (const std::size_t found = block.find(kXmpMetaBegin); found != std::string_view::npos)
            return at + found;
        if (block.size() < FileWindow::kScanBlock)
            break;
        const std::uint64_t step = block.size() - (kXmpMetaBegin.size() - 1);
        looked += step;
        at = window.nextData(at + step);
    }
    return std::nullopt;
}

} // namespace

XmpSidecar scanXmpSidecar(FileWindow &window, std::vector<Finding> &findings) {
    XmpSidecar sidecar;
    const ByteBlock file{0, window.length()};
    if (!isXmpInUtf8(window, file)) {
        findings.push_back({"XMP", 0, FindingReason::PacketNotUtf8});
        return sidecar;
    }
    const auto begin = findMetaBegin(window);
    if (!begin)
        return sidecar;
    const ByteBlock packet{*begin, file.length - *begin};
    sidecar.dates = scanXmpDates(window, packet, findings);
    sidecar.location = scanXmpLocation(window, packet);
    sidecar.extensions = scanExtensions(window, packet);
    return sidecar;
}

} // namespace chronomender
