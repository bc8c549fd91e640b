// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace chronomender {

/// Raw bytes of a file. A std::string, since most of them are short texts.
using Bytes = std::string;

/// A value as it stands in a file, with the place it was read from. This is what a save proves and
/// overwrites, so `offset` is absolute in the file and `data` holds exactly the bytes found there.
///
/// `room` is the length in bytes that the file declares for the field, starting at `offset`, and so
/// the most that may ever be written. It can be smaller than `data`: such a value is read and
/// shown, and never patched.
struct LocatedBytes {
    std::uint64_t offset = 0;
    std::uint32_t room = 0;
    Bytes data;

    bool hasRoomFor(std::uint64_t length) const { return room >= length; }
    bool operator==(const LocatedBytes &) const = default;
};

} // namespace chronomender
