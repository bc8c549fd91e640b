// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySingleFolder.h"
#include "RowTexts.h"

#include <cstdint>
#include <string>
#include <vector>

namespace chronomender {

/// What the list of folders says of one folder, in words; what there is nothing to say of is "".
struct FolderRow {
    std::uint16_t colorIndex = noColorIndex;
    std::string name, path;
    std::string count; ///< "412 items", or that the folder is being read
    std::string range; ///< "27 Oct 2024 – 3 Nov 2024"
    std::string shift; ///< "1 h later", "3 items shifted"
    std::string zones; ///< "Europe/Berlin", "Europe/Berlin → Asia/Tokyo"
    std::string mode;  ///< how a shift is applied
    std::vector<RowNote> notes;
    bool isUnsaved = false;
    bool isDimmed = false; ///< it takes no part now: being read, or out of reach

    bool operator==(const FolderRow &) const = default;
    /// All of it in one sentence, for those who listen.
    std::string words() const;
};

/// Main thread; goes through the folder's items once, and asks nothing of the disk.
FolderRow folderRow(const MySingleFolder &folder, const FilterContext &context, bool isBeingRead);

/// The zones that a folder says for its items; "" for one that says nothing.
std::string zoneWords(const MySingleFolder &folder, const Zones &zones);

} // namespace chronomender
