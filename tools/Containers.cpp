// SPDX-License-Identifier: GPL-3.0-or-later
#include "Containers.h"

#include <absl/time/time.h>
#include <zlib.h>

#include <array>
#include <cstdio>

namespace chronomender::tools {

namespace {

using Text = std::string_view;

std::string number(std::uint64_t value, int width) {
    std::string bytes;
    for (int i = width - 1; i >= 0; --i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
    return bytes;
}

std::string little(std::uint32_t value) {
    std::string bytes = number(value, 4);
    return {bytes.rbegin(), bytes.rend()};
}

std::string zeros(std::size_t count) {
    return std::string(count, '\0');
}

/// ISO/IEC 14496-12, 4.2.
std::string box(Text type, const std::string &body) {
    return number(body.size() + 8, 4) + std::string(type) + body;
}

std::string fullBox(Text type, const std::string &body) {
    return box(type, zeros(4) + body);
}

std::string bytesOfHex(Text digits) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes += static_cast<char>(std::stoi(std::string(digits.substr(i, 2)), nullptr, 16));
    return bytes;
}

TiffWriter exifOf(const CameraRecord &record) {
    TiffWriter tiff(record.order);
    addCameraTags(tiff, record);
    return tiff;
}

/// RIFF: little-endian lengths, chunks padded to even ones.
std::string chunk(Text type, const std::string &body) {
    return std::string(type) + little(static_cast<std::uint32_t>(body.size())) + body +
           zeros(body.size() % 2);
}

std::string riff(Text form, const std::string &chunks) {
    return chunk("RIFF", std::string(form) + chunks);
}

/// ISO/IEC 15948, 5.3.
std::string pngChunk(Text type, const std::string &body) {
    const std::string checked = std::string(type) + body;
    const auto sum = crc32(crc32(0, nullptr, 0), reinterpret_cast<const Bytef *>(checked.data()),
                           static_cast<uInt>(checked.size()));
    return number(body.size(), 4) + checked + number(sum, 4);
}

std::string movieHeader(absl::Time date, std::uint32_t milliseconds) {
    const auto since1904 = absl::ToUnixSeconds(date) + 2'082'844'800;
    const auto seconds = number(static_cast<std::uint64_t>(since1904), 4);
    return fullBox("mvhd", seconds + seconds + number(1000, 4) + number(milliseconds, 4) +
                               number(0x10000, 4) + number(0x100, 2) + zeros(10 + 36 + 24) +
                               number(2, 4));
}

struct Key {
    Text name;
    std::string value;
};

/// QuickTime File Format, "Metadata": keys by name, their values by number.
template<std::size_t count>
std::string metadataOf(const std::array<Key, count> &keys) {
    std::string names = number(count, 4), values;
    for (std::size_t i = 0; i < count; ++i) {
        names += number(keys[i].name.size() + 8, 4) + "mdta" + std::string(keys[i].name);
        const std::string data = number(1, 4) + zeros(4) + keys[i].value;
        const std::string item = box("data", data);
        values += number(item.size() + 8, 4) + number(i + 1, 4) + item;
    }
    const std::string handler = fullBox("hdlr", zeros(4) + "mdta" + zeros(13));
    return box("meta", handler + fullBox("keys", names) + box("ilst", values));
}

std::string isoStamp(const CameraRecord &record) {
    std::string stamp = exifStamp(record.wallClock);
    stamp[4] = stamp[7] = '-';
    stamp[10] = 'T';
    return stamp + *record.zoneStamp;
}

absl::Time instantOf(const CameraRecord &record) {
    const absl::Time asUtc = absl::FromCivil(record.wallClock, absl::UTCTimeZone());
    if (!record.zoneStamp)
        return asUtc;
    const int hours = std::stoi(record.zoneStamp->substr(0, 3));
    return asUtc - absl::Hours(hours);
}

/// "SAT APR 11 09:02:40 2026\n" and a zero byte: 26 bytes.
std::string riffDate(absl::CivilSecond time) {
    return absl::FormatTime("%a %b %d %H:%M:%S %Y\n", absl::FromCivil(time, absl::UTCTimeZone()),
                            absl::UTCTimeZone()) +
           '\0';
}

/// Motion JPEG, one frame a second.
std::string aviHeaders(const CameraRecord &record, std::size_t frameLength) {
    const auto words = [](std::initializer_list<std::uint32_t> values) {
        std::string bytes;
        for (const std::uint32_t value : values)
            bytes += little(value);
        return bytes;
    };
    const auto length = static_cast<std::uint32_t>(frameLength);
    const std::string main = words(
        {1'000'000, length, 0, 0x10, 1, 0, 1, length, record.width, record.height, 0, 0, 0, 0});
    const std::string stream = "vidsMJPG" + words({0, 0, 0, 1, 1, 0, 1, length, 0xFFFFFFFF, 0}) +
                               words({0, record.height << 16U | record.width});
    const std::string format = words({40, record.width, record.height, 24U << 16U | 1U}) + "MJPG" +
                               words({record.width * record.height * 3, 0, 0, 0, 0});
    const std::string streams =
        chunk("LIST", "strl" + chunk("strh", stream) + chunk("strf", format));
    return chunk("LIST", "hdrl" + chunk("avih", main) + streams +
                             chunk("IDIT", riffDate(record.wallClock)));
}

} // namespace

std::string cr3Of(const CameraRecord &record, std::string_view body) {
    const TiffWriter tiff = exifOf(record);
    using enum TiffWriter::Directory;
    std::string canon = bytesOfHex("85c0b687820f11e08111f4ce462b6a48") +
                        box("CMT1", tiff.buildAlone(Image)) + box("CMT2", tiff.buildAlone(Exif));
    if (record.position)
        canon += box("CMT4", tiff.buildAlone(Gps));
    return box("ftyp", "crx " + number(1, 4) + "crx isom") + box("moov", box("uuid", canon)) +
           box("mdat", std::string(body));
}

std::string heicOf(const CameraRecord &record, std::string_view body) {
    const std::string item = number(6, 4) + std::string("Exif\0\0", 6) + exifOf(record).build();
    const std::string ftyp = box("ftyp", "heic" + zeros(4) + "mif1heic");
    const std::string entry =
        box("infe", number(0x02000000, 4) + number(1, 2) + zeros(2) + "Exif" + zeros(1));
    const auto meta = [&](std::uint64_t offset) {
        const std::string location = number(0x4400, 2) + number(1, 2) + number(1, 2) + zeros(2) +
                                     number(1, 2) + number(offset, 4) + number(item.size(), 4);
        return fullBox("meta", fullBox("hdlr", zeros(4) + "pict" + zeros(13)) +
                                   fullBox("iinf", number(1, 2) + entry) +
                                   fullBox("iloc", location));
    };
    const std::uint64_t itemAt = ftyp.size() + meta(0).size() + 8;
    return ftyp + meta(itemAt) + box("mdat", item + std::string(body));
}

std::string pngOf(const CameraRecord &record, std::string_view body) {
    constexpr std::size_t chunkLength = 8192;
    std::string file = "\x89PNG\r\n\x1A\n";
    file += pngChunk("IHDR", number(record.width, 4) + number(record.height, 4) +
                                 std::string("\x08\x02\0\0\0", 5));
    file += pngChunk("eXIf", exifOf(record).build());
    for (std::size_t at = 0; at < body.size(); at += chunkLength)
        file += pngChunk("IDAT", std::string(body.substr(at, chunkLength)));
    return file + pngChunk("IEND", "");
}

std::string webpOf(const CameraRecord &record, std::string_view body) {
    const auto side = [](std::uint32_t length) { return little(length - 1).substr(0, 3); };
    const std::string extended =
        std::string("\x08\0\0\0", 4) + side(record.width) + side(record.height);
    return riff("WEBP", chunk("VP8X", extended) + chunk("VP8 ", std::string(body)) +
                            chunk("EXIF", exifOf(record).build()));
}

std::string movieOf(const CameraRecord &record, std::string_view majorBrand,
                    std::string_view body) {
    const std::string brand(majorBrand);
    std::string moov = movieHeader(instantOf(record), 1500);
    if (record.zoneStamp)
        moov += metadataOf(std::array{Key{"com.apple.quicktime.make", record.make},
                                      Key{"com.apple.quicktime.model", record.model},
                                      Key{"com.apple.quicktime.creationdate", isoStamp(record)}});
    return box("ftyp", brand + zeros(4) + brand) + box("mdat", std::string(body)) +
           box("moov", moov);
}

std::string aviOf(const CameraRecord &record, std::string_view jpeg) {
    const std::string frame(jpeg);
    return riff("AVI ",
                aviHeaders(record, frame.size()) +
                    chunk("LIST", "INFO" + chunk("ISFT", record.make + ' ' + record.model + '\0')) +
                    chunk("LIST", "movi" + chunk("00dc", frame)));
}

} // namespace chronomender::tools
