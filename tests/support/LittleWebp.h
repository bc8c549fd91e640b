// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittlePhoto.h"

namespace chronomender::little {

/// What stands behind data of odd length.
enum class RiffFill : std::uint8_t { Padded, CountedAsData, LeftOut };

/// Appends chunks behind each other; the picture is one pixel that cannot be decoded.
class Webp {
public:
    explicit Webp(RiffFill fill = RiffFill::Padded) : m_fill(fill) {
        chunk("VP8X", std::string("\x0C\0\0\0\0\0\0\0\0\0", 10));
    }

    Webp &chunk(std::string_view type, std::string data) {
        const bool isOdd = data.size() % 2 != 0;
        if (isOdd && m_fill == RiffFill::CountedAsData)
            data.push_back('\0');
        m_chunks.append(type) += number(data.size(), 4, Endian::Intel) + data;
        if (isOdd && m_fill == RiffFill::Padded)
            m_chunks.push_back('\0');
        return *this;
    }
    Webp &exif(std::string_view tiff, std::string_view prefix = {}) {
        m_tiffStart = kHeader + m_chunks.size() + 8 + prefix.size();
        return chunk("EXIF", std::string(prefix).append(tiff));
    }
    Webp &xmp(std::string_view packet) {
        m_xmpStart = kHeader + m_chunks.size() + 8;
        return chunk("XMP ", std::string(packet));
    }

    std::string bytes() const {
        return "RIFF" + number(m_chunks.size() + 4, 4, Endian::Intel) + "WEBP" + m_chunks;
    }
    std::size_t tiffStart() const { return m_tiffStart; }
    std::size_t xmpStart() const { return m_xmpStart; }

private:
    static constexpr std::size_t kHeader = 12;

    RiffFill m_fill;
    std::string m_chunks;
    std::size_t m_tiffStart = 0, m_xmpStart = 0;
};

inline BuiltPhoto webpPhoto(const PhotoFields &fields) {
    const BuiltTiff tiff = photoEntries(fields).build();
    Webp webp;
    webp.chunk("VP8 ", std::string(fields.bodyLength + 1, 'p')).exif(tiff.bytes);
    if (!fields.xmp.empty())
        webp.xmp(fields.xmp);
    return {webp.bytes(), namedOffsets(tiff, webp.tiffStart())};
}

} // namespace chronomender::little
