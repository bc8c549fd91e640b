// SPDX-License-Identifier: GPL-3.0-or-later
#include "TiffWriter.h"

#include <algorithm>

namespace chronomender::tools {

namespace {

constexpr std::uint16_t ByteType = 1, AsciiType = 2, ShortType = 3, LongType = 4, RationalType = 5,
                        UndefinedType = 7;
constexpr std::uint16_t ExifPointerTag = 0x8769, GpsPointerTag = 0x8825;
constexpr std::uint32_t HeaderSize = 8, EntrySize = 12, InlineSize = 4;

std::uint32_t sizeOf(std::string_view raw) {
    return static_cast<std::uint32_t>(raw.size());
}

/// Values begin at even offsets (TIFF 6.0, section 2).
std::uint32_t evenSize(std::string_view raw) {
    return (sizeOf(raw) + 1) & ~1U;
}

} // namespace

std::string TiffWriter::encoded(std::uint32_t value, int width) const {
    std::string out(static_cast<std::size_t>(width), '\0');
    for (int i = 0; i < width; ++i) {
        const int shift = 8 * (m_order == ByteOrder::Intel ? i : width - 1 - i);
        out[static_cast<std::size_t>(i)] = static_cast<char>(value >> shift & 0xFFU);
    }
    return out;
}

void TiffWriter::add(Directory where, Field field) {
    auto &fields = m_directories[where];
    const auto behind =
        std::upper_bound(fields.begin(), fields.end(), field,
                         [](const Field &a, const Field &b) { return a.tag < b.tag; });
    fields.insert(behind, std::move(field));
}

void TiffWriter::ascii(Directory where, std::uint16_t tag, std::string_view text) {
    const auto raw = std::string(text) + '\0';
    add(where, {tag, AsciiType, sizeOf(raw), raw, false});
}

void TiffWriter::bytes(Directory where, std::uint16_t tag,
                       std::initializer_list<std::uint8_t> values) {
    const std::string raw(values.begin(), values.end());
    add(where, {tag, ByteType, sizeOf(raw), raw, false});
}

void TiffWriter::shorts(Directory where, std::uint16_t tag,
                        std::initializer_list<std::uint16_t> values) {
    std::string raw;
    for (const auto value : values)
        raw += encoded(value, 2);
    add(where, {tag, ShortType, static_cast<std::uint32_t>(values.size()), raw, false});
}

void TiffWriter::longs(Directory where, std::uint16_t tag,
                       std::initializer_list<std::uint32_t> values) {
    std::string raw;
    for (const auto value : values)
        raw += encoded(value, 4);
    add(where, {tag, LongType, static_cast<std::uint32_t>(values.size()), raw, false});
}

void TiffWriter::rationals(Directory where, std::uint16_t tag,
                           std::initializer_list<std::pair<std::uint32_t, std::uint32_t>> values) {
    std::string raw;
    for (const auto &[numerator, denominator] : values)
        raw += encoded(numerator, 4) + encoded(denominator, 4);
    add(where, {tag, RationalType, static_cast<std::uint32_t>(values.size()), raw, false});
}

void TiffWriter::undefined(Directory where, std::uint16_t tag, std::string_view raw) {
    add(where, {tag, UndefinedType, sizeOf(raw), std::string(raw), false});
}

void TiffWriter::offsetOf(Directory where, std::uint16_t tag, std::string_view raw) {
    add(where, {tag, LongType, 1, std::string(raw), true});
}

std::vector<TiffWriter::Field> TiffWriter::withPointers(std::uint32_t exifOffset,
                                                        std::uint32_t gpsOffset) const {
    TiffWriter copy(m_order);
    copy.m_directories[Image] = m_directories[Image];
    if (!m_directories[Exif].empty())
        copy.longs(Image, ExifPointerTag, {exifOffset});
    if (!m_directories[Gps].empty())
        copy.longs(Image, GpsPointerTag, {gpsOffset});
    return copy.m_directories[Image];
}

void TiffWriter::writeDirectory(std::string &out, const std::vector<Field> &fields,
                                std::uint32_t nextOffset) const {
    const auto begin = sizeOf(out);
    auto valueOffset = begin + 2 + EntrySize * static_cast<std::uint32_t>(fields.size()) + 4;
    std::string values;
    out += encoded(static_cast<std::uint32_t>(fields.size()), 2);
    for (const auto &field : fields) {
        out += encoded(field.tag, 2) + encoded(field.type, 2) + encoded(field.count, 4);
        if (!field.isOffset && field.raw.size() <= InlineSize) {
            out += field.raw + std::string(InlineSize - field.raw.size(), '\0');
            continue;
        }
        out += encoded(valueOffset, 4);
        values += field.raw + std::string(evenSize(field.raw) - field.raw.size(), '\0');
        valueOffset += evenSize(field.raw);
    }
    out += encoded(nextOffset, 4) + values;
}

std::string TiffWriter::buildAlone(Directory which) const {
    TiffWriter alone(m_order);
    alone.m_directories[Image] = m_directories[which];
    return alone.build();
}

std::string TiffWriter::build() const {
    const std::string header =
        (m_order == ByteOrder::Intel ? "II" : "MM") + encoded(42, 2) + encoded(HeaderSize, 4);
    // The directories stand in the order Image, Exif, GPS, Thumbnail, as cameras write them; each
    // is reached by an offset in the first, which the first pass finds and the second writes.
    std::array<std::uint32_t, 4> offsets{};
    std::string out;
    for (int pass = 0; pass < 2; ++pass) {
        out = header;
        writeDirectory(out, withPointers(offsets[Exif], offsets[Gps]), offsets[Thumbnail]);
        for (const auto directory : {Exif, Gps, Thumbnail}) {
            if (m_directories[directory].empty())
                continue;
            offsets[directory] = sizeOf(out);
            writeDirectory(out, m_directories[directory], 0);
        }
    }
    return out;
}

} // namespace chronomender::tools
