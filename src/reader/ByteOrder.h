// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace chronomender {

/// The order of bytes in numbers: least significant first (Intel, "II") or last (Motorola, "MM").
enum class ByteOrder : std::uint8_t { Intel, Motorola };

/// The unsigned number in the first `width` bytes. The caller has made sure that they are there.
constexpr std::uint32_t numberFrom(std::string_view bytes, std::size_t width, ByteOrder order) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < width; ++i) {
        const std::size_t from = order == ByteOrder::Motorola ? i : width - 1 - i;
        number = number << 8 | static_cast<unsigned char>(bytes[from]);
    }
    return number;
}

constexpr std::uint16_t number16(std::string_view bytes, ByteOrder order) {
    return static_cast<std::uint16_t>(numberFrom(bytes, 2, order));
}

constexpr std::uint32_t number32(std::string_view bytes, ByteOrder order) {
    return numberFrom(bytes, 4, order);
}

constexpr std::uint64_t number64(std::string_view bytes, ByteOrder order) {
    const std::uint64_t first = number32(bytes, order);
    const std::uint64_t second = number32(bytes.substr(4), order);
    return order == ByteOrder::Motorola ? first << 32 | second : second << 32 | first;
}

} // namespace chronomender
