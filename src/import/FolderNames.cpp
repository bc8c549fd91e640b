// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderNames.h"

#include <algorithm>
#include <array>

namespace chronomender {

namespace {

using namespace std::string_view_literals;

/// Photo libraries, preview stores of raw converters, and our own saved sessions.
constexpr std::array refusedEndings{".photoslibrary"sv, ".aplibrary"sv, ".lrdata"sv, ".mending"sv};

constexpr std::array companionExtensions{"xmp"sv, "aae"sv, "gpx"sv};

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

std::string_view extensionOfName(std::string_view name) {
    const std::size_t dot = name.find_last_of('.');
    return dot == std::string_view::npos || dot == 0 ? std::string_view() : name.substr(dot + 1);
}

bool isExtension(std::string_view given, std::string_view lowerCase) {
    return std::ranges::equal(given, lowerCase, {}, lowered);
}

bool isCompanionName(std::string_view name) {
    const std::string_view extension = extensionOfName(name);
    return std::ranges::any_of(companionExtensions, [&](std::string_view companion) {
        return isExtension(extension, companion);
    });
}

} // namespace chronomender
