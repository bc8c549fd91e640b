// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "JsonLine.h"
#include "MySingleFolder.h"
#include "SaveDriver.h"
#include "Table.h"
#include "Zones.h"

#include <string_view>
#include <vector>

namespace chronomender {

/// One of an item's five dates, as a display shows it.
struct SlotView {
    std::string_view name;
    OptionalDate oldDate;
    OptionalDate newDate;   ///< what a save leaves there; the distant future: the moment of saving
    bool stays = true;      ///< a save writes nothing there
    bool isStorable = true; ///< false: there is a new date, and this system has no place for it
    absl::TimeZone oldZone; ///< for people: in which the file tells the old date
    absl::TimeZone newZone; ///< for people: in which a save would tell the new one
};

/// The slots of an item whose NEW dates are calculated; slots that neither exist nor will are left
/// out.
std::vector<SlotView> slotViews(const MySinglePic &pic, const MySingleFolder &folder,
                                const Zones &zones);
/// The slots of a save's outcome, or of its plan.
std::vector<SlotView> slotViews(const ItemOutcome &outcome, const MySingleFolder &folder,
                                const Zones &zones);

/// {"exifDateTimeOriginal": {"old": …, "new": …, "stays": false}, …} under "slots".
void appendSlots(JsonLine &line, const std::vector<SlotView> &slots);
/// One row a slot: name, old, arrow, new.
void addSlotRows(Table &table, const std::vector<SlotView> &slots);

} // namespace chronomender
