// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleTiff.h"

#include <string>
#include <string_view>

namespace chronomender::little {

/// Appends marker segments behind each other; `bytes()` may be taken at any moment. It makes files
/// for metadata readers: frame and body are not decodable.
///
///     Jpeg jpeg;
///     jpeg.exif(tiff.bytes).frame().body(1000);
///     jpeg.tiffStart();   // 12: behind SOI, marker, length and "Exif" with two zero bytes
class Jpeg {
public:
    Jpeg &exif(std::string_view tiff) {
        m_tiffStart = m_bytes.size() + 10;
        return segment(0xE1, std::string("Exif\0\0", 6).append(tiff));
    }
    Jpeg &xmp(std::string_view packet) {
        m_xmpStart = m_bytes.size() + 33;
        return segment(0xE1, std::string("http://ns.adobe.com/xap/1.0/\0", 29).append(packet));
    }
    Jpeg &segment(unsigned marker, std::string_view payload) {
        m_bytes += std::string("\xFF", 1) + static_cast<char>(marker);
        m_bytes += number(payload.size() + 2, 2, Endian::Motorola);
        m_bytes += payload;
        return *this;
    }
    /// A frame header of one grey component; 0xC0 is baseline, 0xC2 progressive, 0xC3 lossless.
    Jpeg &frame(unsigned marker = 0xC0, std::size_t width = 1, std::size_t height = 1) {
        return segment(marker, "\x08" + number(height, 2, Endian::Motorola) +
                                   number(width, 2, Endian::Motorola) +
                                   std::string("\x01\x01\x11\0", 4));
    }
    /// Start of scan, `length` bytes that hold no marker, and the end of the image.
    Jpeg &body(std::size_t length) {
        segment(0xDA, std::string("\x01\x01\0\0\x3F\0", 6));
        return raw(std::string(length, '\x55')).raw("\xFF\xD9");
    }
    Jpeg &raw(std::string_view bytes) {
        m_bytes += bytes;
        return *this;
    }

    const std::string &bytes() const { return m_bytes; }
    std::size_t tiffStart() const { return m_tiffStart; }
    std::size_t xmpStart() const { return m_xmpStart; }

private:
    std::string m_bytes{"\xFF\xD8"};
    std::size_t m_tiffStart = 0, m_xmpStart = 0;
};

} // namespace chronomender::little
