// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DateDrag.h"
#include "MySingleFolder.h"
#include "TimelineStrip.h"
#include "Zones.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace chronomender {

/// The main item, and the shots that stand before and after it in time.
enum class Neighbour : std::uint8_t { Before, Main, After };

struct NeighbourFact {
    MySinglePicPtr pic; ///< null where there is none
    std::uint16_t colorIndex = noColorIndex;
    std::string name, folder, date;
    std::string distance; ///< from the main item: "12 s earlier", "at the same time"; its own: ""

    bool operator==(const NeighbourFact &) const = default;
    /// All of it, for those who listen.
    std::string words() const;
};

/// By the strip that shows the main item, as it shows it during a `drag`; all empty without one.
using NeighbourFacts = std::array<NeighbourFact, 3>;
NeighbourFacts neighbourFacts(const TimelineStrip &strip, const MySinglePicPtr &mainPic,
                              const Zones &zones, const DateDrag *drag = nullptr);

} // namespace chronomender
