// SPDX-License-Identifier: GPL-3.0-or-later
#include "Patch.h"

#include "UnchangedProof.h"

#include <algorithm>

namespace chronomender {
namespace {

bool overlaps(const Patch &patch, std::uint64_t start, std::size_t length) {
    return patch.offset() < start + length && start < patch.end();
}

/// Writes what of the patch falls into bytes that stand at `offset` in the file.
void apply(const Patch &patch, std::uint64_t offset, Bytes &bytes) {
    const std::uint64_t start = std::max(patch.offset(), offset);
    const std::uint64_t end = std::min(patch.end(), offset + bytes.size());
    for (std::uint64_t at = start; at < end; ++at)
        bytes[static_cast<std::size_t>(at - offset)] =
            patch.after()[static_cast<std::size_t>(at - patch.offset())];
}

/// Another value's patch would leave this one with other bytes than it wants.
bool isSpoilt(const LocatedBytes &value, std::string_view present,
              std::span<const ValuePatch> patches) {
    const auto isForeign = [&](const ValuePatch &each) {
        return each.value != &value && overlaps(each.patch, value.offset, present.size());
    };
    if (std::none_of(patches.begin(), patches.end(), isForeign))
        return false;
    Bytes wanted(present);
    for (const ValuePatch &each : patches)
        if (each.value == &value)
            apply(each.patch, value.offset, wanted);
    return std::any_of(patches.begin(), patches.end(), [&](const ValuePatch &each) {
        Bytes spoilt = wanted;
        if (isForeign(each))
            apply(each.patch, value.offset, spoilt);
        return spoilt != wanted;
    });
}

} // namespace

Patch::Patch(std::uint64_t offset, std::string_view before, std::string_view after)
    : m_offset(offset), m_length(static_cast<std::uint8_t>(std::min(after.size(), mostBytes))) {
    std::copy_n(before.begin(), std::min<std::size_t>(before.size(), m_length), m_before.begin());
    std::copy_n(after.begin(), m_length, m_after.begin());
}

bool doPatchesCollide(const SinglePicAttributes &recorded, std::span<const ValuePatch> patches) {
    bool collide = false;
    forEachRecordedValue(recorded, [&](std::string_view, const LocatedBytes &value) {
        collide = collide || isSpoilt(value, bytesInFile(recorded, value), patches);
    });
    return collide;
}

void applyPatches(SinglePicAttributes &recorded, std::span<const Patch> patches) {
    if (patches.empty())
        return;
    forEachRecordedValue(recorded, [&](std::string_view, const LocatedBytes &value) {
        // The values are members of `recorded`, which is ours to change.
        for (const Patch &patch : patches)
            apply(patch, value.offset, const_cast<LocatedBytes &>(value).data);
    });
}

} // namespace chronomender
