// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace chronomender::tools {

enum class ByteOrder : std::uint8_t { Intel, Motorola };

/// Lays out a TIFF structure (TIFF 6.0, section 2): the image's directory with the Exif and GPS
/// directories behind it, and a second one for a thumbnail. Written for the sample pictures and
/// deliberately knows nothing of the reader, so that the two can disagree.
///
///     TiffWriter tiff(ByteOrder::Intel);
///     tiff.ascii(TiffWriter::Image, 0x010F, "Canon");
///     tiff.ascii(TiffWriter::Exif, 0x9003, "2026:04:11 09:12:40");
///     std::string block = tiff.build();
class TiffWriter {
public:
    enum Directory : std::uint8_t { Image, Exif, Gps, Thumbnail };

    explicit TiffWriter(ByteOrder order) : m_order(order) {}

    void ascii(Directory where, std::uint16_t tag, std::string_view text); ///< adds the zero byte
    void bytes(Directory where, std::uint16_t tag, std::initializer_list<std::uint8_t> values);
    void shorts(Directory where, std::uint16_t tag, std::initializer_list<std::uint16_t> values);
    void longs(Directory where, std::uint16_t tag, std::initializer_list<std::uint32_t> values);
    void rationals(Directory where, std::uint16_t tag,
                   std::initializer_list<std::pair<std::uint32_t, std::uint32_t>> values);
    void undefined(Directory where, std::uint16_t tag, std::string_view raw);
    /// A LONG that holds the offset of `raw`, which is laid out behind the directories.
    void offsetOf(Directory where, std::uint16_t tag, std::string_view raw);

    /// The whole structure from its byte-order mark on. Directories without entries are left out.
    std::string build() const;
    /// A structure of its own whose first directory is the given one, as CR3 files keep them.
    std::string buildAlone(Directory which) const;

private:
    struct Field {
        std::uint16_t tag = 0, type = 0;
        std::uint32_t count = 0;
        std::string raw;
        bool isOffset = false;
    };
    void add(Directory where, Field field);
    std::string encoded(std::uint32_t value, int width) const;
    void writeDirectory(std::string &out, const std::vector<Field> &fields,
                        std::uint32_t nextOffset) const;
    std::vector<Field> withPointers(std::uint32_t exifOffset, std::uint32_t gpsOffset) const;

    ByteOrder m_order;
    std::array<std::vector<Field>, 4> m_directories;
};

} // namespace chronomender::tools
