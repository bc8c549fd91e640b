// SPDX-License-Identifier: GPL-3.0-or-later
#include "Patch.h"

#include "UnchangedProof.h"

#include <algorithm>

namespace chronomender {
namespace {

bool overlaps(const Patch &patch, std::uint64_t start, std::size_t length) {
    return patch.offset() < start + length && start < patch.end();
}

const Patch *patchOf(const LocatedBytes &value, std::span<const ValuePatch> patches) {
    const auto found = std::find_if(patches.begin(), patches.end(),
                                    [&](const ValuePatch &each) { return each.value == &value; });
    return found == patches.end() ? nullptr : &found->patch;
}

bool areSame(const Patch &a, const Patch &b) {
    return a.offset() == b.offset() && a.after() == b.after();
}

/// Writes what of the patch falls into the value's own copy.
void apply(const Patch &patch, LocatedBytes &value) {
    const std::uint64_t start = std::max(patch.offset(), value.offset);
    const std::uint64_t end = std::min(patch.end(), value.offset + value.data.size());
    for (std::uint64_t at = start; at < end; ++at)
        value.data[static_cast<std::size_t>(at - value.offset)] =
            patch.after()[static_cast<std::size_t>(at - patch.offset())];
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
        const std::size_t length = bytesInFile(recorded, value).size();
        for (const ValuePatch &each : patches) {
            if (each.value == &value || !overlaps(each.patch, value.offset, length))
                continue;
            const Patch *own = patchOf(value, patches);
            collide = collide || !own || !areSame(*own, each.patch);
        }
    });
    return collide;
}

void applyPatches(SinglePicAttributes &recorded, std::span<const Patch> patches) {
    if (patches.empty())
        return;
    forEachRecordedValue(recorded, [&](std::string_view, const LocatedBytes &value) {
        // The values are members of `recorded`, which is ours to change.
        for (const Patch &patch : patches)
            apply(patch, const_cast<LocatedBytes &>(value));
    });
}

} // namespace chronomender
