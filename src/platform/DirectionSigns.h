// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace chronomender {

/// The characters of the Unicode property Bidi_Control: ARABIC LETTER MARK, the two marks, the
/// embeddings and overrides, and the isolates. They make a name look like another one.
inline constexpr std::array<std::string_view, 12> directionSigns{
    "\u061C", "\u200E", "\u200F", "\u202A", "\u202B", "\u202C",
    "\u202D", "\u202E", "\u2066", "\u2067", "\u2068", "\u2069"};

/// Asked of one character.
inline bool isDirectionSign(std::string_view character) {
    return std::ranges::find(directionSigns, character) != directionSigns.end();
}

} // namespace chronomender
