// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace chronomender {

/// Length in bytes of the well-formed UTF-8 sequence that `text` begins with (never a surrogate,
/// never an overlong form); 0 when the first byte begins none.
std::size_t utf8SequenceLength(std::string_view text);

/// `text` for a terminal: control characters and bytes that are not UTF-8 as "\x1B", so that a file
/// name can neither move the cursor nor break the output's encoding.
std::string printable(std::string_view text);

/// Characters of well-formed UTF-8, as columns of a terminal (each counts as one).
std::size_t columnCount(std::string_view text);

/// Columns of a terminal before the byte at `place`, where `typed` is shown.
std::size_t columnOfByte(const std::string &typed, std::size_t place);

/// The text in a line of its own, with a mark below the byte at `place`; "" where both do not fit
/// into a line of a terminal.
std::string pointedAt(const std::string &typed, std::size_t place);

} // namespace chronomender
