// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileLayer.h"
#include "Patch.h"

#include <optional>
#include <span>
#include <vector>

namespace chronomender {

/// Patches that renew the checksum of every chunk of a PNG file (ISO/IEC 15948, 5.3) that `patches`
/// will change, from the file as it is before them. None when one of them lies in no `eXIf` or
/// `iTXt` chunk, or the file cannot be read: nothing may be written then. Reads only, and of a
/// chunk no more than a small buffer at a time. `hint` is a place inside a chunk's data near which
/// to look first, or 0.
std::optional<std::vector<Patch>> checksumPatches(OpenFile &file, std::span<const Patch> patches,
                                                  std::uint64_t hint = 0);

} // namespace chronomender
