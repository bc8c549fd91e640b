// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SinglePicAttributes.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace chronomender {

/// One run of bytes to be overwritten: as many new ones as old ones.
class Patch {
public:
    static constexpr std::size_t mostBytes = 26; ///< the date text of an AVI

    /// `before` and `after` have the same length, at most `mostBytes`.
    Patch(std::uint64_t offset, std::string_view before, std::string_view after);

    std::uint64_t offset() const { return m_offset; }
    std::uint64_t end() const { return m_offset + m_length; }
    std::string_view before() const { return {m_before.data(), m_length}; }
    std::string_view after() const { return {m_after.data(), m_length}; }
    bool changesNothing() const { return before() == after(); }

private:
    std::uint64_t m_offset;
    std::uint8_t m_length;
    std::array<char, mostBytes> m_before, m_after;
};

/// A patch and the recorded value that it is for.
struct ValuePatch {
    const LocatedBytes *value;
    Patch patch;
};

/// A damaged file can claim the same bytes for two values. True when one of the patches would
/// change a value that is to stay, or that another patch wants otherwise.
bool doPatchesCollide(const SinglePicAttributes &recorded, std::span<const ValuePatch> patches);

/// Brings the recorded copies up to date after the patches were written to the file.
void applyPatches(SinglePicAttributes &recorded, std::span<const Patch> patches);

} // namespace chronomender
