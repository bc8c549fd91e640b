// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DateSlots.h"
#include "SpType.h"

#include <optional>

namespace chronomender {

/// The slot whose stamp holds an item's main date, or will once its empty tags are filled; none
/// when the date comes from elsewhere.
constexpr std::optional<StampSlot> sourceSlot(SpType type) {
    switch (typeAfterFillingEmptyTags(type)) {
    case SpTypeExifOriginal:
    case SpTypeMovieRiff:
    case SpTypeMovieMvhdCreation:
    case SpTypeMovieMdta:
        return StampSlot::Original;
    case SpTypeExifDigitized:
        return StampSlot::Digitized;
    case SpTypeTiffDateTime:
    case SpTypeMovieMvhdModification:
        return StampSlot::Modification;
    default:
        return std::nullopt;
    }
}

/// The same for the stamp that decided about the date: with a file younger than its modification
/// stamp, that stamp did, although the date is the file's.
constexpr std::optional<StampSlot> decidingSlot(SpType type) {
    return type == SpTypeTiffYoungerThanFile ? StampSlot::Modification : sourceSlot(type);
}

} // namespace chronomender
