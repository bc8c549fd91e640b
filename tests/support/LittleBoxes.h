// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleTiff.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

// Nested boxes and chunks, built from the inside out.
namespace chronomender::little {

/// Some bytes, and where the named values in them stand.
struct Part {
    std::string bytes;
    std::map<std::string, std::size_t> offsets;

    Part() = default;
    Part(std::string content) : bytes(std::move(content)) {}
    Part(const char *content) : bytes(content) {}

    friend Part operator+(Part first, const Part &second) {
        for (const auto &[name, offset] : second.offsets)
            first.offsets[name] = first.bytes.size() + offset;
        first.bytes += second.bytes;
        return first;
    }
    std::size_t at(const std::string &name) const { return offsets.at(name); }
};

/// A value to be found again by its name.
inline Part named(const std::string &name, std::string bytes) {
    Part part(std::move(bytes));
    part.offsets[name] = 0;
    return part;
}

inline std::string zeros(std::size_t count) {
    return std::string(count, '\0');
}
inline std::string big(std::uint64_t value, std::size_t width = 4) {
    return number(value, width, Endian::Motorola);
}

/// A box; `sizeField` is the number that its size shall be (1: the size follows in 64 bits).
inline Part box(std::string_view type, const Part &body, std::size_t sizeField = SIZE_MAX) {
    const std::size_t header = sizeField == 1 ? 16 : 8;
    const std::size_t size = header + body.bytes.size();
    std::string start = big(sizeField == SIZE_MAX ? size : sizeField) + std::string(type);
    if (sizeField == 1)
        start += big(size, 8);
    return Part(start) + body;
}

/// A chunk with its byte of padding.
inline Part chunk(std::string_view type, const Part &body) {
    const std::size_t size = body.bytes.size();
    return Part(std::string(type) + number(size, 4, Endian::Intel)) + body + zeros(size % 2);
}
inline Part list(std::string_view type, const Part &chunks, std::string_view kind = "LIST") {
    return chunk(kind, Part(std::string(type)) + chunks);
}

} // namespace chronomender::little
