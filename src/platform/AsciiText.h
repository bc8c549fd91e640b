// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace chronomender {

/// No byte of the text is beyond 127: what most names are, and what needs no Unicode.
inline bool isAscii(std::string_view text) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    std::size_t at = 0;
    for (; at + sizeof(std::uint64_t) <= text.size(); at += sizeof(std::uint64_t)) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, text.data() + at, sizeof eight);
        if (eight & kHighBits)
            return false;
    }
    return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(),
                       [](char each) { return (each & 0x80) == 0; });
}

} // namespace chronomender
