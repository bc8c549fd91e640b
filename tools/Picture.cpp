// SPDX-License-Identifier: GPL-3.0-or-later
#include "Picture.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

#include <jpeglib.h>

namespace chronomender::tools {

namespace {

struct Color {
    double red = 0, green = 0, blue = 0;
};

Color mixed(Color a, Color b, double part) {
    return {a.red + (b.red - a.red) * part, a.green + (b.green - a.green) * part,
            a.blue + (b.blue - a.blue) * part};
}

constexpr Color NightSky{12, 16, 40}, DaySky{96, 160, 230}, Horizon{235, 190, 150},
    Hill{40, 90, 50}, Sun{255, 235, 170}, Digit{255, 90, 60};
constexpr double SecondsPerDay = 86400, Pi = 3.14159265358979;

void setPixel(Picture &picture, int x, int y, Color color) {
    if (x < 0 || y < 0 || x >= picture.width || y >= picture.height)
        return;
    const auto at = 3 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) +
                         static_cast<std::size_t>(x));
    picture.rgb[at] = static_cast<std::uint8_t>(color.red);
    picture.rgb[at + 1] = static_cast<std::uint8_t>(color.green);
    picture.rgb[at + 2] = static_cast<std::uint8_t>(color.blue);
}

void fill(Picture &picture, int left, int top, int width, int height, Color color) {
    for (int y = top; y < top + height; ++y)
        for (int x = left; x < left + width; ++x)
            setPixel(picture, x, y, color);
}

/// Segments of the digits 0 to 9: bits top, upper left, upper right, middle, lower left, lower
/// right, bottom.
constexpr std::array<unsigned, 10> segmentsOfDigit{0x77, 0x24, 0x5D, 0x6D, 0x2E,
                                                   0x6B, 0x7B, 0x25, 0x7F, 0x6F};
struct Segment {
    int x, y, width, height; ///< in strokes; a digit is 5 wide and 9 high
};
constexpr std::array<Segment, 7> segments{{{0, 0, 5, 1},
                                           {0, 0, 1, 5},
                                           {4, 0, 1, 5},
                                           {0, 4, 5, 1},
                                           {0, 4, 1, 5},
                                           {4, 4, 1, 5},
                                           {0, 8, 5, 1}}};

void drawDigit(Picture &picture, int digit, int left, int top, int stroke) {
    for (std::size_t i = 0; i < segments.size(); ++i)
        if (segmentsOfDigit[static_cast<std::size_t>(digit)] >> i & 1U)
            fill(picture, left + segments[i].x * stroke, top + segments[i].y * stroke,
                 segments[i].width * stroke, segments[i].height * stroke, Digit);
}

void drawClock(Picture &picture, int secondOfDay) {
    const int stroke = picture.width / 120 + 1;
    const std::array values{secondOfDay / 3600, secondOfDay / 60 % 60, secondOfDay % 60};
    int left = 3 * stroke;
    const int top = picture.height - 12 * stroke;
    for (const int value : values) {
        drawDigit(picture, value / 10, left, top, stroke);
        drawDigit(picture, value % 10, left + 7 * stroke, top, stroke);
        left += 17 * stroke;
    }
}

double hillHeight(double x, unsigned seed) {
    const double phase = static_cast<double>(seed % 97);
    return 0.30 + 0.07 * std::sin(5 * x + phase) + 0.03 * std::sin(17 * x + 2 * phase);
}

} // namespace

Picture landscape(int width, int height, int secondOfDay, unsigned seed) {
    Picture picture{width, height, {}};
    picture.rgb.resize(3 * static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    // 0 at midnight, 1 at noon.
    const double day = 0.5 - 0.5 * std::cos(2 * Pi * secondOfDay / SecondsPerDay);
    const auto sunX = static_cast<int>(width * secondOfDay / SecondsPerDay);
    const auto sunY = static_cast<int>(height * (0.8 - 0.65 * day));
    const int radius = height / 14;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const double up = 1.0 - static_cast<double>(y) / height;
            Color color = mixed(Horizon, mixed(NightSky, DaySky, day), std::fmin(1.0, up * 1.3));
            const int dx = x - sunX, dy = y - sunY;
            if (dx * dx + dy * dy < radius * radius)
                color = Sun;
            if (up < hillHeight(static_cast<double>(x) / width, seed))
                color = mixed(mixed(NightSky, Hill, 0.3 + 0.7 * day), Horizon, up * 0.6);
            setPixel(picture, x, y, color);
        }
    drawClock(picture, secondOfDay);
    return picture;
}

void addGrain(Picture &picture, int strength, unsigned seed) {
    std::minstd_rand random(seed);
    for (auto &value : picture.rgb) {
        const int grain = static_cast<int>(random() >> 8U) % (2 * strength + 1) - strength;
        const int sum = value + grain;
        value = static_cast<std::uint8_t>(sum < 0 ? 0 : sum > 255 ? 255 : sum);
    }
}

std::string jpegOf(const Picture &picture, int quality, bool withJfifHeader) {
    jpeg_compress_struct compress{};
    jpeg_error_mgr errors{};
    compress.err = jpeg_std_error(&errors);
    jpeg_create_compress(&compress);
    unsigned char *buffer = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&compress, &buffer, &size);
    compress.image_width = static_cast<JDIMENSION>(picture.width);
    compress.image_height = static_cast<JDIMENSION>(picture.height);
    compress.input_components = 3;
    compress.in_color_space = JCS_RGB;
    jpeg_set_defaults(&compress);
    jpeg_set_quality(&compress, quality, TRUE);
    compress.write_JFIF_header = withJfifHeader ? TRUE : FALSE;
    jpeg_start_compress(&compress, TRUE);
    while (compress.next_scanline < compress.image_height) {
        const auto at = 3 * static_cast<std::size_t>(compress.next_scanline) *
                        static_cast<std::size_t>(picture.width);
        JSAMPROW row = const_cast<JSAMPROW>(picture.rgb.data() + at);
        jpeg_write_scanlines(&compress, &row, 1);
    }
    jpeg_finish_compress(&compress);
    std::string out(reinterpret_cast<const char *>(buffer), size);
    jpeg_destroy_compress(&compress);
    std::free(buffer);
    return out;
}

std::string withExif(std::string_view jpeg, std::string_view tiff) {
    const std::string_view signature("Exif\0\0", 6);
    const auto length = 2 + signature.size() + tiff.size();
    if (length > 0xFFFF)
        return {};
    std::string out(jpeg.substr(0, 2));
    out += "\xFF\xE1";
    out += static_cast<char>(length >> 8U & 0xFFU);
    out += static_cast<char>(length & 0xFFU);
    out += signature;
    out += tiff;
    out += jpeg.substr(2);
    return out;
}

} // namespace chronomender::tools
