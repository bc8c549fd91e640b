// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LocatedBytes.h"
#include "QuickTimeFormat.h"

#include <vector>

namespace chronomender {

/// A value of the metadata keys that are of use.
struct MetadataItem {
    std::string_view key; ///< one of the names in QuickTimeFormat.h
    LocatedBytes value;
};

/// The values of a `meta` body with `keys` and `ilst`, in the order of the keys; each key once.
/// Empty without either of the two.
std::vector<MetadataItem> readMetadataItems(const ByteRange &meta);

/// The value under a key; null without one.
const LocatedBytes *find(const std::vector<MetadataItem> &items, std::string_view key);

/// The text of user data with a length and a language in front. Its room is the length that it
/// declares; a length that the box cannot hold leaves the text without any room.
std::optional<LocatedBytes> readUserDataText(const ByteRange &body);

/// The value of an item of `ilst`, from its `data`; none without one or when it is unusually long.
std::optional<LocatedBytes> readItemValue(const ByteRange &item);

/// The item of a type in the `ilst` of a `meta` body; none without one.
std::optional<LocatedBytes> readItemOfType(const ByteRange &meta, std::uint32_t type);

/// The characters in front of the first zero byte; "" for an absent value.
std::string textOf(const LocatedBytes *value);

} // namespace chronomender
