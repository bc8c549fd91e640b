// SPDX-License-Identifier: GPL-3.0-or-later
#include "NameParts.h"

namespace chronomender {
namespace {

/// The length of the name where there is no such dot.
std::size_t positionOfExtensionDot(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    return dot == 0 || dot == std::string_view::npos ? name.size() : dot;
}

} // namespace

std::string_view extensionOfName(std::string_view name) {
    const std::size_t dot = positionOfExtensionDot(name);
    return dot == name.size() ? std::string_view() : name.substr(dot + 1);
}

std::string_view baseOfName(std::string_view name) {
    return name.substr(0, positionOfExtensionDot(name));
}

} // namespace chronomender
