// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// Little TIFF structures, built byte by byte. Nothing here uses the reader, so that every offset is
// known independently of it.
namespace chronomender::little {

enum class Endian : std::uint8_t { Intel, Motorola };
enum class Directory : std::uint8_t { First, Exif, Gps };
using Rational = std::pair<std::uint32_t, std::uint32_t>;

inline std::string number(std::size_t value, std::size_t width, Endian endian) {
    std::string bytes;
    for (std::size_t i = 0; i < width; ++i) {
        const std::size_t shift = 8 * (endian == Endian::Intel ? i : width - 1 - i);
        bytes.push_back(static_cast<char>(value >> shift & 0xFF));
    }
    return bytes;
}

/// A finished structure. Offsets are relative to its first byte, the TIFF header.
struct BuiltTiff {
    std::string bytes;
    std::map<std::pair<Directory, std::uint16_t>, std::size_t> values;  ///< where a value stands
    std::map<std::pair<Directory, std::uint16_t>, std::size_t> entries; ///< its directory entry
    std::map<Directory, std::size_t> directories;

    std::size_t at(Directory directory, std::uint16_t tag) const {
        return values.at({directory, tag});
    }
};

/// Collects entries and lays them out: header, directories, gap, values.
///
///     BuiltTiff tiff = Tiff(Endian::Intel).text(Directory::First, 306, "2024:05:06
///     07:08:09").build(); tiff.at(Directory::First, 306);   // where the stamp stands
class Tiff {
public:
    explicit Tiff(Endian endian = Endian::Intel) : m_endian(endian) {}

    /// A text with its zero byte. `declared` is the count in the entry where it shall lie.
    Tiff &text(Directory directory, std::uint16_t tag, std::string text,
               std::optional<std::uint32_t> declared = {}) {
        text.push_back('\0');
        const auto count = declared.value_or(static_cast<std::uint32_t>(text.size()));
        return value(directory, tag, 2, count, std::move(text));
    }
    Tiff &rationals(Directory directory, std::uint16_t tag, const std::vector<Rational> &values) {
        std::string data;
        for (const auto &[numerator, denominator] : values)
            data += number(numerator, 4, m_endian) + number(denominator, 4, m_endian);
        return value(directory, tag, 5, static_cast<std::uint32_t>(values.size()), data);
    }
    /// Any type, count and bytes; at most four bytes stand in the entry itself.
    Tiff &value(Directory directory, std::uint16_t tag, std::uint16_t type, std::uint32_t count,
                std::string data) {
        m_entries[directory].push_back({tag, type, count, std::move(data)});
        return *this;
    }
    /// An entry whose value field holds exactly this number: a pointer, true or false.
    Tiff &field(Directory directory, std::uint16_t tag, std::uint16_t type, std::uint32_t count,
                std::uint32_t content) {
        return value(directory, tag, type, count, number(content, 4, m_endian));
    }
    /// The 16-bit count of a directory, where it shall lie.
    Tiff &claimCount(Directory directory, std::uint16_t count) {
        m_claimedCounts[directory] = count;
        return *this;
    }
    /// Bytes between the directories and the values.
    Tiff &gap(std::size_t length) {
        m_gap = length;
        return *this;
    }

    BuiltTiff build() const {
        auto entries = m_entries;
        entries[Directory::First];
        addPointer(entries, Directory::Exif, 34665);
        addPointer(entries, Directory::Gps, 34853);
        BuiltTiff built;
        std::size_t end = 8;
        for (auto &[directory, list] : entries) {
            std::stable_sort(list.begin(), list.end(),
                             [](const Entry &a, const Entry &b) { return a.tag < b.tag; });
            built.directories[directory] = end;
            end += 2 + 12 * list.size() + 4;
        }
        built.bytes = header() + std::string(end + m_gap - 8, '\0');
        for (const auto &[directory, list] : entries)
            layOut(built, directory, list);
        return built;
    }

private:
    struct Entry {
        std::uint16_t tag, type;
        std::uint32_t count;
        std::string data;
        std::optional<Directory> pointsTo = {};
    };
    using Entries = std::map<Directory, std::vector<Entry>>;

    std::string header() const {
        return (m_endian == Endian::Intel ? "II" : "MM") + number(42, 2, m_endian) +
               number(8, 4, m_endian);
    }

    static void addPointer(Entries &entries, Directory to, std::uint16_t tag) {
        auto &first = entries[Directory::First];
        const bool isGiven = std::any_of(first.begin(), first.end(),
                                         [&](const Entry &entry) { return entry.tag == tag; });
        if (entries.contains(to) && !isGiven)
            first.push_back({tag, 4, 1, "", to});
    }

    void layOut(BuiltTiff &built, Directory directory, const std::vector<Entry> &list) const {
        std::size_t at = built.directories.at(directory);
        const auto claimed = m_claimedCounts.find(directory);
        const std::size_t count = claimed == m_claimedCounts.end() ? list.size() : claimed->second;
        built.bytes.replace(at, 2, number(count, 2, m_endian));
        at += 2;
        for (const Entry &entry : list) {
            std::string content = entry.data;
            if (entry.pointsTo)
                content = number(built.directories.at(*entry.pointsTo), 4, m_endian);
            const bool isInline = content.size() <= 4;
            built.entries.emplace(std::pair{directory, entry.tag}, at);
            built.values.emplace(std::pair{directory, entry.tag},
                                 isInline ? at + 8 : built.bytes.size());
            const std::string field = isInline ? content : number(built.bytes.size(), 4, m_endian);
            built.bytes.replace(at, 8,
                                number(entry.tag, 2, m_endian) + number(entry.type, 2, m_endian) +
                                    number(entry.count, 4, m_endian));
            built.bytes.replace(at + 8, field.size(), field);
            if (!isInline)
                built.bytes += content;
            at += 12;
        }
    }

    Endian m_endian;
    std::size_t m_gap = 0;
    Entries m_entries;
    std::map<Directory, std::uint16_t> m_claimedCounts;
};

} // namespace chronomender::little
