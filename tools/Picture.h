// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender::tools {

/// Red, green and blue, 8 bits each, rows from the top.
struct Picture {
    int width = 0, height = 0;
    std::vector<std::uint8_t> rgb;
};

/// A landscape as it looks at that time of day (sky, sun, hills), with the time drawn into it as a
/// clock of seven-segment digits: whoever opens the file sees when it was really taken.
Picture landscape(int width, int height, int secondOfDay, unsigned seed);

/// Grain of the given strength, so that a compressed picture gets the size of a camera's.
void addGrain(Picture &picture, int strength, unsigned seed);

/// A baseline JPEG stream from its SOI to its EOI marker, with a JFIF header or without (a camera
/// writes Exif in its place).
std::string jpegOf(const Picture &picture, int quality, bool withJfifHeader);

/// `jpeg` with an Exif APP1 segment right behind the SOI marker (Exif 2.32, 4.5.5).
/// The TIFF structure must be shorter than 65,526 bytes; "" otherwise.
std::string withExif(std::string_view jpeg, std::string_view tiff);

} // namespace chronomender::tools
