// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileWindow.h"
#include "MetadataBlocks.h"
#include "XmpFormat.h"

#include <span>
#include <vector>

namespace chronomender {

/// The most bytes of one packet that are looked at; the rest of a packet without an end is not.
inline constexpr std::uint64_t kMostXmpBytes = 16ULL << 20;

/// The text of a property as it stands in the file, and which of the names it was found under. An
/// unclosed text, and one that is too long, has no data.
struct XmpText {
    std::size_t name = 0;
    LocatedBytes value; ///< `room` is the text's own length
};

struct XmpTextScan {
    std::vector<XmpText> texts;   ///< in the order of the file, each name at most once
    bool hasReachedLimit = false; ///< the scan ended for its limit
};

/// Finds the first value of each name by looking at the bytes from the packet's beginning on. Ends
/// with the packet, with the block, or when nothing is left to be found. A name counts where "<" or
/// a blank stands in front of it, and a value directly behind.
XmpTextScan scanXmpTexts(FileWindow &window, const ByteBlock &packet,
                         std::span<const XmpName> names);

/// False for a packet in UTF-16 or UTF-32, in which no name would be found.
bool isXmpInUtf8(FileWindow &window, const ByteBlock &packet);

} // namespace chronomender
