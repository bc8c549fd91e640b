// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleBoxes.h"

#include <bit>

namespace chronomender::little {

/// An element of a Matroska file (RFC 8794) with a length of eight bytes.
inline std::string element(std::string_view id, std::string_view body) {
    return std::string(id) + '\1' + big(body.size(), 7) + std::string(body);
}

/// A film without pictures.
inline std::string matroska(double milliseconds, std::size_t width, std::size_t height) {
    const std::string info =
        element("\x2A\xD7\xB1", big(1000000, 4)) +
        element("\x44\x89", big(std::bit_cast<std::uint64_t>(milliseconds), 8));
    const std::string video = element("\xB0", big(width, 2)) + element("\xBA", big(height, 2));
    const std::string track = element("\xD7", "\1") + element("\x73\xC5", "\1") +
                              element("\x83", "\1") + element("\x86", "V_MJPEG") +
                              element("\xE0", video);
    const std::string cluster =
        element("\xE7", zeros(1)) + element("\xA3", "\x81" + zeros(2) + "\x80p");
    return element("\x1A\x45\xDF\xA3", element("\x42\x82", "matroska")) +
           element("\x18\x53\x80\x67", element("\x15\x49\xA9\x66", info) +
                                           element("\x16\x54\xAE\x6B", element("\xAE", track)) +
                                           element("\x1F\x43\xB6\x75", cluster));
}

} // namespace chronomender::little
