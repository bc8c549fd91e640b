// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DatesData.h"
#include "TiffBlock.h"

namespace chronomender {

// Single values of a directory: fetched, checked, and stored with their place and room. What is
// refused stays absent and leaves a finding under `name`; a value without room is stored all the
// same.

using Findings = std::vector<Finding>;

/// A date stamp of 19 characters, or of 17 or 18 with nothing but zero bytes behind in its field.
void readStamp(const TiffBlock &block, const TiffEntry &entry, const char *name,
               std::optional<LocatedBytes> &slot, Findings &findings);

/// A zone stamp of six characters and the byte behind, which is left out where the field has six.
void readZoneStamp(const TiffBlock &block, const TiffEntry &entry, const char *name,
                   std::optional<LocatedBytes> &slot, Findings &findings);

/// Exactly `length` bytes at the entry's offset, whatever they are.
std::optional<LocatedBytes> readElsewhere(const TiffBlock &block, const TiffEntry &entry,
                                          std::size_t length, const char *name, Findings &findings);

/// Exactly `length` bytes (at most 4) of the entry's own value field.
std::optional<LocatedBytes> readInline(const TiffBlock &block, const TiffEntry &entry,
                                       std::size_t length, const char *name, Findings &findings);

/// The text of a field up to its first zero byte, at most `longest` bytes; empty when unreadable.
std::string readText(const TiffBlock &block, const TiffEntry &entry, std::size_t longest);

} // namespace chronomender
