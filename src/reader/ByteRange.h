// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ByteOrder.h"
#include "FileWindow.h"

#include <algorithm>

namespace chronomender {

/// A part of a file, addressed from its own beginning. A range made inside another never reaches
/// beyond it, and each range knows where in the file it stands. Cheap to copy; the window is not
/// owned and must outlive it.
///
///     ByteRange file(window);          // the whole file
///     auto rest = file.from(20);       // file bytes from 20 on
///     rest->absolute(4);               // 24
class ByteRange {
public:
    explicit ByteRange(FileWindow &window) : m_window(&window), m_length(window.length()) {}

    std::uint64_t length() const { return m_length; }
    std::uint64_t absolute(std::uint64_t offset) const { return m_begin + offset; }

    /// What lies behind `offset`, with the same end; none when that is outside.
    std::optional<ByteRange> from(std::uint64_t offset) const {
        if (offset > m_length)
            return std::nullopt;
        ByteRange rest = *this;
        rest.m_begin += offset;
        rest.m_length -= offset;
        return rest;
    }

    /// At most `length` bytes from `offset` on, as far as they are there; empty outside.
    ByteRange part(std::uint64_t offset, std::uint64_t length) const {
        ByteRange inside = *this;
        inside.m_begin += std::min(offset, m_length);
        inside.m_length = std::min(length, left(offset));
        return inside;
    }

    /// Bytes still there behind `offset`; 0 outside.
    std::uint64_t left(std::uint64_t offset) const {
        return offset > m_length ? 0 : m_length - offset;
    }

    /// Exactly `length` bytes at `offset`, or none. The view holds until the next read.
    std::optional<std::string_view> bytes(std::uint64_t offset, std::size_t length,
                                          Reading reading = Reading::Values) const {
        if (left(offset) < length)
            return std::nullopt;
        return m_window->bytes(m_begin + offset, length, reading);
    }
    /// The same for what only leads to the next header, which may be far away.
    std::optional<std::string_view> header(std::uint64_t offset, std::size_t length) const {
        return bytes(offset, length, Reading::Headers);
    }
    /// A big-endian number of 2, 4 or 8 bytes at `offset`, or none; read like a header.
    std::optional<std::uint64_t> number(std::uint64_t offset, std::size_t width) const {
        const auto view = header(offset, width);
        if (!view)
            return std::nullopt;
        return width == 8 ? number64(*view, ByteOrder::Motorola)
                          : numberFrom(*view, width, ByteOrder::Motorola);
    }

    /// A budget for a walk through this range's file, counted from now.
    ReadBudget budget() const { return ReadBudget(*m_window); }

private:
    FileWindow *m_window;
    std::uint64_t m_begin = 0;
    std::uint64_t m_length = 0;
};

} // namespace chronomender
