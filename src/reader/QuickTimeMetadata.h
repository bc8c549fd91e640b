// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LocatedBytes.h"
#include "QuickTimeHeader.h"

#include <vector>

namespace chronomender {

/// A value of the metadata keys that are of use.
struct MetadataItem {
    std::string_view key; ///< one of the names in QuickTimeFormat.h
    LocatedBytes value;
};

/// The values of a `meta` with `keys` and `ilst`, in the order of the keys; each key once.
/// Empty without either of the two.
std::vector<MetadataItem> readMetadataItems(const Box &meta, const ReadBudget &budget);

/// The value under a key; null without one.
const LocatedBytes *find(const std::vector<MetadataItem> &items, std::string_view key);

/// The text of user data with a length and a language in front. Its room is the length that it
/// declares; a length that the box cannot hold leaves the text without any room.
std::optional<LocatedBytes> readUserDataText(const ByteRange &body);

/// The item of a type in the `ilst` of a `meta`; none without one or with
/// an unusually long value.
std::optional<LocatedBytes> readItemOfType(const Box &meta, std::uint32_t type,
                                           const ReadBudget &budget);

/// The characters in front of the first zero byte; "" for an absent value.
std::string textOf(const LocatedBytes *value);

} // namespace chronomender
