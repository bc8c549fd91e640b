// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"

#include <array>
#include <string_view>

namespace chronomender {

/// The five dates of an item: OLD as in the file, NEW as a save is to write it. The distant past in
/// an OLD slot marks a tag to be added; the distant future in a NEW slot of a live calculation
/// means the moment of saving.
struct DateSlots {
    OptionalDate exifDateTimeOriginalOLD, exifDateTimeOriginalNEW;
    OptionalDate exifDateTimeDigitizedOLD, exifDateTimeDigitizedNEW;
    OptionalDate tiffDateTimeOLD, tiffDateTimeNEW;
    OptionalDate fileCreationDateOLD, fileCreationDateNEW;
    OptionalDate fileModificationDateOLD, fileModificationDateNEW;

    bool operator==(const DateSlots &) const = default;
};

/// The three slots that stand in the file as stamps. The values are the bits of the daylight-saving
/// states and of the tags to add.
enum class StampSlot : unsigned { Original = 1, Digitized = 2, Modification = 4 };
inline constexpr std::array stampSlots{StampSlot::Original, StampSlot::Digitized,
                                       StampSlot::Modification};

constexpr unsigned bit(StampSlot slot) {
    return static_cast<unsigned>(slot);
}

/// A slot by name, for tables and displays.
struct SlotDescription {
    std::string_view name; ///< for example "exifDateTimeOriginal"
    OptionalDate DateSlots::*oldDate;
    OptionalDate DateSlots::*newDate;
};

inline constexpr std::array<SlotDescription, 5> slotDescriptions{{
    {"exifDateTimeOriginal", &DateSlots::exifDateTimeOriginalOLD,
     &DateSlots::exifDateTimeOriginalNEW},
    {"exifDateTimeDigitized", &DateSlots::exifDateTimeDigitizedOLD,
     &DateSlots::exifDateTimeDigitizedNEW},
    {"tiffDateTime", &DateSlots::tiffDateTimeOLD, &DateSlots::tiffDateTimeNEW},
    {"fileCreationDate", &DateSlots::fileCreationDateOLD, &DateSlots::fileCreationDateNEW},
    {"fileModificationDate", &DateSlots::fileModificationDateOLD,
     &DateSlots::fileModificationDateNEW},
}};

constexpr const SlotDescription &description(StampSlot slot) {
    return slotDescriptions[slot == StampSlot::Original ? 0 : slot == StampSlot::Digitized ? 1 : 2];
}

} // namespace chronomender
