// SPDX-License-Identifier: GPL-3.0-or-later
#include "NameCheck.h"

#include "DirectionSigns.h"
#include "FolderAccess.h"

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

/// Device names of Windows; the ones with a star are followed by a digit from 1 to 9.
constexpr std::array<std::string_view, 6> reservedNames{"con", "prn", "aux", "nul", "com*", "lpt*"};

bool isControl(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0x20 || byte == 0x7F;
}

/// U+0080 to U+009F: two bytes in UTF-8.
bool hasLateControl(std::string_view name) {
    for (std::size_t at = name.find('\xC2'); at != std::string_view::npos;
         at = name.find('\xC2', at + 1))
        if (at + 1 < name.size() && static_cast<unsigned char>(name[at + 1]) < 0xA0)
            return true;
    return false;
}

bool turnsDirection(std::string_view name, std::string_view presentName) {
    return std::ranges::any_of(directionSigns, [&](std::string_view sign) {
        return name.find(sign) != std::string_view::npos &&
               presentName.find(sign) == std::string_view::npos;
    });
}

bool isSameSign(char wanted, char given) {
    return wanted == '*' ? given >= '1' && given <= '9' : wanted == (given | 0x20);
}

/// Whatever stands behind the first dot, and blanks before it, do not count.
bool isReserved(std::string_view name) {
    std::string_view base = name.substr(0, name.find('.'));
    base = base.substr(0, base.find_last_not_of(' ') + 1);
    return std::ranges::any_of(reservedNames, [&](std::string_view each) {
        return std::equal(each.begin(), each.end(), base.begin(), base.end(), isSameSign);
    });
}

} // namespace

std::string_view nameProblem(std::string_view name, std::string_view presentName,
                             std::size_t mostBytes) {
    if (name.size() > mostBytes)
        return "nameCheck_tooLong";
    if (name.find('/') != std::string_view::npos)
        return "nameCheck_separator";
    if (std::ranges::any_of(name, isControl))
        return "nameCheck_control";
    if (name.empty() || name.ends_with('.') || name.ends_with(' '))
        return "nameCheck_ending";
    if (isReserved(name))
        return "nameCheck_reserved";
    const auto isAscii = [](char character) {
        return static_cast<unsigned char>(character) < 0x80;
    };
    if (std::ranges::all_of(name, isAscii))
        return {};
    if (!isValidUtf8(name))
        return "nameCheck_notUtf8";
    if (hasLateControl(name))
        return "nameCheck_control";
    return turnsDirection(name, presentName) ? "nameCheck_direction" : std::string_view();
}

} // namespace chronomender
