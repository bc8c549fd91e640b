// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittlePhoto.h"

namespace chronomender::little {

/// The checksum of PNG chunks (ISO/IEC 15948, annex D), bit by bit.
inline std::uint32_t pngChecksum(std::string_view bytes) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 1) != 0 ? sum >> 1 ^ 0xEDB88320 : sum >> 1;
    }
    return ~sum;
}

/// Appends chunks behind each other; the picture is one grey pixel that cannot be decoded.
class Png {
public:
    Png() { chunk("IHDR", std::string("\0\0\0\1\0\0\0\1\x08\0\0\0\0", 13)); }

    Png &chunk(std::string_view type, std::string_view data) {
        const std::string typeAndData = std::string(type).append(data);
        m_bytes += number(data.size(), 4, Endian::Motorola) + typeAndData +
                   number(pngChecksum(typeAndData), 4, Endian::Motorola);
        return *this;
    }
    Png &images(std::size_t count, std::size_t length) {
        const std::size_t begin = m_bytes.size();
        chunk("IDAT", std::string(length, 'd'));
        const std::string image = m_bytes.substr(begin);
        for (std::size_t i = 1; i < count; ++i)
            m_bytes += image;
        return *this;
    }
    Png &exif(std::string_view tiff) {
        m_tiffStart = m_bytes.size() + 8;
        return chunk("eXIf", tiff);
    }
    /// An `iTXt` chunk; `fields` is what stands between the keyword and the text.
    Png &xmp(std::string_view packet, const std::string &fields = std::string(4, '\0')) {
        const std::string head = std::string("XML:com.adobe.xmp\0", 18) + fields;
        m_xmpStart = m_bytes.size() + 8 + head.size();
        return chunk("iTXt", head + std::string(packet));
    }
    Png &end() { return chunk("IEND", ""); }

    const std::string &bytes() const { return m_bytes; }
    std::size_t tiffStart() const { return m_tiffStart; }
    std::size_t xmpStart() const { return m_xmpStart; }

private:
    std::string m_bytes{"\x89PNG\r\n\x1A\n"};
    std::size_t m_tiffStart = 0, m_xmpStart = 0;
};

inline BuiltPhoto pngPhoto(const PhotoFields &fields) {
    const BuiltTiff tiff = photoEntries(fields).build();
    Png png;
    if (!fields.xmp.empty())
        png.xmp(fields.xmp);
    png.exif(tiff.bytes).images(1, fields.bodyLength).end();
    return {png.bytes(), namedOffsets(tiff, png.tiffStart())};
}

} // namespace chronomender::little
