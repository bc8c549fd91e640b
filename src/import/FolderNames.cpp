// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderNames.h"

#include <algorithm>
#include <array>

namespace chronomender {

namespace {

using namespace std::string_view_literals;

/// Photo libraries, preview stores of raw converters, and our own saved sessions.
constexpr std::array refusedEndings{".photoslibrary"sv, ".aplibrary"sv, ".lrdata"sv, ".mending"sv};

/// Folders that other systems show as one file.
constexpr std::array bundleEndings{".app"sv,       ".bundle"sv,        ".fcpbundle"sv,
                                   ".framework"sv, ".imovielibrary"sv, ".lrlibrary"sv,
                                   ".rtfd"sv,      ".tvlibrary"sv};

constexpr std::string_view trackExtension = "gpx";

struct SidecarExtension {
    std::string_view extension; ///< lower case
    SidecarKind kind;
};
constexpr std::array sidecarExtensions{SidecarExtension{"xmp", SidecarKind::Xmp},
                                       SidecarExtension{"aae", SidecarKind::Aae}};

char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

bool isNamePassedOver(std::string_view name) {
    return name.starts_with("._") || name == ".DS_Store";
}

bool isRefusedFolder(std::string_view path) {
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('/'), path.size());
        const std::string_view folder = path.substr(0, end);
        if (std::ranges::any_of(refusedEndings,
                                [&](std::string_view ending) { return folder.ends_with(ending); }))
            return true;
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return false;
}

bool isExtension(std::string_view given, std::string_view lowerCase) {
    return std::ranges::equal(given, lowerCase, {}, lowered);
}

std::string lowerCaseName(std::string_view name) {
    std::string lower(name);
    std::ranges::transform(lower, lower.begin(), lowered);
    return lower;
}

std::optional<SidecarKind> sidecarKindOfName(std::string_view name) {
    const std::string_view extension = extensionOfName(name);
    for (const SidecarExtension &each : sidecarExtensions)
        if (isExtension(extension, each.extension))
            return each.kind;
    return std::nullopt;
}

bool isFolderNotEntered(std::string_view name) {
    const std::string lower = lowerCaseName(name);
    return lower.starts_with('.') || isRefusedFolder(lower) ||
           std::ranges::any_of(bundleEndings,
                               [&](std::string_view ending) { return lower.ends_with(ending); });
}

bool isCompanionName(std::string_view name) {
    return sidecarKindOfName(name) || isExtension(extensionOfName(name), trackExtension);
}

} // namespace chronomender
