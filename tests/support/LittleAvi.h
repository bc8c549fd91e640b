// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleBoxes.h"

#include <optional>

// Little AVI files, built byte by byte.
namespace chronomender::little {

/// What an AVI shall hold. The date is named "date".
struct AviFields {
    std::optional<std::string> date = "Thu Jan 20 08:16:08 2022\n" + zeros(1);
    std::optional<std::string> software = "CanonMVI01";
    std::uint32_t width = 320, height = 240;
    std::uint32_t frames = 45, scale = 1, rate = 15;
};

inline std::string intel(std::uint32_t value) {
    return number(value, 4, Endian::Intel);
}

inline Part avi(const AviFields &fields = {}) {
    const Part main =
        chunk("avih", zeros(32) + intel(fields.width) + intel(fields.height) + zeros(16));
    const Part stream =
        chunk("strh", "vidsmjpg" + zeros(12) + intel(fields.scale) + intel(fields.rate) + zeros(4) +
                          intel(fields.frames) + zeros(20));
    Part header = main + list("strl", stream);
    if (fields.date)
        header = header + chunk("IDIT", named("date", *fields.date));
    Part content = list("hdrl", header);
    if (fields.software)
        content = content + list("INFO", chunk("ISFT", *fields.software));
    return list("AVI ", content + list("movi", std::string(64, '\x55')), "RIFF");
}

} // namespace chronomender::little
