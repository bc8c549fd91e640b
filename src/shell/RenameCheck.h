// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SaveOutcome.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace chronomender {

/// What the disk would make of one item's name.
struct CheckedName {
    enum class Mark : std::uint8_t { Fine, Numbered, Refused } mark = Mark::Fine;
    std::string name; ///< of the main file, as it would stand on the disk
    std::string note; ///< why it is not what was wanted; "" where it is
};

/// What a dry run of a rename found, by items. It holds until a choice, an item or a file changes.
class RenameCheck {
public:
    explicit RenameCheck(const std::vector<ItemRename> &outcomes);

    /// Null for an item that the run does not rename.
    const CheckedName *nameOf(const MySinglePic &pic) const;
    /// "412 names are free.", with those that get a number, and those that are refused.
    std::string summary() const;
    std::size_t numbered() const { return m_numbered; }
    std::size_t refused() const { return m_refused; }

private:
    std::unordered_map<const MySinglePic *, CheckedName> m_names;
    std::size_t m_numbered = 0, m_refused = 0;
};

} // namespace chronomender
